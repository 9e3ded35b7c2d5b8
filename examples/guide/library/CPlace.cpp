#include "library/CPlace.h"

namespace library {

// [group-tables]
const CPlace::Tables& CPlace::GetTables() {
    constexpr auto ns = libraryNamespace;
    static const Tables tables{
        new CParentElementInfo(XmlElementGroupType_Choice, XmlElementType_Pseudo, u"place", ns,
                               false, // attributes are those of the book
                               false, -1, ItemType_Invalid, nullptr, false),
        MakeTable<CElementInfo>({
            new CElementInfoChoicePrimOpt(u"shelf", ns, Property_shelf, false, ItemType_string, nullptr,
                                          CWhitespaceUtils::WhitespaceRule_Preserve,
                                          CPrimitiveRestrictions()),
            new CElementInfoChoicePrimOpt(u"lentOn", ns, Property_lentOn, false, ItemType_date, nullptr,
                                          CWhitespaceUtils::WhitespaceRule_Collapse,
                                          CPrimitiveRestrictions()),
        }),
        MakeTable<CAttributeInfo>({}),
    };
    return tables;
}

void CPlace::AccessProperty(int propertyIndex, bool read, KzVariant& value) {
    switch (propertyIndex) {
    case Property_shelf:
        if (read)
            return m_shelf ? value.SetString(*m_shelf) : value.SetInvalid();
        return SetShelf(value.GetString());
    case Property_lentOn:
        if (read)
            return m_lentOn ? value.SetDate(*m_lentOn) : value.SetInvalid();
        return SetLentOn(value.GetDateTime());
    }
}

void CPlace::Init() {
    m_validElement.clear();
    m_shelf.reset();
    m_lentOn.reset();
}
// [/group-tables]

} // namespace library
