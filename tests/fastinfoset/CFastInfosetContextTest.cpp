#include "support/Test.h"

namespace {

/// A letter for the type, P, R or A, and the index, for each ItemType in turn.
std::string Dump(const CFastInfosetContext& context) {
    std::string text;
    for (unsigned long itemType = 0; itemType <= ItemType_xmlCollection; ++itemType) {
        const auto& encoding = context.GetEncoding(itemType);
        text += "PRA"[encoding.m_type] + std::to_string(encoding.m_index) + " ";
    }
    return text;
}

/// The texts of a table, or the numbers of the parts of its names.
template <class Table>
std::string Dump(const Table& table) {
    std::string text;
    for (const auto& entry : table)
        if constexpr (std::is_same_v<Table, CFIVocabulary::CFIStringTable>)
            text += "[" + ToUtf8(entry) + "]";
        else
            text += std::to_string(entry.m_prefix) + ":" + std::to_string(entry.m_namespaceName) + ":" +
                    std::to_string(entry.m_localName) + " ";
    return text;
}

TEST(CFastInfosetContext, SuggestedValuesLeaveTextAndDurationsAlone) {
    CFastInfosetContext context;
    EXPECT_EQ(Dump(context), Repeat("P0 "s, 29));
    context.SetEncoding(ItemType_duration, {CFastInfosetContext::EncodingType_RestrictedAlphabet, 2});
    context.SetEncoding(ItemType_string, {CFastInfosetContext::EncodingType_Algorithm, 10});
    context.SetSuggestedValues();
    EXPECT_EQ(Dump(context), "P0 A1 A2 A3 A3 A4 A5 A3 A4 A5 A5 A7 A8 R0 R2 R2 R2 R2 R2 R2 R2 R2 P0 A10 A6 "
                             "R1 R1 P0 P0 ");
    EXPECT_EQ(InvalidParam([&] { context.GetEncoding(29); }), "There is no ItemType [29]");
    EXPECT_EQ(InvalidParam([&] { context.SetEncoding(1ul << 32, {}); }), "There is no ItemType [4294967296]");
    context.SetAttributeMaxAddLength(0xFFFFFFFF);
    EXPECT_EQ(InvalidParam([&] { context.SetAttributeMaxAddLength(1ul << 32); }),
              "The length [4294967296] is too large; at most 4294967295 characters can be set");
    EXPECT_EQ(context.GetAttributeMaxAddLength(), 0xFFFFFFFFu);
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
        vocabulary.AddElementValue(u"t");
    }
    EXPECT_EQ(Dump(vocabulary.GetPrefixNamesTable()) + Dump(vocabulary.GetNamespaceNamesTable()),
              "[xml][o][p][http://www.w3.org/XML/1998/namespace][urn:o][urn:p]");
    EXPECT_EQ(Dump(vocabulary.GetLocalNamesTable()), "[order][plain][lang][a]");
    EXPECT_EQ(Dump(vocabulary.GetElementNamesTable()), "2:2:1 0:2:1 3:3:1 0:0:2 ");
    EXPECT_EQ(Dump(vocabulary.GetAttributeNamesTable()), "2:2:1 1:1:3 ");
    EXPECT_EQ(Dump(vocabulary.GetAttributeValuesTable()) + Dump(vocabulary.GetCharacterChunksTable()),
              "[v][t]");
}

} // namespace
