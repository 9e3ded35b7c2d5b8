// Values for the printers of gdb, which stops in Look.

#include <KzXmlLib10/KzXmlLib10.h>

using namespace KzXmlLib10;

namespace {

void Look(const void*) {}

} // namespace

int main() {
    Register(10, 1);
    const CBigInteger integers[] = {CBigInteger(u"0"), CBigInteger(u"-0"),
                                    CBigInteger(u"-123456789012345678901")};
    const CDecimal decimals[] = {CDecimal(u"7"), CDecimal(u"-0.5"), CDecimal(u"1.05"), CDecimal(u"-12.5")};
    CDateTime dates[8];
    dates[0].ParseXSDDateTime(u"-2001-05-12T13:20:00.5Z");
    dates[1].ParseXSDTime(u"13:20:00.000000009");
    std::size_t next = 2;
    for (const char16_t* text : {u"2001-05-12-05:30", u"2001-05", u"---12", u"--05", u"--05-12+00:00"})
        dates[next++].ParseXSDDate(text);
    CDateTimeSpan spans[3];
    spans[0].ParseXSDDuration(u"-P1Y15MT2.5S");
    spans[1].ParseXSDDuration(u"P3DT4H");
    CBinaryData bytes[2];
    bytes[0].SetAsHexString(u"00FF1A");
    const CSmartPtr<CElement> element = new CElement(u"order", u"urn:o");
    const CSmartPtr<CXmlObjectBase> pointers[] = {element.operator->(), nullptr};
    KzVariant variants[15]; // nothing, and a value of most kinds
    const ItemType kinds[] = {ItemType_i2,   ItemType_ui8,    ItemType_r4,       ItemType_boolean,
                              ItemType_char, ItemType_string, ItemType_decimal,  ItemType_integer,
                              ItemType_date, ItemType_year,   ItemType_duration, ItemType_base64Binary};
    const char16_t* const texts[] = {
        u"-7", u"18446744073709551615", u"-1.5", u"true", u"x",   u"gr\u00FCn \U0001F600", u"1.50",
        u"-0", u"2001-05-12",           u"2001", u"PT1M", u"AQI="};
    for (std::size_t i = 0; i < std::size(kinds); ++i)
        variants[i + 1].FromString(texts[i], kinds[i], CWhitespaceUtils::WhitespaceRule_Collapse);
    variants[13].SetXmlObject(element);
    variants[14].SetI4(1);
    variants[14].SetNil();
    const CKzValidationException failure(u"outer", CKzInvalidValueException(u"inner"));
    const void* const all[] = {integers, decimals, dates, spans, bytes, pointers, variants, &failure};
    Look(all);
}
