#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/XmlNamespaces.h"

#include <array>
#include <cstring>

namespace KzXmlLib10 {

using namespace std::string_view_literals;

namespace {

constexpr std::uint32_t flushThreshold = 4096;

/// For each unit up to '>', whether the text cannot be copied past it: it needs an escape or ends the text.
using SpecialUnits = std::array<bool, u'>' + 1>;

constexpr SpecialUnits MakeSpecialUnits(std::u16string_view units) {
    SpecialUnits special{};
    special[0] = true;
    for (const char16_t unit : units)
        special[unit] = true;
    return special;
}

constexpr SpecialUnits specialInText = MakeSpecialUnits(u"\n\r&<>"sv);
constexpr SpecialUnits specialInAttribute = MakeSpecialUnits(u"\n\r\"&<>"sv);

/// The text up to its first zero. Looks at four units at once.
std::u16string_view UpToZero(std::u16string_view text) {
    constexpr std::uint64_t ones = 0x0001'0001'0001'0001;
    std::size_t count = 0;
    for (std::uint64_t units; text.size() - count >= 4; count += 4) {
        std::memcpy(&units, text.data() + count, sizeof units);
        if ((units - ones) & ~units & (ones << 15)) // one of them may be zero
            break;
    }
    while (count < text.size() && text[count] != u'\0')
        ++count;
    return text.substr(0, count);
}

} // namespace

CXmlTextWriter::CXmlTextWriter(CTextStream* stream) : m_stream(NotNull(stream, u"stream")) {
    m_stream->Open();
}

CXmlTextWriter::~CXmlTextWriter() = default;

void CXmlTextWriter::Open() { m_stream->Open(); }

void CXmlTextWriter::Close() {
    m_stream->Close();
    CXmlWriter::Close();
}

void CXmlTextWriter::SetEOLType(EOLType type) {
    switch (type) {
    case EOLType_CRLF:
        m_eol = u"\r\n";
        break;
    case EOLType_LF:
        m_eol = u"\n";
        break;
    default:
        Throw<CKzException>(messages::InvalidEolType);
    }
    m_eolType = type;
}

void CXmlTextWriter::WriteDeclaration() {
    Buffer().Append(u"<?xml version=\"1.0\""sv);
    if (m_stream->GetEncoding() == XmlEncoding_UTF8)
        Buffer().Append(u" encoding=\"UTF-8\""sv);
    else if (m_stream->GetEncoding() == XmlEncoding_UTF16)
        Buffer().Append(u" encoding=\"UTF-16\""sv);
    Buffer().Append(u"?>"sv);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::WriteComment(const std::u16string& text) {
    Buffer().Append(u"<!--"sv);
    WriteEscaped(text.c_str(), false); // Deliberate: a double hyphen is not looked at.
    Buffer().Append(u"-->"sv);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::WriteProcessingInstruction(const std::u16string& text) {
    Buffer().Append(UpToZero(text));
    Buffer().Append(m_eol);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::WriteInlineSchema(const std::u16string& text) {
    Buffer().AppendChar(u' ');
    Buffer().Append(m_eol);
    Buffer().Append(UpToZero(text));
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::CloseStartTag() {
    if (!m_context)
        return;
    m_context->CountChild();
    if (!m_context->m_startTagOpen)
        return;
    m_context->m_startTagOpen = false;
    Buffer().AppendChar(u'>');
    if (m_formatted)
        Buffer().Append(m_eol);
}

void CXmlTextWriter::StartElement(const std::u16string& name, const std::u16string& namespaceUri) {
    CloseStartTag();
    std::unique_ptr<CXmlWriterContext> context = CreateContext(name, namespaceUri);
    WriteIndent(*context);
    Buffer().AppendChar(u'<');
    // Deliberate: an element in no namespace below a default namespace gets no xmlns="".
    if (!context->NeedsPrefix(namespaceUri)) {
        Buffer().Append(UpToZero(name));
    } else {
        const BoundPrefix bound = BindPrefix(*context, namespaceUri);
        Buffer().Append(UpToZero(bound.prefix));
        Buffer().AppendChar(u':');
        Buffer().Append(UpToZero(name));
        if (bound.isNew) {
            Buffer().AppendChar(u' ');
            WriteNamespace(bound.prefix, namespaceUri);
        }
    }
    if (!m_context)
        WriteRootNamespaces();
    FlushIfFull();
    EnterContext(std::move(context));
}

void CXmlTextWriter::WriteText(const std::u16string& text, ItemType) {
    if (text.empty())
        return;
    CXmlWriterContext& context = OpenElement();
    if (context.m_startTagOpen) {
        context.m_startTagOpen = false;
        Buffer().AppendChar(u'>');
    }
    // Deliberate: text in CDATA form goes out as it stands, wherever the section ends.
    if (text.starts_with(u"<![CDATA["sv))
        Buffer().Append(UpToZero(text));
    else
        WriteEscaped(text.c_str(), false);
    FlushIfFull();
}

void CXmlTextWriter::EndElement() {
    CXmlWriterContext& context = OpenElement();
    if (context.m_startTagOpen) {
        Buffer().Append(u"/>"sv);
    } else {
        if (context.m_childCount > 0)
            WriteIndent(context);
        Buffer().Append(u"</"sv);
        if (context.NeedsPrefix(context.m_namespaceUri)) {
            Buffer().Append(UpToZero(context.GetAlias(context.m_namespaceUri)));
            Buffer().AppendChar(u':');
        }
        Buffer().Append(UpToZero(context.m_name));
        Buffer().AppendChar(u'>');
    }
    if (m_formatted)
        Buffer().Append(m_eol);
    FlushIfFull();
    LeaveContext();
}

void CXmlTextWriter::WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                                    const std::u16string& value, ItemType) {
    RequireOpenStartTag();
    Buffer().AppendChar(u' ');
    if (!namespaceUri.empty()) {
        const BoundPrefix bound = BindPrefix(*m_context, namespaceUri);
        if (bound.isNew) {
            WriteNamespace(bound.prefix, namespaceUri);
            Buffer().AppendChar(u' ');
        }
        Buffer().Append(UpToZero(bound.prefix));
        Buffer().AppendChar(u':');
    }
    Buffer().Append(UpToZero(name));
    Buffer().Append(u"=\""sv);
    WriteEscaped(value.c_str(), true);
    Buffer().AppendChar(u'"');
    FlushIfFull();
}

void CXmlTextWriter::WriteXsiType(const std::u16string& namespaceUri, const std::u16string& typeName,
                                  ItemType type) {
    RequireOpenStartTag();
    std::u16string value;
    if (m_context->NeedsPrefix(namespaceUri)) {
        const BoundPrefix bound = BindPrefix(*m_context, namespaceUri);
        if (bound.isNew) {
            Buffer().AppendChar(u' ');
            WriteNamespace(bound.prefix, namespaceUri);
            // Deliberate: the attribute brings a blank of its own, so two stand between them.
            Buffer().AppendChar(u' ');
        }
        value = bound.prefix + u":";
    }
    value += typeName;
    WriteAttribute(u"type", schemaInstanceNamespace, value, type);
}

void CXmlTextWriter::WriteXsiNil() {
    RequireOpenStartTag();
    WriteAttribute(u"nil", schemaInstanceNamespace, u"true", ItemType_boolean);
}

/// Copies the runs between the units that need an escape.
void CXmlTextWriter::WriteEscaped(const char16_t* text, bool inAttribute) {
    const SpecialUnits& special = inAttribute ? specialInAttribute : specialInText;
    for (;;) {
        const char16_t* end = text;
        while (*end >= special.size() || !special[*end])
            ++end;
        Buffer().Append(std::u16string_view(text, end));
        if (*end == u'\0')
            return;
        WriteEscape(*end, inAttribute);
        text = end + 1;
    }
}

void CXmlTextWriter::WriteEscape(char16_t unit, bool inAttribute) {
    switch (unit) {
    case u'\n':
        if (inAttribute)
            Buffer().Append(u"&#xA;"sv);
        else
            WriteLineFeed();
        break;
    case u'\r':
        break; // Deliberate: a carriage return never survives.
    case u'"':
        Buffer().Append(u"&quot;"sv);
        break;
    case u'&':
        Buffer().Append(u"&amp;"sv);
        break;
    case u'<':
        Buffer().Append(u"&lt;"sv);
        break;
    case u'>':
        Buffer().Append(u"&gt;"sv);
        break;
    }
}

void CXmlTextWriter::WriteLineFeed() {
    if (m_eolType != EOLType_CRLF && m_eolType != EOLType_LF)
        Throw<CKzException>(messages::InvalidEolType);
    Buffer().Append(m_eol);
}

void CXmlTextWriter::WriteIndent(const CXmlWriterContext& context) {
    if (!m_formatted)
        return;
    static constexpr std::u16string_view tabs = u"\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
    std::size_t left = static_cast<std::size_t>(context.m_depth);
    for (; left > tabs.size(); left -= tabs.size())
        Buffer().Append(tabs);
    Buffer().Append(tabs.substr(0, left));
}

/// Deliberate: the URI is not escaped.
void CXmlTextWriter::WriteNamespace(const std::u16string& prefix, const std::u16string& uri) {
    Buffer().Append(u"xmlns:"sv);
    Buffer().Append(UpToZero(prefix));
    Buffer().Append(u"=\""sv);
    Buffer().Append(UpToZero(uri));
    Buffer().AppendChar(u'"');
}

void CXmlTextWriter::WriteRootNamespaces() {
    if (!m_defaultNamespace.empty()) {
        Buffer().Append(u" xmlns=\""sv);
        Buffer().Append(UpToZero(m_defaultNamespace));
        Buffer().AppendChar(u'"');
    }
    for (const auto& [uri, prefix] : m_namespaces) {
        if (uri.starts_with(xmlNamespace))
            continue;
        Buffer().AppendChar(u' ');
        WriteNamespace(prefix, uri);
    }
}

void CXmlTextWriter::FlushIfFull() {
    if (Buffer().GetLength() >= flushThreshold)
        m_stream->Flush();
}

} // namespace KzXmlLib10
