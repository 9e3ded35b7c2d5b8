#include "support/Test.h"

namespace {

/// An object with what it inherits in the open.
struct CChoice : ScriptedObject {
    CChoice() : ScriptedObject("") {}
    using CXmlObjectBase::Choice_CollectionChanged;
    using CXmlObjectBase::Choice_Read_Collection;
    using CXmlObjectBase::Choice_SelectElement;
    using CXmlObjectBase::Choice_SetElementValid;
};

/// In each row the record of the choice, what is set, and behind the arrow the record after `helper` has been
/// told so of the property "a", in front of what it threw.
template <class Helper>
void ExpectRecords(std::initializer_list<Row> rows, Helper helper) {
    const std::string onlyOne = " is already set. Only one element within this class bay be set at a time";
    ExpectRows(rows, [&](const std::u16string& row) {
        std::u16string record = row.substr(0, row.find(u' '));
        const char16_t set = row.back();
        std::string failure = InvalidState([&] { helper(set, record); });
        if (failure == "no failure")
            return ToUtf8(record);
        EXPECT_TRUE(failure.ends_with(onlyOne)) << failure;
        return ToUtf8(record) + ": " + failure.substr(0, failure.size() - onlyOne.size());
    });
}

TEST(ChoiceHelpers, KeepTheRecordOfTheOneMemberThatIsSet) {
    // A member is valid or not.
    ExpectRecords({"b 0 -> ", "a 1 -> a", "b 1 -> b: The Property b", " 1 -> : The Property "},
                  [](char16_t set, std::u16string& record) {
                      CChoice::Choice_SetElementValid(set == u'1', u"a", record);
                  });
    // A member is an object or null; the first is taken even if it is null.
    CChoice object;
    ExpectRecords({" 1 -> a", " 0 -> a", "a 1 -> a", "a 0 -> ", "b 0 -> b", "b 1 -> b: The Property [b]"},
                  [&](char16_t set, std::u16string& record) {
                      CChoice::Choice_SelectElement(u"a", set == u'1' ? &object : nullptr, record);
                  });
    // A member is a collection of so many items.
    ExpectRecords({" 1 -> a", " 0 -> ", "a 2 -> a", "a 0 -> ", "b 0 -> b", "b 1 -> b: The Property [b]"},
                  [](char16_t set, std::u16string& record) {
                      CChoice::Choice_CollectionChanged(u"a", set - u'0', record);
                  });
}

TEST(ChoiceHelpers, ReadCollectionTakesOneRun) {
    CXmlDocument document;
    document.LoadXml(u"<r><x/><y/></r>");
    CXmlElement* root = document.GetDocumentElement();
    const auto read = [&](int minOccurs, CXmlElement* current, long count) {
        kit::CModelCol collection(kit::NewModel(u"x"), u"x", u"", minOccurs, -1);
        std::string result = Failure<CKzValidationException>([&] {
            CChoice::Choice_Read_Collection(&collection, root, current, count, CXmlSerializationContext());
        });
        return std::to_string(count) + (current ? ToUtf8(current->GetLocalName()) : "null") + " " + result;
    };
    EXPECT_EQ(read(0, root->GetFirstElement(), 0), "1y no failure");
    EXPECT_EQ(read(0, root->GetFirstElement(), 1), "1x no failure");
    EXPECT_EQ(read(5, nullptr, 0), "0null no failure"); // nothing taken, nothing counted
    EXPECT_EQ(read(5, root->GetFirstElement(), 0),
              "0y The Minimum number of [x] elements allowed in this collection is 5");
}

} // namespace
