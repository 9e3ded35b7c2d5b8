#include "support/FileTest.h"

namespace {

using kit::Mnd;
using kit::Opt;

/// The frames of what an action throws, as "ReadElement a/ReadElement b/Syntax 3".
std::string Frames(const std::function<void()>& action) {
    try {
        action();
    } catch (const CKzException& failure) {
        std::string text, messages;
        for (const FailureFrame& frame : GetFailureFrames(failure)) {
            text += (frame.depth > 0 ? "/" : "") + std::string(GetFailureKindName(frame.kind));
            text += frame.name.empty() ? "" : " " + frame.name;
            text += frame.number == 0 ? "" : " " + std::to_string(frame.number);
            messages += (frame.depth > 0 ? "\n" : "") + frame.message;
        }
        EXPECT_EQ(messages, failure.GetFullMessageUtf8());
        return text;
    }
    return "no failure";
}

class FailureFramesTest : public FileTest {
protected:
    FailureFramesTest() {
        m_item.Attribute(u"id", kit::Required, ItemType_i4, nullptr, kit::Facets(u"", -1, -1, u"1", u"9"))
            .Prim(u"sku", Mnd, ItemType_string, false, kit::Facets(u"[A-Z]+"));
        m_way.Collection(u"road", m_item, 1);
        m_order.Collection(u"item", m_item, 1, 2)
            .Class(u"way", Mnd, m_way)
            .Prim(u"sum", Opt, ItemType_decimal);
    }

    std::string Reading(const std::string& xml) {
        return Frames([&] { Read(*m_order.New(), xml); });
    }

    kit::Model m_item{u"item"};
    kit::Model m_way{u"way", KzXmlLib10Data::XmlElementGroupType_Choice};
    kit::Model m_order{u"order"};
};

TEST_F(FailureFramesTest, ReadingTellsThePathAndTheCause) {
    const std::string item = "<item id='1'><sku>A</sku></item>",
                      way = "<way><road id='1'><sku>A</sku></road></way>";
    const std::pair<std::string, const char*> rows[] = {
        {item + way + "<more/>", "ReadElement order/Element more"},
        {item + way + "<sum>x</sum>", "ReadElement order/Value"},
        {"<item id='1' it='2'/>", "ReadElement order/ReadElement item/Attribute it"},
        {"<item id='0'/>", "ReadElement order/ReadElement item/Value id"},
        {"<item id='1'><sku>a]b</sku></item>", "ReadElement order/ReadElement item/Value sku"},
        {item + item + item + way, "ReadElement order/Count item"},
        {item, "ReadElement order/Element way"},
        {item + "<way/>", "ReadElement order/ReadElement way/Choice way"},
        {"<item id='1' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' i:nil='1'/>",
         "ReadElement order/ReadElement item/Element item"},
        {item + "\n</order>\n<order", "Syntax 3"},
    };
    for (const auto& [content, frames] : rows)
        EXPECT_EQ(Reading("<order>" + content + "</order>"), frames) << content;
    EXPECT_EQ(Reading(""), "Syntax");
    EXPECT_EQ(Reading(FromBinary(ToBinary(std::string("\xE0\0\0\1\0\x3C", 6)))), "Syntax");
    EXPECT_EQ(Frames([&] { ReadFile(*m_order.New(), "/no [such] file"); }), "File /no [such] file");
    const LimitsScope limits(&Limits::inputBytes, 10);
    EXPECT_EQ(Reading("<order></order>"), "Limit");
}

TEST_F(FailureFramesTest, WritingTellsThePathInBothFormats) {
    const CSmartPtr<kit::CModelObject> order = m_order.New(), item = m_item.New();
    for (const DocumentFormat format : {DocumentFormat::Text, DocumentFormat::FastInfoset}) {
        const auto writing = [&](const kit::CModelObject& object) {
            return Frames([&] { WriteBytes(object, {.format = format}); });
        };
        EXPECT_EQ(writing(*order), "WriteElement order/Count item");
        item->properties[0].SetI4(10);
        EXPECT_EQ(writing(*item), "WriteElement item/WriteAttributes/Value id");
        item->properties[0].SetI4(1);
        item->properties[1].SetString(u"a");
        order->Children(0)->Add(item);
        EXPECT_EQ(writing(*order), "WriteElement order/WriteElement item/Value sku");
        item->properties[1].SetString(u"A");
        EXPECT_EQ(writing(*order), "WriteElement order/WriteElement way/Choice");
        order->Children(0)->Clear();
    }
}

TEST_F(FailureFramesTest, OtherFailuresHaveTheKindOfTheirClass) {
    auto context = With(&CXmlSerializationContext::SetIgnoreUnknownElements);
    CAttributeCol attributes(u"", u"urn:a", u"");
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[&] { context.SetIgnoreMissingMandatoryElements(true); }, "State"},
        {[&] { attributes.Add(u"a", u"", u"urn:b"); }, "Namespace"},
        {[] { throw CKzInvalidValueException(u"of the application"); }, "Value"},
        // Near misses of messages of the library.
        {[] { throw CKzException(u"nothing of the parser at line 3"); }, "Other"},
        {[] { throw CKzException(u"Failed to process the element [a"); }, "Other"},
        {[] { throw CKzException(u"", CKzException(u"Failed to process the element []")); },
         "Other/ReadElement"},
        {[] { throw CKzValidationException(u"Failed to process the record 12"); }, "Record 12"},
        {[] {
             throw CKzException(
                 u"The Property [x] is already set. Only one element within this class bay be set "
                 u"at a time");
         },
         "Choice x"},
    };
    for (const auto& [action, frames] : rows)
        EXPECT_EQ(Frames(action), frames);
}

} // namespace
