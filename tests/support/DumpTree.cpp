#include "support/DumpTree.h"

namespace KzXmlLib10::support {

namespace {

std::string Visible(const std::u16string& text) {
    std::string result = ToUtf8(text);
    for (const auto& [c, letter] : {std::pair('\n', 'n'), std::pair('\r', 'r'), std::pair('\t', 't')})
        for (std::size_t at = 0; (at = result.find(c, at)) != std::string::npos; at += 2)
            result.replace(at, 1, {'\\', letter});
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
