#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>

#include <string>

namespace KzXmlLib10 {

/// The base of generated factories: what they need to pick a class for an element.
///
///     CSmartPtr<CXmlObjectBase> CShapeFactory::Create(CXmlElement* element) {
///         if (GetElementType(element) == u"Circle" && GetElementTypeNamespaceUri(element) == u"urn:shapes")
///             return new CCircle;
///         return nullptr;
///     }
class QUILLON_EXPORT CClassfactoryBase {
public:
    CClassfactoryBase() = default;
    CClassfactoryBase(const CClassfactoryBase&) = default;
    CClassfactoryBase& operator=(const CClassfactoryBase&) = default;
    virtual ~CClassfactoryBase();

protected:
    /// The local name of the element's `xsi:type`: what follows the first colon, or all of it. Empty if the
    /// element has none.
    static std::u16string GetElementType(CXmlElement* element);

    /// The namespace of the element's `xsi:type`, by its prefix.
    /// Deliberate: without a prefix, and with an undeclared one, it is the element's own namespace, and not
    /// the default namespace of the document.
    static std::u16string GetElementTypeNamespaceUri(CXmlElement* element);
};

} // namespace KzXmlLib10
