#pragma once

#include <KzXmlLib10/KzXmlLib10.h>

#include <algorithm>
#include <initializer_list>

namespace library {

using namespace KzXmlLib10;
using namespace KzXmlLib10Data;

inline constexpr char16_t libraryNamespace[] = u"urn:example:library";

// [make-table]
/// A table of descriptors: the entries, and the null that ends it.
template <class Info>
Info** MakeTable(std::initializer_list<Info*> entries) {
    Info** table = new Info*[entries.size() + 1];
    *std::copy(entries.begin(), entries.end(), table) = nullptr;
    return table;
}
// [/make-table]

} // namespace library
