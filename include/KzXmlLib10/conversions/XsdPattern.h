#pragma once

#include <KzXmlLib10/object/Export.h>

#include <string>

namespace KzXmlLib10 {

/// True if the whole of `value` matches an XML Schema regular expression, given in UTF-8.
///
///     MatchXsdPattern("\\i\\c*", u"xs:name"); // true
///
/// The escapes `\i`, `\I`, `\c` and `\C` and the first four Latin blocks are replaced in the text of the
/// pattern, without regard to context. All the rest is read as PCRE2 reads it, but that a hyphen beside a
/// class escape, as in `[\w-.]`, and a letter without a meaning behind a backslash, as in `\y`, stand for
/// themselves. A lone surrogate ends the value. Each call compiles the pattern anew and shares nothing, so it
/// may come from any thread.
///
/// Throws CKzException if the pattern does not compile. A match that would take more than 64 MiB of heap, or
/// more than PCRE2's limit of steps, counts as none.
///
/// Deliberate: no group stands around the pattern, so that `a|ab` refuses "ab"; and the block
/// LatinExtended-B never compiles.
QUILLON_EXPORT bool MatchXsdPattern(std::string pattern, std::u16string value);

} // namespace KzXmlLib10
