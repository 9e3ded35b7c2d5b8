#include "support/Test.h"
#include "values/PayloadMemory.h"

namespace {

KzVariant TextVariant(std::u16string text) {
    KzVariant variant;
    variant.SetString(std::move(text));
    return variant;
}

/// Kind and text of a copy of a value.
std::string TextOfKind(const std::u16string& row) {
    const ItemType type = static_cast<ItemType>(std::stoi(ToUtf8(row)));
    KzVariant v;
    v.FromString(row.substr(row.find(u' ') + 1), type, CWhitespaceUtils::WhitespaceRule_Collapse);
    const KzVariant copy(v);
    v.SetNil();
    return ToUtf8(copy.GetType() + u" " + copy.ToString(nullptr));
}

TEST(KzVariant, ScalarsShareTheLowBitsOfACell) {
    KzVariant v;
    v.SetI8(-1);
    v.SetR4(-1.5f);
    EXPECT_EQ(v.m_value.bits, 0xBFC00000u);
    v.SetI2(-2);
    EXPECT_EQ(v.m_value.bits, 0xFFFEu);
    EXPECT_TRUE(v.GetUI2() == 0xFFFE && v.GetYear() == 0xFFFE && v.GetChar() == u'\xFFFE');
    v.SetI1(-128);
    EXPECT_EQ(v.m_value.bits, 0x80u);
    EXPECT_TRUE(v.GetUI1() == 0x80 && v.GetMonth() == 0x80 && v.GetDay() == 0x80 && v.GetBoolean());
}

TEST(KzVariant, UnknownKindsAreNamedByNumber) {
    KzVariant v;
    EXPECT_EQ(Failure([&] { v.GetType(); }), "Invalid Type 0");
    EXPECT_EQ(Failure([&] { v.ToString(u""); }), "Invalid Type 0 to convert to string");
    v.m_type = ItemType_xmlObject;
    EXPECT_EQ(Failure([&] { v.GetType(); }), "Invalid Type 27");
    for (const int type : {-1, 29}) {
        v.m_type = static_cast<ItemType>(type);
        EXPECT_EQ(Failure([&] { TextVariant(u"text") = v; }), "Unknown Type");
    }
}

TEST(KzVariant, NilKeepsTheKindUntilAClearThatFindsOne) {
    KzVariant v;
    v.SetI4(5);
    v.SetNil();
    EXPECT_TRUE(v.IsValid() && v.IsNil() && v.GetTypeAsEnum() == ItemType_i4 && v.GetI4() == 0);
    const KzVariant copy(v);
    EXPECT_TRUE(copy.IsNil() && copy.GetTypeAsEnum() == ItemType_i4);

    KzVariant empty;
    empty.SetNil();
    empty.Clear();
    for (const bool nil : {true, false}) {
        empty.SetI4(5);
        EXPECT_EQ(empty.IsNil(), nil);
    }
}

TEST(KzVariant, CopiesAreDeepAndMovesEmpty) {
    KzVariant source = TextVariant(u"text");
    KzVariant copy(source);
    source.SetString(u"other");
    EXPECT_EQ(copy.GetString(), u"text");
    const std::u16string* payload = &copy.GetStringRef();
    KzVariant moved(std::move(copy));
    source = std::move(moved);
    EXPECT_EQ(&source.GetStringRef(), payload);
    EXPECT_FALSE(copy.IsValid() || moved.IsValid());

    const PayloadMemory keeper; // by which the second text and those after it are kept
    for (const std::u16string& text :
         {std::u16string(700, u'x'), std::u16string(9, u'y'), std::u16string()}) {
        KzVariant other = TextVariant(u"other");
        source.CopyString(text);
        other.CopyString(source.GetStringRef());
        source.CopyString(source.GetStringRef());
        EXPECT_EQ(other.GetString() + source.TakeString(), text + text);
    }

    source.SetString(u"text");
    KzVariant& self = source;
    source = std::as_const(self);
    EXPECT_FALSE(source.IsValid());
    EXPECT_EQ(source.m_value.bits, 0u);
    source.SetString(u"text");
    source = std::move(self);
    EXPECT_FALSE(source.IsValid());
}

TEST(KzVariant, TextsGoInAndOutByKind) {
    // The number of a kind and a text; the name of the kind and the text of the value.
    ExpectRows({"3  -128  -> i1 -128", "4  -32768  -> i2 -32768", "5 -2147483648 -> i4 -2147483648",
                "6 -9223372036854775808 -> i8 -9223372036854775808", "7 255 -> ui1 255",
                "8 65535 -> ui2 65535", "9 4294967295 -> ui4 4294967295",
                "10 18446744073709551615 -> ui8 18446744073709551615", "11 0.1 -> r4 0.1",
                "12 1e300 -> r8 1e+300", "22  x  -> char x", "23  a  b  -> string a b",
                "24 TRUE -> boolean true", "1  0aff  -> hexBinary 0AFF",
                "2 Cv 8= -> base64Binary Cv8=", "13  -P1Y15MT0.50S  -> duration -P1Y15MT0.5S"},
               TextOfKind);
    ExpectRows({"14  -2001-05Z  -> yearMonth -2001-05Z", "15 --02-29 -> monthDay --02-29",
                "16  0987  -> year 987", "17 --05-- -> month --05", "18 ---05 -> day ---05",
                "19 2001-05-06+01:00 -> date 2001-05-06+01:00",
                "20  2001-05-06T07:08:09.100Z  -> datetime 2001-05-06T07:08:09.1Z",
                "21 00:00:00 -> time 00:00:00", "25 -00.50 -> decimal -0.5",
                "26  -00123456789012345678901234567890  -> integer -123456789012345678901234567890"},
               TextOfKind);
    KzVariant v;
    v.SetDecimal(CDecimal(u"2.345"));
    EXPECT_EQ(v.ToString(u"2"), u"2.35");
}

TEST(KzVariant, GettersAskForTheClassAndNotTheKind) {
    const CDateTime date(2001, 5, 6);
    KzVariant v;
    v.SetYearMonth(date);
    for (const CDateTime& got :
         {v.GetYearMonth(), v.GetMonthDay(), v.GetDate(), v.GetDateTime(), v.GetTime()})
        EXPECT_EQ(got, date);
    EXPECT_EQ(v.ToString(u""), u"2001-05-06"); // the value decides on the text, not the kind
    EXPECT_THROW(v.GetDuration(), CKzInvalidStateException);
    v.SetI8(0x1000); // no address
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
    v.SetDuration(CDateTimeSpan(1, 0, 0));
    v.SetNil();
    EXPECT_THROW(v.GetDuration(), CKzInvalidStateException);
}

TEST(KzVariant, FailedConversionLeavesTheOldValue) {
    constexpr auto rule = CWhitespaceUtils::WhitespaceRule_None;
    KzVariant v = TextVariant(u"text");
    EXPECT_THROW(v.FromString(u"x", ItemType_i4, rule), CKzInvalidValueException);
    EXPECT_THROW(v.FromString(u"2001-02-30", ItemType_date, rule), CKzInvalidValueException);
    EXPECT_EQ(v.GetString(), u"text");
    // The number is that of the kind held, not of the one asked for.
    v.SetI4(7);
    for (const int type : {-1, 0, 27, 28})
        EXPECT_EQ(Failure([&] { v.FromString(u"1", static_cast<ItemType>(type), rule); }),
                  "Invalid Type 5 to convert to string");
    EXPECT_EQ(v.GetI4(), 7);
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
    {
        const KzVariant copy(v);
        v.SetNil();
        EXPECT_EQ(static_cast<CXmlObjectBase*>(v.GetXmlObject()), nullptr);
        EXPECT_EQ(static_cast<CXmlObjectBase*>(copy.GetXmlObject()), object);
        v = copy;
    }
    v.SetXmlObject(object); // the variant held the only reference
    EXPECT_EQ(CHolder::living, 1);
    v.SetI4(1);
    EXPECT_EQ(CHolder::living, 0);
    EXPECT_THROW(v.GetXmlObject(), CKzInvalidStateException);
}

TEST(KzVariant, ADyingObjectFindsItEmpty) {
    struct CLooking : CHolder {
        ~CLooking() override { EXPECT_FALSE(held->IsValid()); }
        const KzVariant* held = nullptr;
    };
    auto* const looking = new CLooking;
    KzVariant owner;
    owner.SetXmlObject(looking);
    looking->held = &owner;
}

TEST(KzVariant, AssignsFromInsideItsOwnObject) {
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
