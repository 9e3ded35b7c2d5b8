#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <string_view>

namespace KzXmlLib10 {

/// Bytes as a complete gzip or zlib stream. Unlike Compress it also takes what does not become shorter.
CBinaryData Deflate(std::string_view bytes, CompressionType type);

} // namespace KzXmlLib10
