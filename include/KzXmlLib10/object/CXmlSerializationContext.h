#pragma once

#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>
#include <KzXmlLib10/object/CNamespaceAliasMap.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>

#include <atomic>
#include <string>
#include <vector>

namespace KzXmlLib10 {

/// The settings of one read or write: how tolerant reading is, and what is written at the root.
///
///     CXmlSerializationContext context;
///     context.SetIgnoreUnknownElements(true);
///     order->FromXmlFile(u"order.xml", context);
///
/// Holds nothing of a running operation, so one context serves any number of calls. Threads may share a
/// context that they only read, except where an operation is marked as changing it.
class QUILLON_EXPORT CXmlSerializationContext {
public:
    CXmlSerializationContext();
    CXmlSerializationContext(const CXmlSerializationContext& other);
    /// Copies all settings as they stand, without the test of the two flags that exclude each other.
    CXmlSerializationContext& operator=(const CXmlSerializationContext& other);
    virtual ~CXmlSerializationContext();

    /// The context of calls that have no settings of their own; changing it changes all of them.
    static CXmlSerializationContext& GetDefaultContext();

    /// The default namespace of the root element; empty for none.
    std::u16string GetDefaultNamespaceURI() const;
    void SetDefaultNamespaceURI(const char16_t* namespaceUri);

    /// Whether `xsi:type` is written where a derived class stands under the name of its base.
    bool GetWriteTypeAttribute() const;
    void SetWriteTypeAttribute(bool write);

    /// The namespaces to declare at the root.
    const CNamespaceAliasMap& GetNamespaceAliases() const;
    CNamespaceAliasMap& GetNamespaceAliases();

    /// Attributes that the root of a generated class gets in front of its own. Created when first asked for,
    /// which threads may do at the same moment; changing the attributes is not synchronised.
    ///
    /// Deliberate: a copy of the context shares the collection, if it was there when the copy was made.
    CSmartPtr<CAttributeCol> GetAdditionalRootAttributes() const;

    /// Whole processing instructions, delimiters included, written in front of the root.
    const std::vector<std::u16string>& GetProcessingInstructions() const;
    std::vector<std::u16string>& GetProcessingInstructions();

    /// Text written verbatim into the start tag of the root, after its attributes; empty for none.
    std::u16string GetInLineSchema() const;
    void SetInLineSchema(const char16_t* schema);

    /// With SchemaType_NoNamespaces names are compared, and documents read, without namespaces.
    SchemaType GetSchemaType() const;
    void SetSchemaType(SchemaType type);

    /// Minimum and maximum counts of collections are not enforced.
    bool GetIgnoreInvalidCollectionCounts() const;
    void SetIgnoreInvalidCollectionCounts(bool ignore);

    /// An empty choice is no error.
    bool GetIgnoreMissingChoice() const;
    void SetIgnoreMissingChoice(bool ignore);

    /// A required element that is absent is no error.
    /// The setter throws CKzInvalidStateException while unknown elements are ignored: the reader could not
    /// tell a misplaced element from a missing one.
    bool GetIgnoreMissingMandatoryElements() const;
    void SetIgnoreMissingMandatoryElements(bool ignore);

    /// Unexpected elements are skipped.
    /// The setter throws CKzInvalidStateException while missing mandatory elements are ignored.
    bool GetIgnoreUnknownElements() const;
    void SetIgnoreUnknownElements(bool ignore);

    /// Unexpected attributes are dropped.
    bool GetIgnoreUnknownAttributes() const;
    void SetIgnoreUnknownAttributes(bool ignore);

    /// Whether names are compared without namespaces: the flag, or SchemaType_NoNamespaces.
    bool GetIgnoreNamespaces() const;
    /// Sets the flag alone.
    void SetIgnoreNamespaces(bool ignore);

    /// An optional attribute that holds its default is not written.
    bool GetNoOptionalAttributeDefaultOutput() const;
    void SetNoOptionalAttributeDefaultOutput(bool omit);

    /// How values are represented in Fast Infoset, and which vocabulary both ends share.
    const CFastInfosetContext& GetFIContext() const;
    CFastInfosetContext& GetFIContext();

    /// The reader merges CDATA sections into the text, without their delimiters.
    bool GetStripCDATA() const;
    void SetStripCDATA(bool strip);

    static CXmlSerializationContext m_defaultContext;

private:
    /// A counted pointer that the first of several threads fills.
    class QUILLON_EXPORT RootAttributes {
    public:
        RootAttributes() = default;
        RootAttributes(const RootAttributes& other);
        RootAttributes& operator=(const RootAttributes& other);
        ~RootAttributes();

        CAttributeCol* GetOrCreate();

    private:
        std::atomic<CAttributeCol*> m_attributes = nullptr;
    };

    std::u16string m_defaultNamespaceURI;
    bool m_writeTypeAttribute = true;
    CNamespaceAliasMap m_namespaceAliases;
    mutable RootAttributes m_additionalRootAttributes;
    std::vector<std::u16string> m_processingInstructions;
    std::u16string m_inLineSchema;
    bool m_ignoreInvalidCollectionCounts = false;
    bool m_ignoreMissingChoice = false;
    bool m_ignoreMissingMandatoryElements = false;
    bool m_ignoreUnknownElements = false;
    bool m_ignoreUnknownAttributes = false;
    bool m_ignoreNamespaces = false;
    SchemaType m_schemaType = SchemaType_Default;
    bool m_noOptionalAttributeDefaultOutput = false;
    CFastInfosetContext m_fiContext;
    bool m_stripCDATA = true;
};

} // namespace KzXmlLib10
