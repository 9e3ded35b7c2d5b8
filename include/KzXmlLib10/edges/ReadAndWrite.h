#pragma once

#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Reading and writing of whole objects with the types of the standard library. Text is UTF-8.
///
///     COrders orders;
///     ReadFile(orders, "orders.xml.gz");
///     std::string text = WriteText(orders, {.formatted = false});
///     WriteFile(orders, "orders.finf", {.format = DocumentFormat::FastInfoset});
///
/// These are the operations of CXmlObjectBase by other names: what they read, what they write and how they
/// fail is told there. The context is the process's default one unless another is given. A CElement becomes
/// the root of the document; one that its restriction refuses throws CKzInvalidNamespaceException.
namespace KzXmlLib10 {

/// Fills an object from a document in memory: XML text in any encoding that expat reads or Fast Infoset,
/// either of them also under gzip or zlib, recognised by its content.
QUILLON_EXPORT void
Read(CXmlObjectBase& object, std::string_view document,
     const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());
QUILLON_EXPORT void
Read(CXmlObjectBase& object, std::span<const std::byte> document,
     const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());

/// Fills an object from a file, in the forms that Read takes. AsyncFromXmlFile has its effect here too. A
/// name that is not UTF-8, or that has a zero in it, throws CKzInvalidValueException.
QUILLON_EXPORT void
ReadFile(CXmlObjectBase& object, const std::filesystem::path& file,
         const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());

/// How XML text looks.
struct TextStyle {
    bool declaration = true; ///< `<?xml version="1.0"?>` in front, which stands for UTF-8
    bool formatted = true;   ///< elements on lines of their own, indented by tabs
    EOLType eol = EOLType_LF;
};

/// An object as XML text in UTF-8.
///
/// Strict: a surrogate without its partner throws CKzInvalidValueException, where ToXmlStream ends the text.
QUILLON_EXPORT std::string
WriteText(const CXmlObjectBase& object, const TextStyle& style = {},
          const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());

/// The two formats of documents.
enum class DocumentFormat {
    Text,        ///< XML 1.0 in UTF-8
    FastInfoset, ///< ITU-T X.891
};

/// What the bytes of a document are.
struct ByteStyle {
    DocumentFormat format = DocumentFormat::Text;
    /// Of the finished document. Every document can be compressed, whether that makes it shorter or not.
    CompressionType compression = CompressionType_None;
    TextStyle text = {};                    ///< for text only
    FInfoDecl declaration = FInfoDecl_None; ///< for Fast Infoset only
};

/// An object as the bytes of a document. Text is strict, as WriteText is.
QUILLON_EXPORT std::vector<std::byte>
WriteBytes(const CXmlObjectBase& object, const ByteStyle& style = {},
           const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());

/// Writes an object into a file, which is created or replaced once the document is complete. The name is as
/// for ReadFile.
QUILLON_EXPORT void
WriteFile(const CXmlObjectBase& object, const std::filesystem::path& file, const ByteStyle& style = {},
          const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext());

} // namespace KzXmlLib10
