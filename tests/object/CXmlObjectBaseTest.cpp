#include "support/Model.h"
#include "support/Script.h"

namespace {

const CXmlSerializationContext& Defaults() { return CXmlSerializationContext::GetDefaultContext(); }

TEST(CXmlObjectBase, CountsReferencesWhichCopiesCarry) {
    struct CNote : ScriptedObject {
        explicit CNote(bool& wasDeleted) : ScriptedObject(""), deleted(wasDeleted) {}
        ~CNote() override { deleted = true; }
        bool& deleted;
    };
    bool deleted = false;
    auto* note = new CNote(deleted);
    EXPECT_EQ(note->AddRef(), 1);
    EXPECT_EQ(note->AddRef(), 2);
    EXPECT_EQ(ScriptedObject(*note).AddRef(), 3);
    ScriptedObject assigned("");
    EXPECT_EQ(assigned.Release(), -1);
    assigned = *note;
    EXPECT_EQ(assigned.AddRef(), 3);
    EXPECT_EQ(note->Release(), 1);
    EXPECT_FALSE(deleted);
    EXPECT_EQ(note->Release(), 0);
    EXPECT_TRUE(deleted);
}

TEST(CSmartPtr, AssignsWhatTheOldObjectOwns) {
    struct Owner {
        long AddRef() { return ++count; }
        [[gnu::noinline]] long Release() { // or g++ sees uses after the end where there are none
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
    const ScriptedObject note([](CXmlWriter& writer) {
        writer.StartElement(u"note", u"urn:notes");
        writer.WriteText(u"a\nb", ItemType_string);
        writer.EndElement();
    });
    EXPECT_EQ(note.ToXml(true, false, EOLType_CRLF, Defaults()),
              u"<?xml version=\"1.0\"?>\r\n<AA:note xmlns:AA=\"urn:notes\">a\r\nb</AA:note>");
    EXPECT_EQ(note.ToXml(false, true, EOLType_LF, Defaults()),
              u"<AA:note xmlns:AA=\"urn:notes\">a\nb</AA:note>\n");
    const auto failure = [](EOLType eol) {
        return Failure([&] { ScriptedObject("<note").ToXml(false, false, eol, Defaults()); });
    };
    EXPECT_EQ(failure(static_cast<EOLType>(2)), "Invalid EOL type.");
    EXPECT_EQ(failure(EOLType_LF), "An Element has not been closed.");
}

TEST(FromXml, ReadsBytesAndWideTextAndElements) {
    kit::Model model(u"n");
    model.Content(ItemType_string);
    const CSmartPtr<kit::CModelObject> note = model.New();
    note->FromXml("<?xml version='1.0' encoding='ISO-8859-1'?><n>\xE5</n>", Defaults());
    EXPECT_EQ(note->Text(0), u"\u00e5");
    note->FromXml(u"<?xml version='1.0' encoding='ISO-8859-1'?><n>\u4E2D</n>", Defaults());
    EXPECT_EQ(note->Text(0), u"\u4E2D");
    EXPECT_THROW(note->FromXmlElement(static_cast<const CXmlElement*>(nullptr), Defaults()),
                 CKzInvalidParamException);
}

} // namespace
