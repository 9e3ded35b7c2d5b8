#include <KzXmlLib10/values/KzVariant.h>

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/Throw.h"
#include "values/Messages.h"
#include "values/Payload.h"

namespace KzXmlLib10 {

const PayloadKind CountedObject = {
    [](void* payload) -> void* {
        static_cast<CXmlObjectBase*>(payload)->AddRef();
        return payload;
    },
    [](void* payload) { static_cast<CXmlObjectBase*>(payload)->Release(); },
};

void KzVariant::SetXmlObject(CXmlObjectBase* object) {
    if (object)
        object->AddRef(); // before the old object goes, which may be what keeps this one alive
    Clear();
    m_type = ItemType_xmlObject;
    m_value.payload = object;
}

CSmartPtr<CXmlObjectBase> KzVariant::GetXmlObject() const {
    if (m_type != ItemType_xmlObject && m_type != ItemType_xmlCollection)
        Throw<CKzInvalidStateException>(messages::NoSuchPayload, m_type, ItemType_xmlObject);
    return static_cast<CXmlObjectBase*>(m_value.payload);
}

} // namespace KzXmlLib10
