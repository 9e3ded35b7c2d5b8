#include "Files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace quillon {

using KzXmlLib10::CBinaryData;

namespace {

constexpr std::size_t blockSize = 0x20000;

/// Closes what is no standard stream.
struct Closer {
    void operator()(std::FILE* file) const {
        if (file != stdin && file != stdout)
            std::fclose(file);
    }
};
using File = std::unique_ptr<std::FILE, Closer>;

[[noreturn]] void Fail(const std::string& name) { throw FileFailure(name + ": " + std::strerror(errno)); }

File Open(const std::string& file, const std::string& name, const char* mode, std::FILE* standardStream) {
    File opened(file == "-" ? standardStream : std::fopen(file.c_str(), mode));
    if (!opened)
        Fail(name);
    return opened;
}

} // namespace

std::string NameOfInput(const std::string& file) { return file == "-" ? "standard input" : file; }

CBinaryData ReadFile(const std::string& file) {
    const File input = Open(file, NameOfInput(file), "rb", stdin);
    CBinaryData bytes;
    std::array<unsigned char, blockSize> block;
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), input.get()))
        bytes.Append(block.data(), count);
    if (std::ferror(input.get()))
        Fail(NameOfInput(file));
    return bytes;
}

void WriteFile(const std::string& file, std::string_view bytes) {
    const std::string name = file == "-" ? "standard output" : file;
    const File output = Open(file, name, "wb", stdout);
    // A full disk may show up only when the last bytes leave the buffer.
    if (std::fwrite(bytes.data(), 1, bytes.size(), output.get()) != bytes.size() ||
        std::fflush(output.get()) != 0)
        Fail(name);
}

} // namespace quillon
