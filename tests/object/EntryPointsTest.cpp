/// One object down every road: text, bytes, files, in all encodings, compressed or not, on both file roads.

#include "support/FileTest.h"
#include "support/Roundtrip.h"

using namespace kit;

namespace {

class EveryRoad : public support::FileTest {
protected:
    EveryRoad() {
        list.Prim(u"name", Mnd, ItemType_string).Prim(u"text", Mnd, ItemType_string);
        source = list.New();
        source->properties[0].SetString(u"\u00c5sa \U0001F600");
        source->properties[1].SetString(Repeat<std::u16string>(u"line \u4e2d\U0001D49C <&>,", 5000));
    }

    Model list{u"list"};
    CSmartPtr<CModelObject> source;
    CXmlSerializationContext context;
};

TEST_F(EveryRoad, FilesHaveTheSameBytes) {
    for (const XmlEncoding encoding : {XmlEncoding_UTF8, XmlEncoding_UTF16, XmlEncoding_UTF16NoDecl}) {
        const std::u16string file = m_dir.Path16("out.xml");
        const std::string stream = FromBinary(
            source->ToXmlStream(true, true, encoding, EOLType_CRLF, context, CompressionType_None));
        for (const bool async : {false, true}) {
            AsyncToXmlFile(async);
            source->ToXmlFile(file.c_str(), true, true, encoding, EOLType_CRLF, context,
                              CompressionType_None);
            EXPECT_TRUE(m_dir.Read("out.xml") == (encoding == XmlEncoding_UTF8 ? "" : "\xFF\xFE") + stream);
            AsyncFromXmlFile(async);
            const auto object = list.New();
            object->FromXmlFile(file.c_str(), context);
            EXPECT_TRUE(Show(*object) == Show(*source));
        }
    }
    const CBinaryData stream = source->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_GZip);
    source->ToFastInfosetFile(m_dir.Path16("f").c_str(), FInfoDecl_None, context, CompressionType_GZip);
    EXPECT_TRUE(m_dir.Read("f") == FromBinary(stream));
}

TEST_F(EveryRoad, AFailureLeavesWhatIsWritten) {
    const std::u16string file = m_dir.Path16("out.xml");
    for (const auto& [async, left] : {std::pair(false, "before"), std::pair(true, "")}) {
        m_dir.Write("out.xml", "before");
        AsyncToXmlFile(async);
        EXPECT_THROW(ScriptedObject("<a > >").ToXmlFile(file.c_str(), false, false, XmlEncoding_UTF8,
                                                        EOLType_LF, context, CompressionType_None),
                     CKzInvalidStateException);
        EXPECT_EQ(m_dir.Read("out.xml"), left);
    }
}

TEST_F(EveryRoad, RefusesZlibFilesAndEmptyInput) {
    const auto object = list.New();
    const auto failure = [&](CompressionType type) {
        return Failure([&] {
            object->ToXmlFile(u"/nowhere/x", false, false, XmlEncoding_UTF8, EOLType_LF, context, type);
        });
    };
    AsyncToXmlFile(true); // has no power over compressed files
    const std::string noZlib = "ZLIB Compression only available for To Stream methods.";
    EXPECT_EQ(failure(CompressionType_ZLib), noZlib);
    EXPECT_EQ(Failure([&] {
                  object->ToFastInfosetFile(u"/nowhere/x", FInfoDecl_None, context, CompressionType_ZLib);
              }),
              noZlib);
    EXPECT_EQ(failure(CompressionType_GZip), "Failed to compress data. [Error Code: 0]");
    EXPECT_EQ(Failure([&] { object->FromXmlStream(CBinaryData(), context); }), "XML Stream is empty!");
    EXPECT_THROW(object->FromXmlElement(static_cast<const CXmlElement*>(nullptr), context),
                 CKzInvalidParamException);
}

} // namespace
