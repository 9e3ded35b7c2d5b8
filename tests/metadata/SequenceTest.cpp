/// Whole documents through sequences of single members: what is read, what each flag softens, what is
/// written.

#include "support/Roundtrip.h"

using namespace kit;

namespace {

struct SequenceOfPrimitives : testing::Test {
    SequenceOfPrimitives() {
        line.Prim(u"sku", Mnd, ItemType_string, false, Facets(u"[A-Z]+"))
            .Prim(u"count", Mnd, ItemType_i4, true);
        line.Prim(u"note", Opt, ItemType_string).Colour(u"colour", Mnd).Colour(u"other", Opt, true);
    }
    Model line{u"line"};
};

TEST_F(SequenceOfPrimitives, ReadsInOrderOrReportsWhatIsMissingOrLeftOver) {
    ExpectReads(
        line,
        {"<line><sku>A</sku><count> 7 </count><note>x</note><colour>red</colour></line> -> A|7|x|1|-",
         "<whatever><sku>A</sku><count>7</count><colour>green</colour><other>blue</other></whatever> "
         "-> A|7|-|2|3",
         "<line><count>7</count><colour>red</colour></line> -> !Failed to find a required element [sku]",
         "<line><sku>A</sku><count>7</count><colour>red</colour><extra/></line> -> +extra",
         "<line><sku>a</sku></line> -> !Invalid Value for sku [a]",
         "<line><sku>A</sku><count>x</count></line> -> !The value [x] can not be converted to a i4"});
    ExpectReads(line, {"<line><note>x</note></line> -> -|-|x|-|-", "<line><u/></line> -> +u"},
                missingElements);
}

TEST_F(SequenceOfPrimitives, UnknownElementsAreSkippedUnderTheFlag) {
    const std::u16string unknown = u"<line><u/><sku>A</sku><u/><count>7</count><u/><note>n</"
                                   u"note><colour>red</colour><other>blue</other><u/></line>";
    // An optional member never skips: the next mandatory one passes over the note behind an unknown element.
    EXPECT_EQ(Read(line, unknown, unknownElements), u"A|7|-|1|3");
    // What is left over gives the member that moved last another look, and a mandatory one insists.
    ExpectReads(line,
                {"<line><sku>A</sku><count>7</count><colour>red</colour><u/></line> -> A|7|-|1|-",
                 "<line><sku>A</sku><count>7</count><colour>red</colour><u/><u/></line> -> !Failed to find a "
                 "required element [colour]",
                 "<line><sku>A</sku><u/></line> -> !Failed to find a required element [count]"},
                unknownElements);
}

TEST_F(SequenceOfPrimitives, NilIsReadByItsAttribute) {
    const auto document = [&](const char16_t* sku, const char16_t* count) {
        return std::u16string(u"<line") + xsi + u"><sku xsi:nil='" + sku + u"'>A</sku><count xsi:nil='" +
               count + u"'>seven</count><colour>red</colour></line>";
    };
    EXPECT_EQ(Read(line, document(u"FALSE", u"TRUE")), u"A|nil|-|1|-");
    EXPECT_EQ(Read(line, document(u"0", u"1")), u"A|nil|-|1|-");
    EXPECT_EQ(Read(line, document(u"maybe", u"1")),
              FailedToRead(u"line", u"Invalid use of 'nil' attibute in non-nillable element [sku]"));
    EXPECT_EQ(Read(line, document(u"", u"maybe")),
              FailedToRead(u"line", u"Unexpected Value [maybe] for 'nil' Attribute found."));
}

TEST_F(SequenceOfPrimitives, WritesInOrderAndChecksFacetsBeforeTheTag) {
    const auto object = line.New();
    EXPECT_EQ(Write(*object), u"<line/>"); // mandatory values that are not there are left out
    object->properties[0].SetString(u"A");
    object->properties[1].SetNil();
    object->properties[3].SetI4(2);
    EXPECT_EQ(Write(*object),
              u"<line><sku>A</sku><count xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" "
              u"AA:nil=\"true\"/><colour>green</colour></line>");
    object->properties[0].SetString(u"a&b");
    EXPECT_EQ(Write(*object), FailedToWrite(u"line", u"Invalid Value for sku [a&b]"));
}

TEST(SequenceOfClasses, FailuresReadAsThePathOfElements) {
    Model point(u"point");
    point.Prim(u"x", Mnd, ItemType_i4).Prim(u"y", Mnd, ItemType_i1);
    Model shape(u"shape");
    shape.Class(u"from", Mnd, point).Class(u"to", Opt, point);
    ExpectReads(shape,
                {"<shape><from><x>1</x><y>2</y></from><to><x>3</x><y>4</y></to></shape> -> {1,2}|{3,4}",
                 "<shape><from><x>1</x><y>2</y></from><to><x>3</x><y>400</y></to></shape> -> !Failed to "
                 "process the element [to]\nThe value [400] is to large to fit in a i1"});

    const auto object = shape.New();
    EXPECT_FALSE(FailureOf([&] {
                     object->FromXml(u"<shape><from><x>1</x><y>2</y></from><to><x>3</x></to></shape>", {});
                 }).empty());
    EXPECT_EQ(object->Child(1), nullptr); // stored only once it is filled
    EXPECT_EQ(object->Child(0)->Text(1), u"2");

    object->Child(0)->properties[0] = KzVariant();
    object->Child(0)->properties[1].SetXmlObject(nullptr); // a kind that has no text
    EXPECT_EQ(
        Write(*object),
        FailedToWrite(u"shape",
                      u"Failed to convert the element [from] to XML\nInvalid Type 27 to convert to string"));
}

TEST(SequenceOfClasses, MandatoryObjectIsFilledNotReplacedAndKeptWhenWaived) {
    Model point(u"point"), shape(u"shape");
    point.Prim(u"x", Mnd, ItemType_i4);
    shape.Class(u"from", Mnd, point);
    const auto object = shape.New();
    const CModelObject* before = object->Child(0);
    object->FromXml(u"<shape><from><x>1</x></from></shape>", {});
    CXmlSerializationContext context;
    context.SetIgnoreMissingMandatoryElements(true);
    object->FromXml(u"<shape/>", context);
    EXPECT_EQ(object->Child(0), before);
    EXPECT_EQ(Show(*object), u"{1}");
}

TEST(AbstractClass, MustBeThereWhateverTheContextWaives) {
    Model r(u"r");
    r.Abstract(u"s", Mnd, [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); });
    for (const Flag flag : {none, missingElements, unknownElements})
        ExpectReads(r,
                    {"<r/> -> !Failed to find a suitable substitution element for [s]",
                     "<r><s/></r> -> !Failed to find a suitable substitution element for [s]"},
                    flag);
}

TEST(NestedGroups, GiveBackThePositionWhenTheyFail) {
    Model pair(u"pair", XmlElementGroupType_Sequence, XmlElementType_Pseudo);
    pair.Prim(u"a", Mnd, ItemType_i4).Prim(u"b", Mnd, ItemType_i4);
    Model optional(u"r");
    optional.Class(u"pair", Opt, pair).Prim(u"a", Opt, ItemType_i4);
    ExpectReads(optional,
                {"<r><a>1</a><b>2</b><a>3</a></r> -> {1,2}|3", "<r><a>1</a></r> -> -|1", "<r/> -> -|-"});

    Model required(u"r");
    required.Class(u"pair", Mnd, pair, true);
    ExpectReads(required, {"<r><a>1</a><c/></r> -> !Failed to find a required element [pair]",
                           "<r/> -> !Failed to find a required element [pair]"});

    Model relaxed(u"r");
    relaxed.Class(u"pair", Mnd, pair, false);
    EXPECT_EQ(Read(relaxed, u"<r/>"), u"{-,-}");
    EXPECT_EQ(Read(relaxed, u"<r><u/><a>1</a><u/><b>2</b></r>", unknownElements), u"{1,2}");

    // A group that took nothing is offered again only where a child is left, and an owner with a tag.
    Model between(u"r");
    between.Prim(u"x", Mnd, ItemType_i4).Class(u"pair", Mnd, pair).Prim(u"y", Mnd, ItemType_i4);
    ExpectReads(between, {"<r><x>1</x></r> -> !Failed to find a required element [y]"}, unknownElements);
    Model inner(u"inner", XmlElementGroupType_Sequence, XmlElementType_Pseudo);
    inner.Class(u"pair", Mnd, pair).Prim(u"y", Mnd, ItemType_i4);
    Model outer(u"r");
    outer.Class(u"inner", Opt, inner);
    EXPECT_EQ(Read(outer, u"<r><y>1</y></r>", unknownElements), u"{{-,-},1}");

    ExpectReads(relaxed, {"<r><a>1</a><b>x</b></r> -> !!The value [x] can not be converted to a i4"});
}

TEST(NestedGroups, PutTheirAttributesOnTheParent) {
    Model pseudo(u"group", XmlElementGroupType_Sequence, XmlElementType_Pseudo);
    pseudo.Attribute(u"g", Required, ItemType_i4).Prim(u"a", Mnd, ItemType_i4);
    Model silent(u"silent", XmlElementGroupType_Sequence, XmlElementType_PseudoNoAttributes);
    silent.Attribute(u"s", Optional, ItemType_i4).Prim(u"b", Mnd, ItemType_i4);
    Model root(u"r");
    root.Class(u"group", Mnd, pseudo).Class(u"silent", Mnd, silent).Attribute(u"own", Required, ItemType_i4);
    const auto object = root.New();
    object->properties[2].SetI4(0);
    for (CModelObject* child : {object->Child(0), object->Child(1)})
        for (KzVariant& value : child->properties)
            value.SetI4(1);
    EXPECT_EQ(Write(*object), u"<r own=\"0\" g=\"1\"><a>1</a><b>1</b></r>");
    // A pseudo class as root has no tag at all.
    EXPECT_EQ(Write(*object->Child(0)), u"<a>1</a>");
}

TEST(Attributes, AreMatchedValidatedAndWritten) {
    Model m(u"m");
    m.Attribute(u"id", Required, ItemType_i4, u"1")
        .Attribute(u"size", Optional, ItemType_i4, u"007")
        .Attribute(u"mode", Optional, ItemType_string, u"fast")
        .ColourAttribute(u"colour", Optional, u"red");
    ExpectReads(m, {"<m colour='blue' id=' 5 '/> -> 5|-|-|3",
                    "<m size='1'/> -> !Failed to find the required Attribute [id]",
                    "<m id='1' other='2'/> -> !Unexpected Attribute [other] found."});
    EXPECT_EQ(Read(m, u"<m id='1' other='2'/>", unknownAttributes), u"1|-|-|-");
    EXPECT_EQ(Read(m, std::u16string(u"<m id='1'") + xsi + u" xsi:schemaLocation='u f' xsi:type='t'/>"),
              u"1|-|-|-");
    // Primitive ones never ignore namespaces.
    CXmlSerializationContext lenient;
    lenient.SetIgnoreNamespaces(true);
    lenient.SetIgnoreUnknownAttributes(true);
    const auto qualified = m.New();
    qualified->FromXml(u"<m xmlns:p='urn:p' id='1' p:size='1' p:colour='red'/>", lenient);
    EXPECT_EQ(Show(*qualified), u"1|-|-|1");

    const auto object = m.New();
    EXPECT_EQ(
        Write(*object),
        FailedToWrite(u"m", u"Failed to convert attributes to XML\nInvalid Type 0 to convert to string"));
    object->properties[0].SetI4(1);
    object->properties[1].SetI4(7);
    object->properties[2].SetString(u"fast");
    object->properties[3].SetI4(1);
    EXPECT_EQ(Write(*object), u"<m id=\"1\" size=\"7\" mode=\"fast\" colour=\"red\"/>");
    // Texts are compared, not values: "7" is not the default "007". One that is required is always written.
    EXPECT_EQ(Write(*object, defaultAttributes), u"<m id=\"1\" size=\"7\"/>");
    // No default is no empty one, and nil is no missing value.
    Model plain(u"m");
    plain.Attribute(u"a", Optional, ItemType_string, u"");
    const auto empty = plain.New();
    empty->properties[0].SetString(u"");
    EXPECT_EQ(Write(*empty, defaultAttributes), u"<m a=\"\"/>");
    empty->properties[0] = KzVariant();
    empty->properties[0].SetNil();
    EXPECT_EQ(
        Write(*empty),
        FailedToWrite(u"m", u"Failed to convert attributes to XML\nInvalid Type 0 to convert to string"));
}

TEST(Names, AreComparedWithNamespacesUnlessIgnored) {
    Model m(u"m", XmlElementGroupType_Sequence, XmlElementType_Element, u"urn:m");
    m.Prim(u"a", Mnd, ItemType_i4);
    ExpectReads(m, {"<m xmlns='urn:m'><a>1</a></m> -> 1",
                    "<m><a>1</a></m> -> !Failed to find a required element [a]"});
    EXPECT_EQ(Read(m, u"<m><a>1</a></m>", namespaces), u"1");
    CXmlSerializationContext context;
    context.SetSchemaType(SchemaType_NoNamespaces);
    context.SetIgnoreUnknownAttributes(true);
    const auto object = m.New();
    object->FromXml(u"<m xmlns='urn:x'><a>2</a></m>", context);
    EXPECT_EQ(object->Text(0), u"2");
}

TEST(NillableClass, IsReadAndWrittenWithoutContent) {
    Model m(u"m");
    m.Nillable().Prim(u"a", Mnd, ItemType_i4).Attribute(u"id", Optional, ItemType_i4);
    const auto object = m.New();
    object->FromXml((std::u16string(u"<m") + xsi + u" xsi:nil='TRUE' id='4'><a>bad</a><b/></m>").c_str(), {});
    EXPECT_EQ(object->Text(0), u"-");
    object->properties[0].SetI4(9);
    EXPECT_EQ(Write(*object),
              u"<m id=\"4\" xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" AA:nil=\"true\"/>");
    EXPECT_EQ(Read(m, std::u16string(u"<m") + xsi + u" xsi:nil=' true'/>"),
              FailedToRead(u"m", u"Unexpected Value [ true] for 'nil' Attribute found."));
    Model plain(u"plain");
    EXPECT_EQ(Read(plain, std::u16string(u"<plain") + xsi + u" xsi:nil='false'/>"),
              FailedToRead(u"plain", u"Invalid use of 'nil' attibute in non-nillable element [plain]"));
}

TEST(TextOfAClass, FollowsTheChildren) {
    Model m(u"m");
    m.Prim(u"a", Opt, ItemType_i4).Content(ItemType_r8, u"%.2f");
    ExpectReads(m,
                {"<m>1<a>7</a>.5</m> -> 7|1.5", "<m>1 </m> -> !The value [1 ] can not be converted to a r8"});
    const auto object = m.New();
    object->properties[0].SetI4(7);
    object->properties[1].SetR8(2.5);
    EXPECT_EQ(Write(*object), u"<m><a>7</a>2.50</m>");
    object->properties[1].SetNil();
    EXPECT_EQ(Write(*object), FailedToWrite(u"m", u"Attributes must be added before elements"));
    object->properties[0] = KzVariant();
    EXPECT_EQ(Write(*object), u"<m xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" AA:nil=\"true\"/>");

    Model raw(u"raw");
    raw.Content(ItemType_i4, u"", true);
    EXPECT_EQ(Read(raw, u"<raw> x </raw>"), u" x ");
}

TEST(GroupType, OutsideTheThreeFailsWithAWordOfItsOwnOnEachRoad) {
    Model m(u"m", static_cast<XmlElementGroupType>(3));
    EXPECT_EQ(Read(m, u"<m/>"), FailedToRead(u"m", u"Unknow Group Type"));
    EXPECT_EQ(Write(*m.New()), FailedToWrite(u"m", u"Unknown XML Group Type"));
}

TEST(TypeAttribute, IsWrittenUnderAnotherNameThanTheOwn) {
    Model circle(u"Circle", XmlElementGroupType_Sequence, XmlElementType_Element, u"urn:s");
    circle.HasBaseClasses();
    const auto object = circle.New();
    EXPECT_EQ(Write(*object), u"<AA:Circle xmlns:AA=\"urn:s\"/>");
    object->SetElementName(u"shape");
    EXPECT_EQ(Write(*object),
              u"<AA:shape xmlns:AA=\"urn:s\" xmlns:AB=\"http://www.w3.org/2001/XMLSchema-instance\" "
              u"AB:type=\"AA:Circle\"/>");
    CXmlSerializationContext context;
    context.SetWriteTypeAttribute(false);
    EXPECT_EQ(Write(*object, context), u"<AA:shape xmlns:AA=\"urn:s\"/>");
}

TEST(RootOutput, FollowsTheContext) {
    Model m(u"m", XmlElementGroupType_Sequence, XmlElementType_Element, u"urn:m");
    m.Attribute(u"id", Optional, ItemType_i4).Prim(u"a", Opt, ItemType_string);
    const auto object = m.New();
    object->properties[0].SetI4(1);
    object->properties[1].SetString(u"x\r\ny<");
    CXmlSerializationContext context;
    context.GetProcessingInstructions() = {u"<?one?>", u"<?two?>"};
    context.GetNamespaceAliases().Add(u"z", u"urn:b");
    context.GetNamespaceAliases().Add(u"y", u"urn:a");
    context.SetDefaultNamespaceURI(u"urn:m");
    context.SetInLineSchema(u"<schema/>");
    EXPECT_EQ(
        object->ToXml(true, true, EOLType_CRLF, context),
        u"<?xml version=\"1.0\"?>\r\n<?one?>\r\n\r\n<?two?>\r\n\r\n<m xmlns=\"urn:m\" xmlns:y=\"urn:a\" "
        u"xmlns:z=\"urn:b\" id=\"1\" \r\n<schema/>\r\n>\r\n\t<a>x\r\ny&lt;</a>\r\n</m>\r\n");
}

struct DeepObjects : testing::Test {
    DeepObjects() { node.Class(u"n", Opt, node).Prim(u"v", Opt, ItemType_i4); }
    Model node{u"n"};
};

TEST_F(DeepObjects, MayBeReadOnTheStackOfACoroutine) {
    static const Model* model;
    static std::u16string result;
    model = &node;
    support::RunAsCoroutine([] { result = Read(*model, u"<n><n><v>1</v></n></n>"); });
    EXPECT_EQ(result, u"{-,1}|-");
}

TEST_F(DeepObjects, StopInWritingTooAlsoWhereGroupsHaveNoTags) {
    Model group(u"g", XmlElementGroupType_Sequence, XmlElementType_Pseudo);
    group.Class(u"g", Opt, group);
    Model root(u"r");
    root.Class(u"g", Opt, group);
    for (const Model* model : {&node, &group}) {
        CSmartPtr<CModelObject> outermost = model->New();
        for (int i = 0; i < 20000; ++i) {
            const CSmartPtr<CModelObject> outer = model->New();
            outer->properties[0].SetXmlObject(outermost);
            outermost = outer;
        }
        const CSmartPtr<CModelObject> top = root.New();
        top->properties[0].SetXmlObject(outermost);
        EXPECT_NE(Write(*top).find(u"\nThe elements are nested too deep ("), std::u16string::npos);
    }
}

} // namespace
