// Values for the printers of gdb, which stops in Look.

#include <KzXmlLib10/KzXmlLib10.h>

using namespace KzXmlLib10;

namespace {

void Look(const void*) {}

KzVariant Variant(const char16_t* text, ItemType type) {
    KzVariant value;
    value.FromString(text, type, CWhitespaceUtils::WhitespaceRule_Collapse);
    return value;
}

} // namespace

int main() {
    Register(10, 1);
    const CBigInteger integers[] = {CBigInteger(u"0"), CBigInteger(u"-0"),
                                    CBigInteger(u"-123456789012345678901")};
    const CDecimal decimals[] = {CDecimal(u"7"), CDecimal(u"-0.5"), CDecimal(u"1.05"), CDecimal(u"-12.5")};
    CDateTime dates[8];
    dates[0].ParseXSDDateTime(u"-2001-05-12T13:20:00.5Z");
    dates[1].ParseXSDDate(u"2001-05-12-05:30");
    dates[2].ParseXSDDate(u"2001-05");
    dates[3].ParseXSDTime(u"13:20:00.000000009");
    dates[4].ParseXSDDate(u"---12");
    dates[5].ParseXSDDate(u"--05");
    dates[6].ParseXSDDate(u"--05-12+00:00");
    CDateTimeSpan spans[3];
    spans[0].ParseXSDDuration(u"-P1Y15MT2.5S");
    spans[1].ParseXSDDuration(u"P3DT4H");
    CBinaryData bytes[2];
    bytes[0].SetAsHexString(u"00FF1A");
    const CSmartPtr<CElement> element = new CElement(u"order", u"urn:o");
    const CSmartPtr<CXmlObjectBase> pointers[] = {element.operator->(), nullptr};
    KzVariant variants[] = {KzVariant(), // nothing, and a value of most kinds
                            Variant(u"-7", ItemType_i2),
                            Variant(u"18446744073709551615", ItemType_ui8),
                            Variant(u"-1.5", ItemType_r4),
                            Variant(u"true", ItemType_boolean),
                            Variant(u"x", ItemType_char),
                            Variant(u"gr\u00FCn \U0001F600", ItemType_string),
                            Variant(u"1.50", ItemType_decimal),
                            Variant(u"-0", ItemType_integer),
                            Variant(u"2001-05-12", ItemType_date),
                            Variant(u"2001", ItemType_year),
                            Variant(u"PT1M", ItemType_duration),
                            Variant(u"AQI=", ItemType_base64Binary),
                            KzVariant(),
                            Variant(u"1", ItemType_i4)};
    variants[13].SetXmlObject(element);
    variants[14].SetNil();
    const CKzValidationException failure(u"outer", CKzInvalidValueException(u"inner"));
    const void* const all[] = {integers, decimals, dates, spans, bytes, pointers, variants, &failure};
    Look(all);
}
