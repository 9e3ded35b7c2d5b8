#include "support/Test.h"

#include <future>
#include <latch>

TEST(AdditionalRootAttributes, AreSharedByCopiesMadeAfterwards) {
    CXmlSerializationContext source, assigned;
    source.GetAdditionalRootAttributes()->Add(u"a");
    assigned.GetAdditionalRootAttributes()->Add(u"lost");
    assigned = CXmlSerializationContext(source);
    assigned.GetAdditionalRootAttributes()->Add(u"b");
    EXPECT_EQ(source.GetAdditionalRootAttributes()->GetCount(), 2);
}

TEST(AdditionalRootAttributes, AreMadeOnceForAllThreads) {
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
