#pragma once

/// The bridge to expat in its usual form, which gives out UTF-8: its parser as an owning pointer, its texts.
/// Nothing else includes <expat.h>.

#include "object/Utf8.h"

#include <expat.h>

#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

namespace KzXmlLib10::expat {

static_assert(sizeof(XML_Char) == sizeof(char), "expat has to be used without XML_UNICODE");

/// The 16-bit form of a text that expat gives, which is UTF-8 without a fault.
inline std::u16string Text(std::string_view text) {
    char16_t room[64];
    if (text.size() <= std::size(room) && WriteAscii(room, text))
        return {room, text.size()};
    std::u16string result;
    AppendUtf16(result, text);
    return result;
}

/// A feature of the library that was linked, or 0 if it has none of the kind.
inline long Feature(XML_FeatureEnum kind) {
    for (const XML_Feature* feature = XML_GetFeatureList(); feature->feature != XML_FEATURE_END; ++feature) {
        if (feature->feature == kind)
            return feature->value;
    }
    return 0;
}

/// Whether the library that was linked has the characters of the header; the one with characters of 16 bits
/// has the same symbols.
inline bool GivesUtf8() { return Feature(XML_FEATURE_SIZEOF_XML_CHAR) == sizeof(char); }

/// Whether it stops entities that expand to many times the input.
inline bool BoundsEntities() {
    return Feature(XML_FEATURE_BILLION_LAUGHS_ATTACK_PROTECTION_MAXIMUM_AMPLIFICATION_DEFAULT) != 0 &&
           Feature(XML_FEATURE_BILLION_LAUGHS_ATTACK_PROTECTION_ACTIVATION_THRESHOLD_DEFAULT) != 0;
}

/// The text of an error, which is ASCII.
inline std::u16string ErrorText(XML_Error code) {
    const std::string_view text = XML_ErrorString(code);
    return std::u16string(text.begin(), text.end());
}

/// Whether expat was refused memory on this thread. It takes some refusals for faults of the document, such
/// as an unbound prefix.
inline thread_local bool wasRefusedMemory = false;

inline void* Noted(void* block) {
    wasRefusedMemory |= !block;
    return block;
}

inline constexpr XML_Memory_Handling_Suite memory = {
    [](std::size_t size) { return Noted(std::malloc(size)); },
    [](void* block, std::size_t size) { return Noted(std::realloc(block, size)); },
    [](void* block) { std::free(block); },
};

struct Free {
    void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<XML_ParserStruct, Free>;

} // namespace KzXmlLib10::expat
