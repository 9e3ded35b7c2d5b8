/// Choices: one member, none, two; nested groups that give the position back; repeated members.

#include "support/Roundtrip.h"

using namespace kit;

namespace {

constexpr auto Choice = XmlElementGroupType_Choice;
constexpr auto Pseudo = XmlElementType_Pseudo;

const char* const noneIn =
    "<r/> -> !No child elements within the element [r] were populated. The element represents a choice, so "
    "one "
    "and only one element should be populated. The element contained no sutable child elements";
const std::u16string noneSet =
    FailedToWrite(u"r", u"This element is a choice, and as such must have at one (and only one) valid item, "
                        u"currently there are none set");

struct ChoiceOfMembers : testing::Test {
    ChoiceOfMembers() {
        point.Prim(u"x", Mnd, ItemType_i4);
        r.Prim(u"a", Opt, ItemType_i4).Colour(u"c", Opt).Class(u"p", Opt, point);
    }
    Model point{u"point"};
    Model r{u"r", Choice};
};

TEST_F(ChoiceOfMembers, TakesExactlyOne) {
    ExpectReads(r, {"<r><a>1</a></r> -> 1|-|-", "<r><c>blue</c></r> -> -|3|-",
                    "<r><p><x>7</x></p></r> -> -|-|{7}", "<r/> -> -|-|-", // its members are optional
                    "<r><a>1</a><c>red</c></r> -> +c", "<r><a>1</a><a>2</a></r> -> +a", "<r><u/></r> -> +u",
                    "<r><p><x>no</x></p></r> -> !Failed to process the element [p]\nThe value [no] can not "
                    "be converted to a i4"});
    EXPECT_EQ(Read(r, u"<r><u/><c>red</c><a>2</a></r>", unknownElements), u"-|1|-");
}

TEST_F(ChoiceOfMembers, WritesTheFirstInTableOrder) {
    const auto object = r.New();
    EXPECT_NE(FailureOf([&] { object->FromXml(u"<r><p><x>no</x></p></r>", {}); }), u"");
    EXPECT_EQ(Show(*object), u"-|-|{-}"); // the object is in place before it is read
    object->Init();
    EXPECT_EQ(Write(*object), u"<r/>");
    object->properties[1].SetI4(2);
    EXPECT_EQ(Write(*object), u"<r><c>green</c></r>");
    object->properties[0].SetI4(1);
    EXPECT_EQ(Write(*object), u"<r><a>1</a></r>");
}

TEST(EmptyChoice, IsAFailureOnlyWhereEveryMemberMustOccur) {
    Model item(u"item");
    item.Prim(u"x", Opt, ItemType_i4);
    Model r(u"r", Choice);
    r.Collection(u"a", item, 1).Collection(u"b", item, 2);
    ExpectReads(r, {noneIn});
    EXPECT_EQ(Read(r, u"<r/>", missingChoice), u"[]|[]");
    EXPECT_EQ(Write(*r.New()), noneSet);
    EXPECT_EQ(Write(*r.New(), missingChoice), u"<r/>");
    r.Collection(u"c", item, 0);
    EXPECT_EQ(Read(r, u"<r/>"), u"[]|[]|[]");
    EXPECT_EQ(Write(*r.New()), u"<r/>");
    ExpectReads(Model(u"r", Choice), {noneIn});
}

TEST(EmptyChoice, IsAllowedInsideAnOptionalMember) {
    Model item(u"item");
    Model inner(u"inner", Choice);
    inner.Collection(u"a", item, 1);
    Model r(u"r", Choice);
    r.Class(u"inner", Opt, inner);
    EXPECT_EQ(Read(r, u"<r><inner/></r>"), u"{[]}");
    EXPECT_EQ(Rewritten(r, u"<r><inner/></r>"), u"<r><inner/></r>");
    Model sequence(u"r");
    sequence.Class(u"inner", Opt, inner);
    EXPECT_TRUE(Read(sequence, u"<r><inner/></r>")
                    .starts_with(FailedToRead(u"r", FailedToRead(u"inner", u"No child"))));
}

TEST(ChoiceOfCollections, TakesOneRunAndChecksItsCount) {
    Model item(u"item");
    item.Content(ItemType_i4);
    Model r(u"r", Choice);
    r.Collection(u"a", item, 0, 2).Collection(u"b", item, 2);
    ExpectReads(r,
                {"<r><a>1</a><a>2</a></r> -> [{1}{2}]|[]",
                 "<r><b>1</b><b>2</b><b>3</b></r> -> []|[{1}{2}{3}]", "<r><a>1</a><b>2</b><b>3</b></r> -> +b",
                 "<r><a>1</a><a>2</a><a>3</a></r> -> !The Maximum number of [a] elements allowed in this "
                 "collection is 2",
                 "<r><b>1</b></r> -> !The Minimum number of [b] elements allowed in this collection is 2"});
    EXPECT_EQ(Read(r, u"<r><b>1</b></r>", invalidCounts), u"[]|[{1}]");

    // On writing a choice never looks at counts.
    const auto object = r.New();
    object->Children(1)->Add(item.New(u"b"));
    object->Children(1)->Item(0)->properties[0].SetI4(5);
    EXPECT_EQ(Write(*object), u"<r><b>5</b></r>");
}

TEST(ChoiceOfGroups, NestsInSequencesAndChoices) {
    // r = (head, ((x | (y, z)) | w*), tail?)
    Model yz(u"yz", XmlElementGroupType_Sequence, Pseudo);
    yz.Prim(u"y", Mnd, ItemType_i4).Prim(u"z", Mnd, ItemType_i4);
    Model inner(u"inner", Choice, Pseudo);
    inner.Prim(u"x", Opt, ItemType_i4).Class(u"yz", Opt, yz);
    Model w(u"w");
    w.Content(ItemType_i4);
    Model outer(u"outer", Choice, Pseudo);
    outer.Class(u"inner", Opt, inner).Collection(u"w", w, 0, 2);
    Model r(u"r");
    r.Prim(u"head", Mnd, ItemType_i4).Class(u"outer", Mnd, outer, true).Prim(u"tail", Opt, ItemType_i4);
    ExpectReads(
        r, {"<r><head>0</head><x>1</x><tail>9</tail></r> -> 0|{{1,-},[]}|9",
            "<r><head>0</head><y>1</y><z>2</z></r> -> 0|{{-,{1,2}},[]}|-",
            "<r><head>0</head><w>1</w><w>2</w><tail>9</tail></r> -> 0|{-,[{1}{2}]}|9",
            "<r><head>0</head><tail>9</tail></r> -> !Failed to find a required element [outer]",
            "<r><head>0</head><y>1</y></r> -> !Failed to find a required element [outer]",
            "<r><head>0</head><y>1</y><z>bad</z></r> -> !!!!The value [bad] can not be converted to a i4",
            // In a group the count is told by false, so the run is as if it had not been there.
            "<r><head>0</head><w>1</w><w>2</w><w>3</w></r> -> !Failed to find a required element [outer]"});
    const std::u16string text = u"<r><head>0</head><y>1</y><z>2</z></r>";
    EXPECT_EQ(Rewritten(r, text), text);
}

TEST(ChoiceOfGroups, WithoutAttributesKeepThePositionAMemberLeft) {
    Model skipping(u"skipping", XmlElementGroupType_Sequence, Pseudo);
    skipping.Prim(u"a", Mnd, ItemType_i4);
    Model choice(u"choice", Choice, Pseudo);
    choice.Class(u"skipping", Opt, skipping);
    Model r(u"r");
    r.Class(u"choice", Opt, choice).Prim(u"b", Opt, ItemType_i4);
    ExpectReads(r, {"<r><u/><a>1</a><b>2</b></r> -> {{1}}|2", "<r><b>2</b></r> -> -|2"}, unknownElements);
}

TEST(RepeatedChoice, TakesOneAlternativeAfterTheOther) {
    Model alternative(u"alternative", Choice, Pseudo);
    alternative.Prim(u"a", Opt, ItemType_i4).Prim(u"b", Opt, ItemType_i4);
    Model r(u"r");
    r.Collection(u"alternative", alternative, 1, 3);
    ExpectReads(r, {"<r><a>1</a><b>2</b><a>3</a></r> -> [{1,-}{-,2}{3,-}]",
                    "<r/> -> !The Minimum number of [alternative] elements allowed in this collection is 1"});
    EXPECT_EQ(Rewritten(r, u"<r><b>2</b><a>1</a></r>"), u"<r><b>2</b><a>1</a></r>");
}

TEST(AbstractChoice, StoresANullWhereTheFactoryDeclines) {
    Model r(u"r", Choice);
    r.Abstract(u"shape", Opt, [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); });
    r.Prim(u"shape", Opt, ItemType_string);
    const auto object = r.New();
    object->FromXml(u"<r><shape>x</shape></r>", {});
    EXPECT_EQ(Show(*object), u"-|x");
    EXPECT_EQ(object->properties[0].GetTypeAsEnum(), ItemType_xmlObject);
}

TEST(Validate, BelongsToAllGroups) {
    const CElementInfoChoicePrimCol member(u"a", u"", 0);
    EXPECT_EQ(FailureOf([&] { member.Validate({}, nullptr, false, true); }),
              u"Not implemented, should never be called");
}

} // namespace
