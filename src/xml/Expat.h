#pragma once

/// The bridge to expat in its 16-bit form: its characters, its parser as an owning pointer, its error texts.
/// Nothing else includes <expat.h>.

#include <expat.h>

#include <memory>
#include <string>
#include <string_view>

namespace KzXmlLib10::expat {

static_assert(sizeof(XML_Char) == sizeof(char16_t), "expat has to be built for, and used with, XML_UNICODE");

inline const char16_t* Text(const XML_Char* text) { return reinterpret_cast<const char16_t*>(text); }
inline const XML_Char* Text(const char16_t* text) { return reinterpret_cast<const XML_Char*>(text); }

/// Whether the library that was linked has the characters of the header; the 8-bit library has the same
/// symbols.
inline bool HasWideCharacters() {
    for (const XML_Feature* feature = XML_GetFeatureList(); feature->feature != XML_FEATURE_END; ++feature) {
        if (feature->feature == XML_FEATURE_SIZEOF_XML_CHAR)
            return feature->value == sizeof(char16_t);
    }
    return false;
}

/// The text of an error, which is ASCII.
inline std::u16string ErrorText(XML_Error code) {
    const std::string_view text = XML_ErrorString(code);
    return std::u16string(text.begin(), text.end());
}

struct Free {
    void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
};
using Parser = std::unique_ptr<XML_ParserStruct, Free>;

} // namespace KzXmlLib10::expat
