#pragma once

#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/xml/CBinaryStream.h>

#include <string>

namespace KzXmlLib10 {

/// Finished bytes on their way into a file.
///
///     CFileBinaryStream stream(u"order.xml", XmlEncoding_UTF16);
///     stream.m_data = order->ToXmlStream(...);
///     stream.SaveToFile();
class QUILLON_EXPORT CFileBinaryStream : public CBinaryStream {
public:
    /// `encoding` says whether the file begins with a byte order mark: the UTF-16 encodings have one. A null
    /// name throws CKzInvalidParamException.
    CFileBinaryStream(const char16_t* fileName, XmlEncoding encoding);
    ~CFileBinaryStream() override;

    /// Writes the data into the file, which is created or replaced. Any failure throws CKzException with the
    /// name and errno, such as "Failed to write data to the file [out.xml] error [0x0000001C]"; what has been
    /// written stays.
    ///
    /// Deliberate: the mark stands before whatever the data is, so that compressed UTF-16 cannot be read
    /// back.
    void SaveToFile();

private:
    std::u16string m_fileName;
    XmlEncoding m_encoding;
};

} // namespace KzXmlLib10
