// Evaluates one operation on big integers or decimals for each line of standard input, and writes its result
// on a line of standard output. scripts/check-arithmetic.py compares the results with those of a model.
//
//      integer + 7 -12            ->  -5
//      integer % 7 -2             ->  ERROR: Overflow in operator%.
//      decimal compare 1.5 1.50   ->  0
//      decimal places 30          ->  30         the maximum of places from here on
//      decimal text 1.235 2       ->  1.24       ToString with two places

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/FormatString.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CDecimal.h>

#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

using namespace KzXmlLib10;

namespace {

struct Operands {
    std::u16string first;
    std::u16string second;
};

using Operations = std::map<std::string, std::function<std::u16string(const Operands&)>>;

std::u16string Number(long long value) { return FormatString(u"%I64d", value); }

/// -1, 0 or 1, if all six comparisons agree on it.
template <class T>
std::u16string Order(const T& a, const T& b) {
    const int order = a == b ? 0 : a < b ? -1 : 1;
    const bool agree = (a != b) == (order != 0) && (a <= b) == (order <= 0) && (a > b) == (order > 0) &&
                       (a >= b) == (order >= 0);
    return agree ? Number(order) : u"the comparisons disagree";
}

template <class T>
T First(const Operands& o) {
    return T(o.first.c_str());
}

template <class T>
T Second(const Operands& o) {
    return T(o.second.c_str());
}

template <class T>
Operations CommonOperations() {
    return {
        {"parse", [](const Operands& o) { return First<T>(o).ToString(); }},
        {"+", [](const Operands& o) { return (First<T>(o) + Second<T>(o)).ToString(); }},
        {"-", [](const Operands& o) { return (First<T>(o) - Second<T>(o)).ToString(); }},
        {"*", [](const Operands& o) { return (First<T>(o) * Second<T>(o)).ToString(); }},
        {"/", [](const Operands& o) { return (First<T>(o) / Second<T>(o)).ToString(); }},
        {"compare", [](const Operands& o) { return Order(First<T>(o), Second<T>(o)); }},
    };
}

Operations IntegerOperations() {
    Operations operations = CommonOperations<CBigInteger>();
    operations["%"] = [](const Operands& o) {
        return (First<CBigInteger>(o) % Second<CBigInteger>(o)).ToString();
    };
    operations["root"] = [](const Operands& o) { return First<CBigInteger>(o).SquareRoot().ToString(); };
    operations["int"] = [](const Operands& o) { return Number(static_cast<int>(First<CBigInteger>(o))); };
    operations["longlong"] = [](const Operands& o) {
        return Number(static_cast<long long>(First<CBigInteger>(o)));
    };
    return operations;
}

Operations DecimalOperations() {
    Operations operations = CommonOperations<CDecimal>();
    operations["places"] = [](const Operands& o) {
        CDecimal::SetMaxDecimalPlaces(static_cast<int>(First<CBigInteger>(o)));
        return Number(CDecimal::GetMaxDecimalPlaces());
    };
    operations["text"] = [](const Operands& o) {
        return First<CDecimal>(o).ToString(static_cast<int>(Second<CBigInteger>(o)));
    };
    operations["integer"] = [](const Operands& o) { return First<CDecimal>(o).ToBigInteger().ToString(); };
    operations["long"] = [](const Operands& o) { return Number(First<CDecimal>(o).ToLong()); };
    operations["longlong"] = [](const Operands& o) { return Number(First<CDecimal>(o).ToLongLong()); };
    operations["double"] = [](const Operands& o) {
        return FormatString(u"%.17g", First<CDecimal>(o).ToDouble());
    };
    return operations;
}

std::u16string Evaluate(const std::string& line) {
    static const std::map<std::string, Operations> kinds = {{"integer", IntegerOperations()},
                                                            {"decimal", DecimalOperations()}};
    std::istringstream words(line);
    std::string kind, operation, first, second;
    words >> kind >> operation >> first >> second;
    try {
        return kinds.at(kind).at(operation)({FromUtf8(first), FromUtf8(second)});
    } catch (const CKzException& failure) {
        return failure.GetFullMessage();
    }
}

} // namespace

int main() {
    std::ios::sync_with_stdio(false);
    for (std::string line; std::getline(std::cin, line);)
        std::cout << ToUtf8(Evaluate(line)) << '\n';
}
