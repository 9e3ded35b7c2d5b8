#include "library/CLibrary.h"

namespace library {

namespace {

// [register]
[[maybe_unused]] const bool isRegistered = (Register(10, 1), true);
// [/register]

} // namespace

// [library-tables]
const CLibrary::Tables& CLibrary::GetTables() {
    static const Tables tables{
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, u"library",
                               libraryNamespace, true, false, -1, ItemType_Invalid, nullptr, false),
        MakeTable<CElementInfo>({
            new CElementInfoSeqClsCol(u"book", libraryNamespace, 0, XmlElementType_Element),
        }),
        MakeTable<CAttributeInfo>({}), // no attributes: a table with just its end
    };
    return tables;
}
// [/library-tables]

void CLibrary::AccessProperty(int, bool, KzVariant& value) { value.SetXmlCollection(m_books); }

} // namespace library
