#include <KzXmlLib10/object/CKzException.h>

#include "object/Throw.h"

#include <gtest/gtest.h>

#include <exception>
#include <sstream>

using namespace KzXmlLib10;

namespace {

constexpr char16_t wrapperMessage[] = u"around [%s] %d";

TEST(CKzException, FullMessageJoinsTheChainWithLineFeeds) {
    const CKzValidationException e(u"a", CKzException(u"b", CKzInvalidValueException(u"c")));
    EXPECT_EQ(e.GetMessageW(), u"a");
    EXPECT_EQ(e.GetFullMessage(), u"a\nb\nc");
    EXPECT_NE(dynamic_cast<const CKzInvalidValueException*>(e.GetInnerException()->GetInnerException()),
              nullptr);
}

TEST(CKzException, ConvertingConstructorDoesNotWrap) {
    const CKzException source(u"m", CKzInvalidStateException(u"inner"));
    const CKzOverFlowException converted(source);
    EXPECT_EQ(converted.GetFullMessage(), u"m\ninner");
    EXPECT_NE(dynamic_cast<const CKzInvalidStateException*>(converted.GetInnerException()), nullptr);
}

TEST(CKzException, AssignmentClonesTheInnerOne) {
    CKzException target(u"old");
    const CKzException source(u"new", CKzInvalidParamException(u"inner"));
    target = source;
    EXPECT_EQ(target.GetFullMessage(), u"new\ninner");
    EXPECT_NE(target.GetInnerException(), source.GetInnerException());
}

void FailUnder(int levels) {
    if (levels == 0)
        throw CKzInvalidValueException(u"cause");
    try {
        FailUnder(levels - 1);
    } catch (CKzException& e) {
        ThrowAround<CKzValidationException>(e, wrapperMessage, u"x", levels);
    }
}

TEST(CKzException, WrappingMovesTheChainAndKeepsClasses) {
    try {
        FailUnder(2);
        FAIL();
    } catch (const CKzValidationException& e) {
        EXPECT_EQ(e.GetFullMessage(), u"around [x] 2\naround [x] 1\ncause");
        const CKzException* cause = e.GetInnerException()->GetInnerException();
        EXPECT_NE(dynamic_cast<const CKzInvalidValueException*>(cause), nullptr);
    }
}

TEST(CKzException, LongChainsAreCopiedPrintedAndDestroyedWithoutRecursion) {
    std::exception_ptr held = std::make_exception_ptr(CKzException(u"0"));
    for (int i = 1; i <= 100000; ++i) {
        try {
            try {
                std::rethrow_exception(held);
            } catch (CKzException& e) {
                ThrowAround<CKzValidationException>(e, wrapperMessage, u"x", i);
            }
        } catch (...) {
            held = std::current_exception();
        }
    }
    try {
        std::rethrow_exception(held);
    } catch (const CKzValidationException& e) {
        const CKzValidationException copy(e);
        EXPECT_EQ(copy.GetFullMessage(), e.GetFullMessage());
        EXPECT_TRUE(copy.GetFullMessage().starts_with(u"around [x] 100000\naround [x] 99999\n"));
    }
}

TEST(CKzException, StreamsAsUtf8WithReplacementForLoneSurrogates) {
    std::ostringstream out;
    out << CKzException(u"\u00e5\xD800z", CKzException(u"\U0001F600"));
    EXPECT_EQ(out.str(), "\xC3\xA5\xEF\xBF\xBDz\n\xF0\x9F\x98\x80");
}

} // namespace
