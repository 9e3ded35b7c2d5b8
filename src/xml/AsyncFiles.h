#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace KzXmlLib10 {

static_assert(sizeof(off_t) == 8, "files have 64-bit offsets");

/// What AsyncToXmlFile has set.
bool IsAsyncToXmlFile();

/// The system calls behind AsyncFile, with the results and errno of the system. Only tests replace them, to
/// provoke faults.
struct SystemCalls {
    int (*open)(const char* name, int flags, mode_t mode);
    int (*fstat)(int file, struct stat* status);
    int (*clearNonBlocking)(int file);
    int (*advise)(int file, off_t offset, off_t length, int advice);
    ssize_t (*pread)(int file, void* buffer, std::size_t length, off_t offset);
    ssize_t (*pwrite)(int file, const void* bytes, std::size_t length, off_t offset);
    ssize_t (*write)(int file, const void* bytes, std::size_t length);
    int (*close)(int file);
};

extern SystemCalls systemCalls;

/// The length of the blocks in which AsyncFromXmlFile has files read. Only tests change it, to move the
/// edges.
extern std::uint32_t readBlockSize;

/// One open file with at most one read or write in flight. Nothing else in the library calls the system for
/// files.
///
///     AsyncFile file;
///     if (const int error = file.OpenForReading(name))
///         ...
///     int error = file.StartRead(offset, buffer, length); // EndOfFile, or another error
///     ...                                                 // work while the kernel reads ahead
///     std::size_t count;
///     error = file.Finish(count);
///
/// All operations return 0, a value of errno, or EndOfFile. A buffer given to a Start operation stays
/// untouched until Finish or Close, which both wait.
///
/// There is no thread: a read takes what is there and has the kernel fetch the following block meanwhile; a
/// write ends in the kernel's cache, which carries it to the device. Both are positioned, in 64 bits, and
/// tried again when interrupted or short.
class AsyncFile {
public:
    /// Reported by a read that begins at the end of the file or behind it, and by a read of a whole file that
    /// ends too early.
    static constexpr int EndOfFile = 38;

    AsyncFile() = default;
    AsyncFile(const AsyncFile&) = delete;
    AsyncFile& operator=(const AsyncFile&) = delete;
    ~AsyncFile() { (void)Close(); }

    /// Opens an existing file. A directory gives EISDIR. Never waits for the other end of a pipe.
    ///
    /// Both Open operations close the file before. A name that has no UTF-8 form gives EILSEQ, one with a
    /// zero in it EINVAL.
    [[nodiscard]] int OpenForReading(std::u16string_view name);
    /// Creates a file or empties an existing one. A pipe without a reader gives ENXIO.
    [[nodiscard]] int OpenForWriting(std::u16string_view name);
    bool IsOpen() const { return m_file >= 0; }
    /// The errors of writing that the system has held back come out here. Does nothing for a closed file.
    int Close();

    /// The size in bytes. What is not a regular file gives ESPIPE.
    [[nodiscard]] int GetSize(std::uint64_t& size) const;
    /// Reads `length` bytes from the start of the file.
    [[nodiscard]] int ReadAll(unsigned char* buffer, std::size_t length);

    /// Starts to read the block of `length` bytes at `offset`; no operation may be in flight.
    [[nodiscard]] int StartRead(std::uint64_t offset, unsigned char* buffer, std::size_t length);
    /// Starts to write; no operation may be in flight. Files without positions, such as pipes, take the bytes
    /// in the order of the calls.
    [[nodiscard]] int StartWrite(std::uint64_t offset, const unsigned char* bytes, std::size_t length);
    /// Waits for the operation in flight and gives the number of its bytes: fewer than asked for only where a
    /// read met the end of the file. 0 with no operation; EndOfFile again after a read that reported it.
    [[nodiscard]] int Finish(std::size_t& transferred);

private:
    int Open(std::u16string_view name, int flags);
    int Read(std::uint64_t offset, unsigned char* buffer, std::size_t length, std::size_t& done);

    int m_file = -1;
    bool m_hasPositions = false;
    /// The outcome that Finish hands out.
    int m_error = 0;
    std::size_t m_transferred = 0;
    bool m_inFlight = false;
};

} // namespace KzXmlLib10
