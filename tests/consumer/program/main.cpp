// A program of a user: a class in the form that a generator emits, which is read, written and refused. It
// sees the installed headers and one library only, and reaches each library behind that one.
#include <KzXmlLib10/KzXmlLib10.h>

#include <iostream>

using namespace KzXmlLib10;
using namespace KzXmlLib10Data;

namespace {

/// <parcel><code>A1</code></parcel>
class CParcel : public CXmlGeneratedClass {
public:
    CParcel() { SetElementName(u"parcel"); }

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetTargetNamespace() const override { return u""; }
    std::u16string GetNamespace() const override { return u""; }

    void AccessProperty(int, bool read, KzVariant& value) override {
        if (read)
            return value.SetString(m_code);
        static_cast<CElementInfoSeqPrimMnd*>(GetClassElementInfo()[0])->CheckRestriction(value);
        m_code = value.GetString();
    }
    CParentElementInfo* GetClassInfo() const override {
        static CParentElementInfo info(XmlElementGroupType_Sequence, XmlElementType_Element, u"parcel", u"",
                                       true, false, -1, ItemType_Invalid, nullptr, false);
        return &info;
    }
    CElementInfo** GetClassElementInfo() const override {
        static CElementInfoSeqPrimMnd code(
            u"code", u"", 0, false, ItemType_string, nullptr, CWhitespaceUtils::WhitespaceRule_Collapse,
            CPrimitiveRestrictions(u"[A-Z]\\d", -1, -1, u"", u"", u"", u"", -1));
        static CElementInfo* elements[] = {&code, nullptr};
        return elements;
    }
    CAttributeInfo** GetClassAttributeInfo() const override {
        static CAttributeInfo* attributes[] = {nullptr};
        return attributes;
    }
    void Init() override { m_code.clear(); }

private:
    std::u16string m_code;
};

bool Check(const char* what, const std::u16string& found, const std::u16string& expected) {
    if (found != expected)
        std::cerr << what << ": " << ToUtf8(found) << '\n';
    return found == expected;
}

} // namespace

int main() {
    Register(10, 1);
    const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext();
    const CSmartPtr<CParcel> parcel = new CParcel;
    bool good = true;

    parcel->FromXml("<parcel><code>A1</code></parcel>", context);
    const CBinaryData packed =
        parcel->ToXmlStream(true, true, XmlEncoding_UTF16, EOLType_LF, context, CompressionType_GZip);
    parcel->FromXmlStream(packed, context);
    good &= Check("written", parcel->ToXml(false, false, EOLType_LF, context),
                  u"<parcel><code>A1</code></parcel>");
    try {
        parcel->FromXml("<parcel><code>A</code></parcel>", context);
        good = false;
    } catch (const CKzValidationException& failure) {
        good &= Check("refused", failure.GetFullMessage(),
                      u"Failed to process the element [parcel]\nInvalid Value for code [A]");
    }
    return good ? 0 : 1;
}
