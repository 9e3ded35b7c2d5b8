#include "support/Test.h"

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
    struct CLink : ScriptedObject {
        CLink() : ScriptedObject("") {}
        CSmartPtr<CLink> next;
    };
    CSmartPtr<CLink> head = new CLink;
    head->next = new CLink;
    const CLink* second = head->next;
    head = head->next;
    EXPECT_EQ(head, second);
    CSmartPtr<CLink>& self = head;
    head = self;
    CSmartPtr<CXmlObjectBase> base;
    base = head;
    EXPECT_EQ(head->AddRef(), 3);
    head->Release();
}
