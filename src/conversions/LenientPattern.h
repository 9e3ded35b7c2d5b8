#pragma once

#include <string>

namespace KzXmlLib10 {

/// The pattern with the forms rewritten that Perl-like engines used to accept and PCRE2 refuses, and that
/// schemas in use hold:
///
///     [\w-.]  becomes  [\w\-.]   a hyphen beside a class escape is a hyphen
///     \y      becomes  y         a letter without a meaning as an escape is itself
std::string MakeLenientPattern(std::string pattern);

} // namespace KzXmlLib10
