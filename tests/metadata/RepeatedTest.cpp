/// Repeated members and wildcards of sequences, and attribute wildcards.

#include "support/Roundtrip.h"

using namespace kit;

namespace {

CXmlObjectBase* NewElements() { return new CElementCol(u"", u"##any", u"urn:t", 0, unbounded); }
CXmlObjectBase* NewAttributes() { return new CAttributeCol(u"", u"##any", u"urn:t"); }
CXmlObjectBase* NewElement() { return new CElement(u"AnyElement", u"", u"##local", u"urn:t"); }

TEST(RepeatedMember, TakesOneRunAndChecksItsCount) {
    const Model& item = NewModel(u"item").Content(ItemType_i4);
    const Model& r = NewModel(u"r").Collection(u"a", item, 1, 2).Prim(u"b", Opt);
    ExpectReads(r, {"<r><a>1</a><a>2</a><b>3</b></r> -> [{1}{2}]|3",
                    "<r><b>3</b></r> -> !The Minimum number of [a] elements allowed in this collection is 1",
                    "<r><a>1</a><a>2</a><a>3</a></r> -> !The Maximum number of [a] elements allowed in this "
                    "collection is 2",
                    "<r><a>1</a><a>x</a></r> -> !Failed to process the element [a]\nThe value [x] can not be "
                    "converted to a i4",
                    "<r><a>1</a><b>2</b><a>3</a></r> -> +a"});
    EXPECT_EQ(Read(r, u"<r><a>1</a><a>2</a><a>3</a></r>", invalidCounts), u"[{1}{2}{3}]|-");
    // Under the flag, what stands between is skipped and the repeated member, which moved last, looks again.
    ExpectReads(NewModel(u"r").Prim(u"b", Opt).Collection(u"a", item),
                {"<r><b>1</b><a>1</a><u/><a>2</a><u/></r> -> 1|[{1}{2}]"}, unknownElements);
}

/// Notes what descriptors ask of it.
class CWatched : public CModelObject {
public:
    using CModelObject::CModelObject;
    using CModelObject::ToXml_Int;
    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override {
        calls += (read ? "read " : "write ") + std::to_string(propertyIndex) + ", ";
        CModelObject::AccessProperty(propertyIndex, read, value);
    }
    std::u16string GetNamespace() const override {
        calls += "namespace, ";
        return CModelObject::GetNamespace();
    }
    mutable std::string calls;
};

TEST(RepeatedMember, IsCountedOnWritingInASequence) {
    const Model& r = NewModel(u"r").Collection(u"a", NewModel(u"item"), 1);
    CWatched watched(r, u"r"); // the count and the items are two reads of their own
    watched.FromXml(u"<r><a/></r>", {});
    EXPECT_EQ(std::exchange(watched.calls, ""), "namespace, read 0, ");
    EXPECT_EQ(Write(watched) + Write(watched, invalidCounts), u"<r><a/></r><r><a/></r>");
    EXPECT_EQ(watched.calls, "read 0, read 0, read 0, ");
    CTextStream stream(XmlEncoding_None);
    CXmlTextWriter writer(&stream);
    EXPECT_EQ(FailureOf([&] { watched.ToXml_Int(&writer, false, nullptr, {}, false); }),
              FailedToWrite(u"r", u"The argument elementNamespace may not be null"));
    EXPECT_EQ(Write(*r.New()),
              FailedToWrite(u"r", u"The Minimum number of [a] elements allowed in this collection is 1"));
    EXPECT_EQ(Write(*r.New(), invalidCounts), u"<r/>");
}

TEST(RepeatedMember, OfAGroupStopsWhereTheGroupTakesNothing) {
    const Model& pair = NewModel(u"pair", Sequence, Pseudo).Attribute(u"n", Optional).Prim(u"a").Prim(u"b");
    const Model& r = NewModel(u"r").Collection(u"pair", pair, 0).Prim(u"a", Opt);
    EXPECT_EQ(Read(r, u"<r><a>1</a><b>2</b><a>3</a><b>4</b><a>5</a></r>"), u"[{-,1,2}{-,3,4}]|5");
    const auto object = r.New();
    object->FromXml(u"<r><a>1</a><b>2</b></r>", {});
    object->Children(0)->Item(0)->properties[0].SetI4(6);
    EXPECT_EQ(Write(*object), u"<r n=\"6\"><a>1</a><b>2</b></r>");

    const Model& group = NewModel(u"group", Sequence, Pseudo).Collection(u"i", NewModel(u"item"), 2);
    ExpectReads(NewModel(u"r")
                    .Class(u"group", Opt, group)
                    .Element(new CElementInfoSeqUntpdOpt(u"AnyElement", u"", 1, u"##any", u"")),
                {"<r><i/></r> -> -|<i/>"}); // too few for the group, so it gives the item back
}

TEST(Wildcard, TakesOneElementOfAnyName) {
    ExpectReads(NewModel(u"r")
                    .Prim(u"a", Opt)
                    .Element(new CElementInfoSeqUntpdOpt(u"AnyElement", u"", 1, u"##any", u"urn:t"))
                    .Prim(u"z", Opt),
                {"<r><a>1</a><x k='v'><y>t</y></x><z>2</z></r> -> 1|<x k=\"v\"><y>t</y></x>|2",
                 "<r><a>1</a></r> -> 1|-|-",
                 "<r><z>2</z></r> -> -|<z>2</z>|-"}); // it stands first, so it takes it
    EXPECT_THROW(CElementInfoSeqUntpdOpt(u"x", u"", 0, nullptr, u""), CKzInvalidParamException);
    ExpectReads(NewModel(u"r").Element(new CElementInfoSeqUntpdOpt(u"x", u"", 0, u"##any", u"")),
                {"<r><p:x xmlns:p='urn:p'/></r> -> <AA:x xmlns:AA=\"urn:p\"/>", "<r><y/></r> -> +y"});
}

TEST(Wildcard, MandatoryFailsInItsOwnWords) {
    ExpectReads(
        NewModel(u"r").Element(new CElementInfoSeqUntpdMnd(u"AnyElement", u"urn:n", 0, u"##local", u"urn:t"),
                               NewElement),
        {"<r><x/></r> -> <x/>",
         "<r><x xmlns='urn:t'/></r> -> !Failed to find the required element from namespace [urn:n]",
         "<r/> -> ?AnyElement"});
    // An object is asked for only where the name agrees.
    ExpectReads(NewModel(u"r").Element(new CElementInfoSeqUntpdMnd(u"w", u"urn:n", 0, u"##any", u"")),
                {"<r><x/></r> -> !Failed to find the required element from namespace [urn:n]",
                 "<r><w/></r> -> !The object of the mandatory element [w] is null"});
    // Even in a group the end of the list is a failure.
    const Model& group =
        NewModel(u"group", Sequence, Pseudo)
            .Prim(u"a")
            .Element(new CElementInfoSeqUntpdMnd(u"AnyElement", u"", 1, u"##local", u"urn:t"), NewElement);
    ExpectReads(NewModel(u"r").Class(u"group", Opt, group), {"<r><a>1</a></r> -> !?AnyElement"});
}

TEST(Wildcard, RepeatedTakesTheRest) {
    ExpectReads(
        NewModel(u"r").Prim(u"a", Opt).Element(new CElementInfoSeqUntpdCol(u"AnyElement", u"", 1),
                                               NewElements),
        {"<r><a>1</a><x/><p:y xmlns:p='urn:p'>t</p:y></r> -> 1|[<x/><AA:y xmlns:AA=\"urn:p\">t</AA:y>]",
         "<r/> -> -|[]"});
    // Locked to one name, in the namespace of the first.
    ExpectReads(
        NewModel(u"r").Element(new CElementInfoSeqUntpdCol(u"x", u"", 0), NewElements).Prim(u"y", Opt),
        {"<r><x/><x>2</x><y>3</y></r> -> [<x/><x>2</x>]|3", "<r/> -> []|-",
         "<r xmlns='urn:r'><x/><x xmlns=''/></r> -> +x"});
}

TEST(Wildcard, InAChoiceAndInAnAllGroup) {
    ExpectReads(NewModel(u"r", Choice)
                    .Prim(u"a", Opt)
                    .Element(new CElementInfoChoiceUntpdCol(u"x", u"", 1), NewElements),
                {"<r><x/><x/></r> -> -|[<x/><x/>]", "<r><a>1</a></r> -> 1|[]",
                 "<r/> -> -|[]"}); // nothing left, nothing taken
    const Model& single = NewModel(u"r", Choice)
                              .Element(new CElementInfoChoiceUntpdOpt(u"x", u"", 0, u"##any", u""))
                              .Prim(u"y", Opt);
    ExpectReads(single, {"<r><x>t</x></r> -> <x>t</x>|-", "<r><y>1</y></r> -> -|1"});
    const auto missed = single.New();
    missed->FromXml(u"<r><y>1</y></r>", {});
    EXPECT_EQ(missed->properties[0].GetTypeAsEnum(), ItemType_xmlObject); // a null one, not none

    ExpectReads(
        NewModel(u"r", All).Element(new CElementInfoAllUntpdOpt(u"x", u"", 0, u"##any", u"")).Prim(u"a"),
        {"<r><a>1</a><x>t</x></r> -> <x>t</x>|1", "<r><a>1</a></r> -> -|1"});
    ExpectReads(
        NewModel(u"r", All).Element(new CElementInfoAllUntpdMnd(u"x", u"", 0, u"##any", u""), NewElement),
        {"<r/> -> !Failed to find the mandatory element [x]", "<r><x>t</x></r> -> <x>t</x>"});
}

TEST(AttributeWildcard, TakesWhatItsConstraintAdmits) {
    const Model& r =
        NewModel(u"r", Sequence, XmlElementType_Element, u"urn:t")
            .Attribute(u"id")
            .AddAttribute(new CAttributeInfoAny(u"", u"", 1, true, u"##other", u"urn:t", u""), NewAttributes);
    ExpectReads(r, {"<r xmlns='urn:t' xmlns:p='urn:p' id='1' p:x='2' y='3'/> -> 1|[x=2 y=3 ]",
                    "<r xmlns='urn:t' xmlns:t='urn:t' id='1' t:x='2'/> -> !Unexpected Attribute [x] found."});
    EXPECT_EQ(Rewritten(r, u"<r xmlns='urn:t' xmlns:p='urn:p' id='1' p:x='2'/>"),
              u"<AA:r xmlns:AA=\"urn:t\" id=\"1\" xmlns:AB=\"urn:p\" AB:x=\"2\"/>");
    // In front of a named attribute it takes that too.
    const auto any = [] { return new CAttributeInfoAny(u"", u"", 0, true, u"##any", u"", u""); };
    ExpectReads(NewModel(u"r").AddAttribute(any(), NewAttributes).Attribute(u"id", Optional),
                {"<r id='1'/> -> [id=1 ]|-"});
    for (const Model::Make& held : {Model::Make(NewElements), Model::Make()})
        ExpectReads(NewModel(u"r").AddAttribute(any(), held),
                    {"<r id='1'/> -> !Serialization Data Error : The collection should be a "
                     "CAttributeCol, it was not!"});
    EXPECT_EQ(Write(*NewModel(u"r").AddAttribute(any()).New()), u"<r/>");
}

TEST(DefaultNamespaceOfAWildcard, FollowsItsConstraint) {
    const auto fallback = [](const char16_t* constraint, const char16_t* owner = u"urn:o") {
        return ToUtf8(CElementInfo::GetAnyDefaultNamespace(constraint, owner, u"urn:t"));
    };
    ExpectRows({"##any -> urn:o", "##any ##other -> urn:o", "##other -> ", "##local -> ",
                "##targetNamespace ##local -> urn:t", "urn:a urn:b -> "},
               fallback);
    EXPECT_EQ(fallback(u"##other", u""), "DefaultNamespace");
}

} // namespace
