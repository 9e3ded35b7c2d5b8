#pragma once

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include <cstdint>
#include <string>
#include <vector>

namespace KzXmlLib10 {

/// What all collections have in common: the element name and namespace of their items, bounds on their
/// number, and listeners.
///
///     orders->AddEventListener(&view);
///     orders->Remove(0); // view hears of the removal, before and after
///     orders->ValidateCount(context);
///
/// A collection is an object itself, so that a repeated element is written and read as a single one is. It
/// belongs to the object that holds it through a CSmartPtr. Adding never looks at the bounds; descriptors
/// check them when they read or write.
///
/// Listeners are not owned. They are called in the order of their registration, on the thread that changes
/// the collection, while the change is in progress. A listener may remove itself or others meanwhile: who is
/// removed hears no more, who is added hears the next event. What a listener throws ends the walk and reaches
/// the caller of the change.
class QUILLON_EXPORT CXmlCollectionBase : public CXmlObjectBase {
public:
    /// Copies names, bounds and listeners.
    CXmlCollectionBase(const CXmlCollectionBase& other);
    CXmlCollectionBase& operator=(const CXmlCollectionBase& other);
    ~CXmlCollectionBase() override;

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override;

protected:
    /// Always throws CKzException: a collection is never the root of a document.
    std::u16string GetTargetNamespace() const override;

public:
    /// The namespace of the items' element.
    std::u16string GetNamespace() const override;

    virtual int GetCount() const = 0;
    /// Removes all items, each with its events.
    virtual void Clear() = 0;
    /// Throws CKzInvalidParamException for an index below 0 or not below the count.
    virtual void Remove(int index) = 0;
    /// Throws CKzValidationException if the count is out of bounds, unless the context ignores that.
    virtual void ValidateCount(const CXmlSerializationContext& context) const;
    /// Whether ValidateCount would pass.
    virtual bool IsValidCount(const CXmlSerializationContext& context) const;

    int GetMinOccurs() const { return m_minOccurs; }
    /// -1 means unbounded.
    int GetMaxOccurs() const { return m_maxOccurs; }

    /// Null throws CKzInvalidParamException. A sink registered twice is called twice.
    void AddEventListener(IEventSink* sink);
    /// Removes every registration of the sink; an unknown one is no error.
    void RemoveEventListener(IEventSink* sink);

protected:
    /// No names, no bounds.
    CXmlCollectionBase();
    /// The names may not be null (CKzInvalidParamException).
    CXmlCollectionBase(const char16_t* elementName, const char16_t* elementNamespace, int minOccurs,
                       int maxOccurs);

    /// Each sends one event to all listeners.
    void FireOnCollectionChange();
    void FireOnCollectionAdd(void* item);
    void FireOnCollectionAddComplete(void* item);
    /// An index of -1 stands for an index that is not known.
    void FireOnCollectionRemove(int index);
    void FireOnCollectionRemoveComplete(int index);

    bool HasEventListeners() const { return !m_eventListeners.empty(); }

    std::u16string m_elementNamespace;

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    template <class Send>
    void ForEachListener(Send send);

    bool IsAboveMaximum() const;
    bool IsBelowMinimum() const;

    std::vector<IEventSink*> m_eventListeners;
    std::int32_t m_minOccurs = 0;
    std::int32_t m_maxOccurs = -1;
};

} // namespace KzXmlLib10
