// Values of every kind: the text of a value reads back as a value of that text, and arithmetic agrees with
// slow reference versions.
//
// First byte: what to do, see Values at the end.
#include "support/Reference.h"
#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>
#include <KzXmlLib10/values/CDecimal.h>
#include <KzXmlLib10/values/KzVariant.h>

#include <algorithm>
#include <iterator>

namespace fuzz {

namespace {

using namespace KzXmlLib10;

std::u16string Wide(const std::string& digits) { return {digits.begin(), digits.end()}; }

// --- text -------------------------------------------------------------------------------------------------

void TextOfAValue(ItemType type, Input input) {
    const auto rule = static_cast<CWhitespaceUtils::WhitespaceRule>(input.Byte() % 4);
    KzVariant value;
    value.FromString(input.Line(), type, rule);
    std::u16string text = value.ToString(nullptr);
    if (type ==
        ItemType_decimal) { // zeros that the maximum of places left at the end go on the second reading
        value.FromString(text, type, rule);
        text = value.ToString(nullptr);
    }
    // A decimal is cut after 1024 characters, and a duration of nothing has no text that can be read.
    if (text.size() >= 1024 || text == u"P" || text == u"-P")
        return;
    KzVariant again;
    again.FromString(text, type, CWhitespaceUtils::WhitespaceRule_None);
    ExpectSame(text, again.ToString(nullptr), "the text of a value reads back");
}

// --- integers and decimals --------------------------------------------------------------------------------

/// A sign and up to `most` digits, with long runs of one digit.
reference::Signed Number(Input& input, std::size_t most) {
    const std::uint8_t head = input.Byte();
    std::string digits;
    const std::size_t length = (head & 0x7Fu) % most + 1;
    while (digits.size() < length) {
        const std::uint8_t byte = input.Byte();
        digits.append(byte < 200 ? 1 : byte % 16, static_cast<char>('0' + byte % 10));
    }
    return {head >= 0x80, digits.substr(0, length)};
}

} // namespace

void Integers(Input input) {
    const reference::Signed a = Number(input, 36);
    const reference::Signed b = Number(input, 36);
    const CBigInteger x(Wide(a.Text()).c_str());
    const CBigInteger y(Wide(b.Text()).c_str());
    const reference::Signed minus(!b.negative, b.magnitude);
    ExpectSame(x.ToString(), Wide(a.Text()), "an integer keeps its text");
    ExpectSame((x + y).ToString(), Wide(reference::Sum(a, b).Text()), "the sum of integers");
    ExpectSame((x - y).ToString(), Wide(reference::Sum(a, minus).Text()), "the difference of integers");
    const reference::Signed difference = reference::Sum(a, minus);
    const bool equal = difference.magnitude == "0";
    Expect((x == y) == equal && (x < y) == difference.negative &&
               (x <= y) == (equal || difference.negative) && (x > y) == (y < x) && (x >= y) == !(x < y) &&
               (x != y) == !equal,
           "the order of integers");
    const bool differ = a.negative != b.negative;
    ExpectSame((x * y).ToString(),
               Wide(reference::Signed(differ, reference::Product(a.magnitude, b.magnitude)).Text()),
               "the product of integers");
    if (b.magnitude == "0")
        return;
    const reference::Quotient result = reference::Divide(a.magnitude, b.magnitude);
    ExpectSame((x / y).ToString(), Wide(reference::Signed(differ, result.quotient).Text()),
               "the quotient of integers");
    if (!b.negative)
        ExpectSame((x % y).ToString(), Wide(reference::Signed(a.negative, result.remainder).Text()),
                   "the remainder of integers");
    if (!a.negative && a.magnitude != "0") {
        const std::u16string root = x.SquareRoot().ToString();
        const std::string r(root.begin(), root.end());
        const std::string next = reference::Sum(r, "1");
        Expect(!reference::IsLess(a.magnitude, reference::Product(r, r)) &&
                   reference::IsLess(a.magnitude, reference::Product(next, next)),
               "the square root of an integer");
    }
}

namespace {

/// The text of a number of `places` decimal places: zeros at the end are dropped, then what is beyond 30
/// places is rounded, the half downwards; a fraction that becomes a whole unit so is not carried.
std::u16string TextOfScaled(const reference::Signed& scaled, std::size_t places) {
    std::string digits = scaled.magnitude;
    digits.insert(0, digits.size() > places ? 0 : places + 1 - digits.size(), '0');
    const std::string whole = digits.substr(0, digits.size() - places);
    std::string fraction = digits.substr(digits.size() - places);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    constexpr std::size_t most = 30;
    if (fraction.size() > most) {
        const std::string rest = fraction.substr(most);
        fraction.resize(most);
        if (rest > "5") {
            const std::string rounded = reference::Sum(reference::Plain(fraction), "1");
            fraction = std::string(most - std::min(rounded.size(), most), '0') + rounded;
        }
    }
    const bool isZero = fraction.find_first_not_of('0') == std::string::npos;
    const bool minus = scaled.negative && !(isZero && whole == "0");
    return Wide((minus ? "-" : "") + whole + (isZero ? "" : "." + fraction));
}

} // namespace

void Decimals(Input input) {
    constexpr std::size_t most = 14; // so that products have places enough
    const std::size_t placesA = input.Byte() % (most + 1);
    const std::size_t placesB = input.Byte() % (most + 1);
    const reference::Signed a = Number(input, 18);
    const reference::Signed b = Number(input, 18);
    const CDecimal x(TextOfScaled(a, placesA).c_str());
    const CDecimal y(TextOfScaled(b, placesB).c_str());

    const reference::Signed sameA(a.negative, a.magnitude + std::string(most - placesA, '0'));
    const reference::Signed sameB(b.negative, b.magnitude + std::string(most - placesB, '0'));
    const reference::Signed minus(!b.negative, sameB.magnitude);
    const reference::Signed difference = reference::Sum(sameA, minus);
    ExpectSame((x + y).ToString(), TextOfScaled(reference::Sum(sameA, sameB), most), "the sum of decimals");
    ExpectSame((x - y).ToString(), TextOfScaled(difference, most), "the difference of decimals");
    const bool equal = difference.magnitude == "0";
    Expect((x == y) == equal && (x < y) == difference.negative && (x > y) == (y < x) &&
               (x <= y) == !(x > y) && (x >= y) == !(x < y) && (x != y) == !equal,
           "the order of decimals");
    const bool differ = a.negative != b.negative;
    const reference::Signed product(differ, reference::Product(a.magnitude, b.magnitude));
    ExpectSame((x * y).ToString(), TextOfScaled(product, placesA + placesB), "the product of decimals");
    if (b.magnitude == "0")
        return;
    constexpr std::size_t quotientPlaces = 32;
    const reference::Signed quotient(
        differ,
        reference::Divide(sameA.magnitude + std::string(quotientPlaces, '0'), sameB.magnitude).quotient);
    ExpectSame((x / y).ToString(), TextOfScaled(quotient, quotientPlaces), "the quotient of decimals");
}

namespace {

// --- dates ------------------------------------------------------------------------------------------------

std::int64_t FloorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0); }

/// Adds to a field, leaves what is below `unit` and returns the rest.
std::int64_t Carry(std::int64_t& field, std::int64_t change, std::int64_t unit) {
    field += change;
    const std::int64_t carry = FloorDivide(field, unit);
    field -= carry * unit;
    return carry;
}

} // namespace

void DateAndDuration(Input input) {
    constexpr int most = 100'000; // beyond it a carry is not exact
    CDateTime date(2000, 1, 1, 0, 0, 0);
    reference::Date expected{input.Number<std::int16_t>(), input.Byte() % 12 + 1, input.Byte() % 40};
    date.SetYear(expected.year);
    date.SetMonth(static_cast<std::uint8_t>(expected.month));
    date.SetDay(static_cast<std::uint8_t>(expected.day));
    std::int64_t hour = input.Byte() % 24;
    std::int64_t minute = input.Byte() % 60;
    std::int64_t second = input.Byte() % 60;
    date.SetHour(static_cast<std::uint8_t>(hour));
    date.SetMinute(static_cast<std::uint8_t>(minute));
    date.SetSecond(static_cast<std::uint8_t>(second));
    const bool back = input.Byte() % 2;
    const int sign = back ? -1 : 1;
    const auto years = input.Number<std::uint16_t>();
    const std::uint32_t months = input.Number<std::uint32_t>() % 1000;
    const std::uint32_t days = input.Number<std::uint32_t>() % most;
    const std::uint32_t hours = input.Number<std::uint32_t>() % most;
    const std::uint32_t minutes = input.Number<std::uint32_t>() % most;
    const std::uint32_t seconds = input.Number<std::uint32_t>() % most;
    const CDateTimeSpan span(years, months, days, hours, minutes, seconds);
    back ? date -= span : date += span;

    expected.AddMonths(sign * static_cast<long long>(months));
    expected.year = static_cast<std::int16_t>(expected.year + sign * years);
    std::int64_t carry = Carry(second, sign * static_cast<std::int64_t>(seconds), 60);
    carry = Carry(minute, sign * static_cast<std::int64_t>(minutes) + carry, 60);
    carry = Carry(hour, sign * static_cast<std::int64_t>(hours) + carry, 24);
    expected.AddDays(sign * static_cast<std::int64_t>(days) + carry);
    Expect(date.GetYear() == expected.year && date.GetMonth() == expected.month &&
               date.GetDay() == expected.day && date.GetHour() == hour && date.GetMinute() == minute &&
               date.GetSecond() == second,
           "a date and a duration add up as on foot");
}

namespace {

/// Any dates and durations, of any size: the relations agree with each other.
void Relations(Input input) {
    CDateTime dates[2];
    for (CDateTime& date : dates)
        date.ParseXSDDateTime(input.Line().c_str());
    CDateTimeSpan spans[2];
    for (CDateTimeSpan& span : spans)
        span.ParseXSDDuration(input.Line().c_str());
    const auto mirrored = [](CDateTime::DTCompareResult result) {
        return result == CDateTime::DTCompareResult_Less      ? CDateTime::DTCompareResult_Greater
               : result == CDateTime::DTCompareResult_Greater ? CDateTime::DTCompareResult_Less
                                                              : result;
    };
    Expect(dates[0].CompareTo(dates[1]) == mirrored(dates[1].CompareTo(dates[0])),
           "the order of dates is one from both sides");
    Expect(spans[0].CompareTo(spans[1]) == mirrored(spans[1].CompareTo(spans[0])),
           "the order of durations is one from both sides");
    (void)(dates[0].GetNormalized() + spans[0]).ToString();
    (void)(dates[1] - spans[1]).GetDayOfYear();
}

// --- binary data ------------------------------------------------------------------------------------------

void Binary(Input input) {
    const std::string bytes = input.Bytes();
    if (bytes.empty())
        return; // an array without bytes is not equal to no array
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    CBinaryData whole;
    whole.SetBuffer(data, bytes.size());
    CBinaryData pieces;
    const CBinaryData shared = pieces;
    for (std::size_t at = 0; at < bytes.size(); at += 7)
        pieces.Append(data + at, std::min<std::size_t>(7, bytes.size() - at));
    Expect(pieces == whole && shared.GetLength() == 0, "pieces make up the whole");
    CBinaryData copy = whole;
    copy.Append(copy);
    Expect(whole.GetLength() == bytes.size() && copy.GetLength() == 2 * bytes.size(),
           "a copy changes by itself");
    CBinaryData decoded;
    decoded.SetAsBase64(whole.GetAsBase64());
    Expect(decoded == whole, "base64 comes back");
    decoded.SetAsHexString(whole.GetAsHexString());
    Expect(decoded == whole, "hexadecimal digits come back");
}

} // namespace

void Values(Input input) {
    constexpr Target others[] = {Integers, Decimals, DateAndDuration, Relations, Binary};
    const unsigned choice = input.Byte() % (ItemType_integer + std::size(others));
    if (choice < ItemType_integer)
        TextOfAValue(static_cast<ItemType>(choice + 1), input);
    else
        others[choice - ItemType_integer](input);
}

} // namespace fuzz
