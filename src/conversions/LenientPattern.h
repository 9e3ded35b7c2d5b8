#pragma once

#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// Whether there is a letter behind a backslash, or a POSIX class. Without them there is nothing to rewrite.
bool MayNeedRewriting(std::string_view pattern);

/// The pattern with the forms rewritten that Perl-like engines used to accept and PCRE2 refuses, and that
/// schemas in use hold:
///
///     [\w-.]  becomes  [\w\-.]   a hyphen beside a class escape is a hyphen
///     \y      becomes  y         a letter without a meaning as an escape is itself
std::string MakeLenientPattern(std::string pattern);

} // namespace KzXmlLib10
