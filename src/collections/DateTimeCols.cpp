#include <KzXmlLib10/collections/DateTimeCols.h>

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/xml/CXmlWriter.h>

#include "collections/ItemIndex.h"

namespace KzXmlLib10 {

namespace {

/// All that tells one class from the others.
struct DateTimeColFacts {
    const char16_t* className;
    ItemType itemType;
    CDateTime::DTType kind;
    const char16_t* wrongKind;
    std::u16string (*toText)(const CDateTime& value);
    CDateTime (*fromText)(const std::u16string& text, CWhitespaceUtils::WhitespaceRule rule);
    void (*check)(const char16_t* name, const CDateTime& value, const CPrimitiveRestrictions& restrictions);
};

/// The row of facts of a class.
template <class Collection>
constexpr DateTimeColFacts dateTimeColFacts = {};

template <>
constexpr DateTimeColFacts dateTimeColFacts<CdatetimeCol> = {u"CdatetimeCol",
                                                             ItemType_datetime,
                                                             CDateTime::DTType_dateTime,
                                                             messages::NotOfKindDateTime,
                                                             CConversions::datetimeToString,
                                                             CConversions::datetimeFromString,
                                                             CheckDateTime};
template <>
constexpr DateTimeColFacts dateTimeColFacts<CdateCol> = {u"CdateCol",
                                                         ItemType_date,
                                                         CDateTime::DTType_date,
                                                         messages::NotOfKindDate,
                                                         CConversions::dateToString,
                                                         CConversions::dateFromString,
                                                         CheckDate};
template <>
constexpr DateTimeColFacts dateTimeColFacts<CtimeCol> = {u"CtimeCol",
                                                         ItemType_time,
                                                         CDateTime::DTType_time,
                                                         messages::NotOfKindTime,
                                                         CConversions::timeToString,
                                                         CConversions::timeFromString,
                                                         CheckTime};
template <>
constexpr DateTimeColFacts dateTimeColFacts<CyearMonthCol> = {u"CyearMonthCol",
                                                              ItemType_yearMonth,
                                                              CDateTime::DTType_gYearMonth,
                                                              messages::NotOfKindGYearMonth,
                                                              CConversions::yearMonthToString,
                                                              CConversions::yearMonthFromString,
                                                              CheckYearMonth};
template <>
constexpr DateTimeColFacts dateTimeColFacts<CmonthDayCol> = {u"CmonthDayCol",
                                                             ItemType_monthDay,
                                                             CDateTime::DTType_gMonthDay,
                                                             messages::NotOfKindGMonthDay,
                                                             CConversions::monthDayToString,
                                                             CConversions::monthDayFromString,
                                                             CheckMonthDay};

} // namespace

CdatetimeBaseCol::CdatetimeBaseCol(ItemType itemType, const char16_t* elementName,
                                   const char16_t* elementNamespace, int minOccurs, int maxOccurs,
                                   const char16_t* pattern, int minLength, int maxLength,
                                   const char16_t* minInclusive, const char16_t* maxInclusive,
                                   const char16_t* minExclusive, const char16_t* maxExclusive, int length,
                                   CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                   const char16_t* formatOverride)
    : CXmlTypeCollection(itemType, elementName, elementNamespace, minOccurs, maxOccurs, pattern, minLength,
                         maxLength, minInclusive, maxInclusive, minExclusive, maxExclusive, length,
                         whitespaceRule, formatOverride) {}

CdatetimeBaseCol::CdatetimeBaseCol(const CdatetimeBaseCol& other) = default;
CdatetimeBaseCol& CdatetimeBaseCol::operator=(const CdatetimeBaseCol& other) = default;
CdatetimeBaseCol::~CdatetimeBaseCol() = default;

int CdatetimeBaseCol::GetCount() const { return m_items.GetCount(); }

void CdatetimeBaseCol::Clear() { RemoveAll(*this); }

void CdatetimeBaseCol::Remove(int index) {
    FireOnCollectionRemove(index); // Deliberate: also for an index that is refused below.
    RequireItemIndex(index, GetCount());
    m_items.Remove(index);
    FireOnCollectionRemoveComplete(0); // Deliberate: 0 whatever the index.
    FireOnCollectionChange();
}

void CdatetimeBaseCol::Add(const CDateTime& value) { AddAt(GetCount(), value); }

CDateTime CdatetimeBaseCol::Item(int index) const {
    RequireItemIndex(index, GetCount());
    return m_items.Item(index);
}

void CdatetimeBaseCol::BaseAddAt(int index, const CDateTime& value) {
    CDateTime item = value; // which may be one of the vector's own, about to move
    FireOnCollectionAdd(&item);
    RequireInsertIndex(index, GetCount());
    m_items.Insert(index, item);
    FireOnCollectionAddComplete(&item);
    FireOnCollectionChange();
}

void CdatetimeBaseCol::ToXml_Int(CXmlWriter* writer, bool, const char16_t*,
                                 const CXmlSerializationContext& context, bool) const {
    ValidateCount(context);
    const std::u16string name = GetElementName();
    for (const CDateTime& item : m_items) {
        writer->StartElement(name, m_elementNamespace);
        // Deliberate: this type also for dates, times and their parts.
        writer->WriteText(ItemToString(item), ItemType_datetime);
        writer->EndElement();
    }
}

template <class Collection>
CDateTimeKindCol<Collection>::CDateTimeKindCol(const char16_t* elementName, const char16_t* elementNamespace,
                                               int minOccurs, int maxOccurs, const char16_t* pattern,
                                               int minLength, int maxLength, const char16_t* minInclusive,
                                               const char16_t* maxInclusive, const char16_t* minExclusive,
                                               const char16_t* maxExclusive, int length,
                                               CWhitespaceUtils::WhitespaceRule whitespaceRule,
                                               const char16_t* formatOverride)
    : CdatetimeBaseCol(dateTimeColFacts<Collection>.itemType, elementName, elementNamespace, minOccurs,
                       maxOccurs, pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive,
                       maxExclusive, length, whitespaceRule, formatOverride),
      CInstanceMonitor(dateTimeColFacts<Collection>.className) {}

template <class Collection>
CDateTimeKindCol<Collection>::CDateTimeKindCol(const CDateTimeKindCol& other) = default;
template <class Collection>
CDateTimeKindCol<Collection>&
CDateTimeKindCol<Collection>::operator=(const CDateTimeKindCol& other) = default;
template <class Collection>
CDateTimeKindCol<Collection>::~CDateTimeKindCol() = default;

template <class Collection>
void CDateTimeKindCol<Collection>::AddAt(int index, const CDateTime& value) {
    if (value.GetType() != dateTimeColFacts<Collection>.kind)
        Throw<CKzInvalidParamException>(dateTimeColFacts<Collection>.wrongKind);
    dateTimeColFacts<Collection>.check(GetElementName().c_str(), value, m_restrictions);
    BaseAddAt(index, value);
}

template <class Collection>
void CDateTimeKindCol<Collection>::AddFromString(std::u16string text) {
    Add(dateTimeColFacts<Collection>.fromText(text, m_whitespaceRule));
}

template <class Collection>
std::u16string CDateTimeKindCol<Collection>::ItemToString(const CDateTime& value) const {
    return dateTimeColFacts<Collection>.toText(value);
}

template class CDateTimeKindCol<CdatetimeCol>;
template class CDateTimeKindCol<CdateCol>;
template class CDateTimeKindCol<CtimeCol>;
template class CDateTimeKindCol<CyearMonthCol>;
template class CDateTimeKindCol<CmonthDayCol>;

} // namespace KzXmlLib10
