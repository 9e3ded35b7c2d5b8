#include "object/NamespaceRestriction.h"

#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include <string>

namespace KzXmlLib10 {

bool IsNamespaceValid(std::u16string_view ns, std::u16string_view restriction,
                      std::u16string_view targetNamespace) {
    const std::size_t space = restriction.find(u' ');
    const std::u16string_view token = restriction.substr(0, space);
    // Deliberate: an empty namespace passes against a namespace, and a namespace is compared with the whole
    // restriction, not with the token.
    const bool isWholeRestriction = ns == restriction || ns.empty();
    if (token == u"##any")
        return true;
    if (token == u"##other" && ns != targetNamespace)
        return true;
    if (token == u"##targetNamespace" && ns == targetNamespace)
        return true;
    if (token == u"##local" && ns.empty())
        return true;
    const bool isKeyword = token == u"##other" || token == u"##targetNamespace" || token == u"##local";
    if (!isKeyword && isWholeRestriction)
        return true;
    // Deliberate: behind the first token of several the walk meets none but empty tokens, which are no
    // keywords.
    return space != std::u16string_view::npos && isWholeRestriction;
}

void TestNamespace(std::u16string_view ns, std::u16string_view restriction,
                   std::u16string_view targetNamespace) {
    if (!IsNamespaceValid(ns, restriction, targetNamespace))
        Throw<CKzInvalidNamespaceException>(messages::InvalidNamespaceForRestriction, std::u16string(ns),
                                            std::u16string(restriction), std::u16string(targetNamespace));
}

bool CXmlObjectBase::IsNamespaceValid(const char16_t* ns, const char16_t* restriction,
                                      const char16_t* targetNamespace) const {
    return KzXmlLib10::IsNamespaceValid(NotNull(ns, u"ns"), NotNull(restriction, u"restriction"),
                                        NotNull(targetNamespace, u"targetNamespace"));
}

void CXmlObjectBase::TestNamespace(const char16_t* ns, const char16_t* restriction,
                                   const char16_t* targetNamespace) const {
    KzXmlLib10::TestNamespace(NotNull(ns, u"ns"), NotNull(restriction, u"restriction"),
                              NotNull(targetNamespace, u"targetNamespace"));
}

} // namespace KzXmlLib10
