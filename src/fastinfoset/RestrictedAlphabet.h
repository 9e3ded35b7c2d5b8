#pragma once

#include "fastinfoset/Marks.h"

#include <span>
#include <string>

namespace KzXmlLib10::fastinfoset {

/// The characters of a text as positions in an alphabet, packed into as few bits each as leave one pattern
/// over: most significant first, and that pattern, all ones, where bits are left. Throws CKzException for a
/// character that is not in the alphabet, and for alphabets whose positions do not take 4 or 8 bits.
std::string PackRestrictedAlphabetString(const std::u16string& alphabet, const std::u16string& text);

/// The inverse, for alphabets of 2 to 2^20 characters. Throws CKzException for a position beyond the
/// alphabet.
std::u16string UnpackRestrictedAlphabetString(const std::u16string& alphabet, std::span<const Byte> octets);

} // namespace KzXmlLib10::fastinfoset
