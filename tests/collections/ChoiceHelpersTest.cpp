#include <KzXmlLib10/collections/CXmlCollection.h>

#include "support/EventLog.h"
#include "support/Failure.h"

#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <gtest/gtest.h>

using namespace KzXmlLib10;
using KzXmlLib10::support::EventLog;
using KzXmlLib10::support::Failure;

namespace {

/// A collection, so also an object, with what it inherits in the open. It takes the first child that it is
/// offered.
class CChoice : public CXmlCollection {
public:
    explicit CChoice(int minOccurs = 0) : CXmlCollection(u"c", u"", minOccurs, -1) {}

    using CXmlObjectBase::Choice_CollectionChanged;
    using CXmlObjectBase::Choice_Read_Collection;
    using CXmlObjectBase::Choice_SelectElement;
    using CXmlObjectBase::Choice_SetElementValid;
    using CXmlObjectBase::FireOnCollectionRemoveCompleteEvent;
    using CXmlObjectBase::FireOnCollectionRemoveEvent;

protected:
    void ToXml_Int(CXmlWriter*, bool, const char16_t*, const CXmlSerializationContext&, bool) const override {
    }
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* current, const CXmlSerializationContext&,
                             bool) override {
        return current ? current->GetNextSiblingElement() : nullptr;
    }
};

/// The record after the action, in front of what it threw.
template <class Action>
std::string After(std::u16string validElement, Action action) {
    const std::string failure = Failure<CKzInvalidStateException>([&] { action(validElement); });
    return ToUtf8(validElement) + (failure == "no failure" ? "" : ": " + failure);
}

const std::string onlyOne = " is already set. Only one element within this class bay be set at a time";

TEST(ChoiceHelpers, SetElementValidConfirmsOrClears) {
    const auto set = [](const char16_t* before, bool isValid) {
        return After(before, [&](std::u16string& v) { CChoice::Choice_SetElementValid(isValid, u"a", v); });
    };
    EXPECT_EQ(set(u"b", false), "");
    EXPECT_EQ(set(u"a", true), "a");
    EXPECT_EQ(set(u"b", true), "b: The Property b" + onlyOne);
    EXPECT_EQ(set(u"", true), ": The Property " + onlyOne);
}

TEST(ChoiceHelpers, SelectElementTakesTheFirstEvenIfNull) {
    CChoice object;
    const auto select = [&](const char16_t* before, CXmlObjectBase* value) {
        return After(before, [&](std::u16string& v) { CChoice::Choice_SelectElement(u"a", value, v); });
    };
    EXPECT_EQ(select(u"", &object), "a");
    EXPECT_EQ(select(u"", nullptr), "a");
    EXPECT_EQ(select(u"a", &object), "a");
    EXPECT_EQ(select(u"a", nullptr), "");
    EXPECT_EQ(select(u"b", nullptr), "b");
    EXPECT_EQ(select(u"b", &object), "b: The Property [b]" + onlyOne);
}

TEST(ChoiceHelpers, CollectionChangedFollowsTheCount) {
    const auto change = [](const char16_t* before, long count) {
        return After(before, [&](std::u16string& v) { CChoice::Choice_CollectionChanged(u"a", count, v); });
    };
    EXPECT_EQ(change(u"", 1), "a");
    EXPECT_EQ(change(u"", 0), "");
    EXPECT_EQ(change(u"a", 2), "a");
    EXPECT_EQ(change(u"a", 0), "");
    EXPECT_EQ(change(u"b", 0), "b");
    EXPECT_EQ(change(u"b", 1), "b: The Property [b]" + onlyOne);
}

TEST(ChoiceHelpers, ReadCollectionTakesOneRunAndChecksItsNumber) {
    CXmlDocument document;
    document.LoadXml(u"<r><x/><y/></r>");
    CXmlElement* root = document.GetDocumentElement();
    const auto read = [&](int minOccurs, CXmlElement* current, long count) {
        CChoice collection(minOccurs);
        std::string result = Failure<CKzValidationException>([&] {
            CChoice::Choice_Read_Collection(&collection, root, current, count, CXmlSerializationContext());
        });
        return std::to_string(count) + (current ? ToUtf8(current->GetLocalName()) : "null") + " " + result;
    };
    EXPECT_EQ(read(0, root->GetFirstElement(), 0), "1y no failure");
    EXPECT_EQ(read(0, root->GetFirstElement(), 1), "1x no failure");
    EXPECT_EQ(read(5, nullptr, 0), "0null no failure") << "nothing taken, nothing counted";
    EXPECT_EQ(read(5, root->GetFirstElement(), 0),
              "0y The Minimum number of [c] elements allowed in this collection is 5");
}

TEST(CollectionEvents, TellTheIndexOfARemoval) {
    EventLog log(nullptr);
    CChoice collection;
    log.Watch(collection);
    CChoice::FireOnCollectionRemoveEvent(&log, &collection, 0);
    CChoice::FireOnCollectionRemoveEvent(&log, &collection, -1);
    CChoice::FireOnCollectionRemoveCompleteEvent(&log, &collection, 7);
    CChoice::FireOnCollectionRemoveCompleteEvent(&log, &collection, -1);
    EXPECT_EQ(log.Take(), "remove(0) remove(null) removed(7) removed(null) ");
}

} // namespace
