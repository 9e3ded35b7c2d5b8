#include "Commands.h"
#include "Document.h"
#include "Files.h"
#include "Progress.h"
#include "Tree.h"

#include <KzXmlLib10/object/FormatString.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>

#include <string_view>

namespace quillon {

using namespace KzXmlLib10;

namespace {

constexpr std::size_t shortLength = 72;

bool IsControl(char16_t unit) { return unit < 0x20 || (unit >= 0x7F && unit < 0xA0); }

/// A text on one line, with nothing in it that a terminal would obey.
std::string Printable(std::u16string_view text) {
    std::u16string result;
    for (const char16_t unit : text) {
        if (unit == u'\n')
            result += u"\\n";
        else if (unit == u'\t')
            result += u"\\t";
        else if (unit == u'"' || unit == u'\\')
            (result += u'\\') += unit;
        else if (IsControl(unit))
            result += FormatString(u"\\u%04X", unit);
        else
            result += unit;
    }
    return ToUtf8(result);
}

/// The tree as lines of text, an element or attribute each.
class TreePrinter {
public:
    TreePrinter(const Document& document, const ShowOptions& options)
        : m_namespaces(document.GetNamespaces()), m_options(options) {
        PrintNamespaces();
        WalkTree(
            document.GetRoot(), [this](const CXmlElement& element) { Enter(element); },
            [this](const CXmlElement&) { --m_level; });
    }

    const std::string& GetText() const { return m_text; }

private:
    void PrintNamespaces() {
        if (!m_namespaces.GetDefault().empty())
            PrintLine(u"xmlns", m_namespaces.GetDefault());
        for (const auto& [uri, prefix] : m_namespaces.GetPrefixes())
            if (prefix != u"xml")
                PrintLine(u"xmlns:" + prefix, uri);
    }

    void Enter(const CXmlElement& element) {
        const unsigned level = m_level++;
        if (m_options.m_depth > 0 && level >= m_options.m_depth)
            return;
        PrintLine(m_namespaces.ElementName(element.GetLocalName(), element.GetNamespaceURI()),
                  SignificantText(element), level);
        for (const CXmlAttribute* attribute : element.GetAttributes())
            PrintLine(u"@" +
                          m_namespaces.AttributeName(attribute->GetLocalName(), attribute->GetNamespaceURI()),
                      attribute->GetValue(), level + 1);
        if (m_options.m_depth > 0 && level + 1 == m_options.m_depth && element.GetFirstElement())
            PrintLine(u"...", u"", level + 1);
    }

    void PrintLine(const std::u16string& name, std::u16string_view value, unsigned level = 0) {
        m_text.append(2 * static_cast<std::size_t>(level), ' ');
        m_text += Printable(name);
        if (!value.empty() || name.starts_with(u'@'))
            m_text += " = " + Shortened(value);
        m_text += '\n';
    }

    std::string Shortened(std::u16string_view value) const {
        if (m_options.m_full || value.size() <= shortLength)
            return '"' + Printable(value) + '"';
        const bool cutsPair = value[shortLength] >= 0xDC00 && value[shortLength] < 0xE000;
        return '"' + Printable(value.substr(0, shortLength - cutsPair)) + "\"... (" +
               std::to_string(value.size()) + " characters)";
    }

    const Namespaces& m_namespaces;
    const ShowOptions& m_options;
    unsigned m_level = 0;
    std::string m_text;
};

} // namespace

void Show(const ShowOptions& options) {
    std::optional<Progress> progress(std::in_place);
    progress->SetStep("reading " + NameOfInput(options.m_input));
    const Document document(options.m_input);
    const TreePrinter printer(document, options);
    progress.reset();
    WriteFile("-", printer.GetText());
}

} // namespace quillon
