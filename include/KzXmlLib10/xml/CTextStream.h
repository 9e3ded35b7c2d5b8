#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/CStringBuffer.h>

namespace KzXmlLib10 {

/// The sink of the text writer: keeps all text in memory. Derived classes carry it further.
///
///     CTextStream stream(XmlEncoding_None);
///     CXmlTextWriter writer(&stream); // opens the stream
///     ...
///     writer.Close();                 // closes the stream
///     std::u16string text(stream.GetBuffer().GetString(), stream.GetBuffer().GetLength());
class QUILLON_EXPORT CTextStream : public CInstanceMonitor {
public:
    /// `encoding` is the byte form that the text is meant for; it decides what the XML declaration says.
    explicit CTextStream(XmlEncoding encoding);
    ~CTextStream() override;

    /// Empties the buffer.
    virtual void Open();
    /// Does nothing here.
    virtual void Close();
    /// Does nothing here: an in-memory stream keeps everything. The writer calls it whenever an operation
    /// leaves 4096 characters or more in the buffer.
    virtual void Flush();

    /// The whole text in the bytes of its encoding, without a byte order mark. XmlEncoding_None, and what is
    /// no encoding, throws CKzException.
    ///
    /// Deliberate: UTF-8 ends, silently, before the first surrogate without its partner; UTF-16 keeps it.
    CBinaryData GetBytes();

    CStringBuffer& GetBuffer() { return m_buffer; }
    XmlEncoding GetEncoding() const { return m_encoding; }

protected:
    CStringBuffer m_buffer;
    XmlEncoding m_encoding;
};

} // namespace KzXmlLib10
