#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/SharedName.h>

#include <string>

namespace KzXmlLib10 {

/// An attribute of a CXmlElement: its local name, its namespace and its value, as the parser normalised it.
///
/// Made by the readers only and owned by its element. Prefixes are not kept. An attribute without a prefix
/// has an empty namespace, also where a default namespace is in scope.
class QUILLON_EXPORT CXmlAttribute final : public CInstanceMonitor {
public:
    ~CXmlAttribute() override;

    const std::u16string& GetLocalName() const { return *m_name->localName; }
    const std::u16string& GetNamespaceURI() const { return *m_name->namespaceUri; }
    const std::u16string& GetValue() const { return m_value; }

    /// Whether the attribute steers reading instead of carrying data: "xmlns", "type", "schemaLocation" or
    /// "noNamespaceSchemaLocation" in the schema-instance or in the xmlns namespace.
    ///
    /// Deliberate: a misnomer; it tells more than declarations of namespaces, and every such local name
    /// counts in either namespace.
    bool IsNamespaceAttribute() const;

    /// Whether the attribute is "nil" in the schema-instance namespace; its value is not looked at.
    ///
    /// Deliberate: the same name in the xmlns namespace counts too.
    bool IsNilAttribute() const;

private:
    friend class CXmlElement;

    /// The names stay those of the document.
    CXmlAttribute(const SharedName& name, std::u16string&& value) noexcept;

    const SharedName* m_name; ///< the document's
    std::u16string m_value;
};

} // namespace KzXmlLib10
