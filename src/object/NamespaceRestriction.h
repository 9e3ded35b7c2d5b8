#pragma once

#include <string_view>

namespace KzXmlLib10 {

/// Whether a wildcard with this restriction admits a namespace; see CXmlObjectBase::IsNamespaceValid.
bool IsNamespaceValid(std::u16string_view ns, std::u16string_view restriction,
                      std::u16string_view targetNamespace);

/// Throws CKzInvalidNamespaceException where IsNamespaceValid says false.
void TestNamespace(std::u16string_view ns, std::u16string_view restriction,
                   std::u16string_view targetNamespace);

} // namespace KzXmlLib10
