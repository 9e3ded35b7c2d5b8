/// A process of its own, since only the first registration of a process counts: here the generator is too
/// new.

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Register.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/AsyncFiles.h>
#include <KzXmlLib10/xml/CXmlElement.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;

namespace {

class CEmpty : public CXmlObjectBase {
public:
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetTargetNamespace() const override { return u""; }
    std::u16string GetNamespace() const override { return u""; }

protected:
    void ToXml_Int(CXmlWriter*, bool, const char16_t*, const CXmlSerializationContext&, bool) const override {
        ADD_FAILURE() << "the object must stay untouched";
    }
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* current, const CXmlSerializationContext&,
                             bool) override {
        ADD_FAILURE() << "the object must stay untouched";
        return current;
    }
};

constexpr char shown[] =
    "Version Mismatch Error: Please ensure your generated code is the same version as this "
    "library (Quillon Runtime: v10.1, Generator: v10.2).\n";

template <class Call>
void ExpectRefusal(Call call) {
    testing::internal::CaptureStderr();
    try {
        call();
        ADD_FAILURE() << "no exception";
    } catch (const CKzException& e) {
        EXPECT_EQ(e.GetFullMessage(), u"Wrong Version (Quillon Runtime: v10.1, Generator: v10.2)");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), shown);
}

TEST(GeneratorMismatch, IsShownOnceByConstructorsAndRefusedByEveryEntryPoint) {
    Register(10, 2);
    Register(10, 1); // only the first call counts

    testing::internal::CaptureStderr();
    CEmpty object;
    CEmpty second;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), shown);

    const CXmlSerializationContext context;
    ExpectRefusal([&] { object.ToXml(false, false, EOLType_LF, context); });
    ExpectRefusal([&] { object.FromXml(u"<a/>", context); });
    ExpectRefusal([&] { object.FromXml("<a/>", context); });
    ExpectRefusal([&] { object.FromXmlElement(static_cast<const CXmlElement*>(nullptr), context); });
    ExpectRefusal([&] { object.FromXmlElement(static_cast<const CElement*>(nullptr), context); });
    ExpectRefusal([&] { object.FromXmlFile(u"/nowhere", context); });
    ExpectRefusal([&] { object.FromXmlStream(nullptr, 0, context); });
    ExpectRefusal([&] { object.FromXmlStream(CBinaryData(), context); });
    constexpr auto utf8 = XmlEncoding_UTF8;
    constexpr auto plain = CompressionType_None;
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
