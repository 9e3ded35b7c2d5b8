#include <KzXmlLib10/values/KzVariant.h>

#include <KzXmlLib10/object/CKzException.h>

#include <gtest/gtest.h>

#include <limits>
#include <utility>

using namespace KzXmlLib10;

namespace {

KzVariant TextVariant(std::u16string text) {
    KzVariant variant;
    variant.SetString(std::move(text));
    return variant;
}

template <class F>
std::u16string MessageOf(F action) {
    try {
        action();
    } catch (const CKzException& e) {
        return e.GetFullMessage();
    }
    return u"no exception";
}

TEST(KzVariant, ScalarsKeepTheirWholeRangeAndClearTheRestOfTheCell) {
    KzVariant v;
    v.SetI8(-1);
    v.SetI1(-128);
    EXPECT_EQ(v.m_value.bits, 0x80u);
    EXPECT_EQ(v.GetI1(), -128);
    v.SetI2(-32768);
    EXPECT_EQ(v.m_value.bits, 0x8000u);
    EXPECT_EQ(v.GetI2(), -32768);
    v.SetI4(std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(v.m_value.bits, 0x80000000u);
    EXPECT_EQ(v.GetI4(), std::numeric_limits<std::int32_t>::min());
    v.SetI8(std::numeric_limits<long long>::min());
    EXPECT_EQ(v.GetI8(), std::numeric_limits<long long>::min());
    v.SetUI1(255);
    EXPECT_EQ(v.GetUI1(), 255);
    EXPECT_EQ(v.GetMonth(), 255);
    EXPECT_EQ(v.GetDay(), 255);
    EXPECT_TRUE(v.GetBoolean());
    v.SetUI2(0xFFFE);
    EXPECT_EQ(v.GetUI2(), 0xFFFE);
    EXPECT_EQ(v.GetYear(), 0xFFFE);
    EXPECT_EQ(v.GetChar(), u'\xFFFE');
    v.SetUI4(0xFFFFFFFFu);
    EXPECT_EQ(v.GetUI4(), 0xFFFFFFFFu);
    v.SetUI8(std::numeric_limits<unsigned long long>::max());
    EXPECT_EQ(v.GetUI8(), std::numeric_limits<unsigned long long>::max());
    v.SetR4(-1.5f);
    EXPECT_EQ(v.GetR4(), -1.5f);
    v.SetR8(1e300);
    EXPECT_EQ(v.GetR8(), 1e300);
}

TEST(KzVariant, EachSetterStoresItsKind) {
    const std::pair<void (*)(KzVariant&), const char16_t*> rows[] = {
        {[](KzVariant& v) { v.SetI1(1); }, u"i1"},
        {[](KzVariant& v) { v.SetI2(1); }, u"i2"},
        {[](KzVariant& v) { v.SetI4(1); }, u"i4"},
        {[](KzVariant& v) { v.SetI8(1); }, u"i8"},
        {[](KzVariant& v) { v.SetUI1(1); }, u"ui1"},
        {[](KzVariant& v) { v.SetUI2(1); }, u"ui2"},
        {[](KzVariant& v) { v.SetUI4(1); }, u"ui4"},
        {[](KzVariant& v) { v.SetUI8(1); }, u"ui8"},
        {[](KzVariant& v) { v.SetR4(1); }, u"r4"},
        {[](KzVariant& v) { v.SetR8(1); }, u"r8"},
        {[](KzVariant& v) { v.SetYear(1); }, u"year"},
        {[](KzVariant& v) { v.SetMonth(1); }, u"month"},
        {[](KzVariant& v) { v.SetDay(1); }, u"day"},
        {[](KzVariant& v) { v.SetChar(u'a'); }, u"char"},
        {[](KzVariant& v) { v.SetString(u"a"); }, u"string"},
        {[](KzVariant& v) { v.SetBoolean(true); }, u"boolean"},
    };
    KzVariant v;
    for (const auto& [set, name] : rows) {
        set(v);
        EXPECT_TRUE(v.IsValid());
        EXPECT_EQ(v.GetType(), name);
    }
}

TEST(KzVariant, EmptyVariantHasNoType) {
    KzVariant v;
    EXPECT_FALSE(v.IsValid());
    EXPECT_FALSE(v.IsNil());
    EXPECT_EQ(v.GetTypeAsEnum(), ItemType_Invalid);
    EXPECT_EQ(MessageOf([&] { v.GetType(); }), u"Invalid Type 0");
    v.m_type = ItemType_xmlObject;
    EXPECT_EQ(MessageOf([&] { v.GetType(); }), u"Invalid Type 27");
}

TEST(KzVariant, NilKeepsTheKindUntilAClearThatFindsOne) {
    KzVariant v;
    v.SetI4(5);
    v.SetNil();
    EXPECT_TRUE(v.IsValid());
    EXPECT_TRUE(v.IsNil());
    EXPECT_EQ(v.GetTypeAsEnum(), ItemType_i4);
    EXPECT_EQ(v.GetI4(), 0);
    v.SetI4(6);
    EXPECT_FALSE(v.IsNil());

    KzVariant empty;
    empty.SetNil();
    EXPECT_TRUE(empty.IsValid());
    empty.Clear();
    EXPECT_TRUE(empty.IsNil());
    empty.SetI4(5);
    EXPECT_TRUE(empty.IsNil());
    empty.SetI4(5);
    EXPECT_FALSE(empty.IsNil());
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

TEST(KzVariant, SelfAssignmentEmpties) {
    KzVariant v = TextVariant(u"text");
    const KzVariant& self = v;
    v = self;
    EXPECT_FALSE(v.IsValid());
    EXPECT_EQ(v.m_value.bits, 0u);
}

TEST(KzVariant, UnknownKindCannotBeAssigned) {
    for (const int type : {-1, 29}) {
        KzVariant source;
        source.m_type = static_cast<ItemType>(type);
        KzVariant target = TextVariant(u"text");
        EXPECT_EQ(MessageOf([&] { target = source; }), u"Unknown Type");
    }
}

TEST(KzVariant, TextOfAnotherKindIsRefused) {
    KzVariant v;
    v.SetI8(0x1000);
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
    v.SetString(u"text");
    v.SetNil();
    EXPECT_THROW(v.GetString(), CKzInvalidStateException);
}

} // namespace
