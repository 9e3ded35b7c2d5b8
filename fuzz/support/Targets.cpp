#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Limits.h>
#include <KzXmlLib10/object/Register.h>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace fuzz {

using namespace KzXmlLib10;

namespace {

/// Readable also where the text is no well-formed UTF-16.
void Print(const char* what, std::u16string_view text) {
    std::fprintf(stderr, "  %s: ", what);
    for (const char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F)
            std::fputc(unit, stderr);
        else
            std::fprintf(stderr, "\\u%04X", static_cast<unsigned>(unit));
    }
    std::fputc('\n', stderr);
}

bool Prepare() {
    Register(10, 1);
    Limits limits;
    limits.inflatedBytes = inflatedBytes;
    limits.treeTextBytes = treeTextBytes;
    SetLimits(limits);
    return true;
}

} // namespace

void Run(Target target, const std::uint8_t* data, std::size_t size) {
    [[maybe_unused]] static const bool prepared = Prepare();
    try {
        target(Input(data, size));
    } catch (const CKzException&) {
        // Refused, as it should be.
    } catch (const CKzException* thrown) {
        delete thrown; // the restriction of generic content is thrown so
    } catch (const std::bad_alloc&) {
        // Reported, as it should be.
    }
}

void Fail(std::string_view promise, std::u16string_view first, std::u16string_view second) {
    std::fprintf(stderr, "broken: %.*s\n", static_cast<int>(promise.size()), promise.data());
    Print("first", first);
    Print("second", second);
    std::abort();
}

} // namespace fuzz
