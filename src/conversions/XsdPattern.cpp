#include <KzXmlLib10/conversions/XsdPattern.h>

#include <KzXmlLib10/object/Text.h>

#include "conversions/LenientPattern.h"
#include "conversions/Messages.h"
#include "conversions/PatternMatching.h"
#include "object/CurrentLimit.h"
#include "object/Throw.h"
#include "object/Utf8.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace {

/// The memory of one match: a stretch of the stack, which holds all that usual patterns need, and the heap
/// for what goes beyond it.
class MatchMemory {
public:
    static void* Allocate(std::size_t size, void* memory) noexcept {
        return static_cast<MatchMemory*>(memory)->Take(size);
    }
    static void Free(void* block, void* memory) noexcept {
        if (block && !static_cast<MatchMemory*>(memory)->Holds(block))
            std::free(block);
    }

private:
    /// PCRE2 starts with 20 KiB for its backtracking; the rest is the compiled pattern and the like.
    static constexpr std::size_t Size = 24 * 1024;

    void* Take(std::size_t size) {
        constexpr std::size_t alignment = alignof(std::max_align_t);
        const std::size_t whole = (size + alignment - 1) & ~(alignment - 1);
        if (whole < size || whole > Size - m_taken)
            return std::malloc(size);
        return m_bytes + std::exchange(m_taken, m_taken + whole);
    }
    bool Holds(const void* block) const {
        return std::greater_equal<const void*>()(block, m_bytes) &&
               std::less<const void*>()(block, m_bytes + Size);
    }

    alignas(std::max_align_t) unsigned char m_bytes[Size]; // not initialised
    std::size_t m_taken = 0;
};

template <auto Free>
struct Freed {
    void operator()(auto* object) const { Free(object); }
};
using GeneralContext = std::unique_ptr<pcre2_general_context, Freed<pcre2_general_context_free>>;
using CompileContext = std::unique_ptr<pcre2_compile_context, Freed<pcre2_compile_context_free>>;
using Code = std::unique_ptr<pcre2_code, Freed<pcre2_code_free>>;
using MatchContext = std::unique_ptr<pcre2_match_context, Freed<pcre2_match_context_free>>;
using MatchData = std::unique_ptr<pcre2_match_data, Freed<pcre2_match_data_free>>;

struct Substitution {
    std::string_view from, to;
};

/// The escapes of XML Schema that PCRE2 lacks. The first keeps its backslashes out of the way of the others.
constexpr Substitution substitutions[] = {
    {R"(\\)", R"(\\)"},
    {R"(\i)", R"(([^\W\d]|:))"},
    {R"(\I)", R"(([\W\d]))"},
    {R"(\c)", R"((\w|\.|-|:))"},
    {R"(\C)", R"(([^\w\.\-\:]))"},
    {R"(\p{IsBasicLatin})", R"([\000-\177])"},
    {R"(\p{IsLatin-1Supplement})", R"([\200-\377])"},
    {R"(\p{IsLatinExtended-A})", R"([\400-\577])"},
    // Deliberate: read as \111 and a 7, so the range is out of order and the pattern never compiles.
    {R"(\p{IsLatinExtended-B})", R"([\600-\1117])"},
    {"\x01", R"(\\)"}, // Deliberate: this byte stands for an escaped backslash.
};

/// The substitution for what stands at the head of `text`, or null.
const Substitution* FindSubstitution(std::string_view text) {
    const auto found = std::ranges::find_if(
        substitutions, [&](const Substitution& substitution) { return text.starts_with(substitution.from); });
    return found == std::end(substitutions) ? nullptr : found;
}

/// Appends the pattern with all substitutions.
void AppendSubstituted(std::string& to, std::string_view pattern) {
    const bool holdsMark = pattern.find('\x01') != pattern.npos;
    for (;;) {
        const std::size_t plain =
            std::min(holdsMark ? pattern.find_first_of("\\\x01") : pattern.find('\\'), pattern.size());
        to.append(pattern, 0, plain);
        pattern.remove_prefix(plain);
        if (pattern.empty())
            return;
        const Substitution* substitution = FindSubstitution(pattern);
        to.append(substitution ? substitution->to : pattern.substr(0, 1));
        pattern.remove_prefix(substitution ? substitution->from.size() : 1);
    }
}

/// A pattern as PCRE2 reads it, on the stack if it is short and needs no more than its anchors, as is usual.
///
/// Deliberate: the anchors come without a group; each branch but the outer ones stands without one.
class TranslatedPattern {
public:
    explicit TranslatedPattern(std::string_view pattern) {
        // What is substituted or rewritten starts with this byte, or with a letter behind a backslash.
        const bool isPlain = pattern.find('\x01') == pattern.npos && !MayNeedRewriting(pattern);
        if (isPlain && pattern.size() + 2 < sizeof m_short)
            m_text = WriteAnchored(pattern);
        else
            m_text = m_long = Translate(pattern);
    }
    TranslatedPattern(const TranslatedPattern&) = delete;
    TranslatedPattern& operator=(const TranslatedPattern&) = delete;

    /// A zero follows it.
    std::string_view Get() const { return m_text; }

private:
    std::string_view WriteAnchored(std::string_view pattern) {
        char* to = m_short;
        *to++ = '^';
        to = std::copy(pattern.begin(), pattern.end(), to);
        *to++ = '$';
        *to = '\0';
        return {m_short, to};
    }

    static std::string Translate(std::string_view pattern) {
        std::string result = "^";
        AppendSubstituted(result, pattern);
        return MakeLenientPattern(std::move(result)) + '$';
    }

    char m_short[192];
    std::string m_long;
    std::string_view m_text;
};

/// The UTF-8 form of a text up to its first lone surrogate, on the stack if it is short.
class Utf8Text {
public:
    explicit Utf8Text(std::u16string_view text) {
        constexpr std::size_t mostBytesOfUnit = 3;
        if (text.size() <= sizeof m_short / mostBytesOfUnit)
            m_text = {m_short, WriteAscii(m_short, text) ? text.size() : WriteUtf8(m_short, text).bytes};
        else
            m_text = m_long = ConvertToUtf8(text);
    }
    Utf8Text(const Utf8Text&) = delete;
    Utf8Text& operator=(const Utf8Text&) = delete;

    std::string_view Get() const { return m_text; }

private:
    char m_short[192];
    std::string m_long;
    std::string_view m_text;
};

bool IsAscii(std::string_view text) {
    unsigned char found = 0;
    for (const char c : text) // all of them, so that many are looked at together
        found |= static_cast<unsigned char>(c);
    return (found & 0x80) == 0;
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

/// A match is anchored, so the study of a pattern, which finds out where one can start, costs more than it
/// saves, as does the search for what cannot backtrack: both are made for patterns that match often.
constexpr std::uint32_t compileOptions = PCRE2_UTF | PCRE2_NO_START_OPTIMIZE | PCRE2_NO_AUTO_POSSESS;

Code Compile(std::string_view pattern, std::u16string_view value, pcre2_general_context* memory) {
    const CompileContext context(NotOutOfMemory(pcre2_compile_context_create(memory)));
    int error = 0;
    PCRE2_SIZE offset = 0;
    // Deliberate: a NUL ends the pattern.
    Code code(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), PCRE2_ZERO_TERMINATED,
                            compileOptions | (IsAscii(pattern) ? PCRE2_NO_UTF_CHECK : 0), &error, &offset,
                            context.get()));
    if (!code && error == PCRE2_ERROR_HEAP_FAILED)
        throw std::bad_alloc();
    if (!code) // Deliberate: the message shows the value, not the pattern.
        Throw<CKzException>(messages::InvalidPattern, std::u16string(value), ErrorText(error));
    return code;
}

bool Match(std::string_view pattern, std::u16string_view value) {
    MatchMemory memory;
    const GeneralContext general(
        NotOutOfMemory(pcre2_general_context_create(MatchMemory::Allocate, MatchMemory::Free, &memory)));
    const Code code = Compile(TranslatedPattern(pattern).Get(), value, general.get());
    const MatchContext context(NotOutOfMemory(pcre2_match_context_create(general.get())));
    pcre2_set_heap_limit(context.get(),
                         static_cast<std::uint32_t>(CurrentLimit(&Limits::patternHeapBytes) / 1024));
    const MatchData data(NotOutOfMemory(pcre2_match_data_create_from_pattern(code.get(), general.get())));
    const Utf8Text text(value); // always well formed
    const std::string_view subject = text.Get();
    const int result = pcre2_match(code.get(), reinterpret_cast<PCRE2_SPTR>(subject.data()), subject.size(),
                                   0, PCRE2_ANCHORED | PCRE2_NO_UTF_CHECK, data.get(), context.get());
    if (result == PCRE2_ERROR_NOMEMORY)
        throw std::bad_alloc();
    if (result < 1)
        return false;
    // The end is compared because $ also matches in front of a final line feed.
    const PCRE2_SIZE* offsets = pcre2_get_ovector_pointer(data.get());
    return offsets[0] == 0 && offsets[1] == subject.size();
}

} // namespace

bool MatchXsdPattern(std::string pattern, std::u16string value) { return Match(pattern, value); }

bool MatchXsdPatternOf(std::u16string_view pattern, std::u16string_view value) {
    return Match(Utf8Text(pattern).Get(), value);
}

} // namespace KzXmlLib10
