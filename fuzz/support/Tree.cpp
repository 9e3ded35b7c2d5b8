#include "support/Tree.h"

#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>

#include <vector>

namespace fuzz {

using namespace KzXmlLib10;

namespace {

/// Calls `open` for each element on the way down and `close` on the way up, in constant stack.
template <class Open, class Close>
void Walk(const CXmlElement* root, Open open, Close close) {
    std::vector<const CXmlElement*> path;
    for (const CXmlElement* element = root; element;) {
        open(element);
        path.push_back(element);
        element = element->GetFirstElement();
        while (!element && !path.empty()) {
            close();
            const bool isRoot = path.size() == 1;
            element = isRoot ? nullptr : path.back()->GetNextSiblingElement();
            path.pop_back();
        }
    }
}

/// A part with its length in front, so that no two trees read alike.
void Add(std::u16string& out, const std::u16string& part) {
    out += static_cast<char16_t>(part.size());
    out += part;
}

} // namespace

std::u16string Flat(const CXmlDocument& document) {
    std::u16string out;
    const auto open = [&](const CXmlElement* element) {
        Expect(element->GetDocument() == &document, "an element knows its document");
        out += u'<';
        Add(out, element->GetNamespaceURI());
        Add(out, element->GetLocalName());
        for (const CXmlAttribute* attribute : element->GetAttributes()) {
            out += u'@';
            Add(out, attribute->GetNamespaceURI());
            Add(out, attribute->GetLocalName());
            Add(out, attribute->GetValue());
        }
        if (!element->GetAttributes().empty()) {
            const CXmlAttribute* first = element->GetAttributes().front();
            Expect(&element->GetAttribute(first->GetLocalName(), first->GetNamespaceURI()) ==
                       &first->GetValue(),
                   "the first attribute of a name is the one that is found");
        }
        Add(out, element->GetText());
    };
    Walk(document.GetDocumentElement(), open, [&] { out += u'>'; });
    return out;
}

std::size_t CountElements(const CXmlElement* root) {
    std::size_t count = 0;
    Walk(
        root, [&](const CXmlElement*) { ++count; }, [] {});
    return count;
}

std::u16string Outcome(CXmlDocument& document, const std::function<void()>& load) {
    try {
        load();
    } catch (const CKzException& failure) {
        return u"!" + failure.GetFullMessage();
    }
    return Flat(document);
}

} // namespace fuzz
