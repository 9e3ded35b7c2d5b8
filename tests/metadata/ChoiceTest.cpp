/// Choices: one member, none, two; nested groups that give the position back; repeated members.

#include "support/Roundtrip.h"

using namespace kit;

const char* const noneIn =
    "<r/> -> !No child elements within the element [r] were populated. The element represents a choice, so "
    "one "
    "and only one element should be populated. The element contained no sutable child elements";
const std::u16string noneSet =
    FailedToWrite(u"r", u"This element is a choice, and as such must have at one (and only one) valid item, "
                        u"currently there are none set");

TEST(ChoiceOfMembers, TakesExactlyOne) {
    const Model& point = NewModel(u"point").Prim(u"x");
    const Model& r = NewModel(u"r", Choice).Prim(u"a", Opt).Colour(u"c", Opt).Class(u"p", Opt, point);
    ExpectReads(r, {"<r><a>1</a></r> -> 1|-|-", "<r><c>blue</c></r> -> -|3|-",
                    "<r><p><x>7</x></p></r> -> -|-|{7}", "<r/> -> -|-|-", // its members are optional
                    "<r><a>1</a><c>red</c></r> -> +c", "<r><a>1</a><a>2</a></r> -> +a", "<r><u/></r> -> +u",
                    "<r><p><x>no</x></p></r> -> !Failed to process the element [p]\nThe value [no] can not "
                    "be converted to a i4"});
    EXPECT_EQ(Read(r, u"<r><u/><c>red</c><a>2</a></r>", unknownElements), u"-|1|-");

    const auto object = r.New();
    EXPECT_NE(FailureOf([&] { object->FromXml(u"<r><p><x>no</x></p></r>", {}); }), u"");
    EXPECT_EQ(Show(*object), u"-|-|{-}"); // the object is in place before it is read
    object->FromXml(u"<r><c>green</c></r>", {});
    EXPECT_EQ(Write(*object), u"<r><c>green</c></r>");
    object->properties[0].SetI4(1); // stands first in the table
    EXPECT_EQ(Write(*object), u"<r><a>1</a></r>");
}

TEST(EmptyChoice, IsAFailureOnlyWhereEveryMemberMustOccur) {
    const Model& item = NewModel(u"item").Prim(u"x", Opt);
    Model& r = NewModel(u"r", Choice).Collection(u"a", item, 1).Collection(u"b", item, 2);
    ExpectReads(r, {noneIn});
    EXPECT_EQ(Read(r, u"<r/>", missingChoice), u"[]|[]");
    EXPECT_EQ(Write(*r.New()), noneSet);
    EXPECT_EQ(Write(*r.New(), missingChoice), u"<r/>");
    r.Collection(u"c", item, 0);
    EXPECT_EQ(Read(r, u"<r/>"), u"[]|[]|[]");
    EXPECT_EQ(Write(*r.New()), u"<r/>");
    ExpectReads(NewModel(u"r", Choice), {noneIn});

    const Model& inner = NewModel(u"inner", Choice).Collection(u"a", item, 1);
    const Model& outer = NewModel(u"r", Choice).Class(u"inner", Opt, inner); // allowed as an optional member
    EXPECT_EQ(Read(outer, u"<r><inner/></r>"), u"{[]}");
    EXPECT_EQ(Rewritten(outer, u"<r><inner/></r>"), u"<r><inner/></r>");
    EXPECT_TRUE(Read(NewModel(u"r").Class(u"inner", Opt, inner), u"<r><inner/></r>")
                    .starts_with(FailedToRead(u"r", FailedToRead(u"inner", u"No child"))));
}

TEST(ChoiceOfCollections, TakesOneRunAndChecksItsCount) {
    const Model& item = NewModel(u"item").Content(ItemType_i4);
    const Model& r = NewModel(u"r", Choice).Collection(u"a", item, 0, 2).Collection(u"b", item, 2);
    ExpectReads(r,
                {"<r><a>1</a><a>2</a></r> -> [{1}{2}]|[]",
                 "<r><b>1</b><b>2</b><b>3</b></r> -> []|[{1}{2}{3}]", "<r><a>1</a><b>2</b><b>3</b></r> -> +b",
                 "<r><a>1</a><a>2</a><a>3</a></r> -> !The Maximum number of [a] elements allowed in this "
                 "collection is 2",
                 "<r><b>1</b></r> -> !The Minimum number of [b] elements allowed in this collection is 2"});
    EXPECT_EQ(Read(r, u"<r><b>1</b></r>", invalidCounts), u"[]|[{1}]");

    // On writing a choice never looks at counts.
    const auto object = r.New();
    object->FromXml(u"<r><b>5</b></r>", invalidCounts);
    EXPECT_EQ(Write(*object), u"<r><b>5</b></r>");
}

TEST(ChoiceOfGroups, NestsInSequencesAndChoices) {
    // r = (head, ((x | (y, z)) | w*), tail?)
    const Model& yz = NewModel(u"yz", Sequence, Pseudo).Prim(u"y").Prim(u"z");
    const Model& inner = NewModel(u"inner", Choice, Pseudo).Prim(u"x", Opt).Class(u"yz", Opt, yz);
    const Model& w = NewModel(u"w").Content(ItemType_i4);
    const Model& outer =
        NewModel(u"outer", Choice, Pseudo).Class(u"inner", Opt, inner).Collection(u"w", w, 0, 2);
    const Model& r = NewModel(u"r").Prim(u"head").Class(u"outer", Mnd, outer, true).Prim(u"tail", Opt);
    ExpectReads(
        r, {"<r><head>0</head><x>1</x><tail>9</tail></r> -> 0|{{1,-},[]}|9",
            "<r><head>0</head><y>1</y><z>2</z></r> -> 0|{{-,{1,2}},[]}|-",
            "<r><head>0</head><w>1</w><w>2</w><tail>9</tail></r> -> 0|{-,[{1}{2}]}|9",
            "<r><head>0</head><tail>9</tail></r> -> ?outer", "<r><head>0</head><y>1</y></r> -> ?outer",
            "<r><head>0</head><y>1</y><z>bad</z></r> -> !!!!The value [bad] can not be converted to a i4",
            // In a group the count is told by false, so the run is as if it had not been there.
            "<r><head>0</head><w>1</w><w>2</w><w>3</w></r> -> ?outer"});
    const std::u16string text = u"<r><head>0</head><y>1</y><z>2</z></r>";
    EXPECT_EQ(Rewritten(r, text), text);

    // Without attributes they keep the position that a member left.
    const Model& skipping = NewModel(u"skipping", Sequence, Pseudo).Prim(u"a");
    const Model& choice = NewModel(u"choice", Choice, Pseudo).Class(u"skipping", Opt, skipping);
    ExpectReads(NewModel(u"r").Class(u"choice", Opt, choice).Prim(u"b", Opt),
                {"<r><u/><a>1</a><b>2</b></r> -> {{1}}|2", "<r><b>2</b></r> -> -|2"}, unknownElements);
}

TEST(RepeatedChoice, TakesOneAlternativeAfterTheOther) {
    const Model& alternative = NewModel(u"alternative", Choice, Pseudo).Prim(u"a", Opt).Prim(u"b", Opt);
    const Model& r = NewModel(u"r").Collection(u"alternative", alternative, 1, 3);
    ExpectReads(r, {"<r><a>1</a><b>2</b><a>3</a></r> -> [{1,-}{-,2}{3,-}]",
                    "<r/> -> !The Minimum number of [alternative] elements allowed in this collection is 1"});
    EXPECT_EQ(Rewritten(r, u"<r><b>2</b><a>1</a></r>"), u"<r><b>2</b><a>1</a></r>");
}

TEST(AbstractChoice, StoresANullWhereTheFactoryDeclines) {
    Model& r = NewModel(u"r", Choice);
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
