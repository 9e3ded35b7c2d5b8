#include <KzXmlLib10/collections/CXmlTypeCollection.h>

#include "support/TypedCollection.h"

#include <KzXmlLib10/collections/IntegerCols.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;

TEST(CXmlTypeCollection, ComparesNamespacesUnlessIgnored) {
    Ci4Col items(u"i", u"urn:i", 0, -1, u"", -1, -1, u"", u"", u"", u"", -1,
                 CWhitespaceUtils::WhitespaceRule_Collapse, nullptr);
    support::CollectionOwner owner(items);
    CXmlSerializationContext context;
    owner.Read(u"<i>1</i>", context);
    EXPECT_EQ(items.GetCount(), 0);
    context.SetIgnoreNamespaces(true);
    owner.Read(u"<i>1</i>", context);
    EXPECT_EQ(items.GetCount(), 1);
}
