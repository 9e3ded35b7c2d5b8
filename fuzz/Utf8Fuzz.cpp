// Text that FromUtf8 takes comes back byte for byte; all other text is refused by its exception alone.
#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Text.h>

void fuzz::Utf8(Input input) {
    using namespace KzXmlLib10;
    const std::string bytes = input.Bytes();
    std::u16string text;
    try {
        text = FromUtf8(bytes);
    } catch (const CKzInvalidValueException&) {
        return;
    }
    Expect(ToUtf8(text) == bytes, "ToUtf8 gives back what FromUtf8 took");
    Expect(ConvertToUtf8(text) == bytes, "ConvertToUtf8 gives back what FromUtf8 took");
}
