#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// The values of a typed collection: a vector from which the first value goes in constant time, amortised,
/// so that a collection is emptied one by one in linear time.
///
/// Indexes are not checked.
template <class T>
class CItemVector {
public:
    CItemVector() = default;
    CItemVector(const CItemVector& other) = default; // and so no moves, which would leave m_gone behind
    CItemVector& operator=(const CItemVector& other) = default;

    auto begin() { return m_values.begin() + m_gone; }
    auto end() { return m_values.end(); }
    auto begin() const { return m_values.begin() + m_gone; }
    auto end() const { return m_values.end(); }

    int GetCount() const { return static_cast<int>(end() - begin()); }
    T Item(int index) const { return begin()[index]; }
    void Insert(int index, T value) { m_values.insert(begin() + index, std::move(value)); }

    void Remove(int index) {
        if (index > 0) {
            m_values.erase(begin() + index);
            return;
        }
        *begin() = T(); // lets go of what the value holds
        ++m_gone;
        if (m_gone > GetCount()) { // each value that moves is paid for by one that went
            m_values.erase(m_values.begin(), begin());
            m_gone = 0;
        }
    }

private:
    std::vector<T> m_values;
    std::ptrdiff_t m_gone = 0; ///< values at the front that are removed, but not erased yet
};

} // namespace KzXmlLib10
