#pragma once

#include "library/Tables.h"

#include <optional>
#include <string>
#include <utility>

namespace library {

// [group]
/// The choice in BookType: where a book is. A group without a tag of its own.
class CPlace : public CXmlGeneratedClass {
public:
    CPlace() { SetElementName(u"place"); }

    // A setter throws CKzInvalidStateException while the other member is set, which is set to null first.

    const std::optional<std::u16string>& GetShelf() const { return m_shelf; }
    void SetShelf(std::optional<std::u16string> value) { Select(u"shelf", m_shelf, std::move(value)); }
    const std::optional<CDateTime>& GetLentOn() const { return m_lentOn; }
    void SetLentOn(std::optional<CDateTime> value) { Select(u"lentOn", m_lentOn, std::move(value)); }
    // [/group]

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetNamespace() const override { return libraryNamespace; }
    CParentElementInfo* GetClassInfo() const override { return GetTables().info; }
    CElementInfo** GetClassElementInfo() const override { return GetTables().elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return GetTables().attributes; }
    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    void Init() override;

protected:
    std::u16string GetTargetNamespace() const override { return libraryNamespace; }

private:
    enum Property { Property_shelf, Property_lentOn };

    struct Tables {
        CParentElementInfo* info;
        CElementInfo** elements;
        CAttributeInfo** attributes;
        ~Tables() { CleanMetaData(info, elements, attributes); }
    };
    static const Tables& GetTables();

    // [select]
    template <class T>
    void Select(const char16_t* name, std::optional<T>& member, std::optional<T> value) {
        Choice_SelectElement(name, value ? this : nullptr, m_validElement); // refuses a second member
        member = std::move(value);
    }

    std::u16string m_validElement; // the name of the member that is set
    std::optional<std::u16string> m_shelf;
    std::optional<CDateTime> m_lentOn;
    // [/select]
};

} // namespace library
