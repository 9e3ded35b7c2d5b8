#include <KzXmlLib10/values/CDateTime.h>

#include <KzXmlLib10/object/CKzException.h>

#include "values/DateTimeKinds.h"

namespace KzXmlLib10 {

namespace {

/// The order of one field. A kind without the field counts as -1.
/// Deliberate: values of different sign are indeterminate, so a year before 1 and one after it are, too.
CDateTime::DTCompareResult CompareNumbers(double left, double right) {
    if (left * right < 0)
        return CDateTime::DTCompareResult_Indeterminate;
    if (left < right)
        return CDateTime::DTCompareResult_Less;
    return left > right ? CDateTime::DTCompareResult_Greater : CDateTime::DTCompareResult_Equal;
}

} // namespace

CDateTime::DTCompareResult CDateTime::CompareFields(const CDateTime& other) const {
    const auto compare = [&](bool (*has)(DTType), auto CDateTime::*field) {
        return CompareNumbers(has(m_dtType) ? this->*field : -1, has(other.m_dtType) ? other.*field : -1);
    };
    DTCompareResult result = compare(HasYear, &CDateTime::m_year);
    if (result == DTCompareResult_Equal)
        // Deliberate: the month of the right-hand side is not read, so months are equal if both have one.
        result =
            CompareNumbers(HasMonth(m_dtType) ? m_month : -1, HasMonth(other.m_dtType) ? GetMonth() : -1);
    if (result == DTCompareResult_Equal)
        result = compare(HasDay, &CDateTime::m_day);
    if (result == DTCompareResult_Equal)
        result = compare(HasTimeOfDay, &CDateTime::m_hour);
    if (result == DTCompareResult_Equal)
        result = compare(HasTimeOfDay, &CDateTime::m_minute);
    if (result == DTCompareResult_Equal)
        result = CompareNumbers(HasTimeOfDay(m_dtType) ? GetRealSecond() : -1.0,
                                HasTimeOfDay(other.m_dtType) ? other.GetRealSecond() : -1.0);
    return result;
}

CDateTime::DTCompareResult CDateTime::CompareTo(const CDateTime& other) const {
    CDateTime left = GetNormalized();
    CDateTime right = other.GetNormalized();
    if (left.m_isUTC == right.m_isUTC)
        return left.CompareFields(right);

    // Deliberate: the second move starts from the result of the first and so leads back to the start. The
    // band of indeterminate results is 14 hours wide on one side only.
    CDateTime& moved = left.m_isUTC ? right : left;
    const DTCompareResult first = left.m_isUTC ? DTCompareResult_Less : DTCompareResult_Greater;
    const DTCompareResult second = left.m_isUTC ? DTCompareResult_Greater : DTCompareResult_Less;
    try {
        moved.SetTimeZone(14, 0);
        moved = moved.GetNormalized();
        if (left.CompareFields(right) == first)
            return first;
        moved.SetTimeZone(-14, 0);
        moved = moved.GetNormalized();
        if (left.CompareFields(right) == second)
            return second;
    } catch (const CKzInvalidValueException&) {
        // A time that cannot be moved has no order.
    }
    return DTCompareResult_Indeterminate;
}

bool CDateTime::operator==(const CDateTime& other) const { return CompareTo(other) == DTCompareResult_Equal; }
bool CDateTime::operator!=(const CDateTime& other) const { return CompareTo(other) != DTCompareResult_Equal; }
bool CDateTime::operator<(const CDateTime& other) const { return CompareTo(other) == DTCompareResult_Less; }
bool CDateTime::operator>(const CDateTime& other) const {
    return CompareTo(other) == DTCompareResult_Greater;
}

bool CDateTime::operator<=(const CDateTime& other) const {
    const DTCompareResult result = CompareTo(other);
    return result == DTCompareResult_Less || result == DTCompareResult_Equal;
}

bool CDateTime::operator>=(const CDateTime& other) const {
    const DTCompareResult result = CompareTo(other);
    return result == DTCompareResult_Greater || result == DTCompareResult_Equal;
}

} // namespace KzXmlLib10
