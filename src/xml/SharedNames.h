#pragma once

#include "object/TextScan.h"

#include <KzXmlLib10/xml/SharedName.h>

#include <functional>
#include <memory_resource>
#include <set>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The distinct names of a tree, which its nodes share, and their distinct texts. A search takes logarithmic
/// time, so that nobody can choose names that make it slow.
class SharedNames {
public:
    explicit SharedNames(std::pmr::memory_resource* memory) : m_texts(memory), m_names(memory) {}
    SharedNames(const SharedNames&) = delete;
    SharedNames& operator=(const SharedNames&) = delete;

    /// Valid as long as the table.
    const SharedName& Share(std::u16string_view namespaceUri, std::u16string_view localName) {
        return *m_names.insert({&ShareText(namespaceUri), &ShareText(localName)}).first;
    }

private:
    /// By length first, since that tells most names apart.
    struct TextOrder {
        using is_transparent = void;
        bool operator()(std::u16string_view a, std::u16string_view b) const {
            if (a.size() != b.size())
                return a.size() < b.size();
            return CompareBytes(a, b) < 0;
        }
    };
    struct NameOrder {
        bool operator()(const SharedName& a, const SharedName& b) const {
            constexpr std::less<const std::u16string*> isBefore;
            return a.localName != b.localName ? isBefore(a.localName, b.localName)
                                              : isBefore(a.namespaceUri, b.namespaceUri);
        }
    };

    const std::u16string& ShareText(std::u16string_view text) {
        const auto found = m_texts.find(text);
        return found != m_texts.end() ? *found : *m_texts.emplace(text).first;
    }

    std::pmr::set<std::u16string, TextOrder> m_texts;
    std::pmr::set<SharedName, NameOrder> m_names;
};

} // namespace KzXmlLib10
