#include "support/DumpTree.h"

namespace KzXmlLib10::support {

namespace {

std::string Visible(const std::u16string& text) {
    std::string result;
    for (const char c : ToUtf8(text)) {
        const std::size_t at = "\n\r\t"sv.find(c);
        result += at == std::string::npos ? std::string(1, c) : "\\"s + "nrt"[at];
    }
    return result;
}

std::string Name(const std::u16string& namespaceUri, const std::u16string& localName) {
    return (namespaceUri.empty() ? "" : "{" + Visible(namespaceUri) + "}") + Visible(localName);
}

} // namespace

std::string DumpTree(const CXmlElement* element) {
    if (!element)
        return "null";
    std::string content;
    for (const CXmlAttribute* attribute : element->GetAttributes())
        content += " @" + Name(attribute->GetNamespaceURI(), attribute->GetLocalName()) + "=" +
                   Visible(attribute->GetValue());
    if (!element->GetText().empty())
        content += " \"" + Visible(element->GetText()) + "\"";
    for (const CXmlElement* child = element->GetFirstElement(); child; child = child->GetNextSiblingElement())
        content += " " + DumpTree(child);
    const std::string name = Name(element->GetNamespaceURI(), element->GetLocalName());
    return content.empty() ? name : name + "[" + content.substr(1) + "]";
}

} // namespace KzXmlLib10::support
