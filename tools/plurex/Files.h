#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace PlurexTool {

// A file or standard input, read only as far as a verb needs. Reads go straight to the descriptor, so
// that a failed read (a directory, a closed standard input) is an error rather than an early end of
// the input. Every failure throws a Failure naming the input.
class Input {
public:
    // Opens `path`: "cannot open PATH: REASON", or "cannot read PATH: Is a directory".
    explicit Input(const std::string& path);
    // Standard input, named "standard input" in messages.
    Input();
    ~Input();
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    // The path, or "standard input".
    const std::string& Name() const noexcept { return name_; }

    // Moves `count` bytes on: a seek where the input allows one, else reading and dropping the bytes a
    // chunk at a time. Past the end of the input the next Read gives nothing.
    void Skip(std::uint64_t count);
    // Up to `size` bytes; fewer only at the end of the input.
    std::size_t Read(unsigned char* buffer, std::size_t size);
    // The rest of the input. One byte more than `limit` fails with "NAME: more than LIMIT bytes, the
    // most VERB reads".
    std::string ReadAll(std::size_t limit, const std::string& verb);

private:
    [[noreturn]] void ReadFailed(int error) const;

    int descriptor_;
    bool owned_;
    std::string name_;
};

// Writes `bytes` to `path`, created or truncated: "cannot open PATH: REASON", or "cannot write PATH:
// REASON" after which no partial regular file is left.
void WriteFile(const std::string& path, const unsigned char* bytes, std::size_t size);

}  // namespace PlurexTool
