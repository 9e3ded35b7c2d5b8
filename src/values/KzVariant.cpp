#include <KzXmlLib10/values/KzVariant.h>

#include <KzXmlLib10/conversions/CConversions.h>

#include "conversions/FromText.h"
#include "object/NotNull.h"
#include "object/Throw.h"
#include "values/Messages.h"
#include "values/Payload.h"

#include <bit>
#include <cstddef>
#include <iterator>
#include <utility>

namespace KzXmlLib10 {

// The cell holds
//     i4 -1        bits 0x00000000FFFFFFFF
//     r4 1.5       bits 0x000000003FC00000
//     boolean      bits 0 or 1
//     string       payload -> std::u16string, of the variant's own; dates, decimals and the like too
//     xmlObject    payload -> CXmlObjectBase, one reference of which is the variant's; or null
//     nil, empty   bits 0

namespace {

constexpr const char16_t* typeNames[] = {
    nullptr,      u"hexBinary", u"base64Binary", u"i1",      u"i2",      u"i4",      u"i8",
    u"ui1",       u"ui2",       u"ui4",          u"ui8",     u"r4",      u"r8",      u"duration",
    u"yearMonth", u"monthDay",  u"year",         u"month",   u"day",     u"date",    u"datetime",
    u"time",      u"char",      u"string",       u"boolean", u"decimal", u"integer",
};

/// How each kind owns its payload; null for kinds that have none.
constexpr const PayloadKind* payloadKinds[] = {
    nullptr,                    // Invalid
    &HeapValue<CBinaryData>,    // hexBinary
    &HeapValue<CBinaryData>,    // base64Binary
    nullptr,                    // i1
    nullptr,                    // i2
    nullptr,                    // i4
    nullptr,                    // i8
    nullptr,                    // ui1
    nullptr,                    // ui2
    nullptr,                    // ui4
    nullptr,                    // ui8
    nullptr,                    // r4
    nullptr,                    // r8
    &HeapValue<CDateTimeSpan>,  // duration
    &HeapValue<CDateTime>,      // yearMonth
    &HeapValue<CDateTime>,      // monthDay
    nullptr,                    // year
    nullptr,                    // month
    nullptr,                    // day
    &HeapValue<CDateTime>,      // date
    &HeapValue<CDateTime>,      // datetime
    &HeapValue<CDateTime>,      // time
    nullptr,                    // char
    &HeapValue<std::u16string>, // string
    nullptr,                    // boolean
    &HeapValue<CDecimal>,       // decimal
    &HeapValue<CBigInteger>,    // integer
    &CountedObject,             // xmlObject
    &CountedObject,             // xmlCollection
};

/// Null for what is no kind, too.
const PayloadKind* FindPayloadKind(ItemType type) {
    const auto index = static_cast<std::size_t>(type);
    return index < std::size(payloadKinds) ? payloadKinds[index] : nullptr;
}

void LetPayloadGo(ItemType type, const KzVariant::Cell& cell) {
    if (const PayloadKind* kind = FindPayloadKind(type); kind && cell.payload)
        kind->letGo(cell.payload);
}

} // namespace

KzVariant::KzVariant(const KzVariant& other) : KzVariant() { *this = other; }

KzVariant::KzVariant(KzVariant&& other) noexcept
    : m_isNil(std::exchange(other.m_isNil, false)), m_type(std::exchange(other.m_type, ItemType_Invalid)),
      m_value(std::exchange(other.m_value, Cell())) {}

// A payload that goes may look at the variant, which is empty then.
KzVariant::~KzVariant() { Clear(); }

KzVariant& KzVariant::operator=(const KzVariant& other) {
    if (this == &other) {
        Clear(); // Deliberate: self-assignment empties.
        return *this;
    }
    // The old payload goes last: it may be the object that `other` lives in.
    const KzVariant old(std::move(*this));
    m_type = other.m_type;
    m_isNil = other.m_isNil;
    if (m_isNil)
        return *this;
    if (m_type < ItemType_Invalid || m_type > ItemType_xmlCollection)
        Throw<CKzException>(messages::UnknownType);
    const PayloadKind* kind = FindPayloadKind(m_type);
    if (!kind)
        m_value = other.m_value;
    else if (other.m_value.payload)
        m_value.payload = kind->copy(other.m_value.payload);
    return *this;
}

KzVariant& KzVariant::operator=(KzVariant&& other) noexcept {
    const KzVariant old(std::move(*this)); // goes last, as above
    m_isNil = std::exchange(other.m_isNil, false);
    m_type = std::exchange(other.m_type, ItemType_Invalid);
    m_value = std::exchange(other.m_value, Cell());
    return *this;
}

void KzVariant::Clear() {
    if (m_type == ItemType_Invalid)
        return;
    m_isNil = false;
    const ItemType type = std::exchange(m_type, ItemType_Invalid);
    const Cell cell = std::exchange(m_value, Cell());
    LetPayloadGo(type, cell);
}

void KzVariant::SetInvalid() { Clear(); }

void KzVariant::SetNil() {
    const ItemType type = m_type;
    Clear();
    m_type = type;
    m_isNil = true;
}

std::u16string KzVariant::GetType() const {
    if (m_type < ItemType_hexBinary || m_type > ItemType_integer)
        Throw<CKzException>(messages::InvalidType, m_type);
    return typeNames[m_type];
}

void KzVariant::FailNoPayload(ItemType wanted) const {
    Throw<CKzInvalidStateException>(messages::NoSuchPayload, m_type, wanted);
}

/// `type` is what the caller hoped for. Any kind with a payload of its class will do.
template <class T>
const T& KzVariant::GetValue(ItemType type) const {
    if (FindPayloadKind(m_type) != &HeapValue<T> || !m_value.payload)
        FailNoPayload(type);
    return *static_cast<const T*>(m_value.payload);
}

std::u16string KzVariant::ToString(const char16_t* format) const { return ToText(EmptyIfNull(format)); }

std::u16string KzVariant::ToText(const std::u16string& format) const {
    switch (m_type) {
    case ItemType_hexBinary:
        return CConversions::hexBinaryToString(GetValue<CBinaryData>(m_type));
    case ItemType_base64Binary:
        return CConversions::base64BinaryToString(GetValue<CBinaryData>(m_type));
    case ItemType_i1:
        return CConversions::i1ToString(GetI1());
    case ItemType_i2:
        return CConversions::i2ToString(GetI2());
    case ItemType_i4:
        return CConversions::i4ToString(GetI4());
    case ItemType_i8:
        return CConversions::i8ToString(GetI8());
    case ItemType_ui1:
        return CConversions::ui1ToString(GetUI1());
    case ItemType_ui2:
        return CConversions::ui2ToString(GetUI2());
    case ItemType_ui4:
        return CConversions::ui4ToString(GetUI4());
    case ItemType_ui8:
        return CConversions::ui8ToString(GetUI8());
    case ItemType_r4:
        return CConversions::r4ToString(GetR4(), format);
    case ItemType_r8:
        return CConversions::r8ToString(GetR8(), format);
    case ItemType_duration:
        return CConversions::durationToString(GetValue<CDateTimeSpan>(m_type));
    case ItemType_yearMonth:
    case ItemType_monthDay:
    case ItemType_date:
    case ItemType_datetime:
    case ItemType_time:
        // Deliberate: the DTType of the value decides on its form, not the kind of the variant.
        return CConversions::dateToString(GetValue<CDateTime>(ItemType_date));
    case ItemType_year:
        return CConversions::yearToString(GetYear());
    case ItemType_month:
        return CConversions::monthToString(GetMonth());
    case ItemType_day:
        return CConversions::dayToString(GetDay());
    case ItemType_char:
        return CConversions::charToString(GetChar());
    case ItemType_string:
        return CConversions::stringToString(GetStringRef());
    case ItemType_boolean:
        return CConversions::booleanToString(GetBoolean());
    case ItemType_decimal:
        return CConversions::decimalToString(GetDecimalRef(), format);
    case ItemType_integer:
        return CConversions::integerToString(GetIntegerRef());
    default:
        Throw<CKzException>(messages::InvalidTypeToConvert, m_type);
    }
}

void KzVariant::FromString(const std::u16string& text, ItemType type, CWhitespaceUtils::WhitespaceRule rule) {
    FromText(text, type, rule);
}

// Each conversion runs before its setter, so that a bad text leaves the old value in place.
void KzVariant::FromText(std::u16string_view text, ItemType type, CWhitespaceUtils::WhitespaceRule rule) {
    switch (type) {
    case ItemType_hexBinary:
        return SetMade(type, [&] { return fromText::hexBinary(text, rule); });
    case ItemType_base64Binary:
        return SetMade(type, [&] { return fromText::base64Binary(text, rule); });
    case ItemType_i1:
        return SetI1(fromText::i1(text, rule));
    case ItemType_i2:
        return SetI2(fromText::i2(text, rule));
    case ItemType_i4:
        return SetI4(fromText::i4(text, rule));
    case ItemType_i8:
        return SetI8(fromText::i8(text, rule));
    case ItemType_ui1:
        return SetUI1(fromText::ui1(text, rule));
    case ItemType_ui2:
        return SetUI2(fromText::ui2(text, rule));
    case ItemType_ui4:
        return SetUI4(fromText::ui4(text, rule));
    case ItemType_ui8:
        return SetUI8(fromText::ui8(text, rule));
    case ItemType_r4:
        return SetR4(fromText::r4(text, rule));
    case ItemType_r8:
        return SetR8(fromText::r8(text, rule));
    case ItemType_duration:
        return SetMade(type, [&] { return fromText::duration(text, rule); });
    case ItemType_yearMonth:
        return SetMade(type, [&] { return fromText::yearMonth(text, rule); });
    case ItemType_monthDay:
        return SetMade(type, [&] { return fromText::monthDay(text, rule); });
    case ItemType_year:
        return SetYear(fromText::year(text, rule));
    case ItemType_month:
        return SetMonth(fromText::month(text, rule));
    case ItemType_day:
        return SetDay(fromText::day(text, rule));
    case ItemType_date:
        return SetMade(type, [&] { return fromText::date(text, rule); });
    case ItemType_datetime:
        return SetMade(type, [&] { return fromText::datetime(text, rule); });
    case ItemType_time:
        return SetMade(type, [&] { return fromText::time(text, rule); });
    case ItemType_char:
        return SetChar(fromText::character(text, rule));
    case ItemType_string:
        return SetMade(type, [&] { return fromText::string(text, rule); });
    case ItemType_boolean:
        return SetBoolean(fromText::boolean(text, rule));
    case ItemType_decimal:
        return SetMade(type, [&] { return fromText::decimal(text, rule); });
    case ItemType_integer:
        return SetMade(type, [&] { return fromText::integer(text, rule); });
    default:
        // Deliberate: the number is that of the kind held, not of the one asked for.
        Throw<CKzException>(messages::InvalidTypeToConvert, m_type);
    }
}

void KzVariant::SetBits(ItemType type, std::uint64_t bits) {
    Clear();
    m_type = type;
    m_value.bits = bits;
}

template <class T>
void KzVariant::SetValue(ItemType type, T&& value) {
    Clear();
    m_type = type;
    m_value.payload = MakePayload<T>(std::move(value));
}

/// Takes what the operation makes, which is made in its place.
template <class Make>
void KzVariant::SetMade(ItemType type, Make make) {
    void* payload = MakePayloadBy(make);
    Clear();
    m_type = type;
    m_value.payload = payload;
}

void KzVariant::SetI1(std::int8_t value) { SetBits(ItemType_i1, static_cast<std::uint8_t>(value)); }
void KzVariant::SetI2(std::int16_t value) { SetBits(ItemType_i2, static_cast<std::uint16_t>(value)); }
void KzVariant::SetI4(std::int32_t value) { SetBits(ItemType_i4, static_cast<std::uint32_t>(value)); }
void KzVariant::SetI8(long long value) { SetBits(ItemType_i8, static_cast<std::uint64_t>(value)); }
void KzVariant::SetUI1(std::uint8_t value) { SetBits(ItemType_ui1, value); }
void KzVariant::SetUI2(std::uint16_t value) { SetBits(ItemType_ui2, value); }
void KzVariant::SetUI4(std::uint32_t value) { SetBits(ItemType_ui4, value); }
void KzVariant::SetUI8(unsigned long long value) { SetBits(ItemType_ui8, value); }
void KzVariant::SetR4(float value) { SetBits(ItemType_r4, std::bit_cast<std::uint32_t>(value)); }
void KzVariant::SetR8(double value) { SetBits(ItemType_r8, std::bit_cast<std::uint64_t>(value)); }
void KzVariant::SetYear(std::uint16_t value) { SetBits(ItemType_year, value); }
void KzVariant::SetMonth(std::uint8_t value) { SetBits(ItemType_month, value); }
void KzVariant::SetDay(std::uint8_t value) { SetBits(ItemType_day, value); }
void KzVariant::SetChar(char16_t value) { SetBits(ItemType_char, value); }
void KzVariant::SetBoolean(bool value) { SetBits(ItemType_boolean, value); }

std::int8_t KzVariant::GetI1() const { return static_cast<std::int8_t>(m_value.bits); }
std::int16_t KzVariant::GetI2() const { return static_cast<std::int16_t>(m_value.bits); }
std::int32_t KzVariant::GetI4() const { return static_cast<std::int32_t>(m_value.bits); }
long long KzVariant::GetI8() const { return static_cast<long long>(m_value.bits); }
std::uint8_t KzVariant::GetUI1() const { return static_cast<std::uint8_t>(m_value.bits); }
std::uint16_t KzVariant::GetUI2() const { return static_cast<std::uint16_t>(m_value.bits); }
std::uint32_t KzVariant::GetUI4() const { return static_cast<std::uint32_t>(m_value.bits); }
unsigned long long KzVariant::GetUI8() const { return m_value.bits; }
float KzVariant::GetR4() const { return std::bit_cast<float>(GetUI4()); }
double KzVariant::GetR8() const { return std::bit_cast<double>(m_value.bits); }
std::uint16_t KzVariant::GetYear() const { return GetUI2(); }
std::uint8_t KzVariant::GetMonth() const { return GetUI1(); }
std::uint8_t KzVariant::GetDay() const { return GetUI1(); }
char16_t KzVariant::GetChar() const { return GetUI2(); }
bool KzVariant::GetBoolean() const { return GetUI1() != 0; }

void KzVariant::SetString(std::u16string value) { SetValue(ItemType_string, std::move(value)); }
void KzVariant::SetHexBinary(CBinaryData value) { SetValue(ItemType_hexBinary, std::move(value)); }
void KzVariant::SetBase64Binary(CBinaryData value) { SetValue(ItemType_base64Binary, std::move(value)); }
void KzVariant::SetDuration(CDateTimeSpan value) { SetValue(ItemType_duration, std::move(value)); }
void KzVariant::SetYearMonth(CDateTime value) { SetValue(ItemType_yearMonth, std::move(value)); }
void KzVariant::SetMonthDay(CDateTime value) { SetValue(ItemType_monthDay, std::move(value)); }
void KzVariant::SetDate(CDateTime value) { SetValue(ItemType_date, std::move(value)); }
void KzVariant::SetDateTime(CDateTime value) { SetValue(ItemType_datetime, std::move(value)); }
void KzVariant::SetTime(CDateTime value) { SetValue(ItemType_time, std::move(value)); }
void KzVariant::SetDecimal(CDecimal value) { SetValue(ItemType_decimal, std::move(value)); }
void KzVariant::SetInteger(CBigInteger value) { SetValue(ItemType_integer, std::move(value)); }

void KzVariant::CopyString(const std::u16string& value) {
    std::u16string* const copy = TakeKeptText(value);
    if (!copy)
        return SetString(value);
    Clear();
    m_type = ItemType_string;
    m_value.payload = copy;
}

void KzVariant::CopyDecimal(const CDecimal& value) {
    SetMade(ItemType_decimal, [&]() -> CDecimal { return value; });
}

std::u16string KzVariant::GetString() const { return GetStringRef(); }
CBinaryData KzVariant::GetHexBinary() const { return GetValue<CBinaryData>(ItemType_hexBinary); }
CBinaryData KzVariant::GetBase64Binary() const { return GetValue<CBinaryData>(ItemType_base64Binary); }
CDateTimeSpan KzVariant::GetDuration() const { return GetValue<CDateTimeSpan>(ItemType_duration); }
CDateTime KzVariant::GetYearMonth() const { return GetValue<CDateTime>(ItemType_yearMonth); }
CDateTime KzVariant::GetMonthDay() const { return GetValue<CDateTime>(ItemType_monthDay); }
CDateTime KzVariant::GetDate() const { return GetValue<CDateTime>(ItemType_date); }
CDateTime KzVariant::GetDateTime() const { return GetValue<CDateTime>(ItemType_datetime); }
CDateTime KzVariant::GetTime() const { return GetValue<CDateTime>(ItemType_time); }
CDecimal KzVariant::GetDecimal() const { return GetDecimalRef(); }
CBigInteger KzVariant::GetInteger() const { return GetIntegerRef(); }

// A payload is the variant's own, so the variant decides on whether it can change.
std::u16string&& KzVariant::TakeString() { return std::move(const_cast<std::u16string&>(GetStringRef())); }
CDecimal&& KzVariant::TakeDecimal() { return std::move(const_cast<CDecimal&>(GetDecimalRef())); }

const CDecimal& KzVariant::GetDecimalRef() const { return GetValue<CDecimal>(ItemType_decimal); }
const CBigInteger& KzVariant::GetIntegerRef() const { return GetValue<CBigInteger>(ItemType_integer); }

} // namespace KzXmlLib10
