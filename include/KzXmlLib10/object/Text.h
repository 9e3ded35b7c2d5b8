#pragma once

#include <KzXmlLib10/object/Export.h>

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// The UTF-8 form of a text, for output.
///
/// Deliberate: a surrogate without its partner ends the conversion, silently; what was made so far is the
/// result.
QUILLON_EXPORT std::string ConvertToUtf8(std::u16string_view text);

/// The UTF-8 form of a text, strict. A surrogate without its partner throws CKzInvalidValueException.
QUILLON_EXPORT std::string ToUtf8(std::u16string_view text);

/// The 16-bit form of a UTF-8 text, strict. Overlong forms, encoded surrogates, code points above U+10FFFF
/// and truncated sequences throw CKzInvalidValueException.
QUILLON_EXPORT std::u16string FromUtf8(std::string_view text);

} // namespace KzXmlLib10
