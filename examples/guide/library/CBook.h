#pragma once

#include "library/CPlace.h"
#include "library/Tables.h"

#include <optional>
#include <string>

namespace library {

// [class]
enum Binding { Binding_paperback, Binding_hardcover };

/// The complex type BookType.
class CBook : public CXmlGeneratedClass {
public:
    explicit CBook(const char16_t* elementName = u"book");

    // For the application: typed members. Setters throw CKzException for what the facets refuse.

    const std::u16string& GetTitle() const { return m_title; }
    void SetTitle(std::u16string value);
    CstringCol* GetAuthors() const { return m_authors; }
    const std::optional<CDecimal>& GetPrice() const { return m_price; }
    void SetPrice(std::optional<CDecimal> value) { m_price = std::move(value); }
    CPlace* GetPlace() const { return m_place; }
    const std::u16string& GetIsbn() const { return m_isbn; }
    void SetIsbn(std::u16string value);
    Binding GetBinding() const { return m_binding; }
    void SetBinding(Binding value) { m_binding = value; }

    // For the library: the contract.

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
    enum Property {
        Property_title,
        Property_author,
        Property_price,
        Property_place,
        Property_isbn,
        Property_binding,
    };

    struct Tables {
        CParentElementInfo* info;
        CElementInfo** elements;
        CAttributeInfo** attributes;
        ~Tables() { CleanMetaData(info, elements, attributes); }
    };
    static const Tables& GetTables();

    std::u16string m_title;
    CSmartPtr<CstringCol> m_authors;
    std::optional<CDecimal> m_price;
    CSmartPtr<CPlace> m_place;
    std::u16string m_isbn;
    Binding m_binding = Binding_paperback;
};
// [/class]

} // namespace library
