#pragma once

#include <cstddef>
#include <utility>

namespace KzXmlLib10 {

/// A counted pointer to an object with `AddRef` and `Release`.
///
///     CSmartPtr<COrder> order = new COrder; // the count goes from 0 to 1
///     order->SetId(7);
///
/// Every non-null pointer held counts once; the object goes with the last one. May be null. The pointer
/// itself is not synchronised; the counts of the objects are atomic.
template <class T>
class CSmartPtr {
public:
    CSmartPtr() = default;
    CSmartPtr(std::nullptr_t) {}
    CSmartPtr(T* object) : m_object(object) { Count(); }
    CSmartPtr(const CSmartPtr& other) : CSmartPtr(other.m_object) {}
    CSmartPtr(CSmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U>
    CSmartPtr(const CSmartPtr<U>& other) : CSmartPtr(static_cast<U*>(other)) {}
    ~CSmartPtr() {
        if (m_object)
            m_object->Release();
    }

    /// Takes the new object before it lets the old one go, so that assigning what the old one owns is safe.
    CSmartPtr& operator=(T* object) {
        CSmartPtr(object).Swap(*this);
        return *this;
    }
    CSmartPtr& operator=(const CSmartPtr& other) { return *this = other.m_object; }
    template <class U>
    CSmartPtr& operator=(const CSmartPtr<U>& other) {
        return *this = static_cast<U*>(other);
    }
    CSmartPtr& operator=(CSmartPtr&& other) noexcept {
        CSmartPtr(std::move(other)).Swap(*this);
        return *this;
    }

    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    operator T*() const { return m_object; }

private:
    void Count() {
        if (m_object)
            m_object->AddRef();
    }
    void Swap(CSmartPtr& other) noexcept { std::swap(m_object, other.m_object); }

    T* m_object = nullptr;
};

} // namespace KzXmlLib10
