// Offsets reach 2^63 - 1 on 32-bit hosts too.
#define _FILE_OFFSET_BITS 64

#include "Files.h"

#include "Output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <vector>

namespace PlurexTool {

namespace {

constexpr std::size_t ChunkSize = 64 * 1024;

}  // namespace

Input::Input(const std::string& path)
    : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)), owned_(true), name_(path) {
    if (descriptor_ < 0) {
        throw Failure("cannot open " + path + ": " + std::strerror(errno));
    }
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) {
        const int error = errno;
        ::close(descriptor_);
        descriptor_ = -1;
        ReadFailed(error);
    }
    if (S_ISDIR(status.st_mode)) {
        // Said before anything is read: a directory opens, and only its first read fails.
        ::close(descriptor_);
        descriptor_ = -1;
        ReadFailed(EISDIR);
    }
}

Input::Input() : descriptor_(STDIN_FILENO), owned_(false), name_("standard input") {
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) {
        ReadFailed(errno);  // closed (<&-)
    }
    if (S_ISDIR(status.st_mode)) {
        ReadFailed(EISDIR);
    }
}

Input::~Input() {
    if (owned_ && descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

void Input::ReadFailed(int error) const {
    throw Failure("cannot read " + name_ + ": " + std::strerror(error));
}

void Input::Skip(std::uint64_t count) {
    if (count == 0) {
        return;
    }
    if (count <= static_cast<std::uint64_t>(INT64_MAX) &&
        ::lseek(descriptor_, static_cast<off_t>(count), SEEK_CUR) != -1) {
        return;
    }
    // A pipe or a terminal cannot seek: the bytes are read and dropped, in bounded memory.
    std::vector<unsigned char> chunk(ChunkSize);
    while (count > 0) {
        const std::size_t got =
            Read(chunk.data(), static_cast<std::size_t>(std::min<std::uint64_t>(count, ChunkSize)));
        if (got == 0) {
            return;
        }
        count -= got;
    }
}

std::size_t Input::Read(unsigned char* buffer, std::size_t size) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got = ::read(descriptor_, buffer + done, size - done);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            ReadFailed(errno);
        }
        if (got == 0) {
            break;
        }
        done += static_cast<std::size_t>(got);
    }
    return done;
}

std::string Input::ReadAll(std::size_t limit, const std::string& verb) {
    std::string bytes;
    std::vector<unsigned char> chunk(ChunkSize);
    for (;;) {
        const std::size_t got = Read(chunk.data(), chunk.size());
        if (got > limit - bytes.size()) {
            throw Failure(name_ + ": more than " + std::to_string(limit) + " bytes, the most " + verb +
                          " reads");
        }
        bytes.append(reinterpret_cast<const char*>(chunk.data()), got);
        if (got < chunk.size()) {
            return bytes;
        }
    }
}

void WriteFile(const std::string& path, const unsigned char* bytes, std::size_t size) {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        throw Failure("cannot open " + path + ": " + std::strerror(errno));
    }
    int error = 0;
    for (std::size_t done = 0; done < size && error == 0;) {
        const ssize_t put = ::write(descriptor, bytes + done, size - done);
        if (put > 0) {
            done += static_cast<std::size_t>(put);
        } else if (put == 0 || errno != EINTR) {
            error = put == 0 ? EIO : errno;
        }
    }
    struct stat status {};
    const bool regular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (::close(descriptor) != 0 && error == 0) {
        error = errno;
    }
    if (error != 0) {
        // What was written is not the record; a device (/dev/full) stays.
        if (regular) {
            ::unlink(path.c_str());
        }
        throw Failure("cannot write " + path + ": " + std::strerror(error));
    }
}

}  // namespace PlurexTool
