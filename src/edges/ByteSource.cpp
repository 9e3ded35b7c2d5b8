#include "edges/ByteSource.h"

#include "edges/FileName.h"
#include "edges/Messages.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"
#include "xml/Messages.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <istream>
#include <new>

namespace KzXmlLib10 {

namespace {

class FileSource : public ByteSource {
public:
    explicit FileSource(const std::filesystem::path& file) : m_name(FileName(file)) {
        if (const int error = m_file.OpenForReading(m_name))
            Throw<CKzException>(messages::FileNotOpened, m_name, error);
    }
    std::size_t Read(std::span<unsigned char> block) override {
        static_assert(sizeof m_position == sizeof(off_t), "a file would begin again behind 4 GiB");
        std::size_t count = 0;
        int error = m_file.StartRead(m_position, block.data(), block.size());
        if (error == 0 || error == AsyncFile::EndOfFile)
            error = m_file.Finish(count);
        if (error == AsyncFile::EndOfFile)
            return 0;
        if (error != 0)
            Throw<CKzException>(messages::FileNotRead, m_name, error);
        m_position += count;
        return count;
    }
    std::uint64_t GetPosition() const override { return m_position; }

private:
    std::u16string m_name;
    AsyncFile m_file;
    std::uint64_t m_position = 0;
};

class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::span<const std::byte> bytes) : m_bytes(bytes) {}
    std::size_t Read(std::span<unsigned char> block) override {
        const std::size_t count = std::min(block.size(), m_bytes.size() - m_position);
        if (count > 0)
            std::memcpy(block.data(), m_bytes.data() + m_position, count);
        m_position += count;
        return count;
    }
    std::uint64_t GetPosition() const override { return m_position; }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_position = 0;
};

/// Reads the buffer of a stream, so that the end of it is no failure of the stream.
class StreamSource : public ByteSource {
public:
    explicit StreamSource(std::istream& stream) : m_stream(stream) {
        if (!stream || !stream.rdbuf())
            Throw<CKzException>(messages::SourceNotRead);
    }
    std::size_t Read(std::span<unsigned char> block) override {
        try {
            const std::streamsize count = m_stream.rdbuf()->sgetn(reinterpret_cast<char*>(block.data()),
                                                                  static_cast<std::streamsize>(block.size()));
            m_position += static_cast<std::uint64_t>(count);
            return static_cast<std::size_t>(count);
        } catch (const std::ios_base::failure&) {
            Throw<CKzException>(messages::SourceNotRead);
        }
    }
    std::uint64_t GetPosition() const override { return m_position; }

private:
    std::istream& m_stream;
    std::uint64_t m_position = 0;
};

/// Passes bytes on from another source, or the content of the compressed stream that they are.
class InflatingSource : public ByteSource {
public:
    explicit InflatingSource(std::unique_ptr<ByteSource> source) : m_source(std::move(source)) {
        FillInput();
        // The mark of gzip (RFC 1952), or the sum over the header of zlib (RFC 1950) with its method.
        // No XML and no Fast Infoset begins in either way.
        const unsigned first = m_input[0], second = m_input[1];
        const bool isGZip = first == 0x1F && second == 0x8B;
        const bool isZLib = (first & 0x8F) == 8 && (first * 256 + second) % 31 == 0;
        m_isCompressed = m_stream.avail_in >= 2 && (isGZip || isZLib);
        constexpr int eitherFormat = 15 + 32;
        if (m_isCompressed && inflateInit2(&m_stream, eitherFormat) != Z_OK)
            throw std::bad_alloc(); // all arguments are valid
    }
    InflatingSource(const InflatingSource&) = delete;
    InflatingSource& operator=(const InflatingSource&) = delete;
    ~InflatingSource() override {
        if (m_isCompressed)
            inflateEnd(&m_stream);
    }

    std::size_t Read(std::span<unsigned char> block) override {
        return m_isCompressed ? Inflate(block) : PassOn(block);
    }
    std::uint64_t GetPosition() const override { return m_source->GetPosition() - m_stream.avail_in; }
    bool IsCompressed() const override { return m_isCompressed; }

private:
    void FillInput() {
        m_stream.next_in = m_input.data();
        m_stream.avail_in = static_cast<uInt>(m_source->Read(m_input));
    }

    std::size_t PassOn(std::span<unsigned char> block) {
        const std::size_t ready = std::min<std::size_t>(block.size(), m_stream.avail_in);
        std::copy_n(m_stream.next_in, ready, block.data());
        m_stream.next_in += ready;
        m_stream.avail_in -= static_cast<uInt>(ready);
        return ready < block.size() ? ready + m_source->Read(block.subspan(ready)) : ready;
    }

    std::size_t Inflate(std::span<unsigned char> block) {
        m_stream.next_out = block.data();
        m_stream.avail_out = static_cast<uInt>(block.size());
        while (!m_hasEnded && m_stream.avail_out > 0) {
            if (m_stream.avail_in == 0)
                FillInput();
            const int result = inflate(&m_stream, Z_NO_FLUSH);
            if (result == Z_MEM_ERROR)
                throw std::bad_alloc();
            if (result != Z_OK && result != Z_STREAM_END) // also where no input is left
                Throw<CKzException>(messages::CompressedStreamDamaged);
            m_hasEnded = result == Z_STREAM_END;
        }
        return block.size() - m_stream.avail_out;
    }

    std::unique_ptr<ByteSource> m_source;
    std::array<unsigned char, 0x4000> m_input{};
    z_stream m_stream{};
    bool m_isCompressed = false;
    bool m_hasEnded = false;
};

struct Opener {
    std::unique_ptr<ByteSource> operator()(const std::filesystem::path& file) const {
        return std::make_unique<FileSource>(file);
    }
    std::unique_ptr<ByteSource> operator()(std::span<const std::byte> bytes) const {
        return std::make_unique<MemorySource>(bytes);
    }
    std::unique_ptr<ByteSource> operator()(std::istream* stream) const {
        return std::make_unique<StreamSource>(*stream);
    }
};

} // namespace

std::unique_ptr<ByteSource> OpenByteSource(const RecordSource& source) {
    return std::make_unique<InflatingSource>(std::visit(Opener(), source.Get()));
}

} // namespace KzXmlLib10
