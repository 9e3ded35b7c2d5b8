#pragma once

#include <cstdint>

namespace KzXmlLib10 {

/// The line end that the text writer produces.
enum EOLType : std::int32_t {
    EOLType_CRLF = 0,
    EOLType_LF = 1,
};

/// The byte form of text output.
enum XmlEncoding : std::int32_t {
    XmlEncoding_None = 0,        ///< stays 16-bit text; cannot become bytes
    XmlEncoding_UTF8 = 1,        ///< UTF-8 without a byte order mark, declared
    XmlEncoding_UTF16 = 2,       ///< UTF-16 little endian, with a mark in files, declared
    XmlEncoding_UTF16NoDecl = 3, ///< as XmlEncoding_UTF16, but not declared
};

/// The compression of a finished byte stream.
enum CompressionType : std::int32_t {
    CompressionType_None = 0,
    CompressionType_GZip = 1,
    CompressionType_ZLib = 2,
};

/// Whether the names of a schema live in namespaces.
enum SchemaType : std::int32_t {
    SchemaType_Default = 0,
    SchemaType_NoNamespaces = 2,
};

} // namespace KzXmlLib10
