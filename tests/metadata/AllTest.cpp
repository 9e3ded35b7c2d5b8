/// All groups: children in any order, each at most once.

#include "support/Roundtrip.h"

using namespace kit;

namespace {

constexpr auto All = XmlElementGroupType_All;
constexpr auto Pseudo = XmlElementType_Pseudo;

// Repeated particles of an all group cannot be made.
template <class... Classes>
constexpr bool areAbstract = (std::is_abstract_v<Classes> && ...);
static_assert(
    areAbstract<CElementInfoAllNonCol, CElementInfoAllCol, CElementInfoAllClsCol, CElementInfoAllEnumCol,
                CElementInfoAllAbsClsCol, CElementInfoAllPrimCol, CElementInfoAllUntpdCol>);

TEST(AllGroup, ReadsInAnyOrderAndWritesInTableOrder) {
    Model point(u"point");
    point.Prim(u"x", Mnd, ItemType_i4);
    Model r(u"r", All);
    r.Prim(u"a", Mnd, ItemType_i4).Colour(u"c", Opt).Class(u"p", Mnd, point).Class(u"q", Opt, point);
    ExpectReads(r, {"<r><q><x>4</x></q><p><x>3</x></p><c>red</c><a>1</a></r> -> 1|1|{3}|{4}",
                    "<r><p><x>3</x></p><a>1</a></r> -> 1|-|{3}|-"});
    EXPECT_EQ(Rewritten(r, u"<r><p><x>3</x></p><a>1</a></r>"), u"<r><a>1</a><p><x>3</x></p></r>");
}

TEST(AllGroup, ReportsMissingMembersBeforeLeftOverChildren) {
    Model r(u"r", All);
    r.Prim(u"a", Mnd, ItemType_i4).Prim(u"b", Opt, ItemType_i4);
    ExpectReads(r, {"<r><u/><a>1</a></r> -> !Failed to find the mandatory element [a]",
                    "<r><b>1</b></r> -> !Failed to find the mandatory element [a]",
                    "<r><a>1</a><a>2</a></r> -> +a"});
    ExpectReads(r, {"<r><b>1</b></r> -> !Failed to find the mandatory element [a]"}, missingElements);
    ExpectReads(r,
                {"<r><a>1</a><u/></r> -> 1|-",
                 // Nothing is skipped: a member behind an unknown child is lost.
                 "<r><a>1</a><u/><b>2</b></r> -> 1|-"},
                unknownElements);
}

TEST(AllGroup, InAGroupGivesThePositionBack) {
    Model all(u"all", All, Pseudo);
    all.Prim(u"a", Mnd, ItemType_i4).Prim(u"b", Mnd, ItemType_i4);
    Model r(u"r");
    r.Class(u"all", Opt, all).Prim(u"b", Opt, ItemType_i4).Prim(u"a", Opt, ItemType_i4);
    ExpectReads(r, {"<r><b>2</b><a>1</a></r> -> {1,2}|-|-", "<r><b>2</b></r> -> -|2|-"});
}

TEST(AllGroup, MandatoryObjectMayBeMissingUnlessItMustConsumeOrHasNoTag) {
    Model child(u"child");
    child.Prim(u"x", Opt, ItemType_i4);
    Model group(u"group", XmlElementGroupType_Sequence, Pseudo);
    group.Prim(u"x", Opt, ItemType_i4);
    Model relaxed(u"r", All);
    relaxed.Class(u"p", Mnd, child, false);
    EXPECT_EQ(Read(relaxed, u"<r/>"), u"{-}");
    Model strict(u"r", All);
    strict.Class(u"p", Mnd, child, true);
    ExpectReads(strict, {"<r/> -> !Failed to find the mandatory element [p]"});
    Model pseudo(u"r", All);
    pseudo.Class(u"g", Mnd, group, false);
    ExpectReads(pseudo, {"<r/> -> !Failed to find the mandatory element [g]", "<r><x>1</x></r> -> {1}"});
    Model silent(u"silent", XmlElementGroupType_Sequence, XmlElementType_PseudoNoAttributes);
    silent.Prim(u"x", Opt, ItemType_i4);
    Model spared(u"r", All);
    spared.Class(u"g", Mnd, silent, false);
    EXPECT_EQ(Read(spared, u"<r/>"), u"{-}");
}

TEST(AllGroup, AbstractMembersAreWrittenButNotRead) {
    const auto factory = [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); };
    Model circle(u"circle");
    Model mandatory(u"r", All);
    mandatory.Abstract(u"s", Mnd, factory);
    ExpectReads(mandatory, {"<r><any/></r> -> !CElementInfoAllAbsClsMnd::ElementFromXml, has not been "
                            "implemented fully, contact the Quillon Runtime maintainers"});
    Model optional(u"r", All);
    optional.Abstract(u"s", Opt, factory);
    ExpectReads(optional, {"<r><s/></r> -> !CElementInfoAllAbsClsOpt::ElementFromXml, has not been "
                           "implemented fully, contact the Quillon Runtime maintainers",
                           "<r/> -> -"});
    const auto object = optional.New();
    object->properties[0].SetXmlObject(circle.New(u"s"));
    EXPECT_EQ(Write(*object), u"<r><s/></r>");
}

} // namespace
