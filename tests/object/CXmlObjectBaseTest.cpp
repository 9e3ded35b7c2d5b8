#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "support/Failure.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlElement.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using KzXmlLib10::support::Failure;

namespace {

/// A hand-made object: writes one element with its text, reads its own text.
class CNote : public CXmlObjectBase {
public:
    explicit CNote(bool* deleted = nullptr) : m_deleted(deleted) { SetElementName(u"note"); }
    ~CNote() override {
        if (m_deleted)
            *m_deleted = true;
    }

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetTargetNamespace() const override { return u"urn:notes"; }
    std::u16string GetNamespace() const override { return u"urn:notes"; }

    std::u16string text;
    bool leaveOpen = false;

protected:
    void ToXml_Int(CXmlWriter* writer, bool, const char16_t* elementNamespace,
                   const CXmlSerializationContext&, bool) const override {
        writer->StartElement(GetElementName(), elementNamespace);
        writer->WriteText(text, ItemType_string);
        if (!leaveOpen)
            writer->EndElement();
    }
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current, const CXmlSerializationContext&,
                             bool) override {
        text = element->GetText();
        return current;
    }

private:
    bool* m_deleted;
};

const CXmlSerializationContext& Defaults() { return CXmlSerializationContext::GetDefaultContext(); }

TEST(CXmlObjectBase, CountsReferences) {
    bool deleted = false;
    auto* note = new CNote(&deleted);
    EXPECT_EQ(note->AddRef(), 1);
    EXPECT_EQ(note->AddRef(), 2);
    EXPECT_EQ(note->Release(), 1);
    EXPECT_FALSE(deleted);
    EXPECT_EQ(note->Release(), 0);
    EXPECT_TRUE(deleted);
    CNote onStack;
    EXPECT_EQ(onStack.Release(), -1);
}

TEST(CXmlObjectBase, CopiesCarryTheCount) {
    CNote source;
    source.AddRef();
    source.AddRef();
    CNote copy(source);
    EXPECT_EQ(copy.AddRef(), 3);
    CNote assigned;
    assigned = source;
    EXPECT_EQ(assigned.AddRef(), 3);
}

TEST(CSmartPtr, AssignsWhatTheOldObjectOwns) {
    struct Owner {
        long AddRef() { return ++count; }
        long Release() {
            const long now = --count;
            if (now == 0)
                delete this;
            return now;
        }
        CSmartPtr<Owner> next;
        long count = 0;
    };
    CSmartPtr<Owner> head = new Owner;
    head->next = new Owner;
    Owner* second = head->next;
    head = head->next;
    EXPECT_EQ(head, second);
    EXPECT_EQ(head->count, 1);
    CSmartPtr<Owner>& self = head;
    head = self;
    EXPECT_EQ(head->count, 1);
}

TEST(ToXml, WritesDeclarationLineEndAndRoot) {
    CNote note;
    note.text = u"a\nb";
    EXPECT_EQ(note.ToXml(true, false, EOLType_CRLF, Defaults()),
              u"<?xml version=\"1.0\"?>\r\n<AA:note xmlns:AA=\"urn:notes\">a\r\nb</AA:note>");
    EXPECT_EQ(note.ToXml(false, true, EOLType_LF, Defaults()),
              u"<AA:note xmlns:AA=\"urn:notes\">a\nb</AA:note>\n");
}

TEST(ToXml, FailsForBadLineEndsAndOpenElements) {
    CNote note;
    note.leaveOpen = true;
    const auto write = [&](EOLType eol) {
        return Failure([&] { note.ToXml(false, false, eol, Defaults()); });
    };
    EXPECT_EQ(write(static_cast<EOLType>(2)), "Invalid EOL type.");
    EXPECT_EQ(write(EOLType_LF), "An Element has not been closed.");
}

TEST(FromXml, ReadsBytesAndWideTextAndElements) {
    CNote note;
    note.FromXml("<?xml version='1.0' encoding='ISO-8859-1'?><n>\xE5</n>", Defaults());
    EXPECT_EQ(note.text, u"\u00e5");
    note.FromXml(u"<?xml version='1.0' encoding='ISO-8859-1'?><n>\u4E2D</n>", Defaults());
    EXPECT_EQ(note.text, u"\u4E2D");
    EXPECT_THROW(note.FromXmlElement(static_cast<const CXmlElement*>(nullptr), Defaults()),
                 CKzInvalidParamException);
}

} // namespace
