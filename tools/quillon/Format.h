#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/values/CBinaryData.h>

#include <string>
#include <string_view>

namespace quillon {

enum class Syntax { Text, FastInfoset };

/// The form of a document in bytes: how it is written, and what that is compressed with.
struct Format {
    Syntax syntax = Syntax::Text;
    KzXmlLib10::CompressionType compression = KzXmlLib10::CompressionType_None;
};

/// The format that the ending of a file name stands for, such as ".finf.gz". Any other ending, and "-", stand
/// for plain text.
Format FormatOfName(std::string_view file);

/// The format in words, such as "Fast Infoset under gzip".
std::string Describe(Format format);

/// Finds out the format of a document by its bytes, and replaces these by what is under the compression.
/// Throws CKzException for damaged gzip data, and what Decompress throws.
Format Recognize(KzXmlLib10::CBinaryData& bytes);

/// The bytes under gzip or zlib, or as they are. Unlike Compress it takes what does not shrink as well.
std::string Compressed(const KzXmlLib10::CBinaryData& bytes, KzXmlLib10::CompressionType type);

} // namespace quillon
