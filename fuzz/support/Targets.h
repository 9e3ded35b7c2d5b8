#pragma once

#include "support/Input.h"

#include <string>
#include <string_view>

/// What the targets share. A target reads one input and fails where the library breaks a promise; the
/// exceptions of the library and std::bad_alloc may pass through it.
namespace fuzz {

using Target = void (*)(Input);

struct NamedTarget {
    std::string_view name;
    Target run;
};

void FastInfoset(Input input);
void Facets(Input input);
void Format(Input input);
void Objects(Input input);
void Overlapped(Input input);
void RoundTrip(Input input);
void Stream(Input input);
void Text(Input input);
void Utf8(Input input);
void Values(Input input);
/// Runs another target, with one allocation that fails.
void Allocation(Input input);

/// All of them, Allocation last.
inline constexpr NamedTarget targets[] = {
    {"FastInfoset", FastInfoset},
    {"Facets", Facets},
    {"Format", Format},
    {"Objects", Objects},
    {"Overlapped", Overlapped},
    {"RoundTrip", RoundTrip},
    {"Stream", Stream},
    {"Text", Text},
    {"Utf8", Utf8},
    {"Values", Values},
    {"Allocation", Allocation},
};

// Parts of Values, which any bytes make a case of.
void Integers(Input input);
void Decimals(Input input);
void DateAndDuration(Input input);
inline constexpr NamedTarget arithmetic[] = {
    {"integers", Integers}, {"decimals", Decimals}, {"dates and durations", DateAndDuration}};

/// Of what one input may inflate to.
inline constexpr std::uint64_t inflatedBytes = 1 << 18;
/// Of the texts that it may bring into a tree, apart from its own size.
inline constexpr std::uint64_t treeTextBytes = 4 << 20;

/// Whether Facets takes values and patterns at any length. One of them can keep PCRE2 busy for a quarter of a
/// second, which is too long for a fuzzer and just right for a replay.
inline bool takesLongPatterns = false;

/// Runs a target under these limits, and takes what may pass through it.
void Run(Target target, const std::uint8_t* data, std::size_t size);

/// Ends the process with a message: a finding.
[[noreturn]] void Fail(std::string_view promise, std::u16string_view first = u"",
                       std::u16string_view second = u"");

inline void Expect(bool holds, std::string_view promise) {
    if (!holds)
        Fail(promise);
}

/// Fails where two texts that should be the same are not.
inline void ExpectSame(std::u16string_view first, std::u16string_view second, std::string_view promise) {
    if (first != second)
        Fail(promise, first, second);
}

} // namespace fuzz
