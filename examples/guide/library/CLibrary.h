#pragma once

#include "library/CBook.h"

namespace library {

// [collection]
/// Repeated elements of BookType.
class CBookCol : public CXmlCollection {
public:
    CBookCol() : CXmlCollection(u"book", libraryNamespace, 0, -1) {}

    CSmartPtr<CBook> Add() {
        const CSmartPtr<CBook> book = new CBook;
        AppendItem(book);
        return book;
    }
    CSmartPtr<CBook> Item(int index) const { return static_cast<CBook*>(&*GetNodeAtIndex(index)->m_item); }
    CKzIterator<CBook> begin() const { return CKzIterator<CBook>(m_head); }
    CKzIterator<CBook> end() const { return CKzIterator<CBook>(); }

protected:
    using CXmlObjectBase::FromXml_Int;
    using CXmlObjectBase::ToXml_Int;

    void ToXml_Int(CXmlWriter* writer, bool, const char16_t*, const CXmlSerializationContext& context,
                   bool) const override {
        for (const CBook& book : *this)
            CXmlObjectBase::ToXml_Int(&book, writer, false, m_elementNamespace.c_str(), context, false);
    }

    /// Takes the whole run of elements that bear the name of the items.
    CXmlElement* FromXml_Int(CXmlElement*, CXmlElement* current, const CXmlSerializationContext& context,
                             bool) override {
        for (; current && DoesElementNameMatch(context, current, u"book", libraryNamespace);
             current = current->GetNextSiblingElement()) {
            const CSmartPtr<CBook> book = new CBook;
            CXmlObjectBase::FromXml_Int(book, current, current->GetFirstElement(), context);
            AppendItem(book);
        }
        return current;
    }
};
// [/collection]

/// The element library.
class CLibrary : public CXmlGeneratedClass {
public:
    CLibrary() : m_books(new CBookCol) { SetElementName(u"library"); }

    CBookCol* GetBooks() const { return m_books; }

    using CXmlObjectBase::GetBase;
    CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetNamespace() const override { return libraryNamespace; }
    CParentElementInfo* GetClassInfo() const override { return GetTables().info; }
    CElementInfo** GetClassElementInfo() const override { return GetTables().elements; }
    CAttributeInfo** GetClassAttributeInfo() const override { return GetTables().attributes; }
    void AccessProperty(int propertyIndex, bool read, KzVariant& value) override;
    void Init() override { m_books->Clear(); }

protected:
    std::u16string GetTargetNamespace() const override { return libraryNamespace; }

private:
    struct Tables {
        CParentElementInfo* info;
        CElementInfo** elements;
        CAttributeInfo** attributes;
        ~Tables() { CleanMetaData(info, elements, attributes); }
    };
    static const Tables& GetTables();

    CSmartPtr<CBookCol> m_books;
};

} // namespace library
