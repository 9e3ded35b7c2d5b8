#pragma once

#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/IEventSink.h>

#include <atomic>
#include <cstdint>
#include <string>

namespace KzXmlLib10 {

/// The root of everything that can be written as XML and read from it: generated classes, generic elements
/// and attributes, collections.
///
///     CSmartPtr<COrder> order = new COrder;
///     order->FromXmlFile(u"order.xml", CXmlSerializationContext::GetDefaultContext());
///     std::u16string text = order->ToXml(true, true, EOLType_LF, context);
///
/// Objects are counted: a new one has count 0 and lives through the CSmartPtr that hold it. The count is
/// atomic; nothing else is synchronised. An object on the stack keeps count 0; the library holds no counted
/// pointer to an object that it only works on.
///
/// Every entry point first checks the generator's version (see Register) and throws CKzException on a
/// mismatch. Failures are exceptions of the CKzException family; a failed read leaves the object with what
/// was read so far.
class QUILLON_EXPORT CXmlObjectBase : public IEventSink {
public:
    /// Deliberate: the count of the source is copied too, also by assignment.
    CXmlObjectBase(const CXmlObjectBase& other);
    CXmlObjectBase& operator=(const CXmlObjectBase& other);

    /// Does nothing.
    void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) override;
    CXmlObjectBase* GetBase() override = 0;

    /// Writes the object as the root of an XML document into a file, which is created or replaced.
    /// CompressionType_ZLib is refused: it is for byte streams only. UTF-16 files begin with a byte order
    /// mark.
    virtual void ToXmlFile(const char16_t* fileName, bool includeDeclaration, bool formatted,
                           XmlEncoding encoding, EOLType eol, const CXmlSerializationContext& context,
                           CompressionType compression) const;
    /// Writes the object as a Fast Infoset document (ITU-T X.891) into a file.
    virtual void ToFastInfosetFile(const char16_t* fileName, FInfoDecl declaration,
                                   const CXmlSerializationContext& context,
                                   CompressionType compression) const;
    /// The object as XML text. The declaration, if wanted, names no encoding.
    virtual std::u16string ToXml(bool includeDeclaration, bool formatted, EOLType eol,
                                 const CXmlSerializationContext& context) const;
    /// The object as XML in bytes of the encoding, without a byte order mark. Compression fails where it
    /// would not make them fewer, as for most documents of a few bytes.
    virtual CBinaryData ToXmlStream(bool includeDeclaration, bool formatted, XmlEncoding encoding,
                                    EOLType eol, const CXmlSerializationContext& context,
                                    CompressionType compression) const;
    /// The object as the bytes of a Fast Infoset document.
    virtual CBinaryData ToFastInfosetStream(FInfoDecl declaration, const CXmlSerializationContext& context,
                                            CompressionType compression) const;

    /// Fills the object from a file: XML text in any encoding that expat reads or Fast Infoset, either of
    /// them also under gzip or zlib.
    virtual void FromXmlFile(const char16_t* fileName, const CXmlSerializationContext& context);
    /// Fills the object from XML text; an encoding that its declaration names is overruled.
    virtual void FromXml(const char16_t* xml, const CXmlSerializationContext& context);
    /// Fills the object from XML in bytes, zero-terminated; expat decides on the encoding.
    virtual void FromXml(const char* xml, const CXmlSerializationContext& context);
    /// Fills the object from bytes that hold what FromXmlFile takes.
    virtual void FromXmlStream(const CBinaryData& data, const CXmlSerializationContext& context);
    virtual void FromXmlStream(unsigned char* const data, unsigned long size,
                               const CXmlSerializationContext& context);
    /// Fills the object from a generic element, by way of its text.
    virtual void FromXmlElement(const CElement* element, const CXmlSerializationContext& context);
    /// Fills the object from an element of a document, which stays the caller's.
    virtual void FromXmlElement(const CXmlElement* element, const CXmlSerializationContext& context);

    virtual ~CXmlObjectBase();

protected:
    /// The namespace under which the object is written as a root.
    virtual std::u16string GetTargetNamespace() const = 0;

public:
    /// The namespace handed to the element descriptors of the object while it is read.
    virtual std::u16string GetNamespace() const = 0;

protected:
    /// Writes the attributes of the open start tag. None here.
    virtual void AttributesToXml_Int(CXmlWriter* writer, const CXmlSerializationContext& context) const;
    /// Writes the object as an element. `isOptional` allows an empty choice inside it.
    virtual void ToXml_Int(CXmlWriter* writer, bool isRoot, const char16_t* elementNamespace,
                           const CXmlSerializationContext& context, bool isOptional) const = 0;
    /// Reads the attributes and text of `element`, and children from `current` on. Returns the first child
    /// that was not taken.
    virtual CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                                     const CXmlSerializationContext& context, bool isOptional) = 0;

public:
    /// The object itself, as seen by the library: collections compare objects by it.
    const CXmlObjectBase* GetBase() const;

    /// Counts one more reference; returns the new count.
    long AddRef();
    /// Counts one reference less; returns the new count. The object is deleted when the count was exactly 1;
    /// where deletions nest deeply, the inner ones wait until outer ones have ended.
    long Release();

    /// Reaches the protected operation of the same name.
    static void SetElementName(CXmlObjectBase* object, const char16_t* name);

protected:
    /// Leaves an empty element name and a count of 0.
    CXmlObjectBase();

    std::u16string GetElementName() const;
    void SetElementName(const char16_t* name);
    /// The same, without a copy where it is the name already.
    void TakeElementName(const std::u16string& name);

    /// Forwarders through which descriptors and collections reach the protected operations of other objects.
    static void ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
                          const char16_t* elementNamespace, const CXmlSerializationContext& context,
                          bool isOptional);
    static void AttributesToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer,
                                    const CXmlSerializationContext& context);
    static CXmlElement* FromXml_Int(CXmlObjectBase* object, CXmlElement* element, CXmlElement* current,
                                    const CXmlSerializationContext& context);

    // For the setters of generated classes with a choice. `validElement` is the name of the member of the
    // choice that is set at present, empty when none is. What they throw leaves it as it was.

    /// Confirms a selection, or clears the record of the choice, whichever member was set. Throws
    /// CKzInvalidStateException unless `element` is the member set.
    static void Choice_SetElementValid(bool isValid, const char16_t* element, std::u16string& validElement);
    /// Records that a member is given an object, or null. Throws CKzInvalidStateException if another member
    /// is set.
    static void Choice_SelectElement(const char16_t* element, CXmlObjectBase* value,
                                     std::u16string& validElement);
    /// Records that a collection now holds `count` items. Throws CKzInvalidStateException if another member
    /// is set.
    static void Choice_CollectionChanged(const char16_t* element, long count, std::u16string& validElement);
    /// Reads one run of items into a collection and checks their number. `count` counts the runs: when there
    /// was one already, nothing happens.
    static void Choice_Read_Collection(CXmlCollectionBase* collection, CXmlElement* element,
                                       CXmlElement*& current, long& count,
                                       const CXmlSerializationContext& context);

    /// Throws CKzInvalidParamException for null.
    static void Throw_IfPropertyIsNull(CXmlObjectBase* value, const char16_t* property);
    /// Throws CKzInvalidParamException for an object of another element name; null passes.
    static void Throw_IfElementNameDiffers(CXmlObjectBase* value, const char16_t* element);

    /// Whether a wildcard admits a namespace. `restriction` is one of the keywords `##any`, `##other`,
    /// `##local` and `##targetNamespace`, or a namespace, or several of them separated by single spaces.
    ///
    /// Deliberate: an empty namespace passes against a namespace and against `##other`; of several tokens
    /// only the first is looked at, then the restriction admits no more than its own whole text and the empty
    /// namespace.
    bool IsNamespaceValid(const char16_t* ns, const char16_t* restriction,
                          const char16_t* targetNamespace) const;
    /// Throws CKzInvalidNamespaceException where IsNamespaceValid says false.
    void TestNamespace(const char16_t* ns, const char16_t* restriction,
                       const char16_t* targetNamespace) const;
    /// Whether an element of a document has this name; without namespaces where the context ignores them.
    bool DoesElementNameMatch(const CXmlSerializationContext& context, const CXmlElement* element,
                              const char16_t* name, const char16_t* ns) const;

    /// Each sends one event of a collection to one sink. The index of a removal arrives as a pointer to it,
    /// -1 as null.
    static void FireOnCollectionChangeEvent(IEventSink* sink, CXmlCollectionBase* collection);
    static void FireOnCollectionAddEvent(IEventSink* sink, CXmlCollectionBase* collection, void* item);
    static void FireOnCollectionAddCompleteEvent(IEventSink* sink, CXmlCollectionBase* collection,
                                                 void* item);
    static void FireOnCollectionRemoveEvent(IEventSink* sink, CXmlCollectionBase* collection, int index);
    static void FireOnCollectionRemoveCompleteEvent(IEventSink* sink, CXmlCollectionBase* collection,
                                                    int index);

    /// What GetElementName copies; valid until the name changes.
    const std::u16string& ElementName() const { return m_elementName; }

private:
    friend class KzXmlLib10Data::CAttributeInfo;
    friend class KzXmlLib10Data::CElementInfo;

    void WriteDocument(CTextStream& stream, bool includeDeclaration, bool formatted, EOLType eol,
                       const CXmlSerializationContext& context) const;
    void ReadDocument(const CXmlDocument& document, const CXmlSerializationContext& context);

    std::u16string m_elementName;
    std::atomic<std::int32_t> m_refCount{0};
};

} // namespace KzXmlLib10
