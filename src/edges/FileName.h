#pragma once

#include "edges/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/object/Text.h>

#include <filesystem>
#include <string>

namespace KzXmlLib10 {

/// The name of a file as the library takes it. Throws CKzInvalidValueException for a name that is not UTF-8
/// or has a zero in it.
inline std::u16string FileName(const std::filesystem::path& file) {
    std::u16string name = FromUtf8(file.native());
    if (name.find(u'\0') != name.npos)
        Throw<CKzInvalidValueException>(messages::ZeroInFileName);
    return name;
}

} // namespace KzXmlLib10
