/// The attributes that a context adds to the root element.

#include <KzXmlLib10/object/CXmlSerializationContext.h>

#include <KzXmlLib10/collections/CAttributeCol.h>

namespace KzXmlLib10 {

namespace {

CAttributeCol* Counted(CAttributeCol* attributes) {
    if (attributes)
        attributes->AddRef();
    return attributes;
}

void LetGo(CAttributeCol* attributes) {
    if (attributes)
        attributes->Release();
}

} // namespace

CXmlSerializationContext::RootAttributes::RootAttributes(const RootAttributes& other)
    : m_attributes(Counted(other.m_attributes.load())) {}

CXmlSerializationContext::RootAttributes&
CXmlSerializationContext::RootAttributes::operator=(const RootAttributes& other) {
    LetGo(m_attributes.exchange(Counted(other.m_attributes.load())));
    return *this;
}

CXmlSerializationContext::RootAttributes::~RootAttributes() { LetGo(m_attributes.load()); }

CAttributeCol* CXmlSerializationContext::RootAttributes::GetOrCreate() {
    if (CAttributeCol* attributes = m_attributes.load())
        return attributes;
    CSmartPtr<CAttributeCol> created = new CAttributeCol(u"", u"##any", u"");
    CAttributeCol* first = nullptr;
    if (!m_attributes.compare_exchange_strong(first, created))
        return first; // another thread was first
    return Counted(created);
}

CSmartPtr<CAttributeCol> CXmlSerializationContext::GetAdditionalRootAttributes() const {
    return m_additionalRootAttributes.GetOrCreate();
}

} // namespace KzXmlLib10
