/// All groups: children in any order, each at most once.

#include "support/Roundtrip.h"

using namespace kit;

// Repeated particles of an all group cannot be made.
template <class... Classes>
constexpr bool areAbstract = (std::is_abstract_v<Classes> && ...);
static_assert(
    areAbstract<CElementInfoAllNonCol, CElementInfoAllCol, CElementInfoAllClsCol, CElementInfoAllEnumCol,
                CElementInfoAllAbsClsCol, CElementInfoAllPrimCol, CElementInfoAllUntpdCol>);

TEST(AllGroup, ReadsInAnyOrderAndWritesInTableOrder) {
    const Model& point = NewModel(u"point").Prim(u"x");
    const Model& r =
        NewModel(u"r", All).Prim(u"a").Colour(u"c", Opt).Class(u"p", Mnd, point).Class(u"q", Opt, point);
    ExpectReads(r, {"<r><q><x>4</x></q><p><x>3</x></p><c>red</c><a>1</a></r> -> 1|1|{3}|{4}",
                    "<r><p><x>3</x></p><a>1</a></r> -> 1|-|{3}|-"});
    EXPECT_EQ(Rewritten(r, u"<r><p><x>3</x></p><a>1</a></r>"), u"<r><a>1</a><p><x>3</x></p></r>");
}

TEST(AllGroup, ReportsMissingMembersBeforeLeftOverChildren) {
    const Model& r = NewModel(u"r", All).Prim(u"a").Prim(u"b", Opt);
    ExpectReads(r, {"<r><u/><a>1</a></r> -> !Failed to find the mandatory element [a]",
                    "<r><b>1</b></r> -> !Failed to find the mandatory element [a]",
                    "<r><a>1</a><a>2</a></r> -> +a"});
    ExpectReads(r, {"<r><b>1</b></r> -> !Failed to find the mandatory element [a]"}, missingElements);
    // Nothing is skipped: a member behind an unknown child is lost.
    ExpectReads(r, {"<r><a>1</a><u/></r> -> 1|-", "<r><a>1</a><u/><b>2</b></r> -> 1|-"}, unknownElements);
}

TEST(AllGroup, InAGroupGivesThePositionBack) {
    const Model& all = NewModel(u"all", All, Pseudo).Prim(u"a").Prim(u"b");
    ExpectReads(NewModel(u"r").Class(u"all", Opt, all).Prim(u"b", Opt).Prim(u"a", Opt),
                {"<r><b>2</b><a>1</a></r> -> {1,2}|-|-", "<r><b>2</b></r> -> -|2|-"});
}

TEST(AllGroup, AMandatoryObjectMayBeMissing) {
    const Model& child = NewModel(u"child").Prim(u"x", Opt);
    const Model& group = NewModel(u"group", Sequence, Pseudo).Prim(u"x", Opt);
    const Model& silent = NewModel(u"silent", Sequence, XmlElementType_PseudoNoAttributes).Prim(u"x", Opt);
    const auto read = [](const Model& member, bool consume, std::initializer_list<Row> rows) {
        ExpectReads(NewModel(u"r", All).Class(u"p", Mnd, member, consume), rows);
    };
    read(child, false, {"<r/> -> {-}"});
    read(child, true, {"<r/> -> !Failed to find the mandatory element [p]"});
    read(group, false, {"<r/> -> !Failed to find the mandatory element [p]", "<r><x>1</x></r> -> {1}"});
    read(silent, false, {"<r/> -> {-}"});
}

TEST(AllGroup, AbstractMembersAreWrittenButNotRead) {
    const auto declines = [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); };
    ExpectReads(NewModel(u"r", All).Abstract(u"s", Mnd, declines),
                {"<r><any/></r> -> !CElementInfoAllAbsClsMnd::ElementFromXml, has not been "
                 "implemented fully, contact the Quillon Runtime maintainers"});
    const Model& optional = NewModel(u"r", All).Abstract(u"s", Opt, declines);
    ExpectReads(optional, {"<r><s/></r> -> !CElementInfoAllAbsClsOpt::ElementFromXml, has not been "
                           "implemented fully, contact the Quillon Runtime maintainers",
                           "<r/> -> -"});
    const auto object = optional.New();
    object->properties[0].SetXmlObject(NewModel(u"circle").New(u"s"));
    EXPECT_EQ(Write(*object), u"<r><s/></r>");
}
