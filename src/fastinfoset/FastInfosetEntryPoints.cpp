/// The entry points of CXmlObjectBase that write Fast Infoset.

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/GeneratorVersion.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/fastinfoset/CFastInfosetWriter.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CFileBinaryStream.h>
#include <KzXmlLib10/xml/Compression.h>

namespace KzXmlLib10 {

CBinaryData CXmlObjectBase::ToFastInfosetStream(FInfoDecl declaration,
                                                const CXmlSerializationContext& context,
                                                CompressionType compression) const {
    CheckGeneratorVersion();
    CBinaryStream stream;
    CFastInfosetWriter writer(&stream, &context.GetFIContext());
    writer.WriteHeader(declaration);
    const std::u16string targetNamespace = GetTargetNamespace();
    ToXml_Int(&writer, true, targetNamespace.c_str(), context, false);
    writer.WriteDocumentEnd();
    writer.Close();
    if (compression != CompressionType_None)
        Compress(stream.m_data, compression);
    return stream.m_data;
}

void CXmlObjectBase::ToFastInfosetFile(const char16_t* fileName, FInfoDecl declaration,
                                       const CXmlSerializationContext& context,
                                       CompressionType compression) const {
    if (compression == CompressionType_ZLib)
        Throw<CKzException>(messages::ZlibOnlyForStreams);
    const CBinaryData bytes = ToFastInfosetStream(declaration, context, compression);
    CFileBinaryStream stream(fileName, XmlEncoding_None);
    stream.m_data = bytes;
    stream.SaveToFile();
}

} // namespace KzXmlLib10
