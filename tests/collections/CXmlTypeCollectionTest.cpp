#include <KzXmlLib10/collections/CXmlTypeCollection.h>

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;

namespace {

/// Joins the texts that reading hands over.
class CWordCol : public CXmlTypeCollection {
public:
    CWordCol()
        : CXmlTypeCollection(ItemType_string, u"w", u"urn:w", 0, -1, u"", -1, -1, u"", u"", u"", u"", -1,
                             CWhitespaceUtils::WhitespaceRule_None, nullptr) {}

    int GetCount() const override { return 0; }
    void Clear() override {}
    void Remove(int) override {}
    const std::u16string& Format() const { return m_formatOverride; }

    std::u16string words;

protected:
    void AddFromString(std::u16string text) override { words += text + u"|"; }
    void ToXml_Int(CXmlWriter*, bool, const char16_t*, const CXmlSerializationContext&, bool) const override {
    }
};

/// What reading takes of the children of the root, and the child that it returns.
std::u16string Read(const char16_t* xml, const CXmlSerializationContext& context = {}) {
    struct CReader : CWordCol {
        std::u16string Run(CXmlElement* root, const CXmlSerializationContext& settings) {
            const CXmlElement* rest =
                CXmlTypeCollection::FromXml_Int(root, root->GetFirstElement(), settings, false);
            return words + (rest ? rest->GetLocalName() : u"null");
        }
    };
    CXmlDocument document;
    document.LoadXml(xml);
    return CReader().Run(document.GetDocumentElement(), context);
}

TEST(CXmlTypeCollection, TakesOneRunOfItsName) {
    EXPECT_EQ(Read(u"<r xmlns='urn:w'/>"), u"null");
    EXPECT_EQ(Read(u"<r xmlns='urn:w'><w>a</w> <w>b</w></r>"), u"a|b|null");
    EXPECT_EQ(Read(u"<r xmlns='urn:w'><w>a</w><x/><w>b</w></r>"), u"a|x");
    EXPECT_EQ(Read(u"<r xmlns='urn:w'><w nil='true' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' "
                   u"i:nil='true'/></r>"),
              u"|null");
    EXPECT_EQ(Read(u"<r><w>a</w></r>"), u"w");
    CXmlSerializationContext context;
    context.SetIgnoreNamespaces(true);
    EXPECT_EQ(Read(u"<r><w>a</w></r>", context), u"a|null");
    EXPECT_EQ(CWordCol().Format(), u"");
}

} // namespace
