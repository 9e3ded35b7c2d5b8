/// The entry points of CXmlObjectBase that write to and read from files and bytes.

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/GeneratorVersion.h"
#include "object/Messages.h"
#include "object/Throw.h"
#include "xml/AsyncFiles.h"

#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/xml/CFileBinaryStream.h>
#include <KzXmlLib10/xml/CFileTextStream.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/Compression.h>

namespace KzXmlLib10 {

void CXmlObjectBase::ToXmlFile(const char16_t* fileName, bool includeDeclaration, bool formatted,
                               XmlEncoding encoding, EOLType eol, const CXmlSerializationContext& context,
                               CompressionType compression) const {
    if (compression == CompressionType_ZLib)
        Throw<CKzException>(messages::ZlibOnlyForStreams);
    if (IsAsyncToXmlFile() && compression == CompressionType_None) {
        CheckGeneratorVersion();
        CFileTextStream stream(fileName, encoding);
        WriteDocument(stream, includeDeclaration, formatted, eol, context);
    } else {
        const CBinaryData bytes =
            ToXmlStream(includeDeclaration, formatted, encoding, eol, context, compression);
        CFileBinaryStream stream(fileName, encoding);
        stream.m_data = bytes;
        stream.SaveToFile();
    }
}

CBinaryData CXmlObjectBase::ToXmlStream(bool includeDeclaration, bool formatted, XmlEncoding encoding,
                                        EOLType eol, const CXmlSerializationContext& context,
                                        CompressionType compression) const {
    CheckGeneratorVersion();
    CTextStream stream(encoding);
    WriteDocument(stream, includeDeclaration, formatted, eol, context);
    CBinaryData bytes = stream.GetBytes();
    if (compression != CompressionType_None)
        Compress(bytes, compression);
    return bytes;
}

void CXmlObjectBase::FromXmlFile(const char16_t* fileName, const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    CXmlDocument document(context);
    document.Load(fileName);
    ReadDocument(document, context);
}

void CXmlObjectBase::FromXmlStream(unsigned char* const data, unsigned long size,
                                   const CXmlSerializationContext& context) {
    CheckGeneratorVersion();
    CXmlDocument document(context);
    document.LoadXmlStream(data, size);
    ReadDocument(document, context);
}

void CXmlObjectBase::FromXmlStream(const CBinaryData& data, const CXmlSerializationContext& context) {
    // Loading changes none of the bytes.
    FromXmlStream(const_cast<unsigned char*>(data.GetData()), data.GetLength(), context);
}

} // namespace KzXmlLib10
