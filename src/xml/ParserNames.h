#pragma once

#include "xml/ChunkMemory.h"
#include "xml/Expat.h"
#include "xml/SharedNames.h"

#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

/// The names of a document as expat gives them, and what each of them is in the tree.
///
/// Names of a document mostly come in an order that they came in before. So each name remembers the two that
/// followed it last, and the table is searched only where it is another one. The search takes logarithmic
/// time, so that nobody can choose names that make it slow.
class ParserNames {
public:
    static constexpr char Separator = '|';

    ParserNames() = default;
    ParserNames(const ParserNames&) = delete;
    ParserNames& operator=(const ParserNames&) = delete;

    /// The name in the tree for a URI, separator and local name, or a local name
    /// alone. All calls are given the same table.
    const SharedName& Find(const char* name, SharedNames& names) {
        const auto isAt = [name](const Entry* guess) {
            return guess && std::strcmp(guess->text.c_str(), name) == 0;
        };
        auto& [guess, other] = m_last->followers;
        if (!isAt(guess)) {
            std::swap(guess, other);
            if (!isAt(guess))
                guess = &Search(name, names);
        }
        m_last = guess;
        return *m_last->name;
    }

private:
    struct Entry {
        std::pmr::string text;
        const SharedName* name = nullptr;
        mutable const Entry* followers[2] = {};
    };

    /// By length first, since that tells most names apart.
    struct Order {
        using is_transparent = void;
        static bool Less(std::string_view a, std::string_view b) {
            return a.size() != b.size() ? a.size() < b.size() : a < b;
        }
        bool operator()(const Entry& a, const Entry& b) const { return Less(a.text, b.text); }
        bool operator()(const Entry& a, std::string_view b) const { return Less(a.text, b); }
        bool operator()(std::string_view a, const Entry& b) const { return Less(a, b.text); }
    };

    const Entry& Search(std::string_view text, SharedNames& names) {
        if (const auto found = m_entries.find(text); found != m_entries.end())
            return *found;
        return *m_entries.insert({std::pmr::string(text, &m_memory), &Split(text, names)}).first;
    }

    /// Deliberate: at the first separator.
    const SharedName& Split(std::string_view text, SharedNames& names) {
        const std::size_t separator = text.find(Separator);
        m_namespaceUri.clear();
        m_localName.clear();
        if (separator != text.npos)
            AppendUtf16(m_namespaceUri, text.substr(0, separator));
        AppendUtf16(m_localName, text.substr(separator + 1)); // npos + 1 is 0
        return names.Share(m_namespaceUri, m_localName);
    }

    ChunkMemory m_memory;
    std::pmr::set<Entry, Order> m_entries{&m_memory};
    std::u16string m_namespaceUri; ///< of the name split last
    std::u16string m_localName;
    Entry m_start; ///< what the first name follows
    const Entry* m_last = &m_start;
};

} // namespace KzXmlLib10
