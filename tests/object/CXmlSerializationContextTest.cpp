#include "support/Test.h"

/// As a static object of a program that links the library into itself may do, before main.
const bool stripsCDataBeforeMain = CXmlSerializationContext::GetDefaultContext().GetStripCDATA();

TEST(CXmlSerializationContext, SchemaTypePrevailsOverTheFlag) {
    CXmlSerializationContext context;
    context.SetSchemaType(SchemaType_NoNamespaces);
    context.SetIgnoreNamespaces(false);
    EXPECT_TRUE(context.GetIgnoreNamespaces());
    context.SetSchemaType(static_cast<SchemaType>(1));
    EXPECT_FALSE(context.GetIgnoreNamespaces());
}

TEST(CXmlSerializationContext, TheDefaultIsReadyBeforeMain) { EXPECT_TRUE(stripsCDataBeforeMain); }

TEST(CXmlSerializationContext, IgnoresUnknownOrMissingButNotBoth) { // the other way round: in the guide
    CXmlSerializationContext context;
    context.SetIgnoreMissingMandatoryElements(true);
    EXPECT_EQ(
        InvalidState([&] { context.SetIgnoreUnknownElements(true); }),
        "The parser can only ignore additional elements, or ignore the fact that some required ones are "
        "missing, you can not ignore both\nSet IgnoreMissingMandatoryElements to false before setting "
        "IgnoreUnknownElements to true");
}

TEST(CNamespaceAliasMap, KeepsTheOrderOfUris) {
    CNamespaceAliasMap map;
    map.Add(u"b", u"urn:b");
    map.Add(u"x", u"urn:a");
    map.Add(u"a", u"urn:a");
    map.Add(u"b", u"urn:c");
    EXPECT_EQ(map.GetNamespaceCount(), 3);
    EXPECT_EQ(map.GetNamespaceAt(-5), u"urn:a");
    EXPECT_EQ(map.GetNamespaceAt(2), u"urn:c");
    EXPECT_THROW(map.GetNamespaceAt(3), CKzInvalidParamException);
    EXPECT_EQ(map.GetAliasFromNamespace(u"urn:a"), u"a");
    EXPECT_EQ(map.GetNamespaceFromAlias(u"b"), u"urn:b"); // the smaller URI of two
    EXPECT_FALSE(map.DoesAliasExist(u"x"));
    map.RemoveNamespace(u"urn:none");
    EXPECT_EQ(Failure([&] { map.GetNamespaceFromAlias(u"none"); }), "Namespace alias [none] not found");

    EXPECT_EQ(map.GetAliasFromNamespace(u"urn:new"), u""); // which enters it
    EXPECT_EQ(map.GetNamespaceCount(), 4);
}
