#include "support/Test.h"

namespace {

std::string Read(const char16_t* xml) {
    CElement element(u"any");
    element.FromXml(xml);
    return Text(element);
}

TEST(CElement, KeepsNamesAttributesChildrenAndText) {
    // Deliberate: the text goes behind the children.
    EXPECT_EQ(
        Read(u"<n:note xmlns:n='urn:n' lang='en' n:id='1'>fragile<line>x</line> <n:line/>y</n:note>"),
        "<AA:note xmlns:AA=\"urn:n\" lang=\"en\" AA:id=\"1\"><line>x</line><AA:line/>fragile y</AA:note>");
}

TEST(CElement, ReadingAddsToWhatItHolds) {
    EventLog log([](void* item) {
        const auto* child = static_cast<CElement*>(static_cast<CXmlObjectBase*>(item));
        return ToUtf8(child->GetName() + u"=" + child->GetText());
    });
    CElement element(u"any");
    log.Watch(*element.GetChildElements());
    element.FromXml(u"<r a='1'><x>1</x></r>");
    element.FromXml(u"<s b='2'><y>2</y></s>");
    EXPECT_EQ(Text(element), "<s a=\"1\" b=\"2\"><x>1</x><y>2</y></s>");
    EXPECT_EQ(log.Take(), "add(x=1) added(x=1) change add(y=2) added(y=2) change "); // whole when added
    element.GetChildElements()->RemoveEventListener(&log);
}

TEST(CElement, TakesOnlyWhatItsRestrictionAdmits) {
    CElement element(u"AnyElement", u"urn:a");
    element.FromXml(u"<x xmlns='urn:b'>1</x>");
    EXPECT_EQ(element.GetName(), u"AnyElement");
    element.FromXml(u"<x xmlns='urn:a'><y xmlns='urn:b'/></x>");
    // Children are not restricted.
    EXPECT_EQ(Text(element), "<AA:x xmlns:AA=\"urn:a\"><AB:y xmlns:AB=\"urn:b\"/></AA:x>");
    // The common entry point offers the children of the root.
    element.CXmlObjectBase::FromXml(u"<r/>", {});
    EXPECT_EQ(element.GetName(), u"x");
}

TEST(CElement, RefusesBadArguments) {
    const auto make = [](auto... arguments) {
        return Failure<CKzInvalidNamespaceException>([&] { CElement element(arguments...); });
    };
    const char16_t* const null = nullptr;
    EXPECT_EQ(make(null), "Element Name must have a value");
    EXPECT_EQ(make(u"a", u"", null, null), "Namespace Restriction must have a value");
    EXPECT_EQ(make(u"a", u"", u"##any", null), "Target Namespace must have a value");
    for (const char16_t* keyword : {u"##any", u"##other", u"##local", u"##targetNamespace"})
        EXPECT_EQ(make(u"a", keyword), "Invalid Namespace [" + ToUtf8(keyword) + "]");
    EXPECT_EQ(make(u"a", u"urn:b", u"##targetNamespace", u"urn:t"),
              "Invalid namespace [urn:b]. The namespace must be one of [##targetNamespace] where the target "
              "namespace is [urn:t]");
    EXPECT_THROW(CElement(u"a", null), CKzInvalidParamException);
    EXPECT_THROW(CElement(static_cast<CXmlObjectBase*>(nullptr), null), CKzInvalidParamException);
}

TEST(CElement, ClonesDeeplyAndCopiesShare) {
    CElement element(u"any");
    element.FromXml(u"<r xmlns='urn:r' a='1'><x>1<y/></x></r>");
    const std::string before = Text(element);
    const CSmartPtr<CElement> clone = element.Clone();
    EXPECT_EQ(Text(*clone), before);
    clone->GetChildElements()->Item(0)->SetText(u"2");
    clone->GetAttributes()->Item(0)->SetValue(u"3");
    EXPECT_EQ(Text(element), before);

    CElement copy(element);
    copy.GetChildElements()->Clear();
    copy.SetText(u"t");
    EXPECT_EQ(Text(element), "<AA:r xmlns:AA=\"urn:r\" a=\"1\"/>");
}

TEST(CElement, WhatIsAssignedMayLiveInWhatItIsAssignedTo) {
    CElement element(u"any");
    element.FromXml(u"<a><b><c><d/></c></b></a>");
    CElementCol& children = *element.GetChildElements();
    const CElementCol& below = *children.begin()->GetChildElements(); // each is counted once
    children = below;
    EXPECT_EQ(Text(element), "<a><c><d/></c></a>");
    element = *element.GetChildElements()->begin();
    EXPECT_EQ(Text(element), "<c><d/></c>");
}

TEST(CElement, RestrictingATreeThrowsAPointer) {
    CElement element(u"any");
    element.FromXml(u"<r xmlns='urn:t' xmlns:b='urn:b'><x><b:y b:z='1'/></x></r>");
    element.SetNamespaceRestrictions(u"##any", u"urn:t");
    std::unique_ptr<const CKzInvalidNamespaceException> thrown;
    try {
        element.SetNamespaceRestrictions(u"##targetNamespace", u"urn:t");
    } catch (const CKzInvalidNamespaceException* failure) {
        thrown.reset(failure);
    }
    ASSERT_TRUE(thrown);
    EXPECT_EQ(ToUtf8(thrown->GetFullMessage()),
              "The namespace y in the class urn:b is invalid against restriction ##targetNamespace\n"
              "Invalid namespace [urn:b]. The namespace must be one of [##targetNamespace] where the target "
              "namespace is [urn:t]");
}

TEST(CElement, CopiesAnyObjectAndFillsAnyObject) {
    const kit::Model& model = kit::NewModel(u"order").Attribute(u"no").Prim(u"id", kit::Mnd, ItemType_string);
    const CSmartPtr<kit::CModelObject> order = model.New(), other = model.New();
    const char16_t* const xml = u"<order no='7'><id>\u00E5\U0001F600 &lt;</id></order>";
    order->FromXml(xml, {});
    const CElement copy(order, nullptr);
    EXPECT_EQ(Text(copy), Read(xml));
    other->FromXmlElement(&copy, {});
    EXPECT_EQ(Text(*other), Read(xml));

    // A default namespace of its own costs the attributes.
    CElement element(order, u"urn:d");
    const std::string text = "<order xmlns=\"urn:d\"><id>\xC3\xA5\xF0\x9F\x98\x80 &lt;</id></order>";
    EXPECT_EQ(Text(element), text);
    EXPECT_EQ(
        Text(*element.Clone()),
        "<AA:order xmlns:AA=\"urn:d\" no=\"7\"><AA:id>\xC3\xA5\xF0\x9F\x98\x80 &lt;</AA:id></AA:order>");
    EXPECT_EQ(Failure([&] { element.ToFastInfosetStream(FInfoDecl_None, {}, CompressionType_None); }),
              "The element [order] has a default namespace of its own, which can be written as text only");
    CSmartPtr<CElement> outer = new CElement(u"outer", u"urn:o");
    outer->GetChildElements()->Add(new CElement(element));
    outer->GetChildElements()->Add(u"after", u"urn:o");
    EXPECT_EQ(Text(*outer), "<AA:outer xmlns:AA=\"urn:o\">" + text + "<AA:after/></AA:outer>");
}

TEST(CElement, ACopyTakesXmlnsForItsNamespace) {
    CElement source(u"a");
    source.GetAttributes()->Add(u"xmlns", u"urn:x", u"urn:p");
    const CElement copy(&source, nullptr);
    EXPECT_EQ(copy.GetAttributes()->GetCount(), 1);
    EXPECT_EQ(Text(copy), "<a xmlns=\"urn:x\"/>");
}

TEST(CElement, AnElementInsideItselfIsRefused) {
    const CSmartPtr<CElement> outer = new CElement(u"outer");
    CSmartPtr<CElement> inner = outer;
    for (const char16_t* name : {u"a", u"b", u"c"})
        inner = inner->GetChildElements()->Add(name, u"");
    inner->GetChildElements()->Add(outer->GetChildElements()->Item(0));
    const std::string refused = "An element is contained in itself";
    EXPECT_EQ(InvalidState([&] { Text(*outer); }), refused);
    EXPECT_EQ(InvalidState([&] { outer->Clone(); }), refused);
    EXPECT_EQ(InvalidState([&] { outer->SetNamespaceRestrictions(u"##any", u""); }), refused);
    inner->GetChildElements()->Clear();
    // The same element at several places is fine.
    outer->GetChildElements()->Add(inner);
    EXPECT_EQ(Text(*outer), "<outer><a><b><c/></b></a><c/></outer>");
}

} // namespace
