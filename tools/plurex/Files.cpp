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
#include <cstdlib>
#include <cstring>
#include <vector>

namespace PlurexTool {

namespace {

constexpr std::size_t ChunkSize = 64 * 1024;

// Whether standard input and output were closed when the run began (KeepStandardDescriptors).
bool inputClosed = false;
bool outputClosed = false;

}  // namespace

void KeepStandardDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) == -1 && errno == EBADF) {
            // The lowest free number: this one.
            ::open("/dev/null", descriptor == STDIN_FILENO ? O_RDONLY : O_WRONLY);
            inputClosed = inputClosed || descriptor == STDIN_FILENO;
            outputClosed = outputClosed || descriptor == STDOUT_FILENO;
        }
    }
}

Input::Input(const std::string& path) : descriptor_(STDIN_FILENO), owned_(false), name_("standard input") {
    if (path != "-") {
        descriptor_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor_ < 0) {
            throw Failure("cannot open " + path + ": " + std::strerror(errno));
        }
        owned_ = true;
        name_ = path;
    }
    if (!owned_ && inputClosed) {
        ReadFailed(EBADF);  // <&-
    }
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) {
        ReadFailed(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        // Said before anything is read: a directory opens, and only its first read fails.
        ReadFailed(EISDIR);
    }
}

Input::~Input() {
    if (owned_ && descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

void Input::ReadFailed(int error) {
    if (owned_) {
        ::close(descriptor_);
        owned_ = false;
    }
    throw Failure("cannot read " + name_ + ": " + std::strerror(error));
}

std::uint64_t Input::Skip(std::uint64_t count) {
    if (count == 0) {
        return 0;
    }
    const off_t at = ::lseek(descriptor_, 0, SEEK_CUR);
    if (at >= 0 && count <= static_cast<std::uint64_t>(INT64_MAX - at) &&
        ::lseek(descriptor_, static_cast<off_t>(count), SEEK_CUR) != -1) {
        // A seek past the end of a file succeeds: what was skipped is measured against its size. A
        // device that seeks (/dev/zero) has no end.
        struct stat status {};
        if (::fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode)) {
            return std::min(count, static_cast<std::uint64_t>(std::max<off_t>(status.st_size - at, 0)));
        }
        return count;
    }
    // A pipe or a terminal cannot seek: the bytes are read and dropped, in bounded memory.
    std::vector<unsigned char> chunk(ChunkSize);
    std::uint64_t skipped = 0;
    while (skipped < count) {
        const std::size_t got = Read(
            chunk.data(), static_cast<std::size_t>(std::min<std::uint64_t>(count - skipped, ChunkSize)));
        if (got == 0) {
            break;
        }
        skipped += got;
    }
    return skipped;
}

std::size_t Input::Read(unsigned char* buffer, std::size_t size) {
    std::size_t done = std::min(size, pending_.size());
    pending_.copy(reinterpret_cast<char*>(buffer), done);
    pending_.erase(0, done);
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

void Input::TooLong(std::size_t limit, const std::string& verb) const {
    throw Failure("more than " + std::to_string(limit) + " bytes, the most " + verb + " reads", name_);
}

std::string Input::ReadAll(std::size_t limit, const std::string& verb) {
    std::string bytes;
    std::vector<unsigned char> chunk(ChunkSize);
    for (;;) {
        const std::size_t got = Read(chunk.data(), chunk.size());
        if (got > limit - bytes.size()) {
            TooLong(limit, verb);
        }
        bytes.append(reinterpret_cast<const char*>(chunk.data()), got);
        if (got < chunk.size()) {
            return bytes;
        }
    }
}

bool Input::ReadLine(std::string& line, std::size_t limit, const std::string& verb) {
    std::size_t searched = 0;
    std::size_t end;
    while ((end = pending_.find('\n', searched)) == std::string::npos) {
        if (pending_.size() > limit) {
            TooLong(limit, verb);
        }
        searched = pending_.size();
        std::vector<unsigned char> chunk(ChunkSize);
        std::size_t got = 0;
        while (got == 0) {
            const ssize_t read = ::read(descriptor_, chunk.data(), chunk.size());
            if (read < 0 && errno == EINTR) {
                continue;
            }
            if (read < 0) {
                ReadFailed(errno);
            }
            if (read == 0) {
                break;
            }
            got = static_cast<std::size_t>(read);
        }
        if (got == 0) {
            if (pending_.empty()) {
                return false;
            }
            if (pending_.size() > limit) {
                TooLong(limit, verb);
            }
            line.swap(pending_);
            pending_.clear();
            return true;
        }
        pending_.append(reinterpret_cast<const char*>(chunk.data()), got);
    }
    if (end > limit) {
        TooLong(limit, verb);
    }
    line.assign(pending_, 0, end);
    pending_.erase(0, end + 1);
    return true;
}

// ---- output -----------------------------------------------------------------------------------------

// A stream buffer over a descriptor that keeps the first write error, so that it can be named.
class OutputTarget::Buffered : public std::streambuf {
public:
    Buffered(int descriptor, int error) : descriptor_(descriptor), buffer_(ChunkSize), error_(error) {
        setp(buffer_.data(), buffer_.data() + buffer_.size());
    }

    int Descriptor() const noexcept { return descriptor_; }
    // The first write error (an errno value), 0 while every write succeeded.
    int Error() const noexcept { return error_; }

protected:
    int_type overflow(int_type c) override {
        if (!Drain()) {
            return traits_type::eof();
        }
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }

    int sync() override { return Drain() ? 0 : -1; }

private:
    // Writes what is buffered. After an error, output is dropped: the run fails at Commit anyway.
    bool Drain() {
        const char* data = pbase();
        std::size_t size = static_cast<std::size_t>(pptr() - pbase());
        while (size > 0 && error_ == 0) {
            const ssize_t put = ::write(descriptor_, data, size);
            if (put > 0) {
                data += put;
                size -= static_cast<std::size_t>(put);
            } else if (put == 0 || errno != EINTR) {
                error_ = put == 0 ? EIO : errno;
            }
        }
        setp(buffer_.data(), buffer_.data() + buffer_.size());
        return error_ == 0;
    }

    int descriptor_;
    std::vector<char> buffer_;
    int error_;
};

namespace {

// The mode a new file gets from open(2) with 0666: the process's umask applied.
mode_t NewFileMode() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace

OutputTarget::OutputTarget(const std::string& path) {
    if (path.empty() || path == "-") {
        buffer_ = std::make_unique<Buffered>(STDOUT_FILENO, outputClosed ? EBADF : 0);  // >&-
        return;
    }
    path_ = path;
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        const int descriptor = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
        if (descriptor < 0) {
            throw Failure("cannot open " + path + ": " + std::strerror(errno));
        }
        buffer_ = std::make_unique<Buffered>(descriptor, 0);
        return;
    }
    // The temporary file sits beside the file it replaces (through a symbolic link, beside its target),
    // so that the rename stays within one file system.
    std::string target = path;
    if (char* resolved = ::realpath(path.c_str(), nullptr)) {
        target = resolved;
        std::free(resolved);
    }
    std::string name = target + ".XXXXXX";
    const int descriptor = ::mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0) {
        throw Failure("cannot open " + path + ": " + std::strerror(errno));
    }
    // An existing file keeps its permissions; a new one gets what open(2) would have given it.
    ::fchmod(descriptor, S_ISREG(status.st_mode) ? status.st_mode & 07777 : NewFileMode());
    temporary_ = name;
    path_ = target;
    buffer_ = std::make_unique<Buffered>(descriptor, 0);
}

OutputTarget::~OutputTarget() {
    if (buffer_->Descriptor() != STDOUT_FILENO) {
        ::close(buffer_->Descriptor());
    }
    if (!temporary_.empty()) {
        ::unlink(temporary_.c_str());
    }
}

std::streambuf* OutputTarget::Buffer() const noexcept {
    return buffer_.get();
}

void OutputTarget::Commit() {
    const std::string name = path_.empty() ? "standard output" : path_;
    buffer_->pubsync();
    int error = buffer_->Error();
    if (buffer_->Descriptor() != STDOUT_FILENO) {
        const int descriptor = buffer_->Descriptor();
        buffer_ = std::make_unique<Buffered>(STDOUT_FILENO, 0);  // nothing more goes to the closed file
        if (::close(descriptor) != 0 && error == 0) {
            error = errno;
        }
    }
    if (error == 0 && !temporary_.empty()) {
        if (::rename(temporary_.c_str(), path_.c_str()) != 0) {
            error = errno;
        } else {
            temporary_.clear();
        }
    }
    if (error != 0) {
        throw Failure("cannot write " + name + ": " + std::strerror(error));
    }
}

}  // namespace PlurexTool
