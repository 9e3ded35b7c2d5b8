/// The checks of CXmlObjectBase on names, for the setters of generated classes and for readers.

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/NotNull.h"
#include "object/TextScan.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

void CXmlObjectBase::Throw_IfPropertyIsNull(CXmlObjectBase* value, const char16_t* property) {
    if (!value)
        Throw<CKzInvalidParamException>(messages::PropertyIsNull, property);
}

void CXmlObjectBase::Throw_IfElementNameDiffers(CXmlObjectBase* value, const char16_t* element) {
    if (!value)
        return;
    const std::u16string& name = value->GetBase()->m_elementName;
    if (name != NotNull(element, u"element"))
        Throw<CKzInvalidParamException>(messages::ElementNameDiffers, element, name);
}

bool CXmlObjectBase::DoesElementNameMatch(const CXmlSerializationContext& context, const CXmlElement* element,
                                          const char16_t* name, const char16_t* ns) const {
    return SameText(NotNull(element, u"element")->GetLocalName(), NotNull(name, u"name")) &&
           (context.GetIgnoreNamespaces() || SameText(element->GetNamespaceURI(), NotNull(ns, u"ns")));
}

} // namespace KzXmlLib10
