/// The entry points of CXmlObjectBase that write to and read from files and bytes.

#include <KzXmlLib10/object/CXmlObjectBase.h>

#include "object/GeneratorVersion.h"
#include "object/Messages.h"
#include "object/Throw.h"

#include <KzXmlLib10/values/CBinaryData.h>

namespace KzXmlLib10 {

void CXmlObjectBase::ToXmlFile(const char16_t*, bool, bool, XmlEncoding, EOLType,
                               const CXmlSerializationContext&, CompressionType) const {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
void CXmlObjectBase::ToFastInfosetFile(const char16_t*, FInfoDecl, const CXmlSerializationContext&,
                                       CompressionType) const {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
CBinaryData CXmlObjectBase::ToXmlStream(bool, bool, XmlEncoding, EOLType, const CXmlSerializationContext&,
                                        CompressionType) const {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
CBinaryData CXmlObjectBase::ToFastInfosetStream(FInfoDecl, const CXmlSerializationContext&,
                                                CompressionType) const {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
void CXmlObjectBase::FromXmlFile(const char16_t*, const CXmlSerializationContext&) {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
void CXmlObjectBase::FromXmlStream(const CBinaryData&, const CXmlSerializationContext&) {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
void CXmlObjectBase::FromXmlStream(unsigned char* const, unsigned long, const CXmlSerializationContext&) {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}
void CXmlObjectBase::FromXmlElement(const CElement*, const CXmlSerializationContext&) {
    CheckGeneratorVersion();
    Throw<CKzException>(messages::NotAvailable);
}

} // namespace KzXmlLib10
