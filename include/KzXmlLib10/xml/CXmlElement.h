#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// An element of a CXmlDocument: its name, its attributes, its child elements and its text.
///
///     for (CXmlElement* item = order->GetFirstElement(); item; item = item->GetNextSiblingElement())
///         total += Price(item->GetAttribute(u"price", u""));
///
/// Made by the readers only; belongs to its document and is valid until that is loaded again or destroyed.
/// Comments, processing instructions, prefixes and the place of text among the children are not kept.
class QUILLON_EXPORT CXmlElement : public CInstanceMonitor {
public:
    CXmlElement(const CXmlElement&) = delete;
    CXmlElement& operator=(const CXmlElement&) = delete;
    /// Destroys all below the element as well, at any depth, in constant stack.
    ~CXmlElement() override;
    /// Gives the memory back to the document that it came from.
    static void operator delete(CXmlElement* element, std::destroying_delete_t);

    const CXmlDocument* GetDocument() const { return m_document; }
    /// The first child, or null.
    CXmlElement* GetFirstElement() const { return m_firstChild; }
    /// The next child of the same parent, or null.
    CXmlElement* GetNextSiblingElement() const { return m_nextSibling; }
    const std::u16string& GetLocalName() const { return *m_localName; }
    const std::u16string& GetNamespaceURI() const { return *m_namespaceUri; }
    /// All character data directly in this element, in document order, white space included.
    const std::u16string& GetText() const { return m_text; }
    /// In document order; the attributes stay the property of the element.
    const std::vector<CXmlAttribute*>& GetAttributes() const { return m_attributes; }
    /// The value of the first attribute of exactly this name and namespace, found by a linear walk.
    /// If there is none, one static empty string, the same object each time.
    const std::u16string& GetAttribute(const std::u16string& localName,
                                       const std::u16string& namespaceUri) const;

protected:
    void AddAttribute(std::u16string_view localName, std::u16string_view value,
                      std::u16string_view namespaceUri);
    /// Appends zero-terminated text.
    void AppendText(const char16_t* text);
    /// Appends `count` code units. The capacity at least doubles, so that many small pieces cost linear time.
    void AppendText(const char16_t* text, std::size_t count);
    /// Appends a child without a name, and returns it.
    CXmlElement* CreateNewChildElement();
    /// Removes and destroys the last child; `previous` is the one before it, or null.
    void RemoveLastChildElement(CXmlElement* previous);
    void SetElementName(std::u16string_view localName);
    void SetNamespace(std::u16string_view namespaceUri);

private:
    friend class CExpatReader;
    friend class CFastInfosetReader;
    friend class RecordParser;
    friend class CXmlDocument;

    explicit CXmlElement(const CXmlDocument* document) noexcept;

    /// A new element without a name, in the memory of its document.
    static CXmlElement* Create(const CXmlDocument* document);
    static void DestroyChain(CXmlElement* list) noexcept;

    const CXmlDocument* m_document;
    CXmlElement* m_nextSibling = nullptr;
    CXmlElement* m_firstChild = nullptr;
    CXmlElement* m_lastChild = nullptr;
    std::vector<CXmlAttribute*> m_attributes;
    std::u16string m_text;
    const std::u16string* m_localName; ///< the document's, as all names
    const std::u16string* m_namespaceUri;
};

} // namespace KzXmlLib10
