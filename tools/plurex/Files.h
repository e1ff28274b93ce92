#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <streambuf>
#include <string>

namespace PlurexTool {

// Opens /dev/null on each of descriptors 0 to 2 that is closed, before any file is opened: a file
// opened later would otherwise take its number and be read or written as standard input or output.
// Reads of a standard input, and writes to a standard output, that were closed still fail with "Bad
// file descriptor".
void KeepStandardDescriptors();

// A file or standard input, read only as far as a verb needs. Reads go straight to the descriptor, so
// that a failed read (a directory, a closed standard input) is an error rather than an early end of
// the input. Every failure throws a Failure naming the input.
class Input {
public:
    // Opens `path`, or standard input for "-": "cannot open PATH: REASON", or "cannot read PATH: Is a
    // directory".
    explicit Input(const std::string& path);
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    // The path, or "standard input".
    const std::string& Name() const noexcept { return name_; }

    // Moves `count` bytes on: a seek where the input allows one, else reading and dropping the bytes a
    // chunk at a time. Returns how many bytes it moved: fewer than `count` only at the end of the input.
    std::uint64_t Skip(std::uint64_t count);
    // Up to `size` bytes; fewer only at the end of the input.
    std::size_t Read(unsigned char* buffer, std::size_t size);
    // The rest of the input. One byte more than `limit` fails with "more than LIMIT bytes, the most VERB
    // reads".
    std::string ReadAll(std::size_t limit, const std::string& verb);
    // Hands `bytes` out again, ahead of the rest of the input.
    void PutBack(const std::string& bytes) { pending_.insert(0, bytes); }
    // The next line, without its line end, into `line`; false at the end of the input. A line longer
    // than `limit` fails as ReadAll does.
    bool ReadLine(std::string& line, std::size_t limit, const std::string& verb);

private:
    [[noreturn]] void ReadFailed(int error);

    [[noreturn]] void TooLong(std::size_t limit, const std::string& verb) const;

    int descriptor_;
    bool owned_;
    std::string name_;
    std::string pending_;  // read ahead by ReadLine, handed out first
};

// Where the run's output goes: standard output, or with -o FILE a temporary file beside FILE that takes
// FILE's place only once the run has succeeded, so that a failed run never leaves a partial file that
// looks whole. A FILE that exists and is not a regular file (/dev/null, a pipe) is written directly.
class OutputTarget {
public:
    // Standard output for "" or "-"; otherwise FILE: "cannot open FILE: REASON".
    explicit OutputTarget(const std::string& path);
    // Removes the temporary file when Commit was not reached.
    ~OutputTarget();
    OutputTarget(const OutputTarget&) = delete;
    OutputTarget& operator=(const OutputTarget&) = delete;

    // The buffer the run writes through (std::cout's, for the run).
    std::streambuf* Buffer() const noexcept;
    // Writes what is buffered and, for -o FILE, puts the file in place: "cannot write NAME: REASON".
    void Commit();

private:
    class Buffered;
    std::unique_ptr<Buffered> buffer_;
    std::string path_;        // FILE, or empty for standard output
    std::string temporary_;   // the file written, renamed to path_ on Commit; empty when written directly
};

}  // namespace PlurexTool
