#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include "object/NotNull.h"
#include "object/TextScan.h"
#include "object/Throw.h"
#include "xml/Messages.h"
#include "xml/NamespaceMap.h"
#include "xml/TextCopy.h"
#include "xml/XmlNamespaces.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>
#include <typeinfo>

namespace KzXmlLib10 {

using namespace std::string_view_literals;

namespace {

constexpr std::uint32_t flushThreshold = 4096;
constexpr std::size_t sliceSize = 1024;
constexpr std::size_t longestEscape = 5; // &amp;
constexpr std::size_t tabsAtOnce = 16;

/// How much room an indentation needs, which is written in blocks.
std::size_t IndentRoom(std::size_t depth) { return depth + tabsAtOnce; }

char16_t* PutIndent(char16_t* to, std::size_t depth) {
    static constexpr char16_t tabs[tabsAtOnce + 1] = u"\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t";
    char16_t* const end = to + depth;
    for (; to < end; to += tabsAtOnce)
        std::memcpy(to, tabs, tabsAtOnce * sizeof *tabs);
    return end;
}

/// The room for it has unitsAtOnce more units than the text.
char16_t* PutUpToZero(char16_t* to, const std::u16string& text) {
    return to + CopyStringUntil<StopAtZero>(to, text);
}

} // namespace

/// What a leaf is called in one namespace state, as it stands in both of its tags: a prefix, the name, and
/// the bracket behind it.
struct CXmlTextWriter::LeafTag {
    static constexpr std::size_t room = 48;

    std::uint64_t nameNumber = 0;
    std::uint64_t namespaceState = 0;
    std::size_t size;
    char16_t units[room + unitsAtOnce];
};

/// Each at a place that the number of its name tells.
struct CXmlTextWriter::LeafTags {
    std::array<LeafTag, 64> tags;
};

CXmlTextWriter::CXmlTextWriter(CTextStream* stream)
    : CXmlWriter(typeid(CXmlTextWriter), static_cast<LeafOperation>(&CXmlTextWriter::WritePlainLeaf)),
      m_stream(NotNull(stream, u"stream")),
      m_unflushed(typeid(*stream) == typeid(CTextStream) ? stream : nullptr),
      m_leafTags(std::make_unique_for_overwrite<LeafTags>()) {
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

template <class Stops>
void CXmlTextWriter::WriteEscaped(const std::u16string& text) {
    if (text.size() > sliceSize)
        return WriteEscapedRest<Stops>(text);
    char16_t* const to = Buffer().Reserve(text.size() + unitsAtOnce);
    const std::size_t copied = CopyStringUntil<Stops>(to, text);
    Buffer().Commit(to + copied);
    if (copied < text.size())
        WriteEscapedRest<Stops>(std::u16string_view(text).substr(copied));
}

/// Copies the runs between the units that need an escape, and takes a long text by slices.
template <class Stops>
void CXmlTextWriter::WriteEscapedRest(std::u16string_view text) {
    while (!text.empty()) {
        const std::u16string_view head = text.substr(0, sliceSize);
        char16_t* const to = Buffer().Reserve(head.size());
        const std::size_t copied = CopyUntil<Stops>(to, head);
        Buffer().Commit(to + copied);
        text.remove_prefix(copied);
        if (copied == head.size())
            continue;
        if (text.front() == u'\0')
            return;
        WriteEscape<Stops>(text.front());
        text.remove_prefix(1);
    }
}

template <class Stops>
void CXmlTextWriter::WriteEscape(char16_t unit) {
    switch (unit) {
    case u'\n':
        if (std::is_same_v<Stops, StopInAttribute>)
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

void CXmlTextWriter::WriteComment(const std::u16string& text) {
    Buffer().Append(u"<!--"sv);
    WriteEscaped<StopInContent>(text); // Deliberate: a double hyphen is not looked at.
    Buffer().Append(u"-->"sv);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::WriteProcessingInstruction(const std::u16string& text) {
    AppendUpToZero(text);
    Buffer().Append(m_eol);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::WriteInlineSchema(const std::u16string& text) {
    Buffer().AppendChar(u' ');
    Buffer().Append(m_eol);
    AppendUpToZero(text);
    Buffer().Append(m_eol);
    FlushIfFull();
}

void CXmlTextWriter::CloseStartTag() {
    if (!m_context)
        return;
    if (m_context->m_startTagOpen)
        Buffer().Commit(PutStartTagEnd(Buffer().Reserve(1 + m_eol.size())));
    else
        m_context->CountChild();
}

/// Counts a child of the current element, and writes the end of its start tag unless that is done.
char16_t* CXmlTextWriter::PutStartTagEnd(char16_t* to) {
    m_context->CountChild();
    if (!m_context->m_startTagOpen)
        return to;
    m_context->m_startTagOpen = false;
    *to = u'>';
    return PutEol(to + 1);
}

void CXmlTextWriter::StartElement(const std::u16string& name, const std::u16string& namespaceUri) {
    CloseStartTag();
    std::unique_ptr<CXmlWriterContext> context = CreateContext(name, namespaceUri);
    // Deliberate: an element in no namespace below a default namespace gets no xmlns="".
    const NamePrefix prefix = BindName(*context);
    const std::size_t depth = IndentDepth(*context);
    char16_t* to = Buffer().Reserve(IndentRoom(depth) + PrefixRoom(prefix.prefix) + name.size() + 1);
    to = PutIndent(to, depth);
    *to++ = u'<';
    Buffer().Commit(PutUpToZero(PutPrefix(to, prefix.prefix), name));
    if (prefix.isNew) {
        Buffer().AppendChar(u' ');
        WriteNamespace(*prefix.prefix, namespaceUri);
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
        AppendUpToZero(text);
    else
        WriteEscaped<StopInContent>(text);
    FlushIfFull();
}

void CXmlTextWriter::EndElement() {
    CXmlWriterContext& context = OpenElement();
    if (context.m_startTagOpen) {
        char16_t* const to = Buffer().Reserve(2 + m_eol.size());
        to[0] = u'/';
        to[1] = u'>';
        Buffer().Commit(PutEol(to + 2));
    } else {
        WriteEndTag(context);
    }
    FlushIfFull();
    LeaveContext();
}

void CXmlTextWriter::WriteEndTag(CXmlWriterContext& context) {
    const std::u16string* prefix = context.Prefix();
    if (!context.IsPrefixKnown()) { // the namespace state has changed since the start tag
        const std::u16string& uri = context.m_namespaceUri;
        prefix = context.NeedsPrefix(uri) ? &context.GetAlias(uri) : nullptr;
    }
    const std::size_t depth = context.m_childCount > 0 ? IndentDepth(context) : 0;
    const std::u16string& name = context.m_name;
    char16_t* to = Buffer().Reserve(IndentRoom(depth) + PrefixRoom(prefix) + name.size() + m_eol.size() + 3);
    to = PutIndent(to, depth);
    *to++ = u'<';
    *to++ = u'/';
    to = PutUpToZero(PutPrefix(to, prefix), name);
    *to++ = u'>';
    Buffer().Commit(PutEol(to));
}

/// Whether a stream would see a flush on the way to so many more characters.
bool CXmlTextWriter::WouldFlush(std::size_t count) const {
    return Buffer().GetLength() + count >= flushThreshold && m_stream != m_unflushed;
}

/// The tag of a leaf, or null if it can only be written by its parts.
inline const CXmlTextWriter::LeafTag* CXmlTextWriter::FindLeafTag(const LeafName& name) {
    LeafTag& tag = m_leafTags->tags[name.number % std::tuple_size_v<decltype(m_leafTags->tags)>];
    return tag.nameNumber == name.number && tag.namespaceState == m_context->GetNamespaceMap().State()
               ? &tag
               : MakeLeafTag(tag, name);
}

/// Only the namespace of the parent is sure to need no declaration.
[[gnu::noinline]] const CXmlTextWriter::LeafTag* CXmlTextWriter::MakeLeafTag(LeafTag& tag,
                                                                             const LeafName& name) {
    const std::u16string* const prefix = m_context->Prefix();
    if (!m_context->IsPrefixKnown() || !SameText(name.namespaceUri, m_context->m_namespaceUri) ||
        PrefixRoom(prefix) + name.local.size() >= LeafTag::room)
        return nullptr;
    char16_t* const end = PutUpToZero(PutPrefix(tag.units, prefix), name.local);
    *end = u'>';
    tag.size = static_cast<std::size_t>(end + 1 - tag.units);
    tag.nameNumber = name.number;
    tag.namespaceState = name.number ? m_context->StateOfPrefix() : 0;
    return &tag;
}

/// Writes an element at one go where nobody could tell the difference, and any other by its parts.
void CXmlTextWriter::WritePlainLeaf(const LeafName& name, const std::u16string& text, ItemType type) {
    const std::size_t size = text.size();
    if (!m_context || size == 0 || size > sliceSize || text.front() == u'<')
        return WriteLeafByParts(name, text, type);
    const LeafTag* const tag = FindLeafTag(name);
    if (!tag)
        return WriteLeafByParts(name, text, type);
    const std::size_t depth = m_formatted ? static_cast<std::size_t>(m_context->m_depth) + 1 : 0;
    constexpr std::size_t marksRoom = 16; // brackets and line ends
    const std::size_t endRoom = tag->size + marksRoom + unitsAtOnce;
    const std::size_t room = IndentRoom(depth) + size + 2 * endRoom;
    if (WouldFlush(room + (longestEscape - 1) * size))
        return WriteLeafByParts(name, text, type);

    CStringBuffer& buffer = Buffer();
    char16_t* to = PutStartTagEnd(buffer.Reserve(room));
    to = PutIndent(to, depth);
    *to++ = u'<';
    to = PutBlocks(to, tag->units, tag->size);
    const std::size_t copied = CopyStringUntil<StopInContent>(to, text);
    to += copied;
    if (copied < size) {
        buffer.Commit(to);
        WriteEscapedRest<StopInContent>(std::u16string_view(text).substr(copied));
        to = buffer.Reserve(endRoom);
    }
    *to++ = u'<';
    *to++ = u'/';
    to = PutBlocks(to, tag->units, tag->size);
    if (m_formatted) { // one or two units; behind the only one stands a zero
        std::memcpy(to, m_eol.data(), 2 * sizeof *to);
        to += m_eol.size();
    }
    buffer.Commit(to);
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
        AppendUpToZero(bound.prefix);
        Buffer().AppendChar(u':');
    }
    char16_t* to = PutUpToZero(Buffer().Reserve(name.size() + 2 + unitsAtOnce), name);
    *to++ = u'=';
    *to++ = u'"';
    Buffer().Commit(to);
    WriteEscaped<StopInAttribute>(value);
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

void CXmlTextWriter::WriteLineFeed() {
    if (m_eolType != EOLType_CRLF && m_eolType != EOLType_LF)
        Throw<CKzException>(messages::InvalidEolType);
    Buffer().Append(m_eol);
}

std::size_t CXmlTextWriter::IndentDepth(const CXmlWriterContext& context) const {
    return m_formatted ? static_cast<std::size_t>(context.m_depth) : 0;
}

std::size_t CXmlTextWriter::PrefixRoom(const std::u16string* prefix) {
    return prefix ? prefix->size() + 1 : 0;
}

char16_t* CXmlTextWriter::PutPrefix(char16_t* to, const std::u16string* prefix) {
    if (!prefix)
        return to;
    to = PutUpToZero(to, *prefix);
    *to = u':';
    return to + 1;
}

/// The line end behind a tag.
char16_t* CXmlTextWriter::PutEol(char16_t* to) const {
    if (m_formatted)
        for (const char16_t unit : m_eol)
            *to++ = unit;
    return to;
}

void CXmlTextWriter::AppendUpToZero(const std::u16string& text) {
    Buffer().Commit(PutUpToZero(Buffer().Reserve(text.size() + unitsAtOnce), text));
}

/// Deliberate: the URI is not escaped.
void CXmlTextWriter::WriteNamespace(const std::u16string& prefix, const std::u16string& uri) {
    Buffer().Append(u"xmlns:"sv);
    AppendUpToZero(prefix);
    Buffer().Append(u"=\""sv);
    AppendUpToZero(uri);
    Buffer().AppendChar(u'"');
}

void CXmlTextWriter::WriteRootNamespaces() {
    if (!m_defaultNamespace.empty()) {
        Buffer().Append(u" xmlns=\""sv);
        AppendUpToZero(m_defaultNamespace);
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
    if (WouldFlush(0))
        m_stream->Flush();
}

} // namespace KzXmlLib10
