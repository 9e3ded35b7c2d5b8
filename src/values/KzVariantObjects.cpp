#include <KzXmlLib10/values/KzVariant.h>

#include <KzXmlLib10/collections/CXmlCollectionBase.h>

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

void KzVariant::SetCounted(ItemType type, CXmlObjectBase* object) {
    if (object)
        object->AddRef(); // before the old object goes, which may be what keeps this one alive
    Clear();
    m_type = type;
    m_value.payload = object;
}

void KzVariant::SetXmlObject(CXmlObjectBase* object) { SetCounted(ItemType_xmlObject, object); }

void KzVariant::SetXmlCollection(CXmlCollectionBase* collection) {
    SetCounted(ItemType_xmlCollection, collection);
}

CSmartPtr<CXmlObjectBase> KzVariant::GetXmlObject() const { return PeekXmlObject(); }

CXmlObjectBase* KzVariant::PeekXmlObject() const {
    if (m_type != ItemType_xmlObject && m_type != ItemType_xmlCollection)
        FailNoPayload(ItemType_xmlObject);
    return static_cast<CXmlObjectBase*>(m_value.payload);
}

CSmartPtr<CXmlCollectionBase> KzVariant::GetXmlCollection() const {
    if (m_type == ItemType_xmlCollection)
        return static_cast<CXmlCollectionBase*>(static_cast<CXmlObjectBase*>(m_value.payload));
    CXmlObjectBase* const object = PeekXmlObject();
    auto* collection = dynamic_cast<CXmlCollectionBase*>(object);
    if (object && !collection)
        FailNoPayload(ItemType_xmlCollection);
    return collection;
}

} // namespace KzXmlLib10
