#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// An open regular file of the system, closed when it goes. Every call is checked: what fails comes back as
/// the system's error number, 0 when all went well. A call that a signal broke off is made again.
class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    /// Opens; EISDIR for what is no regular file. Never waits for a pipe's other end.
    [[nodiscard]] int Open(const std::string& native, int flags);
    /// Reads on from where the last call ended, at most so many bytes; none at the end of the file.
    [[nodiscard]] int Read(std::string& bytes, std::size_t most) const;
    /// All bytes, from that place on. A write that takes nothing has failed.
    [[nodiscard]] int WriteAt(std::uintmax_t place, std::string_view bytes) const;
    /// All bytes, at the end of a file that was opened to grow.
    [[nodiscard]] int Write(std::string_view bytes) const;
    [[nodiscard]] int SetLength(std::uintmax_t length) const;
    [[nodiscard]] int GiveMode(unsigned mode) const;
    /// Brings what was written to the disk.
    [[nodiscard]] int Flush() const;
    [[nodiscard]] int Close();

    [[nodiscard]] std::uintmax_t Length() const { return length_; } ///< as it was when opened

private:
    int file_ = -1;
    std::uintmax_t length_ = 0;
};
