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

/// The declaration in front of a Fast Infoset document.
enum FInfoDecl : std::int32_t {
    FInfoDecl_None = 0,
    FInfoDecl_NoVersion = 1,              ///< <?xml encoding='finf'?>
    FInfoDecl_NoVersionStandalone = 2,    ///< ... standalone='yes'
    FInfoDecl_NoVersionNotStandalone = 3, ///< ... standalone='no'
    FInfoDecl_10 = 4,                     ///< <?xml version='1.0' encoding='finf'?>
    FInfoDecl_10Standalone = 5,
    FInfoDecl_10NotStandalone = 6,
    FInfoDecl_11 = 7, ///< <?xml version='1.1' encoding='finf'?>
    FInfoDecl_11Standalone = 8,
    FInfoDecl_11NotStandalone = 9,
};

/// Whether the names of a schema live in namespaces.
enum SchemaType : std::int32_t {
    SchemaType_Default = 0,
    SchemaType_NoNamespaces = 2,
};

} // namespace KzXmlLib10
