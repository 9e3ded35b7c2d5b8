#pragma once

#include "edges/ByteSource.h"
#include "fastinfoset/CFastInfosetReader.h"
#include "xml/CExpatReader.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace KzXmlLib10 {

/// Parses a document block by block, and shows each child of the root as it is complete. A child is gone when
/// the next one begins, and so is the text between them.
///
/// A Fast Infoset document is taken whole instead, and its children are shown one a step.
class RecordParser {
public:
    using ShowChild = std::function<void(const CXmlElement& child)>;

    /// The context must outlive the parser.
    RecordParser(const RecordSource& source, const CXmlSerializationContext& context, ShowChild showChild);

    /// Takes a step, in which any number of children may be shown; false once there is nothing more. What
    /// `showChild` throws ends the parse.
    bool Step();

private:
    static constexpr std::uint32_t BlockSize = 0x10000;

    void ReadBlock();
    void ParseBlock();
    void LoadFastInfoset();
    bool ShowNext();
    static bool OnElementEnd(CXmlElement* element);
    bool TakeChild(const CXmlElement& element);
    void CheckInflatedSize(std::uint64_t size) const;

    const CXmlSerializationContext& m_context;
    ShowChild m_showChild;
    std::unique_ptr<ByteSource> m_source;
    CXmlDocument m_document;
    CExpatReader m_reader;
    bool m_hasStarted = false;
    bool m_isLast = false;
    /// Of the block in hand, before decompression.
    std::uint64_t m_handedIn = 0;
    /// The bytes parsed since a child was complete.
    std::uint64_t m_sinceChild = 0;
    bool m_isFastInfoset = false;
    /// The child of a Fast Infoset document to be shown next.
    const CXmlElement* m_nextChild = nullptr;
};

} // namespace KzXmlLib10
