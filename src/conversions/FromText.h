#pragma once

#include <KzXmlLib10/conversions/CConversions.h>

#include <cstdint>
#include <string>
#include <string_view>

/// The readers of CConversions, on a text wherever it lies. A zero follows it.
namespace KzXmlLib10::fromText {

using Text = std::u16string_view;
using Rule = CWhitespaceUtils::WhitespaceRule;

std::int8_t i1(Text text, Rule rule);
std::int16_t i2(Text text, Rule rule);
std::int32_t i4(Text text, Rule rule);
long long i8(Text text, Rule rule);
std::uint8_t ui1(Text text, Rule rule);
std::uint16_t ui2(Text text, Rule rule);
std::uint32_t ui4(Text text, Rule rule);
unsigned long long ui8(Text text, Rule rule);
float r4(Text text, Rule rule);
double r8(Text text, Rule rule);
bool boolean(Text text, Rule rule);
char16_t character(Text text, Rule rule);
std::u16string string(Text text, Rule rule);

CBinaryData hexBinary(Text text, Rule rule);
CBinaryData base64Binary(Text text, Rule rule);
CBigInteger integer(Text text, Rule rule);
CDecimal decimal(Text text, Rule rule);
CDateTimeSpan duration(Text text, Rule rule);
CDateTime datetime(Text text, Rule rule);
CDateTime time(Text text, Rule rule);
CDateTime date(Text text, Rule rule);
CDateTime yearMonth(Text text, Rule rule);
CDateTime monthDay(Text text, Rule rule);
std::uint16_t year(Text text, Rule rule);
std::uint8_t month(Text text, Rule rule);
std::uint8_t day(Text text, Rule rule);

} // namespace KzXmlLib10::fromText
