#include <KzXmlLib10/values/KzVariant.h>

#include "support/FastInfoset.h"
#include "support/Test.h"

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

KzVariant TextVariant(std::u16string text) {
    KzVariant variant;
    variant.SetString(std::move(text));
    return variant;
}

TEST(KzVariant, ScalarsOfOneWidthShareTheLowBitsOfACleanCell) {
    KzVariant v;
    const auto bitsAfter = [&v](auto set, auto value) {
        v.SetI8(-1);
        (v.*set)(value);
        return v.m_value.bits;
    };
    EXPECT_EQ(bitsAfter(&KzVariant::SetI1, -128), 0x80u);
    EXPECT_TRUE(v.GetUI1() == 0x80 && v.GetMonth() == 0x80 && v.GetDay() == 0x80 && v.GetBoolean());
    EXPECT_EQ(bitsAfter(&KzVariant::SetI2, -2), 0xFFFEu);
    EXPECT_TRUE(v.GetUI2() == 0xFFFE && v.GetYear() == 0xFFFE && v.GetChar() == u'\xFFFE');
    EXPECT_EQ(bitsAfter(&KzVariant::SetUI4, 0x80000000u), 0x80000000u);
    EXPECT_EQ(v.GetI4(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(bitsAfter(&KzVariant::SetR4, -1.5f), 0xBFC00000u);
    EXPECT_EQ(bitsAfter(&KzVariant::SetBoolean, true), 1u);
}

TEST(KzVariant, UnknownKindsAreNamedByNumberAndNotAssigned) {
    KzVariant v;
    EXPECT_TRUE(!v.IsValid() && !v.IsNil() && v.GetTypeAsEnum() == ItemType_Invalid);
    EXPECT_EQ(Failure([&] { v.GetType(); }), "Invalid Type 0");
    EXPECT_EQ(Failure([&] { v.ToString(u""); }), "Invalid Type 0 to convert to string");
    v.m_type = ItemType_xmlObject;
    EXPECT_EQ(Failure([&] { v.GetType(); }), "Invalid Type 27");
    for (const int type : {-1, 29}) {
        v.m_type = static_cast<ItemType>(type);
        KzVariant target = TextVariant(u"text");
        EXPECT_EQ(Failure([&] { target = v; }), "Unknown Type");
    }
}

TEST(KzVariant, NilKeepsTheKindUntilAClearThatFindsOne) {
    KzVariant v;
    v.SetI4(5);
    v.SetNil();
    EXPECT_TRUE(v.IsValid() && v.IsNil() && v.GetTypeAsEnum() == ItemType_i4 && v.GetI4() == 0);
    v.SetI4(6);
    EXPECT_FALSE(v.IsNil());

    KzVariant empty;
    empty.SetNil();
    EXPECT_TRUE(empty.IsValid());
    empty.Clear();
    EXPECT_TRUE(empty.IsNil());
    for (const bool nil : {true, false}) {
        empty.SetI4(5);
        EXPECT_EQ(empty.IsNil(), nil);
    }
}

TEST(KzVariant, CopiesAreDeepAndMovesEmptyTheirSource) {
    KzVariant source = TextVariant(u"text");
    KzVariant copy(source);
    source.SetString(u"other");
    EXPECT_EQ(copy.GetString(), u"text");

    const std::u16string* payload = &copy.GetStringRef();
    KzVariant moved(std::move(copy));
    EXPECT_EQ(&moved.GetStringRef(), payload);
    EXPECT_FALSE(copy.IsValid());
    source = std::move(moved);
    EXPECT_EQ(&source.GetStringRef(), payload);
    EXPECT_FALSE(moved.IsValid());

    source.SetNil();
    copy.SetI4(1);
    copy = source;
    EXPECT_TRUE(copy.IsNil());
    EXPECT_EQ(copy.GetTypeAsEnum(), ItemType_string);
    EXPECT_EQ(copy.m_value.bits, 0u);
}

TEST(KzVariant, TextsGoInAndOutByKind) {
    const struct {
        ItemType type;
        const char16_t *name, *in, *out;
    } rows[] = {
        {ItemType_i1, u"i1", u" -128 ", u"-128"},
        {ItemType_i2, u"i2", u" -32768 ", u"-32768"},
        {ItemType_i4, u"i4", u"-2147483648", u"-2147483648"},
        {ItemType_i8, u"i8", u"-9223372036854775808", u"-9223372036854775808"},
        {ItemType_ui1, u"ui1", u"255", u"255"},
        {ItemType_ui2, u"ui2", u"65535", u"65535"},
        {ItemType_ui4, u"ui4", u"4294967295", u"4294967295"},
        {ItemType_ui8, u"ui8", u"18446744073709551615", u"18446744073709551615"},
        {ItemType_r4, u"r4", u"0.1", u"0.1"},
        {ItemType_r8, u"r8", u"1e300", u"1e+300"},
        {ItemType_char, u"char", u" x ", u"x"},
        {ItemType_string, u"string", u" a  b ", u"a b"},
        {ItemType_boolean, u"boolean", u"TRUE", u"true"},
        {ItemType_hexBinary, u"hexBinary", u" 0aff ", u"0AFF"},
        {ItemType_base64Binary, u"base64Binary", u"Cv 8=", u"Cv8="},
        {ItemType_duration, u"duration", u" -P1Y15MT0.50S ", u"-P1Y15MT0.5S"},
        {ItemType_yearMonth, u"yearMonth", u" -2001-05Z ", u"-2001-05Z"},
        {ItemType_monthDay, u"monthDay", u"--02-29", u"--02-29"},
        {ItemType_year, u"year", u" 0987 ", u"987"},
        {ItemType_month, u"month", u"--05--", u"--05"},
        {ItemType_day, u"day", u"---05", u"---05"},
        {ItemType_date, u"date", u"2001-05-06+01:00", u"2001-05-06+01:00"},
        {ItemType_datetime, u"datetime", u" 2001-05-06T07:08:09.100Z ", u"2001-05-06T07:08:09.1Z"},
        {ItemType_time, u"time", u"00:00:00", u"00:00:00"},
        {ItemType_decimal, u"decimal", u"-00.50", u"-0.5"},
        {ItemType_integer, u"integer", u" -00123456789012345678901234567890 ",
         u"-123456789012345678901234567890"},
    };
    KzVariant v;
    for (const auto& row : rows) {
        v.FromString(row.in, row.type, CWhitespaceUtils::WhitespaceRule_Collapse);
        EXPECT_EQ(std::tuple(v.GetTypeAsEnum(), v.GetType()), std::tuple(row.type, row.name));
        KzVariant copy(v);
        const KzVariant moved(std::move(v));
        v = copy;
        copy.SetNil();
        EXPECT_EQ(moved.ToString(nullptr), row.out);
        EXPECT_EQ(v.ToString(nullptr), row.out);
    }
    const auto formatted = [&v](auto set, auto value, const char16_t* format) {
        (v.*set)(value);
        return v.ToString(format);
    };
    EXPECT_EQ(formatted(&KzVariant::SetR4, 0.5f, u"%.3f"), u"0.500");
    EXPECT_EQ(formatted(&KzVariant::SetI4, 5, u"%.3f"), u"5");
    EXPECT_EQ(formatted(&KzVariant::SetDecimal, CDecimal(u"2.345"), u"2"), u"2.35");
}

TEST(KzVariant, GettersOfOneClassAreOneOperation) {
    const CDateTime date(2001, 5, 6);
    KzVariant v;
    using Set = void (KzVariant::*)(CDateTime);
    for (const Set set : {&KzVariant::SetYearMonth, &KzVariant::SetMonthDay, &KzVariant::SetDate,
                          &KzVariant::SetDateTime, &KzVariant::SetTime}) {
        (v.*set)(date);
        for (const CDateTime& got :
             {v.GetYearMonth(), v.GetMonthDay(), v.GetDate(), v.GetDateTime(), v.GetTime()})
            EXPECT_EQ(got, date);
        // The value decides on the text, not the kind of the variant.
        EXPECT_EQ(v.ToString(u""), u"2001-05-06");
        EXPECT_THROW(v.GetDuration(), CKzInvalidStateException);
    }
    v.SetDecimal(1);
    EXPECT_EQ(v.GetDecimal(), CDecimal(1));
    EXPECT_THROW(v.GetInteger(), CKzInvalidStateException);
    v.SetInteger(1);
    EXPECT_EQ(v.GetInteger(), CBigInteger(1));
    EXPECT_THROW(v.GetDecimal(), CKzInvalidStateException);
    v.SetDuration(CDateTimeSpan(1, 0, 0));
    EXPECT_EQ(v.GetDuration().GetHours(), 1u);
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
    v.SetNil();
    EXPECT_THROW(v.GetDuration(), CKzInvalidStateException);
    EXPECT_THROW(v.ToString(u""), CKzInvalidStateException);
    v.SetI8(0x1000); // no address
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
    v = TextVariant(u"text");
    v.SetNil();
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
}

TEST(KzVariant, BinaryDataSharesItsBytes) {
    CBinaryData source;
    source.SetAsHexString(u"0102");
    const unsigned char* bytes = source.GetData();
    KzVariant first;
    first.SetHexBinary(source);
    KzVariant second(first);
    EXPECT_EQ(second.GetBase64Binary().GetData(), bytes);
    source.Append(static_cast<unsigned char>(3));
    first.Clear();
    EXPECT_EQ(second.GetHexBinary().GetData(), bytes);
    EXPECT_EQ(second.ToString(u""), u"0102");
    second.SetBase64Binary(CBinaryData());
    EXPECT_EQ(second.ToString(u""), u"");
}

TEST(KzVariant, FailedConversionLeavesTheOldValue) {
    constexpr auto rule = CWhitespaceUtils::WhitespaceRule_None;
    KzVariant v = TextVariant(u"text");
    EXPECT_THROW(v.FromString(u"x", ItemType_i4, rule), CKzInvalidValueException);
    EXPECT_THROW(v.FromString(u"0", ItemType_hexBinary, rule), CKzException);
    EXPECT_THROW(v.FromString(u"2001-02-30", ItemType_date, rule), CKzInvalidValueException);
    EXPECT_EQ(v.GetString(), u"text");
    // The number is that of the kind held, not of the one asked for.
    v.SetI4(7);
    for (const int type : {-1, 0, 27, 28})
        EXPECT_EQ(Failure([&] { v.FromString(u"1", static_cast<ItemType>(type), rule); }),
                  "Invalid Type 5 to convert to string");
    EXPECT_EQ(v.GetI4(), 7);
}

TEST(KzVariant, SelfAssignmentEmpties) {
    KzVariant v = TextVariant(u"text");
    KzVariant& self = v;
    v = std::as_const(self);
    EXPECT_FALSE(v.IsValid());
    EXPECT_EQ(v.m_value.bits, 0u);
    v.SetString(u"text");
    v = std::move(self);
    EXPECT_FALSE(v.IsValid());
}

/// An object that owns a variant, and counts how many of its class live.
struct CHolder : ScriptedObject {
    CHolder() : ScriptedObject("") { ++living; }
    ~CHolder() override { --living; }
    KzVariant m_value;
    static inline int living = 0;
};

TEST(KzVariant, ObjectsAreSharedAndCounted) {
    auto* object = new CHolder;
    KzVariant v;
    v.SetXmlObject(object);
    EXPECT_EQ(v.GetTypeAsEnum(), ItemType_xmlObject);
    EXPECT_EQ(static_cast<CXmlObjectBase*>(v.GetXmlObject()), object);
    {
        const KzVariant copy(v);
        v.SetNil();
        EXPECT_EQ(static_cast<CXmlObjectBase*>(v.GetXmlObject()), nullptr);
        EXPECT_EQ(static_cast<CXmlObjectBase*>(copy.GetXmlObject()), object);
        v = copy;
    }
    EXPECT_EQ(CHolder::living, 1);
    v.SetXmlObject(object); // the variant held the only reference
    EXPECT_EQ(CHolder::living, 1);
    KzVariant moved(std::move(v));
    EXPECT_EQ(object->AddRef(), 2);
    EXPECT_EQ(object->Release(), 1);
    moved.SetI4(1);
    EXPECT_EQ(CHolder::living, 0);
    EXPECT_THROW(moved.GetXmlObject(), CKzInvalidStateException);

    v.SetXmlObject(nullptr);
    EXPECT_TRUE(v.IsValid());
    EXPECT_EQ(static_cast<CXmlObjectBase*>(v.GetXmlObject()), nullptr);
    moved = v;
    EXPECT_EQ(moved.GetTypeAsEnum(), ItemType_xmlObject);
}

TEST(KzVariant, AssignmentFromInsideTheOwnObjectKeepsTheSourceAlive) {
    for (const bool moved : {false, true}) {
        auto* object = new CHolder;
        object->m_value.SetString(u"inside");
        KzVariant v;
        v.SetXmlObject(object);
        moved ? v = std::move(object->m_value) : v = std::as_const(object->m_value);
        EXPECT_EQ(v.GetString(), u"inside");
    }
    EXPECT_EQ(CHolder::living, 0);
}

} // namespace
