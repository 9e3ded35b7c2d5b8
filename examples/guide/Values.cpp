#include "Guide.h"

#include <chrono>
#include <iostream>
#include <string>

namespace guide {

void Values() {
    {
        Section("decimals");
        // [decimals]
        CDecimal price(u"0.1");
        price += CDecimal(u"0.2");
        Print(price.ToString()); // no 0.30000000000000004
        Print((CDecimal(u"12345678901234567890.12") * CDecimal(u"3")).ToString());
        Print((CDecimal(1) / CDecimal(3)).ToString()); // 30 places, see SetMaxDecimalPlaces
        Print(CDecimal(u"2.345").ToString(2));

        CBigInteger factorial(1);
        for (int i = 2; i <= 30; ++i)
            factorial *= i;
        Print(factorial.ToString());
        // [/decimals]
    }
    {
        Section("dates");
        // [dates]
        const CDateTime order(u"2024-05-17T07:59:00.125+09:00");
        std::cout << order.GetYear() << ' ' << order.GetZoneHour() << '\n';
        Print(order.GetNormalized().ToString());

        CDateTime day;
        day.ParseXSDDate(u"2024-02-28");
        CDateTimeSpan week;
        week.ParseXSDDuration(u"P7D");
        Print((day + week).ToString());

        const CDateTime utc(u"2024-05-16T22:59:00.125Z");
        std::cout << (order == utc ? "the same moment\n" : "another moment\n");
        // [/dates]
    }
    {
        Section("chrono");
        // [chrono]
        using namespace std::chrono_literals;
        CDateTime day = FromChrono(2024y / std::chrono::May / 17);
        Print(day.ToString());

        const CDateTime moment(u"2024-05-17T07:59:00.125+09:00");
        const auto time = ToSysTime<std::chrono::milliseconds>(moment);
        Print(FromChrono(time + 1h).ToString());
        try {
            ToSysTime<std::chrono::seconds>(moment); // would lose the milliseconds
        } catch (const CKzException& failure) {
            std::cout << failure << '\n';
        }
        // [/chrono]
    }
    {
        Section("bytes");
        // [bytes]
        CBinaryData data;
        data.SetAsBase64(u"Cv8B");
        Print(data.GetAsHexString());
        // [/bytes]
    }
    {
        Section("text");
        // [text]
        const std::u16string wide = FromUtf8("Malmö"); // strict: bad UTF-8 throws
        const std::string narrow = ToUtf8(wide);       // strict: half a surrogate pair throws
        std::cout << wide.size() << " units, " << narrow.size() << " bytes\n";
        // [/text]
    }
}

} // namespace guide
