#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/xml/CTextStream.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// Writes XML 1.0 text into a stream.
///
///     CTextStream stream(XmlEncoding_UTF8);
///     CXmlTextWriter writer(&stream);
///     writer.SetFormatted(false);
///     writer.SetEOLType(EOLType_CRLF);
///     writer.WriteDeclaration();
///     ... // StartElement to EndElement
///     writer.Close();
///
/// The stream stays the property of the caller and must outlive the writer.
///
/// Deliberate, and to be known by who writes data that others made: a carriage return is dropped; a tab in an
/// attribute stays one; text that begins with "<![CDATA[" is passed on as it stands; namespaces are declared
/// without escaping; comments may hold double hyphens; characters that XML forbids are passed on; a second
/// root is not refused.
class QUILLON_EXPORT CXmlTextWriter : public CXmlWriter {
public:
    /// Opens the stream. The output is formatted and its line end is LF. Null throws
    /// CKzInvalidParamException.
    explicit CXmlTextWriter(CTextStream* stream);
    ~CXmlTextWriter() override;

    /// Opens the stream, which empties it.
    void Open() override;
    /// Closes the stream; then throws if an element is still open.
    void Close() override;

    /// Writes a comment and a line end. The text is escaped as character content is.
    void WriteComment(const std::u16string& text) override;
    /// Writes an instruction as it stands and two line ends.
    void WriteProcessingInstruction(const std::u16string& text) override;
    /// Writes a schema as it stands. Deliberate: it lands inside the open start tag.
    void WriteInlineSchema(const std::u16string& text) override;
    void StartElement(const std::u16string& name, const std::u16string& namespaceUri) override;
    void WriteText(const std::u16string& text, ItemType type) override;
    void EndElement() override;
    void WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                        const std::u16string& value, ItemType type) override;
    void WriteXsiType(const std::u16string& namespaceUri, const std::u16string& typeName,
                      ItemType type) override;
    void WriteXsiNil() override;

    /// Writes the XML declaration and a line end. It names the encoding for UTF-8 and UTF-16.
    void WriteDeclaration();

    /// Throws CKzException for a value that is none of the two.
    void SetEOLType(EOLType type);
    EOLType GetEOLType() const { return m_eolType; }
    /// The characters of the line end.
    const std::u16string& GetEOL() const { return m_eol; }

    /// Whether elements stand on lines of their own, indented by one tab a level.
    void SetFormatted(bool formatted) { m_formatted = formatted; }
    bool GetFormatted() const { return m_formatted; }

    CTextStream* GetStream() const { return m_stream; }

    /// Counts a child of the innermost open element, if there is one, and closes its start tag, as the start
    /// of a child does.
    void CloseStartTag();

private:
    struct LeafTag;
    struct LeafTags;

    void WritePlainLeaf(const LeafName& name, const std::u16string& text, ItemType type);
    const LeafTag* FindLeafTag(const LeafName& name);
    const LeafTag* MakeLeafTag(LeafTag& tag, const LeafName& name);
    bool WouldFlush(std::size_t count) const;
    CStringBuffer& Buffer() const { return m_stream->GetBuffer(); }
    template <class Stops>
    void WriteEscaped(const std::u16string& text);
    template <class Stops>
    void WriteEscapedRest(std::u16string_view text);
    template <class Stops>
    void WriteEscape(char16_t unit);
    void WriteLineFeed();
    void WriteEndTag(CXmlWriterContext& context);
    std::size_t IndentDepth(const CXmlWriterContext& context) const;
    static std::size_t PrefixRoom(const std::u16string* prefix);
    static char16_t* PutPrefix(char16_t* to, const std::u16string* prefix);
    char16_t* PutEol(char16_t* to) const;
    char16_t* PutStartTagEnd(char16_t* to);
    void AppendUpToZero(const std::u16string& text);
    void WriteNamespace(const std::u16string& prefix, const std::u16string& uri);
    void WriteRootNamespaces();
    void FlushIfFull();

protected:
    std::u16string m_eol = u"\n";
    EOLType m_eolType = EOLType_LF;
    bool m_formatted = true;
    CTextStream* m_stream;

private:
    const CTextStream* m_unflushed; ///< the stream if it stays in memory, where a flush does nothing
    std::unique_ptr<LeafTags> m_leafTags;
};

} // namespace KzXmlLib10
