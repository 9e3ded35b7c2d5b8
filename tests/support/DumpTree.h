#pragma once

#include "support/Basics.h"

namespace KzXmlLib10::support {

/// An element and all below it as one line of UTF-8, for comparison with an expected tree.
///
///     <o:order xmlns:o='urn:o' id='7'>a<b/>c<o:d>x</o:d></o:order>
///     {urn:o}order[@id=7 "ac" b {urn:o}d["x"]]
///
/// Line feeds, carriage returns and tabs show as \n, \r and \t. Null gives "null".
std::string DumpTree(const CXmlElement* element);

} // namespace KzXmlLib10::support
