#include "support/Test.h"

#include <future>
#include <latch>

TEST(AdditionalRootAttributes, PrecedeTheRootsOwnAndStandOnTheRootOnly) {
    const kit::Model& line = kit::NewModel(u"line").Attribute(u"no");
    const auto object = kit::NewModel(u"order").Attribute(u"id").Class(u"line", kit::Mnd, line).New();
    CXmlSerializationContext context;
    object->FromXml(u"<order id='7'><line no='1'/></order>", context);
    context.GetAdditionalRootAttributes()->Add(u"lang", u"en");
    context.GetAdditionalRootAttributes()->Add(u"v", u"1", u"urn:v");
    EXPECT_EQ(Text(*object, context),
              "<order lang=\"en\" xmlns:AA=\"urn:v\" AA:v=\"1\" id=\"7\"><line no=\"1\"/></order>");
}

TEST(AdditionalRootAttributes, AreSharedByCopiesMadeAfterwards) {
    CXmlSerializationContext source, assigned;
    source.GetAdditionalRootAttributes()->Add(u"a");
    assigned.GetAdditionalRootAttributes()->Add(u"lost");
    assigned = CXmlSerializationContext(source);
    assigned.GetAdditionalRootAttributes()->Add(u"b");
    EXPECT_EQ(source.GetAdditionalRootAttributes()->GetCount(), 2);
}

TEST(AdditionalRootAttributes, AreMadeOnceHoweverManyThreadsAsk) {
    for (int round = 0; round < 200; ++round) {
        const CXmlSerializationContext fresh;
        std::latch start(2);
        const auto ask = [&] {
            start.arrive_and_wait();
            return fresh.GetAdditionalRootAttributes();
        };
        std::future<CSmartPtr<CAttributeCol>> other = std::async(std::launch::async, ask);
        const CSmartPtr<CAttributeCol> mine = ask();
        EXPECT_EQ(&*mine, &*other.get());
    }
}
