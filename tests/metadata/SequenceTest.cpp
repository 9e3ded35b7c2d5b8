/// Whole documents through sequences of single members: what is read, what each flag softens, what is
/// written.

#include "support/Roundtrip.h"

using namespace kit;

namespace {

struct SequenceOfPrimitives : testing::Test {
    const Model& line = NewModel(u"line")
                            .Prim(u"sku", Mnd, ItemType_string, false, Facets(u"[A-Z]+"))
                            .Prim(u"count", Mnd, ItemType_i4, true)
                            .Prim(u"note", Opt, ItemType_string)
                            .Colour(u"colour", Mnd)
                            .Colour(u"other", Opt, true);
};

TEST_F(SequenceOfPrimitives, ReadsItsMembersInOrder) {
    ExpectReads(line,
                {"<line><sku>A</sku><count> 7 </count><note>x</note><colour>red</colour></line> -> A|7|x|1|-",
                 "<whatever><sku>A</sku><count>7</count><colour>green</colour><other>blue</other></whatever> "
                 "-> A|7|-|2|3",
                 "<line><count>7</count><colour>red</colour></line> -> ?sku",
                 "<line><sku>A</sku><count>7</count><colour>red</colour><extra/></line> -> +extra",
                 "<line><sku>a</sku></line> -> !Invalid Value for sku [a]",
                 "<line><sku>A</sku><count>x</count></line> -> !The value [x] can not be converted to a i4"});
    ExpectReads(line, {"<line><note>x</note></line> -> -|-|x|-|-", "<line><u/></line> -> +u"},
                missingElements);
    ExpectReads(line,
                {// An optional member never skips: the next mandatory one passes over the note behind an
                 // unknown element.
                 "<line><u/><sku>A</sku><u/><count>7</count><u/><note>n</note><colour>red</colour>"
                 "<other>blue</other><u/></line> -> A|7|-|1|3",
                 // What is left over gives the member that moved last another look, and a mandatory one
                 // insists.
                 "<line><sku>A</sku><count>7</count><colour>red</colour><u/></line> -> A|7|-|1|-",
                 "<line><sku>A</sku><count>7</count><colour>red</colour><u/><u/></line> -> ?colour",
                 "<line><sku>A</sku><u/></line> -> ?count"},
                unknownElements);
}

TEST_F(SequenceOfPrimitives, NilIsReadByItsAttribute) {
    ExpectRows({"FALSE TRUE -> A|nil|-|1|-", "0 1 -> A|nil|-|1|-",
                "maybe 1 -> Invalid use of 'nil' attibute in non-nillable element [sku]",
                " maybe -> Unexpected Value [maybe] for 'nil' Attribute found."},
               [&](const std::u16string& nils) {
                   const std::size_t blank = nils.find(u' ');
                   const std::u16string read =
                       Read(line, u"<line" + xsi + u"><sku xsi:nil='" + nils.substr(0, blank) +
                                      u"'>A</sku><count xsi:nil='" + nils.substr(blank + 1) +
                                      u"'>seven</count><colour>red</colour></line>");
                   const std::u16string failed = FailedToRead(u"line", u"");
                   return ToUtf8(read.starts_with(failed) ? read.substr(failed.size()) : read);
               });
}

TEST_F(SequenceOfPrimitives, WritesItsMembersInOrder) {
    const std::u16string text = u"<line><sku>A</sku><count" + nilled + u"/><colour>green</colour></line>";
    EXPECT_EQ(Rewritten(line, text), text);
    const auto object = line.New();
    EXPECT_EQ(Write(*object), u"<line/>"); // mandatory values that are not there are left out
    object->properties[0].SetString(u"a&b");
    EXPECT_EQ(Write(*object), FailedToWrite(u"line", u"Invalid Value for sku [a&b]"));
}

TEST(SequenceOfClasses, FailuresReadAsThePathOfElements) {
    const Model& point = NewModel(u"point").Prim(u"x").Prim(u"y", Mnd, ItemType_i1);
    const Model& shape = NewModel(u"shape").Class(u"from", Mnd, point).Class(u"to", Opt, point);
    ExpectReads(shape,
                {"<shape><from><x>1</x><y>2</y></from><to><x>3</x><y>4</y></to></shape> -> {1,2}|{3,4}",
                 "<shape><from><x>1</x><y>2</y></from><to><x>3</x><y>400</y></to></shape> -> !Failed to "
                 "process the element [to]\nThe value [400] is to large to fit in a i1"});

    const auto object = shape.New();
    const CModelObject& from = *object->Child(0);
    EXPECT_NE(FailureOf([&] {
                  object->FromXml(u"<shape><from><x>1</x><y>2</y></from><to><x>3</x></to></shape>", {});
              }),
              u"");
    EXPECT_EQ(Show(*object), u"{1,2}|-"); // the second is stored only once it is filled
    // A mandatory object is filled, not replaced, and kept when it is waived.
    object->FromXml(u"<shape/>", missingElements);
    EXPECT_EQ(object->Child(0), &from);
    EXPECT_EQ(Show(*object), u"{1,2}|-");

    object->Child(0)->properties[0] = KzVariant();
    object->Child(0)->properties[1].SetXmlObject(nullptr); // a kind that has no text
    EXPECT_EQ(Write(*object),
              FailedToWrite(u"shape", FailedToWrite(u"from", u"Invalid Type 27 to convert to string")));
}

TEST(AbstractClass, MustBeThereWhateverTheContextWaives) {
    const Model& r =
        NewModel(u"r").Abstract(u"s", Mnd, [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); });
    for (const auto* context : {&strict, &missingElements, &unknownElements})
        for (const char16_t* xml : {u"<r/>", u"<r><s/></r>"})
            EXPECT_EQ(Read(r, xml, *context),
                      FailedToRead(u"r", u"Failed to find a suitable substitution element for [s]"));
}

TEST(NestedGroups, GiveBackThePositionWhenTheyFail) {
    const Model& pair = NewModel(u"pair", Sequence, Pseudo).Prim(u"a").Prim(u"b");
    ExpectReads(NewModel(u"r").Class(u"pair", Opt, pair).Prim(u"a", Opt),
                {"<r><a>1</a><b>2</b><a>3</a></r> -> {1,2}|3", "<r><a>1</a></r> -> -|1", "<r/> -> -|-"});
    ExpectReads(NewModel(u"r").Class(u"pair", Mnd, pair, true),
                {"<r><a>1</a><c/></r> -> ?pair", "<r/> -> ?pair"});
    const Model& relaxed = NewModel(u"r").Class(u"pair", Mnd, pair, false);
    ExpectReads(relaxed,
                {"<r/> -> {-,-}", "<r><a>1</a><b>x</b></r> -> !!The value [x] can not be converted to a i4"});
    ExpectReads(relaxed, {"<r><u/><a>1</a><u/><b>2</b></r> -> {1,2}"}, unknownElements);

    // A group that took nothing is offered again only where a child is left, and an owner with a tag.
    ExpectReads(NewModel(u"r").Prim(u"x").Class(u"pair", Mnd, pair).Prim(u"y"), {"<r><x>1</x></r> -> ?y"},
                unknownElements);
    const Model& inner = NewModel(u"inner", Sequence, Pseudo).Class(u"pair", Mnd, pair).Prim(u"y");
    ExpectReads(NewModel(u"r").Class(u"inner", Opt, inner), {"<r><y>1</y></r> -> {{-,-},1}"},
                unknownElements);
}

TEST(NestedGroups, PutTheirAttributesOnTheParent) {
    const Model& pseudo = NewModel(u"group", Sequence, Pseudo).Attribute(u"g").Prim(u"a");
    const Model& silent =
        NewModel(u"silent", Sequence, XmlElementType_PseudoNoAttributes).Attribute(u"s", Optional).Prim(u"b");
    const auto object =
        NewModel(u"r").Class(u"group", Mnd, pseudo).Class(u"silent", Mnd, silent).Attribute(u"own").New();
    object->properties[2].SetI4(0);
    for (CModelObject* child : {object->Child(0), object->Child(1)})
        for (KzVariant& value : child->properties)
            value.SetI4(1);
    EXPECT_EQ(Write(*object), u"<r own=\"0\" g=\"1\"><a>1</a><b>1</b></r>");
    EXPECT_EQ(Write(*object->Child(0)), u"<a>1</a>"); // a pseudo class as root has no tag at all
}

TEST(Attributes, AreMatchedValidatedAndWritten) {
    const Model& m = NewModel(u"m")
                         .Attribute(u"id", Required, ItemType_i4, u"1")
                         .Attribute(u"size", Optional, ItemType_i4, u"007")
                         .Attribute(u"mode", Optional, ItemType_string, u"fast")
                         .ColourAttribute(u"colour", Optional, u"red");
    ExpectReads(m, {"<m colour='blue' id=' 5 '/> -> 5|-|-|3",
                    "<m size='1'/> -> !Failed to find the required Attribute [id]",
                    "<m id='1' other='2'/> -> !Unexpected Attribute [other] found."});
    EXPECT_EQ(Read(m, u"<m id='1' other='2'/>", unknownAttributes), u"1|-|-|-");
    EXPECT_EQ(Read(m, u"<m id='1'" + xsi + u" xsi:schemaLocation='u f' xsi:type='t'/>"), u"1|-|-|-");
    // Primitive ones never ignore namespaces.
    CXmlSerializationContext lenient = namespaces;
    lenient.SetIgnoreUnknownAttributes(true);
    EXPECT_EQ(Read(m, u"<m xmlns:p='urn:p' id='1' p:size='1' p:colour='red'/>", lenient), u"1|-|-|1");

    const auto object = m.New();
    const std::u16string text = u"<m id=\"1\" size=\"7\" mode=\"fast\" colour=\"red\"/>",
                         noValue = FailedToWrite(u"m", u"Failed to convert attributes to XML\n"
                                                       u"Invalid Type 0 to convert to string");
    EXPECT_EQ(Write(*object), noValue);
    object->FromXml(text.c_str(), {});
    EXPECT_EQ(Write(*object), text);
    // Texts are compared, not values: "7" is not the default "007". One that is required is always written.
    EXPECT_EQ(Write(*object, defaultAttributes), u"<m id=\"1\" size=\"7\"/>");
    // No default is no empty one, and nil is no missing value.
    const auto empty = NewModel(u"m").Attribute(u"a", Optional, ItemType_string, u"").New();
    empty->FromXml(u"<m a=''/>", {});
    EXPECT_EQ(Write(*empty, defaultAttributes), u"<m a=\"\"/>");
    empty->properties[0] = KzVariant();
    empty->properties[0].SetNil();
    EXPECT_EQ(Write(*empty), noValue);
}

TEST(Names, AreComparedWithNamespacesUnlessIgnored) {
    const Model& m = NewModel(u"m", Sequence, XmlElementType_Element, u"urn:m").Prim(u"a");
    ExpectReads(m, {"<m xmlns='urn:m'><a>1</a></m> -> 1", "<m><a>1</a></m> -> ?a"});
    EXPECT_EQ(Read(m, u"<m><a>1</a></m>", namespaces), u"1");
    CXmlSerializationContext context = unknownAttributes;
    context.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_EQ(Read(m, u"<m xmlns='urn:x'><a>2</a></m>", context), u"2");
}

TEST(Names, AreKnownAgainForNoOtherDescriptorNorUnderIgnoredNamespaces) {
    using Info = CElementInfoSeqUntpdCol;
    CXmlDocument document;
    document.LoadXml("<r><a/><a xmlns='urn:a'/></r>");
    CXmlElement* const plain = document.GetDocumentElement()->GetFirstElement();
    const auto matches = [&](const Info& info) {
        std::string result;
        for (int round = 0; round < 2; ++round) // known in the second
            for (const CXmlElement* element : {plain, plain->GetNextSiblingElement()})
                for (const Context& context : {namespaces, Context()})
                    result += info.IsThisElement(context, element) ? '1' : '0';
        return result;
    };
    const Info infos[] = {Info(u"a", u"", 0), Info(u"a", u"urn:a", 0), Info(u"b", u"", 0)};
    const char* const expected[] = {"11101110", "10111011", "00000000"};
    Info changing = infos[2];
    for (const std::size_t i : {0, 1, 2, 0, 2, 1}) {
        changing = infos[i];
        EXPECT_EQ(matches(infos[i]), expected[i]);
        EXPECT_EQ(matches(changing), expected[i]);
    }
}

TEST(NillableClass, IsReadAndWrittenWithoutContent) {
    const Model& m = NewModel(u"m").Nillable().Prim(u"a").Attribute(u"id", Optional);
    const auto object = m.New();
    object->FromXml((u"<m" + xsi + u" xsi:nil='TRUE' id='4'><a>bad</a><b/></m>").c_str(), {});
    EXPECT_EQ(object->Text(0), u"-");
    object->properties[0].SetI4(9);
    EXPECT_EQ(Write(*object), u"<m id=\"4\"" + nilled + u"/>");
    EXPECT_EQ(Read(m, u"<m" + xsi + u" xsi:nil=' true'/>"),
              FailedToRead(u"m", u"Unexpected Value [ true] for 'nil' Attribute found."));
    EXPECT_EQ(Read(NewModel(u"plain"), u"<plain" + xsi + u" xsi:nil='false'/>"),
              FailedToRead(u"plain", u"Invalid use of 'nil' attibute in non-nillable element [plain]"));
}

TEST(TextOfAClass, FollowsTheChildren) {
    const Model& m = NewModel(u"m").Prim(u"a", Opt).Content(ItemType_r8, u"%.2f");
    ExpectReads(m,
                {"<m>1<a>7</a>.5</m> -> 7|1.5", "<m>1 </m> -> !The value [1 ] can not be converted to a r8"});
    const auto object = m.New();
    object->properties[0].SetI4(7);
    object->properties[1].SetR8(2.5);
    EXPECT_EQ(Write(*object), u"<m><a>7</a>2.50</m>");
    object->properties[1].SetNil();
    EXPECT_EQ(Write(*object), FailedToWrite(u"m", u"Attributes must be added before elements"));
    object->properties[0] = KzVariant();
    EXPECT_EQ(Write(*object), u"<m" + nilled + u"/>");
    EXPECT_EQ(Read(NewModel(u"raw").Content(ItemType_i4, u"", true), u"<raw> x </raw>"), u" x ");
}

TEST(GroupType, OutsideTheThreeFails) {
    const Model& m = NewModel(u"m", static_cast<XmlElementGroupType>(3));
    EXPECT_EQ(Read(m, u"<m/>"), FailedToRead(u"m", u"Unknow Group Type"));
    EXPECT_EQ(Write(*m.New()), FailedToWrite(u"m", u"Unknown XML Group Type"));
}

TEST(TypeAttribute, IsWrittenUnderAnotherNameThanTheOwn) {
    const auto object =
        NewModel(u"Circle", Sequence, XmlElementType_Element, u"urn:s").HasBaseClasses().New();
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
    const auto object = NewModel(u"m", Sequence, XmlElementType_Element, u"urn:m")
                            .Attribute(u"id", Optional)
                            .Prim(u"a", Opt, ItemType_string)
                            .Class(u"c", Mnd, NewModel(u"c").Attribute(u"id", Optional))
                            .New();
    object->properties[0].SetI4(1);
    object->properties[1].SetString(u"x\r\ny<");
    CXmlSerializationContext context;
    context.GetAdditionalRootAttributes()->Add(u"lang", u"en");
    context.GetAdditionalRootAttributes()->Add(u"v", u"1", u"urn:v");
    context.GetProcessingInstructions() = {u"<?one?>", u"<?two?>"};
    context.GetNamespaceAliases().Add(u"z", u"urn:b");
    context.GetNamespaceAliases().Add(u"y", u"urn:a");
    context.SetDefaultNamespaceURI(u"urn:m");
    context.SetInLineSchema(u"<schema/>");
    EXPECT_EQ(
        object->ToXml(true, true, EOLType_CRLF, context),
        u"<?xml version=\"1.0\"?>\r\n<?one?>\r\n\r\n<?two?>\r\n\r\n<m xmlns=\"urn:m\" xmlns:y=\"urn:a\" "
        u"xmlns:z=\"urn:b\" lang=\"en\" xmlns:AA=\"urn:v\" AA:v=\"1\" id=\"1\" \r\n<schema/>\r\n>\r\n\t"
        u"<a>x\r\ny&lt;</a>\r\n\t<c/>\r\n</m>\r\n");
}

TEST(DeepObjects, MayBeReadOnTheStackOfACoroutine) {
    static const Model& node = NewModel(u"n").Class(u"n", Opt, NewModel(u"n").Prim(u"v")).Prim(u"v", Opt);
    static std::u16string result;
    support::RunAsCoroutine([] { result = Read(node, u"<n><n><v>1</v></n></n>"); });
    EXPECT_EQ(result, u"{1}|-");
}

TEST(DeepObjects, StopInWritingToo) {
    for (const XmlElementType type : {Element, Pseudo}) { // also where groups have no tags
        Model& node = NewModel(u"g", Sequence, type);
        node.Class(u"g", Opt, node);
        CSmartPtr<CModelObject> outermost = node.New();
        for (int i = 0; i < 20000; ++i) {
            const CSmartPtr<CModelObject> outer = node.New();
            outer->properties[0].SetXmlObject(outermost);
            outermost = outer;
        }
        const CSmartPtr<CModelObject> top = NewModel(u"r").Class(u"g", Opt, node).New();
        top->properties[0].SetXmlObject(outermost);
        EXPECT_NE(Write(*top).find(u"\nThe elements are nested too deep ("), std::u16string::npos);
    }
}

} // namespace
