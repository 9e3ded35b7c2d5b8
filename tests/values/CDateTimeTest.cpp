#include "values/Dates.h"

#include <regex>

namespace {

using Parser = void (CDateTime::*)(const char16_t*);

/// Kind and text of what the parser reads, or the message of the failure.
std::string Read(Parser parse, const char16_t* text) {
    CDateTime value;
    const std::string failure = InvalidValue([&] { (value.*parse)(text); });
    return failure != "no failure" ? failure : ToUtf8(value.GetTypeAsString() + u" " + value.ToString());
}

/// Compares what Read gives of each text.
void ExpectRead(Parser parse, std::initializer_list<Row> rows) {
    ExpectRows(rows, [=](const char16_t* text) { return Read(parse, text); });
}

TEST(CDateTime, TheFormOfADateDecidesOnItsKind) {
    ExpectRead(&CDateTime::ParseXSDDate,
               {"2000-02-29 -> date 2000-02-29", "-0001-01-01 -> date -0001-01-01",
                "-0004-02-29 -> date -0004-02-29", "9999-12-31Z -> date 9999-12-31Z",
                "2001-01-01+01:00 -> date 2001-01-01+01:00", "2001-01-01-01:00 -> date 2001-01-01-01:00",
                "2001 -> gYear 2001", "-2001Z -> gYear -2001Z", "2001-05 -> gYearMonth 2001-05",
                "-2001-05+23:59 -> gYearMonth -2001-05+23:59", "--05 -> gMonth --05", "--05-- -> gMonth --05",
                "--05--Z -> gMonth --05Z", "--05xy -> gMonth --05", "2001-01-01x01:00 -> date 2001-01-01",
                "---01 -> gDay ---01", "---31-00:30 -> gDay ---31+00:30", "--02-29 -> gMonthDay --02-29"});
    for (const char* text : {"20010-01-01", "+2001-01-01", "2001-1", "2001-01-01+01", "2001/01/01", "--5",
                             "--050", "--05-011", "--2001-05", "---5", "2001-01-0\xD9\xA1", ":",
                             "--:", "12:00", "a:b", "-", "ZZ", "2001-01-01 ", "99999999999999999999"})
        EXPECT_EQ(Read(&CDateTime::ParseXSDDate, FromUtf8(text).c_str()),
                  "Invalid XSD Date [" + std::string(text) + "] expected CCYY-MM-DD[Z|[+|-]hh:mm]");
    ExpectRead(&CDateTime::ParseXSDDate,
               {" -> Invalid Date (Empty String)", "2001-01-01T12:00:00 -> Invalid Date ('T' not allowed)",
                "2001-01-01+01:00Z -> Invalid Date (Bad Zone value)",
                "2001-01-01+0:000 -> Invalid XSD Time Zone [+0:000]",
                "2001-01-01+24:60 -> Invalid TimeZone [0:60]", "2001-01-01-25:00 -> Invalid TimeZone [-25:0]",
                "0000-01-01 -> Invalid Year [0] (9999 <= year <= -9999 && year != 0)",
                "2001-13-01 -> Invalid Month [13] (1 <= month <= 12)",
                "0000-00-01 -> Invalid Month [0] (1 <= month <= 12)",
                "1900-02-29 -> Invalid Day [29] (1 <= day <= days in month",
                "2001-04-31 -> Invalid Day [31] (1 <= day <= days in month",
                "2001-04-00 -> Invalid Day [0] (1 <= day <= days in month",
                "--04-00 -> Invalid Day [0] (1 <= day <= days in month)",
                "--02-30 -> Invalid Day [30] (1 <= day <= days in month)",
                "---32 -> Invalid Day [32] (1 <= day <= 31)", "---00 -> Invalid Day [0] (1 <= day <= 31)"});
    EXPECT_EQ(Read(&CDateTime::ParseXSDDate, nullptr), "Invalid Date (Null String)");
}

TEST(CDateTime, TimesKeepNineDigits) {
    ExpectRead(&CDateTime::ParseXSDTime,
               {"00:00:00 -> time 00:00:00", "23:59:59 -> time 23:59:59", "12:00:00.5 -> time 12:00:00.5",
                "12:00:00.100 -> time 12:00:00.1", "12:00:00.0000 -> time 12:00:00",
                "12:00:00.0012 -> time 12:00:00.0012", "12:00:00.000000001 -> time 12:00:00.000000001",
                "12:00:00.123456789Z -> time 12:00:00.123456789Z", "12:00:00. -> time 12:00:00",
                "12:00:00.+05:00 -> time 12:00:00+05:00", "12:00:00+24:00 -> time 12:00:00+00:00",
                "12:00:00-23:59 -> time 12:00:00-23:59",
                // What is no zone is ignored, and an offset below an hour loses its sign.
                "12:00:00abc -> time 12:00:00", "12:00:00Zabc -> time 12:00:00Z",
                "12:00:00-00:30 -> time 12:00:00+00:30", "12:00:00-24:30 -> time 12:00:00+00:30"});
    for (const char* text : {"24:00:00", "23:60:00", "23:59:60", "12:00:0", "12:00-00"})
        EXPECT_EQ(Read(&CDateTime::ParseXSDTime, FromUtf8(text).c_str()),
                  "Invalid XSD Time [" + std::string(text) + "] expected hh:mm:ss[.ff]");
    ExpectRead(&CDateTime::ParseXSDTime,
               {" -> Invalid XSD Time (Empty String)",
                "12:00:00.1234567890 -> Invalid XSD Time [12:00:00.1234567890] Fraction part too long",
                "12:00:00+05.00 -> Invalid XSD Time Zone [+05.00]",
                "12:00:00.1+05:00x -> Invalid XSD Time Zone [+05:00x]",
                "12:00:00+25:00 -> Invalid TimeZone [25:0]", "12:00:00+05:60 -> Invalid TimeZone [5:60]"});
}

TEST(CDateTime, DateTimesAreADateAndATime) {
    ExpectRead(
        &CDateTime::ParseXSDDateTime,
        {"2001-05-12T13:20:00.5-05:30 -> dateTime 2001-05-12T13:20:00.5-05:30",
         "2001-01-01T12:00:00T -> dateTime 2001-01-01T12:00:00",
         "-0001-01-01T00:00:00Z -> dateTime -0001-01-01T00:00:00Z",
         "2001-01-01+01:00T12:00:00 -> dateTime 2001-01-01T12:00:00+01:00",
         "2001-01-01+01:00T12:00:00Z -> dateTime 2001-01-01T12:00:00Z", " -> Invalid XSD DateTime []",
         "2001-01-01 -> Invalid XSD DateTime [2001-01-01]", "T12:00:00 -> Invalid Date (Empty String)",
         "2001-01-01T -> Invalid XSD Time (Empty String)",
         "2001-01T12:00:00 -> Invalid XSD DateTime [2001-01T12:00:00] expected CCYY-MM-DDThh:mm:ss[.ff]",
         "2001-0101T12:00:00 -> Invalid XSD Date [2001-0101] expected CCYY-MM-DD[Z|[+|-]hh:mm]",
         "2001-01-01T12:00 -> Invalid XSD Time [12:00] expected hh:mm:ss[.ff]",
         "2001-02-29T12:00:00 -> Invalid Day [29] (1 <= day <= days in month"});
    EXPECT_EQ(Read(&CDateTime::ParseXSDDateTime, nullptr), "Invalid DateTime (Null String)");
    EXPECT_EQ(CDateTime(u"2001-05-12T13:20:00").ToString(), u"2001-05-12T13:20:00");
    CDateTime value(u"2001-05-12T13:20:00.5+01:00"); // each parse starts anew
    value.ParseXSDDate(u"--02");
    EXPECT_EQ(value.GetTypeAsString() + value.ToString(), u"gMonth--02");
    EXPECT_EQ(InvalidValue([&] { value.ParseXSDTime(nullptr); }), "Invalid Time (Null String)");
    EXPECT_EQ(value.GetType(), CDateTime::DTType_yearZero);
}

TEST(CDateTime, ToStringKnowsOneFormat) {
    const CDateTime date(2001, 5, 12);
    EXPECT_EQ(date.ToString(u"s"s.c_str()), u"2001-05-12");
    for (const char16_t* none : {u"G", u"", static_cast<const char16_t*>(nullptr)})
        EXPECT_EQ(date.ToString(none), u"");
    EXPECT_EQ(date.ToString(u"S"), u"Unknown Format: S");
    EXPECT_EQ(CDateTime(CDateTime::DTType_time).ToString(), u"00:00:00");
    EXPECT_EQ(InvalidValue([] { CDateTime().ToString(nullptr); }), "Date Not Set");
    EXPECT_EQ(InvalidValue([] { CDateTime(CDateTime::DTType_date).ToString(); }), "Date Not Set");
}

TEST(CDateTime, SettersOfWholeValuesValidate) {
    CDateTime value;
    value.SetGMonthDay(2, 29);
    EXPECT_EQ(value.ToString(), u"--02-29");
    EXPECT_EQ(InvalidState([&] { value.SetDate(2001, 1, 1); }),
              "Failed to copy CDateTime. Invalid Date Type: date, expected: gMonthDay.");
    value.SetTimeZone(1, 0);
    EXPECT_EQ(InvalidValue([&] { value.SetGMonthDay(2, 30); }),
              "Invalid Day [30] (1 <= day <= days in month)");
    EXPECT_EQ(value.ToString(), u"--02-30");

    CDateTime time;
    time.SetFracTime(4, 5, 6);
    EXPECT_EQ(time.ToString(), u"00:00:00.004005006");
    EXPECT_EQ(InvalidValue([] { CDateTime().SetGMonth(257); }), "Invalid Month [257] (1 <= month <= 12)");
    EXPECT_EQ(InvalidValue([] { CDateTime().SetGYear(-10000); }),
              "Invalid Year [-10000] (9999 <= year <= -9999 && year != 0)");

    // Each field one above its range, one after the other.
    std::string messages, below;
    int f[] = {24, 60, 60, 1000, 1000, 1000};
    const auto refusal = [&](int& field, int good) {
        const std::string message =
            InvalidValue([&] { CDateTime().SetTime(f[0], f[1], f[2], f[3], f[4], f[5]); });
        field = good;
        return message + "\n";
    };
    for (int& field : f)
        messages += refusal(field, field - 1);
    EXPECT_EQ(messages, "Invalid Hour [24] (0 <= hour <= 23)\nInvalid Minute [60] (0 <= minute <= 59)\n"
                        "Invalid Second [60] (0 <= second <= 59)\n"
                        "Invalid Milli-Second [1000] (0 <= milli <= 999)\n"
                        "Invalid Micro-Second [1000] (0 <= micro <= 999)\n"
                        "Invalid Nano-Second [1000] (0 <= nano <= 999)\n");
    for (int& field : f)
        below += refusal(field = -1, 0);
    EXPECT_EQ(below, std::regex_replace(messages, std::regex("\\[[0-9]+\\]"), "[-1]"));

    // Constructors swallow the failure and leave nothing.
    EXPECT_EQ(CDateTime(2001, 5, 12, 13, 20, 0, 1, 2, 3).ToString(), u"2001-05-12T13:20:00.001002003");
    for (CDateTime bad : {CDateTime(2001, 2, 29), CDateTime(2001, 1, 1, 24, 0, 0)}) {
        EXPECT_EQ(InvalidValue([&] { bad.Validate(); }), "Invalid Year Zero");
        bad.SetTime(1, 2, 3); // no field and no kind is left over
        EXPECT_EQ(bad.ToString(), u"01:02:03");
    }
}

TEST(CDateTime, FieldsThatAKindHasNotAreRefused) {
    const auto expect = [](const char16_t* source, CDateTime::DTType target, const std::string& message) {
        CDateTime value;
        value.SetDateTime(CDateTime(source), target);
        EXPECT_EQ(InvalidValue([&] { value.Validate(); }), "Invalid " + message);
    };
    using D = CDateTime;
    expect(u"2001-05-12T13:20:30", D::DTType_gYearMonth, "Day [12] for type gYearMonth");
    expect(u"2001-05-12T13:20:30", D::DTType_time, "Month [5] for type time");
    expect(u"2001-05-12T13:20:30", D::DTType_gMonth, "Year [2001] for type gMonth");
    for (const Row& row :
         {Row("13:20:30.001002003 -> Hour [13]"), Row("00:20:30.001002003 -> Minute [20]"),
          Row("00:00:30.001002003 -> Second [30]"), Row("00:00:00.001002003 -> Milli-Second [1]"),
          Row("00:00:00.000002003 -> Micro-Second [2]"), Row("00:00:00.000000003 -> Nano-Second [3]")})
        expect((u"2001-05-12T" + row.text).c_str(), D::DTType_date, row.expected + " for type date");
}

/// Sets a field, unless to zero, and reads it.
template <auto Get, auto Set>
int Access(CDateTime& value, int number) {
    if (number)
        (value.*Set)(static_cast<std::uint8_t>(number));
    return static_cast<int>((value.*Get)());
}

TEST(CDateTime, AccessAsksTheKindAndNotTheRange) {
    using D = CDateTime;
    // The name, the kinds that have the field, the text of a dateTime with nothing but a 1 in it, the access.
    const std::tuple<std::string, std::string, std::string, int (*)(D&, int)> rows[] = {
        {"Year", "1234", "0001-00-00T00:00:00", Access<&D::GetYear, &D::SetYear>},
        {"Month", "12378", "0000-01-00T00:00:00", Access<&D::GetMonth, &D::SetMonth>},
        {"Day", "1268", "0000-00-01T00:00:00", Access<&D::GetDay, &D::SetDay>},
        {"Hour", "15", "0000-00-00T01:00:00", Access<&D::GetHour, &D::SetHour>},
        {"Minute", "15", "0000-00-00T00:01:00", Access<&D::GetMinute, &D::SetMinute>},
        {"Second", "15", "0000-00-00T00:00:01", Access<&D::GetSecond, &D::SetSecond>},
        {"MilliSecond", "15", "0000-00-00T00:00:00.001", Access<&D::GetMilliSecond, &D::SetMilliSecond>},
        {"MicroSecond", "15", "0000-00-00T00:00:00.000001", Access<&D::GetMicroSecond, &D::SetMicroSecond>},
        {"NanoSecond", "15", "0000-00-00T00:00:00.000000001", Access<&D::GetNanoSecond, &D::SetNanoSecond>}};
    for (const auto& [name, kinds, text, access] : rows) {
        D value(D::DTType_dateTime);
        EXPECT_EQ(access(value, 1), 1);
        EXPECT_EQ(ToUtf8(value.ToString()), text);
        for (char kind = '0'; kind <= '8'; ++kind) {
            value = D(static_cast<D::DTType>(kind - '0'));
            const std::string refused =
                "Failed to Get" + name + ". Invalid Date Type: " + ToUtf8(value.GetTypeAsString()) + ".";
            for (const int number : {0, 200})
                EXPECT_EQ(InvalidState([&, get = access] { get(value, number); }),
                          kinds.find(kind) != std::string::npos ? "no failure" : refused);
        }
    }
    EXPECT_EQ(D(2001, 5, 12, 13, 20, 16, 17, 18, 19).GetRealSecond(), 17 / 1000.0 + 16 + 18 / 1e6 + 19 / 1e9);
    EXPECT_EQ(InvalidState([] { D(D::DTType_date).GetRealSecond(); }),
              "Failed to GetRealSecond. Invalid Date Type: date.");
    EXPECT_EQ(D(static_cast<D::DTType>(9)).GetTypeAsString(), u"");
}

TEST(CDateTime, AnOffsetIsUtcToo) {
    CDateTime value(2001, 5, 12);
    value.SetTimeZone(-23, 59);
    EXPECT_TRUE(value.IsUTC() && value.HasTimeZone());
    EXPECT_TRUE(value.GetZoneHour() == -23 && value.GetZoneMinute() == 59);
    EXPECT_EQ(InvalidValue([&] { value.SetTimeZone(24, 0); }), "Invalid TimeZone [24:0]");
    EXPECT_EQ(InvalidValue([&] { value.SetTimeZone(-24, 0); }), "Invalid TimeZone [-24:0]");
    EXPECT_EQ(value.ToString(), u"2001-05-12-23:59");
    value.SetUTC();
    EXPECT_EQ(value.ToString(), u"2001-05-12Z");
    EXPECT_EQ(InvalidState([&] { value.GetZoneHour(); }), "TimeZone is not been used");
    EXPECT_EQ(InvalidState([&] { value.GetZoneMinute(); }), "TimeZone is not been used");
}

TEST(CDateTime, KindsConvertWhereTheFieldsSuffice) {
    // Rows are sources, columns targets, both by number of kind.
    const char* const allowed[] = {"100000000", "111111111", "101110111", "100110010", "100010000",
                                   "100001000", "100000100", "100000010", "100000111"};
    for (int source = 0; source <= 8; ++source) {
        for (int target = 0; target <= 8; ++target) {
            const CDateTime from(static_cast<CDateTime::DTType>(source));
            CDateTime to;
            (void)InvalidValue([&] { to.SetDateTime(from, static_cast<CDateTime::DTType>(target)); });
            EXPECT_EQ(to.GetType(), allowed[source][target] == '1' ? target : CDateTime::DTType_yearZero);
        }
    }
    CDateTime value(2001, 5, 12);
    EXPECT_EQ(InvalidValue([&] { value.SetDateTime(value, CDateTime::DTType_time); }),
              "Attempting to set a CDateTime of type time using an XmlDateTime of type date. The source "
              "CDateTime does not contian enough data to allow the conversion.");
    const CDateTime unknown(static_cast<CDateTime::DTType>(9));
    EXPECT_EQ(InvalidValue([&] { value.SetDateTime(unknown, CDateTime::DTType_date); }),
              "Unknown date type 9.");
    value.SetUTC();
    value.SetDateTime(value, CDateTime::DTType_gYear);
    EXPECT_EQ(value.ToString(), u"2001Z");
    value.SetDateTime(value, CDateTime::DTType_gYear); // nothing is masked: the month is still there
    EXPECT_EQ(InvalidValue([&] { value.Validate(); }), "Invalid Month [5] for type gYear");
}

TEST(CDateTime, TheLeapDayCountsInJanuaryAndFebruaryOnly) {
    ExpectRows({"2000-01-01 -> 2", "2000-02-29 -> 61", "2000-03-01 -> 60", "2001-12-31T00:00:00 -> 365"},
               [](const char16_t* text) { return std::to_string(Moment(text).GetDayOfYear()); });
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1, days = 0; month <= 12; days += lengths[month++ - 1])
        EXPECT_EQ(CDateTime(2001, month, 1).GetDayOfYear(), days + 1) << month;
    EXPECT_EQ(InvalidState([] { CDateTime(CDateTime::DTType_gMonthDay).GetDayOfYear(); }),
              "Failed to GetDayOfYear. Invalid Date Type: gMonthDay.");
    CDateTime value(2001, 5, 12);
    for (const std::uint8_t month : {0, 13}) {
        value.SetMonth(month);
        EXPECT_EQ(InvalidValue([&] { value.GetDayOfYear(); }),
                  "Invalid Month [" + std::to_string(month) + "] (1 <= month <= 12)");
    }
}

} // namespace
