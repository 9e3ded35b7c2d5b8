/// The record that a generated class with a choice keeps of the member that is set.

#include <KzXmlLib10/collections/CXmlCollectionBase.h>

#include "collections/Messages.h"
#include "object/NotNull.h"

namespace KzXmlLib10 {

void CXmlObjectBase::Choice_SetElementValid(bool isValid, const char16_t* element,
                                            std::u16string& validElement) {
    if (!isValid)
        validElement.clear(); // Deliberate: also if another member is the one set.
    else if (validElement != NotNull(element, u"element"))
        // Deliberate: it confirms a selection and never makes the first one.
        Throw<CKzInvalidStateException>(messages::ChoiceNotSelected, validElement);
}

void CXmlObjectBase::Choice_SelectElement(const char16_t* element, CXmlObjectBase* value,
                                          std::u16string& validElement) {
    if (validElement == NotNull(element, u"element")) {
        if (!value)
            validElement.clear();
    } else if (validElement.empty()) {
        validElement = element; // Deliberate: also for null.
    } else if (value) {
        Throw<CKzInvalidStateException>(messages::ChoiceAlreadySet, validElement);
    }
}

void CXmlObjectBase::Choice_CollectionChanged(const char16_t* element, long count,
                                              std::u16string& validElement) {
    if (validElement == NotNull(element, u"element")) {
        if (count == 0)
            validElement.clear();
    } else if (!validElement.empty()) {
        if (count != 0)
            Throw<CKzInvalidStateException>(messages::ChoiceAlreadySet, validElement);
    } else if (count >= 1) {
        validElement = element;
    }
}

void CXmlObjectBase::Choice_Read_Collection(CXmlCollectionBase* collection, CXmlElement* element,
                                            CXmlElement*& current, long& count,
                                            const CXmlSerializationContext& context) {
    if (count >= 1)
        return;
    CXmlElement* next = FromXml_Int(NotNull(collection, u"collection"), element, current, context);
    if (next == current)
        return;
    current = next;
    collection->ValidateCount(context);
    ++count;
}

} // namespace KzXmlLib10
