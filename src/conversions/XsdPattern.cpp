#include <KzXmlLib10/conversions/XsdPattern.h>

#include <KzXmlLib10/object/Text.h>

#include "conversions/LenientPattern.h"
#include "conversions/Messages.h"
#include "object/CurrentLimit.h"
#include "object/Throw.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <memory>
#include <new>
#include <string_view>

namespace KzXmlLib10 {

namespace {

template <auto Free>
struct Freed {
    void operator()(auto* object) const { Free(object); }
};
using Code = std::unique_ptr<pcre2_code, Freed<pcre2_code_free>>;
using MatchContext = std::unique_ptr<pcre2_match_context, Freed<pcre2_match_context_free>>;
using MatchData = std::unique_ptr<pcre2_match_data, Freed<pcre2_match_data_free>>;

struct Substitution {
    std::string_view from, to;
};

/// In this order: the first and the last keep escaped backslashes out of the way of the others.
constexpr Substitution substitutions[] = {
    {R"(\\)", "\x01"},
    {R"(\i)", R"(([^\W\d]|:))"},
    {R"(\I)", R"(([\W\d]))"},
    {R"(\c)", R"((\w|\.|-|:))"},
    {R"(\C)", R"(([^\w\.\-\:]))"},
    {R"(\p{IsBasicLatin})", R"([\000-\177])"},
    {R"(\p{IsLatin-1Supplement})", R"([\200-\377])"},
    {R"(\p{IsLatinExtended-A})", R"([\400-\577])"},
    // Deliberate: read as \111 and a 7, so the range is out of order and the pattern never compiles.
    {R"(\p{IsLatinExtended-B})", R"([\600-\1117])"},
    {"\x01", R"(\\)"},
};

std::string ReplaceAll(std::string_view text, const Substitution& substitution) {
    std::string result;
    for (std::size_t at; (at = text.find(substitution.from)) != text.npos;) {
        result.append(text.substr(0, at)).append(substitution.to);
        text.remove_prefix(at + substitution.from.size());
    }
    return result.append(text);
}

std::string Translate(std::string pattern) {
    for (const Substitution& substitution : substitutions)
        pattern = ReplaceAll(pattern, substitution);
    // Deliberate: no group; each branch but the outer ones stands without an anchor.
    return '^' + MakeLenientPattern(pattern) + '$';
}

template <class T>
T* NotOutOfMemory(T* object) {
    if (!object)
        throw std::bad_alloc();
    return object;
}

std::u16string ErrorText(int error) {
    PCRE2_UCHAR text[256];
    const int length = pcre2_get_error_message(error, text, sizeof text);
    return length < 0 ? std::u16string() : std::u16string(text, text + length);
}

Code Compile(const std::string& pattern, const std::u16string& value) {
    int error = 0;
    PCRE2_SIZE offset = 0;
    // Deliberate: a NUL ends the pattern.
    Code code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.c_str()), PCRE2_ZERO_TERMINATED, PCRE2_UTF,
                            &error, &offset, nullptr));
    if (!code && error == PCRE2_ERROR_HEAP_FAILED)
        throw std::bad_alloc();
    if (!code) // Deliberate: the message shows the value, not the pattern.
        Throw<CKzException>(messages::InvalidPattern, value, ErrorText(error));
    return code;
}

} // namespace

bool MatchXsdPattern(std::string pattern, std::u16string value) {
    const Code code = Compile(Translate(std::move(pattern)), value);
    const MatchContext context(NotOutOfMemory(pcre2_match_context_create(nullptr)));
    pcre2_set_heap_limit(context.get(),
                         static_cast<std::uint32_t>(CurrentLimit(&Limits::patternHeapBytes) / 1024));
    const MatchData data(NotOutOfMemory(pcre2_match_data_create_from_pattern(code.get(), nullptr)));
    const std::string subject = ConvertToUtf8(value);
    const int result = pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(),
                                   0, PCRE2_ANCHORED, data.get(), context.get());
    if (result == PCRE2_ERROR_NOMEMORY)
        throw std::bad_alloc();
    if (result < 1)
        return false;
    // The end is compared because $ also matches in front of a final line feed.
    const PCRE2_SIZE* offsets = pcre2_get_ovector_pointer(data.get());
    return offsets[0] == 0 && offsets[1] == subject.size();
}

} // namespace KzXmlLib10
