#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/SharedName.h>

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

struct TextPiece;

/// An element of a CXmlDocument: its name, its attributes, its child elements and its text.
///
///     for (CXmlElement* item = order->GetFirstElement(); item; item = item->GetNextSiblingElement())
///         total += Price(item->GetAttribute(u"price", u""));
///
/// Made by the readers only; belongs to its document and is valid until that is loaded again or destroyed.
/// Comments, processing instructions, prefixes and the place of text among the children are not kept.
class QUILLON_EXPORT CXmlElement final : public CInstanceMonitor {
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
    const std::u16string& GetLocalName() const { return *m_name->localName; }
    const std::u16string& GetNamespaceURI() const { return *m_name->namespaceUri; }
    /// All character data directly in this element, in document order, white space included.
    std::u16string GetText() const;
    /// The same where it stands, or in `room` if it had to be put together. Valid until the element or `room`
    /// changes; a zero follows the text.
    std::u16string_view ViewText(std::u16string& room) const;
    bool HasAttributes() const { return m_attributes != nullptr; }
    /// In document order; the attributes stay the property of the element.
    const std::vector<CXmlAttribute*>& GetAttributes() const;
    /// The value of the first attribute of exactly this name and namespace, found by a linear walk.
    /// If there is none, one static empty string, the same object each time.
    const std::u16string& GetAttribute(const std::u16string& localName,
                                       const std::u16string& namespaceUri) const;

private:
    friend class CExpatReader;
    friend class CFastInfosetReader;
    friend class RecordParser;
    friend class CXmlDocument;
    friend class ElementText;
    friend class KzXmlLib10Data::CElementInfo;

    CXmlElement(const CXmlDocument* document, const SharedName& name) noexcept;

    /// A new element in the memory of its document.
    static CXmlElement* Create(const CXmlDocument* document, const SharedName& name);
    static void DestroyChain(CXmlElement* list) noexcept;
    void DestroyAttributes() noexcept;

    /// Gives room for so many attributes.
    void ReserveAttributes(std::size_t count);
    void AddAttribute(const SharedName& name, std::u16string&& value);
    void AppendText(std::u16string_view text);
    void ClearText();
    /// Appends a child, and returns it.
    CXmlElement* CreateNewChildElement(const SharedName& name);
    /// Removes and destroys the last child; `previous` is the one before it, or null.
    void RemoveLastChildElement(CXmlElement* previous);

    const CXmlDocument* m_document;
    CXmlElement* m_nextSibling = nullptr;
    CXmlElement* m_firstChild = nullptr;
    CXmlElement* m_lastChild = nullptr;
    std::vector<CXmlAttribute*>* m_attributes = nullptr; ///< null for none
    TextPiece* m_text = nullptr;                         ///< the last piece, null for none
    const SharedName* m_name;                            ///< the document's
};

} // namespace KzXmlLib10
