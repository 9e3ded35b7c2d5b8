#include <KzXmlLib10/collections/CXmlCollectionBase.h>

#include "collections/Messages.h"
#include "object/NotNull.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>

#include <algorithm>

namespace KzXmlLib10 {

CXmlCollectionBase::CXmlCollectionBase() = default;

CXmlCollectionBase::CXmlCollectionBase(const char16_t* elementName, const char16_t* elementNamespace,
                                       int minOccurs, int maxOccurs)
    : m_elementNamespace(NotNull(elementNamespace, u"elementNamespace")), m_minOccurs(minOccurs),
      m_maxOccurs(maxOccurs) {
    SetElementName(elementName);
}

CXmlCollectionBase::CXmlCollectionBase(const CXmlCollectionBase& other) = default;
CXmlCollectionBase& CXmlCollectionBase::operator=(const CXmlCollectionBase& other) = default;
CXmlCollectionBase::~CXmlCollectionBase() = default;

CXmlObjectBase* CXmlCollectionBase::GetBase() { return this; }

std::u16string CXmlCollectionBase::GetTargetNamespace() const {
    Throw<CKzException>(messages::NoTargetNamespace);
}

std::u16string CXmlCollectionBase::GetNamespace() const { return m_elementNamespace; }

bool CXmlCollectionBase::IsAboveMaximum() const { return m_maxOccurs != -1 && GetCount() > m_maxOccurs; }

bool CXmlCollectionBase::IsBelowMinimum() const { return GetCount() < m_minOccurs; }

void CXmlCollectionBase::ValidateCount(const CXmlSerializationContext& context) const {
    if (context.GetIgnoreInvalidCollectionCounts())
        return;
    if (IsAboveMaximum())
        Throw<CKzValidationException>(messages::MaximumExceeded, GetElementName(), m_maxOccurs);
    if (IsBelowMinimum())
        Throw<CKzValidationException>(messages::MinimumNotReached, GetElementName(), m_minOccurs);
}

bool CXmlCollectionBase::IsValidCount(const CXmlSerializationContext& context) const {
    return context.GetIgnoreInvalidCollectionCounts() || (!IsAboveMaximum() && !IsBelowMinimum());
}

void CXmlCollectionBase::AddEventListener(IEventSink* sink) {
    m_eventListeners.push_back(NotNull(sink, u"sink"));
}

void CXmlCollectionBase::RemoveEventListener(IEventSink* sink) { std::erase(m_eventListeners, sink); }

/// Walks the listeners as they stood at the start, leaving out those that are gone by their turn.
template <class Send>
void CXmlCollectionBase::ForEachListener(Send send) {
    if (m_eventListeners.empty())
        return;
    const std::vector<IEventSink*> listeners = m_eventListeners;
    for (IEventSink* listener : listeners) {
        if (std::ranges::find(m_eventListeners, listener) != m_eventListeners.end())
            send(listener);
    }
}

void CXmlCollectionBase::FireOnCollectionChange() {
    ForEachListener([&](IEventSink* sink) { FireOnCollectionChangeEvent(sink, this); });
}

void CXmlCollectionBase::FireOnCollectionAdd(void* item) {
    ForEachListener([&](IEventSink* sink) { FireOnCollectionAddEvent(sink, this, item); });
}

void CXmlCollectionBase::FireOnCollectionAddComplete(void* item) {
    ForEachListener([&](IEventSink* sink) { FireOnCollectionAddCompleteEvent(sink, this, item); });
}

void CXmlCollectionBase::FireOnCollectionRemove(int index) {
    ForEachListener([&](IEventSink* sink) { FireOnCollectionRemoveEvent(sink, this, index); });
}

void CXmlCollectionBase::FireOnCollectionRemoveComplete(int index) {
    ForEachListener([&](IEventSink* sink) { FireOnCollectionRemoveCompleteEvent(sink, this, index); });
}

} // namespace KzXmlLib10
