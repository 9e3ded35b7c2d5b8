#pragma once

#include <KzXmlLib10/values/CBinaryData.h>

#include <string>

namespace KzXmlLib10 {

/// Bytes in the form of one of the built-in encoding algorithms of Fast Infoset (ITU-T X.891, clause 10).
///
///     CFastInfosetBinaryData data;
///     data.SetAsEncodedString(4, u"-2");
///     data.GetAsHexString();             // "FFFFFFFE"
///     data.GetAsString(4);               // "-2"
///
/// The algorithms: 1 hexadecimal and 2 base64 (raw bytes), 3 short, 4 int and 5 long (16, 32 and 64 bits,
/// most significant byte first), 6 boolean (packed bits), 7 float and 8 double (32 and 64 bits), 9 uuid (16
/// bytes, as hexadecimal text without hyphens), 10 cdata (UTF-8).
class QUILLON_EXPORT CFastInfosetBinaryData : public CBinaryData {
public:
    CFastInfosetBinaryData();
    CFastInfosetBinaryData(const CBinaryData& other);
    explicit CFastInfosetBinaryData(const char16_t* text);
    CFastInfosetBinaryData(unsigned char* const data, unsigned long length, bool adopt);

    /// The text form of the bytes by algorithm 1 to 9; several values are joined by one blank. No bytes give
    /// an empty text, whatever the algorithm. Throws CKzException for an unknown algorithm, and for a length
    /// that is no multiple of that of its values.
    ///
    /// Deliberate: of each float the first byte stands for all four, so that most do not come back; booleans
    /// out of one byte stand side by side, with no blank between.
    std::u16string GetAsString(unsigned long algorithm) const;

    /// Replaces the bytes by the form of one value by algorithm 1 to 10. A list is not split. Throws
    /// CKzException for an unknown algorithm, and what CConversions and CBinaryData throw for a text of
    /// another form; there are no bytes then. Whitespace in front of a number is accepted, behind it not.
    void SetAsEncodedString(unsigned long algorithm, const char16_t* text);
};

} // namespace KzXmlLib10
