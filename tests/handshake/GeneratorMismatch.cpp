/// A process of its own, since only the first registration of a process counts: here the generator is too
/// new.

#include "support/Test.h"

namespace {

constexpr char shown[] =
    "Version Mismatch Error: Please ensure your generated code is the same version as this "
    "library (Quillon Runtime: v10.1, Generator: v10.2).\n";

template <class Call>
void ExpectRefusal(Call call) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Failure(call), "Wrong Version (Quillon Runtime: v10.1, Generator: v10.2)");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), shown);
}

TEST(GeneratorMismatch, IsRefusedByEveryEntryPoint) {
    Register(10, 2);
    Register(10, 1); // only the first call counts

    const auto untouched = [](CXmlWriter&) { ADD_FAILURE() << "the object must stay untouched"; };
    testing::internal::CaptureStderr();
    ScriptedObject object(untouched), second(untouched);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), shown);

    const CXmlSerializationContext context;
    constexpr auto utf8 = XmlEncoding_UTF8;
    constexpr auto plain = CompressionType_None;
    ExpectRefusal([&] { object.ToXml(false, false, EOLType_LF, context); });
    ExpectRefusal([&] { object.FromXml(u"<a/>", context); });
    ExpectRefusal([&] { object.FromXml("<a/>", context); });
    ExpectRefusal([&] { object.FromXmlElement(static_cast<const CXmlElement*>(nullptr), context); });
    ExpectRefusal([&] { object.FromXmlElement(static_cast<const CElement*>(nullptr), context); });
    ExpectRefusal([&] { object.FromXmlFile(u"/nowhere", context); });
    ExpectRefusal([&] { object.FromXmlStream(nullptr, 0, context); });
    ExpectRefusal([&] { object.FromXmlStream(CBinaryData(), context); });
    ExpectRefusal([&] { object.ToXmlStream(false, false, utf8, EOLType_LF, context, plain); });
    ExpectRefusal([&] { object.ToFastInfosetStream(FInfoDecl_None, context, plain); });
    ExpectRefusal([&] { object.ToFastInfosetFile(u"/nowhere/x", FInfoDecl_None, context, plain); });
    for (const bool async : {false, true}) {
        AsyncToXmlFile(async);
        ExpectRefusal(
            [&] { object.ToXmlFile(u"/nowhere/x", false, false, utf8, EOLType_LF, context, plain); });
    }
}

} // namespace
