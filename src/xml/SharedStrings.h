#pragma once

#include "object/TextScan.h"

#include <set>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The distinct namespaces and local names of a tree, one string each, which its nodes share. A search takes
/// logarithmic time, so that nobody can choose names that make it slow.
class SharedStrings {
public:
    /// The string of this text, valid as long as the table.
    const std::u16string& Share(std::u16string_view text) {
        const auto found = m_strings.find(text);
        return found != m_strings.end() ? *found : *m_strings.emplace(text).first;
    }

private:
    /// By length first, since that tells most names apart.
    struct Order {
        using is_transparent = void;
        bool operator()(std::u16string_view a, std::u16string_view b) const {
            if (a.size() != b.size())
                return a.size() < b.size();
            return CompareBytes(a, b) < 0;
        }
    };

    std::set<std::u16string, Order> m_strings;
};

} // namespace KzXmlLib10
