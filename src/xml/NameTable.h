#pragma once

#include "object/TextScan.h"

#include <set>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The distinct names of a document, one string each, which its nodes share.
///
/// Names of a document mostly come in an order that they came in before. So each name remembers the one that
/// followed it last, and the table is searched only where that was another one. The search takes logarithmic
/// time, so that nobody can choose names that make it slow.
class NameTable {
public:
    NameTable() = default;
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    /// The string of a name, valid as long as the table.
    const std::u16string& Share(std::u16string_view name) {
        const Name*& guess = m_last->follower;
        if (!guess || !SameText(guess->text, name))
            guess = &Find(name);
        m_last = guess;
        return m_last->text;
    }

    /// The name that was shared last; empty at first.
    std::u16string_view Last() const { return m_last->text; }

private:
    struct Name {
        std::u16string text;
        mutable const Name* follower = nullptr;
    };

    /// By length first, since that tells most names apart.
    struct Order {
        using is_transparent = void;
        static bool Less(std::u16string_view a, std::u16string_view b) {
            if (a.size() != b.size())
                return a.size() < b.size();
            return CompareBytes(a, b) < 0;
        }
        bool operator()(const Name& a, const Name& b) const { return Less(a.text, b.text); }
        bool operator()(const Name& a, std::u16string_view b) const { return Less(a.text, b); }
        bool operator()(std::u16string_view a, const Name& b) const { return Less(a, b.text); }
    };

    const Name& Find(std::u16string_view name) {
        const auto found = m_names.find(name);
        return found != m_names.end() ? *found : *m_names.insert({std::u16string(name)}).first;
    }

    std::set<Name, Order> m_names;
    Name m_start; ///< what the first name follows
    const Name* m_last = &m_start;
};

} // namespace KzXmlLib10
