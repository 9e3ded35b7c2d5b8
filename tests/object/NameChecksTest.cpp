#include "object/NamespaceRestriction.h"
#include "support/Script.h"
#include "support/Test.h"

#include <KzXmlLib10/xml/CXmlDocument.h>

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

namespace {

struct CNamed : support::ScriptedObject {
    CNamed() : ScriptedObject("") {}
    using CXmlObjectBase::DoesElementNameMatch;
    using CXmlObjectBase::IsNamespaceValid;
    using CXmlObjectBase::TestNamespace;
    using CXmlObjectBase::Throw_IfElementNameDiffers;
    using CXmlObjectBase::Throw_IfPropertyIsNull;
};

TEST(NamespaceRestriction, AdmitsNamespaces) {
    // Each restriction with the answers for no namespace, the target namespace, urn:a and urn:b.
    const struct {
        const char16_t* restriction;
        const char* answers;
    } rows[] = {
        {u"##any", "yyyy"},
        {u"##other", "ynyy"},
        {u"##local", "ynnn"},
        {u"##targetNamespace", "nynn"},
        {u"urn:a", "ynyn"}, // the empty namespace is let pass
        {u"", "ynnn"},
        {u"##ANY", "ynnn"},
        // Several tokens: the first, then the empty namespace.
        {u"##any urn:b", "yyyy"},
        {u"##targetNamespace ##any", "yynn"},
        {u"##targetNamespace ##local", "yynn"},
        {u"##other ##targetNamespace", "ynyy"},
        {u"urn:a urn:b", "ynnn"},
        {u" ##any", "ynnn"},
    };
    for (const auto& row : rows) {
        std::string answers;
        for (const char16_t* ns : {u"", u"urn:t", u"urn:a", u"urn:b"}) {
            const bool valid = CNamed().IsNamespaceValid(ns, row.restriction, u"urn:t");
            EXPECT_EQ(IsNamespaceValid(ns, row.restriction, u"urn:t"), valid);
            answers += valid ? "y" : "n";
        }
        EXPECT_EQ(answers, row.answers) << testing::PrintToString(row.restriction);
    }
    EXPECT_TRUE(IsNamespaceValid(u"urn:a urn:b", u"urn:a urn:b", u""));
    EXPECT_FALSE(IsNamespaceValid(u"", u"##other", u""));
}

TEST(NamespaceRestriction, TestNamesAllThree) {
    EXPECT_EQ(Failure<CKzInvalidNamespaceException>(
                  [] { CNamed().TestNamespace(u"urn:x", u"##targetNamespace", u"urn:t"); }),
              "Invalid namespace [urn:x]. The namespace must be one of [##targetNamespace] where the target "
              "namespace is [urn:t]");
    EXPECT_NO_THROW(CNamed().TestNamespace(u"urn:t", u"##targetNamespace", u"urn:t"));
    EXPECT_THROW(CNamed().TestNamespace(nullptr, u"##any", u""), CKzInvalidParamException);
}

TEST(PropertyChecks, RefuseNullAndOtherNames) {
    CNamed object;
    CXmlObjectBase::SetElementName(&object, u"one");
    EXPECT_EQ(InvalidParam([] { CNamed::Throw_IfPropertyIsNull(nullptr, u"Address"); }),
              "The Property [Address] is mandatory, it may node be NULL");
    EXPECT_NO_THROW(CNamed::Throw_IfPropertyIsNull(&object, u"Address"));
    EXPECT_EQ(InvalidParam([&] { CNamed::Throw_IfElementNameDiffers(&object, u"two"); }),
              "This property requrires an element with the name two the element being set has the element "
              "name one");
    EXPECT_NO_THROW(CNamed::Throw_IfElementNameDiffers(&object, u"one"));
    EXPECT_NO_THROW(CNamed::Throw_IfElementNameDiffers(nullptr, u"two"));
}

TEST(PropertyChecks, MatchNamesUnderEachSetting) {
    CXmlDocument document;
    document.LoadXml(u"<a xmlns='urn:a'/>");
    const CXmlElement* root = document.GetDocumentElement();
    const auto matches = [&](const CXmlSerializationContext& context) {
        std::string result;
        for (const char16_t* name : {u"a", u"A"}) {
            for (const char16_t* ns : {u"urn:a", u"urn:b"})
                result += "ny"[CNamed().DoesElementNameMatch(context, root, name, ns)];
        }
        return result;
    };
    CXmlSerializationContext context;
    EXPECT_EQ(matches(context), "ynnn");
    context.SetIgnoreNamespaces(true);
    EXPECT_EQ(matches(context), "yynn");
    context.SetIgnoreNamespaces(false);
    context.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_EQ(matches(context), "yynn");
}

} // namespace
