#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>

#include "support/Test.h"

using namespace KzXmlLib10;
using namespace KzXmlLib10::support;

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

TEST(CFastInfosetContext, SuggestedValuesLeaveTextAndDurationsAlone) {
    CFastInfosetContext context;
    EXPECT_EQ(Dump(context), "P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 P0 "
                             "P0 P0 P0 P0 ");
    context.SetEncoding(ItemType_duration, {CFastInfosetContext::EncodingType_RestrictedAlphabet, 2});
    context.SetEncoding(ItemType_string, {CFastInfosetContext::EncodingType_Algorithm, 10});
    context.SetSuggestedValues();
    EXPECT_EQ(Dump(context), "P0 A1 A2 A3 A3 A4 A5 A3 A4 A5 A5 A7 A8 R0 R2 R2 R2 R2 R2 R2 R2 R2 P0 A10 A6 "
                             "R1 R1 P0 P0 ");
}

TEST(CFastInfosetContext, RefusesWhatIsOutOfRange) {
    CFastInfosetContext context;
    EXPECT_EQ(InvalidParam([&] { context.GetEncoding(29); }), "There is no ItemType [29]");
    EXPECT_EQ(InvalidParam([&] { context.SetEncoding(1ul << 32, {}); }), "There is no ItemType [4294967296]");
    context.SetAttributeMaxAddLength(0xFFFFFFFF);
    EXPECT_EQ(InvalidParam([&] { context.SetAttributeMaxAddLength(1ul << 32); }),
              "The length [4294967296] is too large; at most 4294967295 characters can be set");
    EXPECT_EQ(context.GetAttributeMaxAddLength(), 0xFFFFFFFFu);
}

} // namespace
