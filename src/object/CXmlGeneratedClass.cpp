#include <KzXmlLib10/object/CXmlGeneratedClass.h>

#include <KzXmlLib10/metadata/CAttributeInfo.h>
#include <KzXmlLib10/metadata/CElementInfo.h>
#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace KzXmlLib10 {

using KzXmlLib10Data::CAttributeInfo;
using KzXmlLib10Data::CElementInfo;
using KzXmlLib10Data::CParentElementInfo;

// Ready before the static objects of a program that links the library into itself.
[[gnu::init_priority(101)]] CKZCriticalSection CXmlGeneratedClass::m_csInit;

CXmlGeneratedClass::CXmlGeneratedClass() = default;
CXmlGeneratedClass::CXmlGeneratedClass(const CXmlGeneratedClass& other) = default;
CXmlGeneratedClass& CXmlGeneratedClass::operator=(const CXmlGeneratedClass& other) = default;
CXmlGeneratedClass::~CXmlGeneratedClass() = default;

bool CXmlGeneratedClass::IsElementInList(const CXmlSerializationContext& context,
                                         CXmlElement* element) const {
    if (!element)
        return false;
    for (CElementInfo** entry = GetClassElementInfo(); *entry; ++entry)
        if ((*entry)->GetElementName() == element->GetLocalName() &&
            (context.GetIgnoreNamespaces() || (*entry)->GetElementNamespace() == element->GetNamespaceURI()))
            return true;
    return false;
}

int CXmlGeneratedClass::GetClassElementInfoCount() const {
    int count = 0;
    for (CElementInfo** entry = GetClassElementInfo(); *entry; ++entry)
        ++count;
    return count;
}

namespace {

template <class Info>
void DeleteTable(Info**& table) {
    if (!table)
        return;
    for (Info** entry = table; *entry; ++entry) {
        delete *entry;
        *entry = nullptr;
    }
    delete[] table;
    table = nullptr;
}

} // namespace

void CXmlGeneratedClass::CleanMetaData(CParentElementInfo*& info, CElementInfo**& elements,
                                       CAttributeInfo**& attributes) {
    delete info;
    info = nullptr;
    DeleteTable(elements);
    DeleteTable(attributes);
}

} // namespace KzXmlLib10
