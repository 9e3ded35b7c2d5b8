#include "support/Test.h"

#include <latch>

namespace {

TEST(AdditionalRootAttributes, PrecedeTheRootsOwnAndStandOnTheRootOnly) {
    kit::Model line(u"line");
    line.Attribute(u"no", kit::Required, ItemType_i4);
    kit::Model order(u"order");
    order.Attribute(u"id", kit::Required, ItemType_i4).Class(u"line", kit::Mnd, line);
    const CSmartPtr<kit::CModelObject> object = order.New();
    CXmlSerializationContext context;
    object->FromXml(u"<order id='7'><line no='1'/></order>", context);
    context.GetAdditionalRootAttributes()->Add(u"lang", u"en");
    context.GetAdditionalRootAttributes()->Add(u"v", u"1", u"urn:v");
    EXPECT_EQ(Text(*object, context),
              "<order lang=\"en\" xmlns:AA=\"urn:v\" AA:v=\"1\" id=\"7\"><line no=\"1\"/></order>");
}

TEST(AdditionalRootAttributes, AreSharedByCopiesMadeAfterwards) {
    CXmlSerializationContext source;
    source.GetAdditionalRootAttributes()->Add(u"a");
    CXmlSerializationContext assigned;
    assigned.GetAdditionalRootAttributes()->Add(u"lost");
    assigned = CXmlSerializationContext(source);
    assigned.GetAdditionalRootAttributes()->Add(u"b");
    EXPECT_EQ(source.GetAdditionalRootAttributes()->GetCount(), 2);
}

TEST(AdditionalRootAttributes, AreMadeOnceHoweverManyThreadsAsk) {
    for (int round = 0; round < 100; ++round) {
        const CXmlSerializationContext fresh;
        CSmartPtr<CAttributeCol> seen[2];
        {
            std::latch start(2);
            std::vector<std::jthread> threads;
            for (auto& one : seen)
                threads.emplace_back([&] {
                    start.arrive_and_wait();
                    one = fresh.GetAdditionalRootAttributes();
                });
        }
        EXPECT_EQ(&*seen[0], &*seen[1]);
    }
}

} // namespace
