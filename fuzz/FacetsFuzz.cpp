// Facets and patterns accept or refuse within half a second, whatever they say. Bounds of integers and
// lengths of texts agree with plain comparisons, and a value matches itself as a pattern.
//
// First byte: the kind of the value; 255 a long value, which may take a pattern to its limits. Then three
// bytes of lengths, then lines: value, pattern, four bounds.
#include "support/Targets.h"

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/conversions/XsdPattern.h>
#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/values/KzVariant.h>

#include <ctime>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

bool Passes(const KzVariant& value, ItemType type, const CPrimitiveRestrictions& facets) {
    try {
        CheckPrimitiveRestrictions(u"name", value, type, facets);
    } catch (const CKzInvalidValueException&) {
        throw; // a bound that is no value of the kind
    } catch (const CKzException&) {
        return false;
    }
    return true;
}

/// Equality comes first, since a zero that has kept a minus sign is less than one without.
bool IsWithinBounds(const CBigInteger& value, const CPrimitiveRestrictions& facets) {
    const auto holds = [&](const std::u16string& text, auto relation) {
        return text.empty() || relation(value, CConversions::integerFromString(
                                                   text, CWhitespaceUtils::WhitespaceRule_Collapse));
    };
    return holds(facets.m_minInclusive, [](const auto& a, const auto& b) { return a == b || a > b; }) &&
           holds(facets.m_maxInclusive, [](const auto& a, const auto& b) { return a == b || a < b; }) &&
           holds(facets.m_minExclusive, [](const auto& a, const auto& b) { return a != b && a > b; }) &&
           holds(facets.m_maxExclusive, [](const auto& a, const auto& b) { return a != b && a < b; });
}

bool HasLength(std::size_t length, const CPrimitiveRestrictions& facets) {
    const auto size = static_cast<int>(length);
    return size >= facets.m_minLength && (facets.m_maxLength < 0 || size <= facets.m_maxLength) &&
           (facets.m_length < 0 || size == facets.m_length);
}

/// A pattern for nothing but the value.
std::string Quoted(const std::u16string& value) {
    std::string pattern;
    for (const char c : ToUtf8(value)) {
        if (std::string_view("\\.[]{}()*+-?^$|#").find(c) != std::string_view::npos)
            pattern += '\\';
        pattern += c;
    }
    return pattern;
}

void CheckText(const std::u16string& value, const CPrimitiveRestrictions& facets) {
    if (facets.m_pattern.empty()) {
        KzVariant variant;
        variant.SetString(value);
        Expect(Passes(variant, ItemType_string, facets) == HasLength(value.size(), facets),
               "lengths are what is counted");
    }
    if (value.find(u'\x01') == std::u16string::npos) // which stands for a backslash meanwhile
        Expect(MatchXsdPattern(Quoted(value), value), "a value matches itself");
}

} // namespace

void Facets(Input input) {
    const std::uint8_t kind = input.Byte();
    const auto type = kind == 255 ? ItemType_string : static_cast<ItemType>(kind % ItemType_integer + 1);
    const auto length = [&] { return static_cast<std::int8_t>(input.Byte()); };
    const int lengths[] = {length(), length(), length()};
    std::u16string value = input.Line();
    if (kind != 255)
        value.resize(std::min<std::size_t>(value.size(), 20));
    std::u16string texts[5];
    for (std::u16string& text : texts)
        text = input.Line().c_str();
    if (!takesLongPatterns) {
        value.resize(std::min<std::size_t>(value.size(), 10));
        texts[0].resize(std::min<std::size_t>(texts[0].size(), 40));
    }
    const CPrimitiveRestrictions facets(texts[0].c_str(), lengths[0], lengths[1], texts[1].c_str(),
                                        texts[2].c_str(), texts[3].c_str(), texts[4].c_str(), lengths[2]);
    const std::clock_t start = std::clock();
    if (type == ItemType_string && value.find(u'\0') == std::u16string::npos)
        CheckText(value, facets);
    KzVariant variant;
    variant.FromString(value, type, CWhitespaceUtils::WhitespaceRule_None);
    const bool passes = Passes(variant, type, facets);
    if (type == ItemType_integer)
        Expect(passes == IsWithinBounds(variant.GetInteger(), facets), "bounds are plain comparisons");
    Expect(std::clock() - start < CLOCKS_PER_SEC / 2, "a check ends soon");
}

} // namespace fuzz
