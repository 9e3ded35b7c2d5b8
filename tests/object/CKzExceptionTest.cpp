#include "object/Throw.h"
#include "support/Test.h"

namespace {

constexpr char16_t wrapperMessage[] = u"around [%s] %d";

TEST(CKzException, ChainsAreJoinedByLineFeeds) {
    const CKzValidationException e(u"a", CKzException(u"b", CKzInvalidValueException(u"c")));
    EXPECT_EQ(e.GetMessageW(), u"a");
    EXPECT_EQ(e.GetFullMessage(), u"a\nb\nc");
    const CKzOverFlowException copy(e); // does not wrap
    EXPECT_EQ(copy.GetFullMessage(), u"a\nb\nc");
    EXPECT_NE(copy.GetInnerException(), e.GetInnerException());
    const CKzException* cause = copy.GetInnerException()->GetInnerException();
    EXPECT_NE(dynamic_cast<const CKzInvalidValueException*>(cause), nullptr);
}

TEST(CKzException, ClassesOfTheApplicationAreCopiedWhole) {
    struct CWithMember : CKzException {
        CWithMember() : CKzException(u"a"), other(u"b", CKzException(u"c")) {}
        CKzException* Clone() const override { return new CWithMember(*this); }
        CKzException other;
    };
    struct CWithCopiedChain : CKzException {
        using CKzException::CKzException;
        CKzException* Clone() const override {
            return new CWithCopiedChain(GetMessageW(), *GetInnerException());
        }
    };
    const CKzException around(u"x", CWithMember());
    EXPECT_EQ(dynamic_cast<const CWithMember&>(*around.GetInnerException()).other.GetFullMessage(), u"b\nc");
    const CKzException twice(u"x", CWithCopiedChain(u"y", CKzException(u"z"))); // leaks nothing
    EXPECT_EQ(CKzException(twice).GetFullMessage(), u"x\ny\nz");
}

TEST(CKzException, LongChainsNeedNoRecursion) {
    // Two calls a link would take more than this stack.
    RunOnStack(256 << 10, [] {
        constexpr int links = 10'000;
        std::exception_ptr held = std::make_exception_ptr(CKzInvalidValueException(u"0"));
        for (int i = 1; i <= links; ++i) {
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
            EXPECT_TRUE(copy.GetFullMessage().starts_with(u"around [x] 10000\naround [x] 9999\n"));
            const CKzException* cause = &e;
            while (cause->GetInnerException())
                cause = cause->GetInnerException();
            EXPECT_NE(dynamic_cast<const CKzInvalidValueException*>(cause), nullptr);
        }
    });
}

TEST(CKzException, StreamsAsUtf8) {
    std::ostringstream out;
    out << CKzException(u"\u00e5\xD800z", CKzException(u"\U0001F600"));
    EXPECT_EQ(out.str(), "\xC3\xA5\xEF\xBF\xBDz\n\xF0\x9F\x98\x80");
}

} // namespace
