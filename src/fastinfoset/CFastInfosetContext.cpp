#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>

#include "fastinfoset/Algorithms.h"
#include "fastinfoset/Messages.h"
#include "object/Throw.h"

#include <limits>

namespace KzXmlLib10 {

using namespace fastinfoset;

namespace {

std::uint32_t Checked(unsigned long length) {
    if (length > std::numeric_limits<std::uint32_t>::max())
        Throw<CKzInvalidParamException>(messages::MaxAddLengthTooLarge,
                                        static_cast<unsigned long long>(length));
    return static_cast<std::uint32_t>(length);
}

struct SuggestedEncoding {
    ItemType itemType;
    CFastInfosetContext::EncodedCharacterString encoding;
};

constexpr CFastInfosetContext::EncodedCharacterString By(Algorithm algorithm) {
    return {CFastInfosetContext::EncodingType_Algorithm, algorithm};
}

constexpr CFastInfosetContext::EncodedCharacterString By(Alphabet alphabet) {
    return {CFastInfosetContext::EncodingType_RestrictedAlphabet, alphabet};
}

// Unsigned kinds take the next wider signed algorithm. Deliberate: there is none for ui8, whose upper half
// cannot be written.
constexpr SuggestedEncoding suggestedEncodings[] = {
    {ItemType_hexBinary, By(AlgorithmHexadecimal)},
    {ItemType_base64Binary, By(AlgorithmBase64)},
    {ItemType_i1, By(AlgorithmShort)},
    {ItemType_i2, By(AlgorithmShort)},
    {ItemType_ui1, By(AlgorithmShort)},
    {ItemType_i4, By(AlgorithmInt)},
    {ItemType_ui2, By(AlgorithmInt)},
    {ItemType_i8, By(AlgorithmLong)},
    {ItemType_ui4, By(AlgorithmLong)},
    {ItemType_ui8, By(AlgorithmLong)},
    {ItemType_r4, By(AlgorithmFloat)},
    {ItemType_r8, By(AlgorithmDouble)},
    {ItemType_yearMonth, By(AlphabetDateAndTime)},
    {ItemType_monthDay, By(AlphabetDateAndTime)},
    {ItemType_year, By(AlphabetDateAndTime)},
    {ItemType_month, By(AlphabetDateAndTime)},
    {ItemType_day, By(AlphabetDateAndTime)},
    {ItemType_date, By(AlphabetDateAndTime)},
    {ItemType_datetime, By(AlphabetDateAndTime)},
    {ItemType_time, By(AlphabetDateAndTime)},
    {ItemType_boolean, By(AlgorithmBoolean)},
    {ItemType_decimal, By(AlphabetNumeric)},
    {ItemType_integer, By(AlphabetNumeric)},
};

} // namespace

CFastInfosetContext::CFastInfosetContext() = default;
CFastInfosetContext::CFastInfosetContext(const CFastInfosetContext& other) = default;
CFastInfosetContext& CFastInfosetContext::operator=(const CFastInfosetContext& other) = default;
CFastInfosetContext::~CFastInfosetContext() = default;

void CFastInfosetContext::SetAttributeMaxAddLength(unsigned long length) {
    m_attributeMaxAddLength = Checked(length);
}

void CFastInfosetContext::SetElementMaxAddLength(unsigned long length) {
    m_elementMaxAddLength = Checked(length);
}

const CFastInfosetContext::EncodedCharacterString&
CFastInfosetContext::GetEncoding(unsigned long itemType) const {
    if (itemType >= itemTypeCount)
        Throw<CKzInvalidParamException>(messages::NoSuchItemType, static_cast<unsigned long long>(itemType));
    return m_encodings[itemType];
}

void CFastInfosetContext::SetEncoding(unsigned long itemType, EncodedCharacterString encoding) {
    (void)GetEncoding(itemType);
    m_encodings[itemType] = encoding;
}

void CFastInfosetContext::SetSuggestedValues() {
    for (const auto& [itemType, encoding] : suggestedEncodings)
        m_encodings[itemType] = encoding;
    m_encodings[ItemType_duration].m_index = 0; // Deliberate: its type stays.
}

} // namespace KzXmlLib10
