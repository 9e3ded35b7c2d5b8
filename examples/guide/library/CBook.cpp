#include "library/CBook.h"

#include <string_view>
#include <utility>

namespace library {

// [enumeration]
const char16_t* BindingToString(int value) {
    return value == Binding_hardcover ? u"hardcover" : u"paperback";
}

int BindingFromString(const char16_t* text) {
    for (const Binding binding : {Binding_paperback, Binding_hardcover})
        if (std::u16string_view(text) == BindingToString(binding))
            return binding;
    throw CKzInvalidValueException(FormatString(u"The text [%s] is no binding", text));
}
// [/enumeration]

// [tables]
const CBook::Tables& CBook::GetTables() {
    constexpr auto ns = libraryNamespace;
    constexpr auto preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    static const Tables tables{
        new CParentElementInfo(XmlElementGroupType_Sequence,          // how the children are grouped
                               XmlElementType_Element,                // the class has a tag of its own
                               u"BookType", ns,                       // the name that xsi:type would bear
                               true,                                  // an unknown attribute is a fault
                               false,                                 // the type is not part of a derivation
                               -1, ItemType_Invalid, nullptr, false), // no text beside the children
        MakeTable<CElementInfo>({
            new CElementInfoSeqPrimMnd(u"title", ns, Property_title, false, ItemType_string, nullptr,
                                       preserve, CPrimitiveRestrictions(u"", 1, -1, u"", u"", u"", u"", -1)),
            new CElementInfoSeqPrimCol(u"author", ns, Property_author),
            new CElementInfoSeqPrimOpt(u"price", ns, Property_price, false, ItemType_decimal, nullptr,
                                       collapse, CPrimitiveRestrictions()),
            new CElementInfoSeqClsMnd(u"place", ns, Property_place, XmlElementType_Pseudo, // a nested group
                                      nullptr, 0, // no factory: the constructor creates the object
                                      true),      // at least one of its elements is required
        }),
        MakeTable<CAttributeInfo>({
            new CAttributeInfoPrimitive(
                u"isbn", u"", Property_isbn, false, ItemType_string, nullptr, preserve,
                CPrimitiveRestrictions(u"[0-9]{13}", -1, -1, u"", u"", u"", u"", -1), nullptr),
            new CAttributeInfoEnum(u"binding", u"", Property_binding, true, BindingToString,
                                   BindingFromString, u"paperback"),
        }),
    };
    return tables;
}
// [/tables]

// [constructor]
CBook::CBook(const char16_t* elementName)
    : m_authors(new CstringCol(u"author", libraryNamespace, 1, -1, // one to unbounded
                               u"", -1, -1, u"", u"", u"", u"", -1, CWhitespaceUtils::WhitespaceRule_Preserve,
                               nullptr)),
      m_place(new CPlace) {
    SetElementName(elementName);
}

void CBook::Init() {
    m_title.clear();
    m_authors->Clear();
    m_price.reset();
    m_isbn.clear();
    m_binding = Binding_paperback;
}
// [/constructor]

// [access]
void CBook::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_title:
        return read ? value.SetString(m_title) : SetTitle(value.GetString());
    case Property_author:
        return value.SetXmlCollection(m_authors); // only read: descriptors fill it, and never exchange it
    case Property_price:
        if (read)
            return m_price ? value.SetDecimal(*m_price) : value.SetInvalid();
        return SetPrice(value.GetDecimal());
    case Property_place:
        return value.SetXmlObject(m_place); // only read, as it is never exchanged either
    case Property_isbn:
        return read ? value.SetString(m_isbn) : SetIsbn(value.GetString());
    case Property_binding:
        return read ? value.SetI4(m_binding) : SetBinding(static_cast<Binding>(value.GetI4()));
    }
}

void CBook::SetTitle(std::u16string value) {
    KzVariant variant;
    variant.SetString(value);
    GetTables().elements[Property_title]->CheckRestriction(variant);
    m_title = std::move(value);
}

void CBook::SetIsbn(std::u16string value) {
    KzVariant variant;
    variant.SetString(value);
    static_cast<CAttributeInfoPrimitive*>(GetTables().attributes[0])->CheckRestriction(variant);
    m_isbn = std::move(value);
}
// [/access]

} // namespace library
