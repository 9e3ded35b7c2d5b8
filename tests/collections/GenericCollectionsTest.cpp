#include "support/Test.h"

namespace {

/// Such as "{urn:a}x=1 y=2".
template <class Collection>
std::string Describe(const Collection& items) {
    std::u16string text;
    for (const auto& item : items) {
        text += (text.empty() ? u"" : u" ") +
                (item.GetNamespace().empty() ? u"" : u"{" + item.GetNamespace() + u"}") + item.GetName();
        if constexpr (std::is_same_v<Collection, CAttributeCol>)
            text += u"=" + item.GetValue();
    }
    return ToUtf8(text);
}

const std::string notOfA =
    "Invalid namespace [urn:b]. The namespace must be one of [urn:a] where the target namespace is [urn:t]";

TEST(CAttributeCol, TakesItsNamespaceFromItsRestriction) {
    ExpectRows({"urn:a -> urn:a", "urn:a urn:b -> urn:a", "##any -> ", "a# -> ", "u -> ", " -> "},
               [](const char16_t* restriction) {
                   return ToUtf8(CAttributeCol(u"", restriction, u"").GetNamespace());
               });
    EXPECT_EQ(CAttributeCol(u"urn:x", u"urn:a", u"").GetNamespace(), u"urn:x");
}

TEST(CAttributeCol, AddsUnderItsRestriction) {
    CAttributeCol attributes(u"", u"urn:a", u"urn:t");
    const CSmartPtr<CAttribute> last = attributes.Add(u"x");
    attributes.Add(u"y", u"2");
    attributes.Add(u"z", u"3", u"");
    EXPECT_EQ(Failure<CKzInvalidNamespaceException>([&] { attributes.Add(u"z", u"3", u"urn:b"); }), notOfA);
    EXPECT_THROW(attributes.Add(u"z", nullptr), CKzInvalidParamException);
    // Deliberate: an attribute that exists already is not checked.
    CAttributeCol others(u"urn:b", u"##any", u"");
    others.AddBefore(nullptr, attributes.Add(others.Add(u"o", u"4")));
    others.AddAfter(nullptr, last->Clone());
    last->SetValue(u"1");
    EXPECT_EQ(Describe(attributes), "{urn:a}x=1 {urn:a}y=2 z=3 {urn:b}o=4");
    EXPECT_EQ(Describe(others), "{urn:a}x= {urn:b}o=4 {urn:b}o=4");

    const CSmartPtr<CAttributeCol> clone = attributes.Clone();
    clone->Item(0)->SetName(u"c");
    clone->Add(u"n", u"5");
    EXPECT_EQ(Describe(*clone), "{urn:a}c=1 {urn:a}y=2 z=3 {urn:b}o=4 {urn:a}n=5");
    EXPECT_EQ(Failure([&] { last->FromXml(u"<a/>", {}); }), "This should be done by the collection");
}

TEST(CAttributeCol, ReadsAllAttributesOrFails) {
    CAttributeCol attributes(u"", u"##local", u"");
    attributes.FromXml(u"<r a='1' b='2'/>", {});
    EXPECT_EQ(Describe(attributes), "a=1 b=2");
    EXPECT_EQ(Failure<CKzInvalidNamespaceException>(
                  [&] { attributes.FromXml(u"<r c='3' p:d='4' xmlns:p='urn:p'/>", {}); }),
              "Invalid Attribute [d]. The attributes namespace is Inappropriate.");
    EXPECT_EQ(Describe(attributes), "a=1 b=2 c=3");
}

TEST(CElementCol, RestrictsTheDefaultNamespaceOnly) {
    EXPECT_EQ(CElementCol(u"", u"##other", u"urn:t", 0, -1).Add(u"x")->GetNamespace(),
              u"##other"); // a keyword
    CElementCol none(u"", u"urn:a", u"", 0, -1), local(u"", u"##local", u"urn:t", 0, -1);
    EXPECT_EQ(InvalidState([&] { none.Add(u"x"); }), "A Namespace has not been set for this Collection");
    local.FromXml(u"<r><a/><b xmlns='urn:b'><c/></b>text</r>", {});
    EXPECT_EQ(Describe(local), "a {urn:b}b");
    EXPECT_EQ(Failure<CKzInvalidNamespaceException>([] { CElementCol(u"urn:b", u"urn:a", u"urn:t", 0, -1); }),
              notOfA);
    CElementCol elements(u"urn:a", u"urn:a", u"urn:t", 2, 3);
    EXPECT_EQ(elements.GetNamespace(), u"urn:t");
    elements.Add(u"x");
    elements.Add(u"y", u"urn:b");
    const CSmartPtr<CElement> last = elements.Add(new CElement(u"z", u"urn:c"));
    elements.AddBefore(last, new CElement(u"w"));
    elements.AddAfter(nullptr, new CElement(u"v"));
    EXPECT_EQ(Describe(elements), "v {urn:a}x {urn:b}y w {urn:c}z");
    elements.ValidateCount({}); // the bounds given are not heeded
    const CSmartPtr<CElementCol> clone = elements.Clone();
    clone->Item(0)->SetName(u"c");
    clone->Add(u"n");
    EXPECT_EQ(Describe(*clone), "c {urn:a}x {urn:b}y w {urn:c}z {urn:a}n");
    EXPECT_EQ(Describe(elements), "v {urn:a}x {urn:b}y w {urn:c}z");
}

TEST(CElementCol, AddGivesAnElementThatAListenerHasRemoved) {
    EventLog log([](void*) { return std::string(); });
    CElementCol elements(u"", u"##any", u"", 0, -1);
    log.Watch(elements);
    log.during = [&](IEventSink::MsgType type) {
        if (type == IEventSink::MsgType_CollectionAddComplete)
            elements.Remove(0);
    };
    EXPECT_EQ(elements.Add(new CElement(u"x"))->GetName(), u"x");
    EXPECT_EQ(elements.GetCount(), 0);
}

} // namespace
