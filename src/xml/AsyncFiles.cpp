#include "xml/AsyncFiles.h"

#include "object/Utf8.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cassert>
#include <cerrno>
#include <ctime>
#include <string>
#include <utility>

namespace KzXmlLib10 {

constinit SystemCalls systemCalls = {
    .open = [](const char* name, int flags, mode_t mode) { return ::open(name, flags, mode); },
    .fstat = ::fstat,
    .clearNonBlocking =
        [](int file) {
            const int flags = ::fcntl(file, F_GETFL);
            return flags < 0 ? flags : ::fcntl(file, F_SETFL, flags & ~O_NONBLOCK);
        },
    .advise = ::posix_fadvise,
    .pread = ::pread,
    .pwrite = ::pwrite,
    .write = ::write,
    .close = ::close,
};

namespace {

/// Repeats a system call until no signal interrupts it.
template <class Call>
auto Uninterrupted(Call call) {
    decltype(call()) result;
    do
        result = call();
    while (result < 0 && errno == EINTR);
    return result;
}

/// Calls `step(done)` until `length` bytes are done or it moves none. Returns 0 or errno.
template <class Step>
int Repeat(std::size_t length, std::size_t& done, Step step) {
    for (done = 0; done < length;) {
        const ssize_t moved = Uninterrupted([&] { return step(done); });
        if (moved < 0)
            return errno;
        if (moved == 0)
            break;
        done += static_cast<std::size_t>(moved);
    }
    return 0;
}

int SystemName(std::u16string_view name, std::string& out) {
    if (AppendUtf8(out, name) < name.size())
        return EILSEQ;
    return name.find(u'\0') == name.npos ? 0 : EINVAL;
}

/// Turns the signal of a pipe whose reader has gone into the plain error EPIPE, on this thread and for its
/// own lifetime.
class PipeSignalBlock {
public:
    PipeSignalBlock() {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    PipeSignalBlock(const PipeSignalBlock&) = delete;
    PipeSignalBlock& operator=(const PipeSignalBlock&) = delete;
    ~PipeSignalBlock() {
        constexpr timespec noWait{};
        if (!m_wasPending)
            while (sigtimedwait(&m_pipe, nullptr, &noWait) < 0 && errno == EINTR) {
            }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

private:
    sigset_t m_pipe;
    sigset_t m_before;
    bool m_wasPending;
};

} // namespace

int AsyncFile::Open(std::u16string_view name, int flags) {
    (void)Close();
    std::string systemName;
    if (const int error = SystemName(name, systemName))
        return error;
    // Without O_NONBLOCK the opening of a pipe waits for its other end.
    flags |= O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    const int file = Uninterrupted([&] { return systemCalls.open(systemName.c_str(), flags, 0666); });
    if (file < 0)
        return errno;
    m_file = file;
    struct stat status;
    int error = systemCalls.fstat(m_file, &status) < 0 ? errno : S_ISDIR(status.st_mode) ? EISDIR : 0;
    m_hasPositions = error == 0 && S_ISREG(status.st_mode);
    if (error == 0 && !m_hasPositions && systemCalls.clearNonBlocking(m_file) < 0)
        error = errno;
    if (error != 0)
        (void)Close();
    return error;
}

int AsyncFile::OpenForReading(std::u16string_view name) {
    const int error = Open(name, O_RDONLY);
    if (error == 0)
        systemCalls.advise(m_file, 0, 0, POSIX_FADV_SEQUENTIAL);
    return error;
}

int AsyncFile::OpenForWriting(std::u16string_view name) { return Open(name, O_WRONLY | O_CREAT | O_TRUNC); }

int AsyncFile::Close() {
    m_inFlight = false;
    if (!IsOpen())
        return 0;
    // An interrupted close has closed the file; to try again could close another one.
    return systemCalls.close(std::exchange(m_file, -1)) < 0 && errno != EINTR ? errno : 0;
}

int AsyncFile::GetSize(std::uint64_t& size) const {
    struct stat status;
    if (systemCalls.fstat(m_file, &status) < 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return ESPIPE;
    size = static_cast<std::uint64_t>(status.st_size);
    return 0;
}

int AsyncFile::Read(std::uint64_t offset, unsigned char* buffer, std::size_t length, std::size_t& done) {
    return Repeat(length, done, [&](std::size_t at) {
        return systemCalls.pread(m_file, buffer + at, length - at, static_cast<off_t>(offset + at));
    });
}

int AsyncFile::ReadAll(unsigned char* buffer, std::size_t length) {
    std::size_t done;
    const int error = Read(0, buffer, length, done);
    return error == 0 && done < length ? EndOfFile : error;
}

int AsyncFile::StartRead(std::uint64_t offset, unsigned char* buffer, std::size_t length) {
    assert(!m_inFlight);
    m_error = Read(offset, buffer, length, m_transferred);
    if (m_error == 0 && m_transferred == 0)
        m_error = EndOfFile;
    else if (m_error == 0 && m_transferred == length)
        systemCalls.advise(m_file, static_cast<off_t>(offset + length), static_cast<off_t>(length),
                           POSIX_FADV_WILLNEED);
    m_inFlight = m_error == 0 || m_error == EndOfFile;
    return m_error;
}

int AsyncFile::StartWrite(std::uint64_t offset, const unsigned char* bytes, std::size_t length) {
    assert(!m_inFlight);
    if (m_hasPositions) {
        m_error = Repeat(length, m_transferred, [&](std::size_t at) {
            return systemCalls.pwrite(m_file, bytes + at, length - at, static_cast<off_t>(offset + at));
        });
    } else {
        const PipeSignalBlock block;
        m_error = Repeat(length, m_transferred,
                         [&](std::size_t at) { return systemCalls.write(m_file, bytes + at, length - at); });
    }
    if (m_error == 0 && m_transferred < length)
        m_error = EIO; // the system takes no more and does not say why
    m_inFlight = m_error == 0;
    return m_error;
}

int AsyncFile::Finish(std::size_t& transferred) {
    transferred = m_inFlight ? m_transferred : 0;
    return std::exchange(m_inFlight, false) ? m_error : 0;
}

} // namespace KzXmlLib10
