#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>

#include "support/Test.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>

using namespace KzXmlLib10;

namespace {

std::string Dump(const CFIVocabulary::CFIStringTable& table) {
    std::string text;
    for (const std::u16string& value : table)
        text += "[" + ToUtf8(value) + "]";
    return text;
}

std::string Dump(const CFIVocabulary::CFIQNameTable& table) {
    std::string text;
    for (const CFIVocabulary::CQNameParts& name : table)
        text += std::to_string(name.m_prefix) + ":" + std::to_string(name.m_namespaceName) + ":" +
                std::to_string(name.m_localName) + " ";
    return text;
}

TEST(CFIVocabulary, EntersThePartsOfNamesAndValuesOnce) {
    CFIVocabulary vocabulary;
    for (int i = 0; i < 2; ++i) { // what is there already changes nothing
        vocabulary.AddElement(u"o", u"urn:o", u"order");
        vocabulary.AddElement(u"", u"urn:o", u"order"); // another prefix is another name
        vocabulary.AddElement(u"p", u"urn:p", u"order");
        vocabulary.AddElement(u"", u"", u"plain");
        vocabulary.AddAttribute(u"o", u"urn:o", u"order");
        vocabulary.AddAttribute(u"xml", u"http://www.w3.org/XML/1998/namespace", u"lang");
        vocabulary.AddPrefixName(u"xml");
        vocabulary.AddPrefixName(u"");
        vocabulary.AddNamespaceName(u"");
        vocabulary.AddLocalName(u"a");
        vocabulary.AddAttributeValue(u"v");
        vocabulary.AddAttributeValue(u"w");
        vocabulary.AddElementValue(u"t");
    }
    EXPECT_EQ(Dump(vocabulary.GetPrefixNamesTable()), "[xml][o][p]");
    EXPECT_EQ(Dump(vocabulary.GetNamespaceNamesTable()),
              "[http://www.w3.org/XML/1998/namespace][urn:o][urn:p]");
    EXPECT_EQ(Dump(vocabulary.GetLocalNamesTable()), "[order][plain][lang][a]");
    EXPECT_EQ(Dump(vocabulary.GetElementNamesTable()), "2:2:1 0:2:1 3:3:1 0:0:2 ");
    EXPECT_EQ(Dump(vocabulary.GetAttributeNamesTable()), "2:2:1 1:1:3 ");
    EXPECT_EQ(Dump(vocabulary.GetAttributeValuesTable()), "[v][w]");
    EXPECT_EQ(Dump(vocabulary.GetCharacterChunksTable()), "[t]");
}

TEST(CFIVocabulary, TravelsWithCopiesOfTheContext) {
    CXmlSerializationContext context;
    context.GetFIContext().GetVocabulary().AddLocalName(u"a");
    context.GetFIContext().SetEncoding(ItemType_i4, {CFastInfosetContext::EncodingType_Algorithm, 4});
    CXmlSerializationContext copy(context);
    copy.GetFIContext().GetVocabulary().AddLocalName(u"b");
    EXPECT_EQ(copy.GetFIContext().GetEncoding(ItemType_i4).m_index, 4u);
    EXPECT_EQ(Dump(copy.GetFIContext().GetVocabulary().GetLocalNamesTable()), "[a][b]");
    EXPECT_EQ(Dump(context.GetFIContext().GetVocabulary().GetLocalNamesTable()), "[a]");
    context = copy;
    EXPECT_EQ(Dump(context.GetFIContext().GetVocabulary().GetLocalNamesTable()), "[a][b]");
}

} // namespace
