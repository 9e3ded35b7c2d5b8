#include <KzXmlLib10/collections/BinaryCols.h>

#include "collections/PrimitiveCol.h"

namespace KzXmlLib10 {

template <>
inline constexpr PrimitiveColFacts primitiveColFacts<ChexBinaryCol> = {
    u"ChexBinaryCol", ItemType_hexBinary, CConversions::hexBinaryToString, CConversions::hexBinaryFromString,
    CheckHexBinary};
template <>
inline constexpr PrimitiveColFacts primitiveColFacts<Cbase64BinaryCol> = {
    u"Cbase64BinaryCol", ItemType_base64Binary, CConversions::base64BinaryToString,
    CConversions::base64BinaryFromString, CheckBase64Binary};

template class CPrimitiveCol<ChexBinaryCol, CBinaryData>;
template class CPrimitiveCol<Cbase64BinaryCol, CBinaryData>;

} // namespace KzXmlLib10
