#pragma once

/// What holds until the end of a test.

#include "support/Basics.h"

namespace KzXmlLib10::support {

/// Changes limits until its end.
class LimitsScope {
public:
    LimitsScope() = default;
    LimitsScope(std::uint64_t Limits::*figure, std::uint64_t value) { Set(figure, value); }
    LimitsScope(const LimitsScope&) = delete;
    LimitsScope& operator=(const LimitsScope&) = delete;
    ~LimitsScope() { SetLimits(m_before); }

    void Set(std::uint64_t Limits::*figure, std::uint64_t value) {
        Limits limits = GetLimits();
        limits.*figure = value;
        SetLimits(limits);
    }

private:
    const Limits m_before = GetLimits();
};

/// A directory of its own for a test, removed with all that is in it.
class TempDir {
public:
    TempDir() {
        std::string name = (std::filesystem::temp_directory_path() / "quillon-XXXXXX").string();
        if (!mkdtemp(name.data()))
            throw std::runtime_error("cannot create " + name);
        m_path = name;
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    ~TempDir() { std::filesystem::remove_all(m_path); }

    /// The path of a file in the directory, as the system and as the library take it.
    std::string Path(const std::string& name) const { return (m_path / name).string(); }
    std::u16string Path16(const std::string& name) const { return FromUtf8(Path(name)); }

    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(Path(name), std::ios::binary).rdbuf();
        return std::move(bytes).str();
    }

private:
    std::filesystem::path m_path;
};

/// The number of descriptors that the process has open, for a comparison before and after.
inline std::ptrdiff_t OpenDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

} // namespace KzXmlLib10::support
