#include "object/NamespaceRestriction.h"
#include "support/Test.h"

TEST(NamespaceRestriction, AdmitsNamespaces) {
    // The answers for no namespace, the target namespace, urn:a and urn:b.
    ExpectRows({"##any -> yyyy", "##other -> ynyy", "##local -> ynnn", "##targetNamespace -> nynn",
                "urn:a -> ynyn", // the empty namespace is let pass
                " -> ynnn", "##ANY -> ynnn",
                // Several tokens: the first, then the empty namespace.
                "##any urn:b -> yyyy", "##targetNamespace ##any -> yynn", "##targetNamespace ##local -> yynn",
                "##other ##targetNamespace -> ynyy", "urn:a urn:b -> ynnn", " ##any -> ynnn"},
               [](const char16_t* restriction) {
                   std::string answers;
                   for (const char16_t* ns : {u"", u"urn:t", u"urn:a", u"urn:b"})
                       answers += IsNamespaceValid(ns, restriction, u"urn:t") ? "y" : "n";
                   return answers;
               });
    EXPECT_TRUE(IsNamespaceValid(u"urn:a urn:b", u"urn:a urn:b", u""));
    EXPECT_FALSE(IsNamespaceValid(u"", u"##other", u""));
}
