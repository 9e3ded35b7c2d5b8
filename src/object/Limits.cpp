#include <KzXmlLib10/object/Limits.h>

#include "object/CurrentLimit.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <iterator>
#include <limits>

namespace KzXmlLib10 {

constinit Limits limitsInForce;

namespace {

constexpr std::uint64_t any = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t max32 = std::numeric_limits<std::uint32_t>::max();

struct Figure {
    std::uint64_t Limits::*member;
    const char16_t* name;
    std::uint64_t greatest;
};

constexpr Figure figures[] = {
    {&Limits::inputBytes, u"inputBytes", max32},
    {&Limits::inflatedBytes, u"inflatedBytes", max32},
    {&Limits::treeTextBytes, u"treeTextBytes", any},
    {&Limits::treeTextBytesPerInputByte, u"treeTextBytesPerInputByte", any},
    {&Limits::treeBytes, u"treeBytes", any},
    {&Limits::treeBytesPerInputByte, u"treeBytesPerInputByte", any},
    {&Limits::nestedObjects, u"nestedObjects", any},
    {&Limits::stackReserve, u"stackReserve", any},
    {&Limits::skippedElements, u"skippedElements", any},
    {&Limits::decimalExponent, u"decimalExponent", 100'000'000},
    {&Limits::patternHeapBytes, u"patternHeapBytes", max32 * 1024},
};
static_assert(std::size(figures) * sizeof(std::uint64_t) == sizeof(Limits));

} // namespace

Limits GetLimits() {
    Limits limits;
    for (const Figure& figure : figures)
        limits.*figure.member = CurrentLimit(figure.member);
    return limits;
}

void SetLimits(const Limits& limits) {
    for (const Figure& figure : figures) {
        if (limits.*figure.member > figure.greatest)
            Throw<CKzInvalidParamException>(messages::LimitTooLarge, figure.name, figure.greatest);
    }
    for (const Figure& figure : figures)
        std::atomic_ref(limitsInForce.*figure.member).store(limits.*figure.member, std::memory_order_relaxed);
}

} // namespace KzXmlLib10
