#pragma once

#include "xml/NodePool.h"

#include <KzXmlLib10/xml/CXmlAttribute.h>

#include <memory>
#include <memory_resource>
#include <new>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// The attributes of the elements of a tree, a list for each that has some. What is in use in the end goes
/// here, so that a tree can go without a walk over its elements.
class AttributeLists {
public:
    using List = std::vector<CXmlAttribute*>;

    explicit AttributeLists(std::pmr::memory_resource* memory) : m_entries(memory) {}
    AttributeLists(const AttributeLists&) = delete;
    AttributeLists& operator=(const AttributeLists&) = delete;
    ~AttributeLists() {
        for (Entry* entry = m_newest; entry;) {
            for (CXmlAttribute* attribute : *entry)
                std::destroy_at(attribute);
            std::destroy_at(std::exchange(entry, entry->older));
        }
    }

    /// An empty list.
    List* Take() {
        auto* entry = ::new (m_entries.Take()) Entry;
        entry->older = m_newest;
        if (m_newest)
            m_newest->newer = entry;
        return m_newest = entry;
    }

    /// Takes back a list whose attributes have been destroyed.
    void GiveBack(List* list) noexcept {
        auto* entry = static_cast<Entry*>(list);
        (entry->newer ? entry->newer->older : m_newest) = entry->older;
        if (entry->older)
            entry->older->newer = entry->newer;
        std::destroy_at(entry);
        m_entries.GiveBack(entry);
    }

private:
    struct Entry : List {
        Entry* older = nullptr;
        Entry* newer = nullptr;
    };

    NodePool<Entry> m_entries;
    Entry* m_newest = nullptr;
};

} // namespace KzXmlLib10
