#pragma once

#include "Format.h"
#include "Namespaces.h"
#include "Survey.h"

#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <cstdint>
#include <optional>
#include <string>

namespace quillon {

/// A document of any schema, as it was read: a tree of elements, which can be written in each format.
///
/// Comments, processing instructions, the document type and the place of text among child elements are not
/// kept; text comes in front of the children.
class Document : public KzXmlLib10::CXmlObjectBase {
public:
    /// Reads a file, or standard input for "-". Throws FileFailure or CKzException.
    explicit Document(const std::string& file);

    const KzXmlLib10::CXmlElement& GetRoot() const { return *m_root; }
    const Survey& GetSurvey() const { return *m_survey; }
    const Namespaces& GetNamespaces() const { return *m_namespaces; }
    /// The format and the size in bytes that it was read in.
    Format GetFormat() const { return m_format; }
    std::uint32_t GetSize() const { return m_size; }

    /// The document as text, with a declaration and, in UTF-16, a byte order mark. Throws
    /// CKzInvalidValueException for a namespace that cannot be declared.
    KzXmlLib10::CBinaryData ToText(bool formatted, KzXmlLib10::XmlEncoding encoding) const;
    KzXmlLib10::CBinaryData ToFastInfoset() const;

    using KzXmlLib10::CXmlObjectBase::GetBase;
    KzXmlLib10::CXmlObjectBase* GetBase() override { return this; }
    std::u16string GetNamespace() const override { return m_root->GetNamespaceURI(); }

protected:
    std::u16string GetTargetNamespace() const override { return GetNamespace(); }
    using KzXmlLib10::CXmlObjectBase::FromXml_Int;
    using KzXmlLib10::CXmlObjectBase::ToXml_Int;
    void ToXml_Int(KzXmlLib10::CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                   const KzXmlLib10::CXmlSerializationContext& context, bool isOptional) const override;
    /// Takes the element, of a document that outlives this object, as its root.
    KzXmlLib10::CXmlElement* FromXml_Int(KzXmlLib10::CXmlElement* element, KzXmlLib10::CXmlElement* current,
                                         const KzXmlLib10::CXmlSerializationContext& context,
                                         bool isOptional) override;

private:
    KzXmlLib10::CXmlSerializationContext m_context;
    KzXmlLib10::CXmlDocument m_document{m_context};
    const KzXmlLib10::CXmlElement* m_root = nullptr;
    Format m_format;
    std::uint32_t m_size = 0;
    std::optional<Survey> m_survey;
    std::optional<Namespaces> m_namespaces;
};

} // namespace quillon
