// Text that FromUtf8 takes comes back byte for byte; all other text is refused by its exception alone.
#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Text.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace KzXmlLib10;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const std::u16string text = FromUtf8(bytes);
        if (ToUtf8(text) != bytes || ConvertToUtf8(text) != bytes)
            std::abort();
    } catch (const CKzInvalidValueException&) {
        // Malformed input is refused, as it should be.
    }
    return 0;
}
