#include "values/Dates.h"

namespace {

/// Compares the sum of each value and duration, or the message of the failure.
void ExpectSums(std::initializer_list<Row> rows) {
    ExpectRows(rows, [](const std::u16string& text) {
        const std::size_t blank = text.find(u' ');
        CDateTime value = Moment(text.substr(0, blank));
        const CDateTimeSpan span = Span(text.substr(blank + 1));
        return Outcome<CKzInvalidValueException>([&] { return ToUtf8((value += span).ToString()); });
    });
}

TEST(CDateTimeArithmetic, UnitsCarryIntoTheNextOne) {
    ExpectSums(
        {"2000-02-28 P1D -> 2000-02-29", "2001-02-28 P1D -> 2001-03-01", "2000-01-01 -P1D -> 1999-12-31",
         "2000-03-01 -P1D -> 2000-02-29", "2000-12-15Z P1Y2M -> 2002-02-15Z", "2000-01-15 -P1M -> 1999-12-15",
         "2000-01-01 PT23H -> 2000-01-01",
         "2000-12-31T23:59:59.999999999 PT0.000000001S -> 2001-01-01T00:00:00",
         "2001-01-01T00:00:00 -PT0.000000001S -> 2000-12-31T23:59:59.999999999",
         "2000-01-01T00:00:00 P1Y3M5DT7H10M3.3S -> 2001-04-06T07:10:03.3",
         "2000-01-31T00:00:00+05:00 PT100000S -> 2000-02-01T03:46:40+05:00",
         // The day is not cut unless days move it, and a year of zero stays; a year has 16 bits.
         "2001-01-31 P1M -> 2001-02-31", "2001-01-31 P1M1D -> 2001-03-04", "0001-05-12 -P1Y -> 0000-05-12",
         "0001-05-12 -P2Y -> -0001-05-12", "9999-05-12 P30000Y -> -25537-05-12",
         // Quotients have single precision, and numbers wrap: what is expected comes from a walk over
         // the months with exact rational numbers rounded to 24 bits.
         "2000-01-31T00:00:00 PT100000001S -> 2003-04-02T09:46:41",
         "2000-01-01T00:00:00 PT2147483648M -> -2084-12-08T20:112:00",
         "2000-01-01T00:00:00 P4294967295D -> 30277-04-15T00:00:00",
         "2000-01-01T00:00:00 -P4294967295D -> -26278-09-18T00:00:00",
         // A month that is none is refused only where its length is needed.
         "1696-09-01 P16777215M -> 23542-00-01", "1696-09-01 P201326593M -> 1698-242-01",
         "1696-09-01 P16777215M1D -> Invalid Month [0] (1 <= month <= 12)",
         "1696-09-01 P201326593M1D -> Invalid Month [242] (1 <= month <= 12)"});
}

TEST(CDateTimeArithmetic, SubtractionAlwaysMovesBackwards) {
    CDateTime value(2000, 1, 1);
    EXPECT_EQ((value - Span(u"P1D")).ToString(), u"1999-12-31");
    EXPECT_EQ((value - Span(u"-P1D")).ToString(), u"1999-12-31");
    EXPECT_EQ((value -= Span(u"-P1M")).ToString(), u"1999-12-01");
    EXPECT_EQ((value - CDateTime(2001, 1, 1)).ToString(), u"P"); // the difference of values is always zero
}

} // namespace
