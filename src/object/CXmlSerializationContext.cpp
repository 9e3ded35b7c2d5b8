#include <KzXmlLib10/object/CXmlSerializationContext.h>

#include "object/NotNull.h"

namespace KzXmlLib10 {

// Ready before the static objects of a program that links the library into itself.
[[gnu::init_priority(101)]] CXmlSerializationContext CXmlSerializationContext::m_defaultContext;

CXmlSerializationContext::CXmlSerializationContext() = default;
CXmlSerializationContext::CXmlSerializationContext(const CXmlSerializationContext& other) = default;
CXmlSerializationContext&
CXmlSerializationContext::operator=(const CXmlSerializationContext& other) = default;
CXmlSerializationContext::~CXmlSerializationContext() = default;

CXmlSerializationContext& CXmlSerializationContext::GetDefaultContext() { return m_defaultContext; }

std::u16string CXmlSerializationContext::GetDefaultNamespaceURI() const { return m_defaultNamespaceURI; }
void CXmlSerializationContext::SetDefaultNamespaceURI(const char16_t* namespaceUri) {
    m_defaultNamespaceURI = NotNull(namespaceUri, u"namespaceUri");
}

bool CXmlSerializationContext::GetWriteTypeAttribute() const { return m_writeTypeAttribute; }
void CXmlSerializationContext::SetWriteTypeAttribute(bool write) { m_writeTypeAttribute = write; }

const CNamespaceAliasMap& CXmlSerializationContext::GetNamespaceAliases() const { return m_namespaceAliases; }
CNamespaceAliasMap& CXmlSerializationContext::GetNamespaceAliases() { return m_namespaceAliases; }

const std::vector<std::u16string>& CXmlSerializationContext::GetProcessingInstructions() const {
    return m_processingInstructions;
}
std::vector<std::u16string>& CXmlSerializationContext::GetProcessingInstructions() {
    return m_processingInstructions;
}

std::u16string CXmlSerializationContext::GetInLineSchema() const { return m_inLineSchema; }
void CXmlSerializationContext::SetInLineSchema(const char16_t* schema) {
    m_inLineSchema = NotNull(schema, u"schema");
}

SchemaType CXmlSerializationContext::GetSchemaType() const { return m_schemaType; }
void CXmlSerializationContext::SetSchemaType(SchemaType type) { m_schemaType = type; }

bool CXmlSerializationContext::GetIgnoreInvalidCollectionCounts() const {
    return m_ignoreInvalidCollectionCounts;
}
void CXmlSerializationContext::SetIgnoreInvalidCollectionCounts(bool ignore) {
    m_ignoreInvalidCollectionCounts = ignore;
}

bool CXmlSerializationContext::GetIgnoreMissingChoice() const { return m_ignoreMissingChoice; }
void CXmlSerializationContext::SetIgnoreMissingChoice(bool ignore) { m_ignoreMissingChoice = ignore; }

bool CXmlSerializationContext::GetIgnoreMissingMandatoryElements() const {
    return m_ignoreMissingMandatoryElements;
}
void CXmlSerializationContext::SetIgnoreMissingMandatoryElements(bool ignore) {
    if (ignore && m_ignoreUnknownElements)
        Throw<CKzInvalidStateException>(messages::UnknownElementsAreIgnored);
    m_ignoreMissingMandatoryElements = ignore;
}

bool CXmlSerializationContext::GetIgnoreUnknownElements() const { return m_ignoreUnknownElements; }
void CXmlSerializationContext::SetIgnoreUnknownElements(bool ignore) {
    if (ignore && m_ignoreMissingMandatoryElements)
        Throw<CKzInvalidStateException>(messages::MissingElementsAreIgnored);
    m_ignoreUnknownElements = ignore;
}

bool CXmlSerializationContext::GetIgnoreUnknownAttributes() const { return m_ignoreUnknownAttributes; }
void CXmlSerializationContext::SetIgnoreUnknownAttributes(bool ignore) { m_ignoreUnknownAttributes = ignore; }

bool CXmlSerializationContext::GetIgnoreNamespaces() const {
    return m_ignoreNamespaces || m_schemaType == SchemaType_NoNamespaces;
}
void CXmlSerializationContext::SetIgnoreNamespaces(bool ignore) { m_ignoreNamespaces = ignore; }

bool CXmlSerializationContext::GetNoOptionalAttributeDefaultOutput() const {
    return m_noOptionalAttributeDefaultOutput;
}
void CXmlSerializationContext::SetNoOptionalAttributeDefaultOutput(bool omit) {
    m_noOptionalAttributeDefaultOutput = omit;
}

const CFastInfosetContext& CXmlSerializationContext::GetFIContext() const { return m_fiContext; }
CFastInfosetContext& CXmlSerializationContext::GetFIContext() { return m_fiContext; }

bool CXmlSerializationContext::GetStripCDATA() const { return m_stripCDATA; }
void CXmlSerializationContext::SetStripCDATA(bool strip) { m_stripCDATA = strip; }

} // namespace KzXmlLib10
