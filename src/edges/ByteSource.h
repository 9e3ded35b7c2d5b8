#pragma once

#include <KzXmlLib10/edges/Records.h>

#include <cstddef>
#include <memory>
#include <span>

namespace KzXmlLib10 {

/// The bytes of a document, one block after the other.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// Fills the block as far as there are bytes; fewer only at the end. Throws CKzException.
    virtual std::size_t Read(std::span<unsigned char> block) = 0;
    /// The bytes handed in so far, before decompression.
    virtual std::uint64_t GetPosition() const = 0;
    virtual bool IsCompressed() const { return false; }
};

/// Opens a source, and inflates what turns out to be a gzip or zlib stream; what comes behind the stream is
/// ignored.
std::unique_ptr<ByteSource> OpenByteSource(const RecordSource& source);

} // namespace KzXmlLib10
