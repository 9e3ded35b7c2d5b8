/// This process has a parser that does not bound entities, as far as its features tell.

#include "support/Test.h"

#include <expat.h>

extern "C" [[gnu::visibility("default")]] const XML_Feature* XML_GetFeatureList() {
    static const XML_Feature features[] = {
        {XML_FEATURE_SIZEOF_XML_CHAR, "sizeof(XML_Char)", sizeof(XML_Char)}, {XML_FEATURE_END, nullptr, 0}};
    return features;
}

namespace {

TEST(UnboundedParser, IsRefused) {
    EXPECT_EQ(Failure([] { CXmlDocument().LoadXml("<a/>"); }),
              "The expat library at hand does not bound the expansion of entities");
}

} // namespace
