#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/ItemType.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>

namespace KzXmlLib10 {

class NamespaceMap;

/// The sink that objects write themselves into: a sequence of calls in document order, whatever the format.
///
///     writer.AddNamespace(u"p", u"urn:p");
///     writer.StartElement(u"order", u"urn:p");
///     writer.WriteAttribute(u"id", u"", u"7", ItemType_i4);
///     writer.WriteText(u"text", ItemType_string);
///     writer.EndElement();
///
/// Attributes come directly behind the start of their element. Names, prefixes, namespaces and characters
/// are not checked: what XML forbids is passed on. A writer serves one document and one thread, and keeps
/// one context for each open element. Texts end at their first zero.
///
/// Failures are CKzException. Operations that need an open element throw CKzInvalidStateException where
/// there is none. An exception leaves the output as it stands.
class QUILLON_EXPORT CXmlWriter : public CInstanceMonitor {
public:
    CXmlWriter(const CXmlWriter&) = delete;
    CXmlWriter& operator=(const CXmlWriter&) = delete;
    ~CXmlWriter() override;

    /// Prepares the sink. Does nothing here.
    virtual void Open();
    /// Ends the document. Throws if an element is still open.
    virtual void Close();

    /// Sets the default namespace: of the document before its root starts, else silently, with no
    /// declaration in the output, of the open element and what it will contain. Empty means none.
    virtual void SetDefaultNamespace(const std::u16string& uri);
    /// Maps a namespace to a prefix. Scope and silence as in SetDefaultNamespace.
    virtual void AddNamespace(const std::u16string& alias, const std::u16string& uri);

    virtual void WriteComment(const std::u16string& text) = 0;
    /// `text` is the whole instruction with its delimiters.
    virtual void WriteProcessingInstruction(const std::u16string& text) = 0;
    /// `text` is a whole schema, which goes behind the attributes of the root.
    virtual void WriteInlineSchema(const std::u16string& text) = 0;

    /// Starts an element. An empty namespace is written without a prefix even below a default namespace.
    virtual void StartElement(const std::u16string& name, const std::u16string& namespaceUri) = 0;
    /// Writes character content. An empty text writes nothing. `type` is the kind of value the text stands
    /// for, for formats that encode values by kind.
    virtual void WriteText(const std::u16string& text, ItemType type) = 0;
    /// Ends the innermost open element.
    virtual void EndElement() = 0;

    /// Writes an attribute of the element just started. Throws once its start tag is closed.
    virtual void WriteAttribute(const std::u16string& name, const std::u16string& namespaceUri,
                                const std::u16string& value, ItemType type) = 0;
    /// Writes xsi:type with a qualified name as its value. Fails as WriteAttribute does.
    virtual void WriteXsiType(const std::u16string& namespaceUri, const std::u16string& typeName,
                              ItemType type) = 0;
    /// Writes xsi:nil="true". Fails as WriteAttribute does.
    virtual void WriteXsiNil() = 0;

    /// The name of an element.
    struct LeafName {
        const std::u16string& local;
        const std::u16string& namespaceUri;
        /// That of a UniqueNumber which stands for this name alone, so that it is known again; 0 for none.
        std::uint64_t number = 0;
    };
    /// Writes an element that holds a text, or nothing if that is empty: what StartElement, WriteText and
    /// EndElement do, which a derived writer sees being called, and quicker for the writers of this library.
    void WriteLeaf(const LeafName& name, const std::u16string& text, ItemType type) {
        if (m_leafClass == &typeid(*this)) // a class whose information is elsewhere too would only be slower
            (this->*m_writeLeaf)(name, text, type);
        else
            WriteLeafByParts(name, text, type);
    }

    /// A namespace as a string, which the writer keeps until the next call, to spare an allocation for each
    /// element.
    const std::u16string& KeepNamespace(std::u16string_view uri);

protected:
    CXmlWriter();

    /// The state of one open element.
    ///
    /// A context either has a namespace state of its own or inherits that of the nearest ancestor that has
    /// one: the default namespace and the map from namespace to prefix.
    class QUILLON_EXPORT CXmlWriterContext : public CInstanceMonitor {
    public:
        /// The context of a root element, with its own copy of the namespaces of the writer.
        CXmlWriterContext(const std::u16string& name, const std::u16string& namespaceUri,
                          const std::u16string& defaultNamespace,
                          const std::map<std::u16string, std::u16string>& namespaces);
        /// The context of an element inside that of `parent`, which must outlive it. It shares the map of
        /// its parent.
        CXmlWriterContext(const std::u16string& name, const std::u16string& namespaceUri,
                          const CXmlWriterContext& parent);
        /// Makes a context that is done with, and had no namespace state of its own, what that constructor
        /// would make. It keeps the memory of its texts.
        void Restart(const std::u16string& name, const std::u16string& namespaceUri,
                     const CXmlWriterContext& parent);
        CXmlWriterContext(const CXmlWriterContext&) = delete;
        CXmlWriterContext& operator=(const CXmlWriterContext&) = delete;
        /// Destroys the whole chain of parents, in a loop.
        ~CXmlWriterContext() override;

        /// The default namespace in force.
        const std::u16string& GetDefaultNamespace() const;
        /// The map in force.
        NamespaceMap& GetNamespaceMap() const { return *m_namespaces; }
        /// The prefix of a namespace in the map in force.
        /// Deliberate: a namespace that has none enters that map with an empty prefix.
        const std::u16string& GetAlias(const std::u16string& uri);
        /// Maps a namespace to a prefix for this element and what it will contain.
        void AddContextNamespace(const std::u16string& uri, const std::u16string& alias);
        /// Sets the default namespace of this element and what it will contain.
        void SetContextDefaultNamespace(const std::u16string& uri);

        /// Whether the namespace state is that of an ancestor.
        bool InheritsNamespaces() const { return m_inherits; }
        /// For an element that is not written yet, whose parent may have got a namespace state of its own.
        void InheritAgain(const CXmlWriterContext& parent) {
            if (m_inherits)
                m_namespaces = parent.m_namespaces;
        }
        /// Whether names in the namespace are written with a prefix here.
        bool NeedsPrefix(const std::u16string& uri) const;
        /// Counts one more child element.
        void CountChild() {
            m_childCount = static_cast<std::int32_t>(static_cast<std::uint32_t>(m_childCount) + 1);
        }

        std::int32_t m_childCount = 0;
        bool m_startTagOpen = true;
        std::int32_t m_depth = 0;
        std::u16string m_namespaceUri;
        std::u16string m_name;
        std::unique_ptr<CXmlWriterContext> m_parent;
        bool m_hasAttributes = false;
        /// Whether the prefix holds in the namespace state as it is now.
        bool IsPrefixKnown() const;
        /// Remembers the prefix in the name of the element, or null for none. Restart with the same namespace
        /// keeps it.
        void SetPrefix(const std::u16string* prefix);
        /// The namespace state in which the prefix was found, which no other state shares its number with.
        std::uint64_t StateOfPrefix() const { return m_stateOfPrefix; }
        /// The prefix that was remembered, or null.
        const std::u16string* Prefix() const { return m_prefix; }

    private:
        void OwnNamespaces();

        std::u16string m_defaultNamespace;
        NamespaceMap* m_namespaces = nullptr;
        bool m_inherits = false;
        bool m_ownsMap = false;
        const std::u16string* m_prefix = nullptr;
        std::uint64_t m_stateOfPrefix = 0; ///< the namespace state in which `m_prefix` was found
    };

    /// Writes a leaf at one go, or by its parts if it is not made for this one.
    using LeafOperation = void (CXmlWriter::*)(const LeafName& name, const std::u16string& text,
                                               ItemType type);

    /// For a writer whose leaves WriteLeaf can write at one go. It does not in a class derived from
    /// `writerClass`, which may override what it stands for.
    CXmlWriter(const std::type_info& writerClass, LeafOperation writeLeaf);

    /// A prefix, and whether it was made just now and so has no declaration yet.
    struct BoundPrefix {
        const std::u16string& prefix;
        bool isNew;
    };

    /// The prefix of a namespace in a context; generates and adds one if there is none.
    static BoundPrefix BindPrefix(CXmlWriterContext& context, const std::u16string& uri);
    /// The prefix in the name of an element that starts, or null if it has none.
    struct NamePrefix {
        const std::u16string* prefix;
        bool isNew; ///< made just now, and so without a declaration yet
    };

    /// Finds the prefix for the name of an element that starts; generates and adds one if it needs one.
    static NamePrefix BindName(CXmlWriterContext& context);
    /// The first of AA, AB, ... AZ, BA, ... that is no prefix in the map. Throws as MakeAlias does.
    static std::u16string GenerateAlias(const NamespaceMap& namespaces);
    /// The n-th generated prefix, from 0. Deliberate: from 676 on the first character leaves the alphabet.
    /// Throws CKzException where it would reach the surrogates.
    static std::u16string MakeAlias(std::uint32_t n);

    /// A context for an element that starts inside the current one. EnterContext makes it current.
    std::unique_ptr<CXmlWriterContext> CreateContext(const std::u16string& name,
                                                     const std::u16string& namespaceUri) {
        if (!m_context || !m_spareContexts)
            return MakeContext(name, namespaceUri);
        std::unique_ptr<CXmlWriterContext> context;
        context.swap(m_spareContexts);
        context->m_parent.swap(m_spareContexts);
        context->Restart(name, namespaceUri, *m_context);
        return context;
    }
    void EnterContext(std::unique_ptr<CXmlWriterContext> context) {
        context->m_parent.swap(m_context);
        m_context.swap(context);
    }
    /// Lets the current context go and makes its parent current.
    void LeaveContext() {
        CXmlWriterContext& left = *m_context;
        m_context.swap(left.m_parent); // which belongs to itself for a moment
        left.m_parent.swap(m_spareContexts);
        if (!left.InheritsNamespaces())
            DropSpareContext();
    }

    /// The innermost open element. Throws CKzInvalidStateException if there is none.
    CXmlWriterContext& OpenElement() const;
    /// Throws unless the start tag of the innermost open element can still take attributes.
    void RequireOpenStartTag() const;

    std::u16string m_defaultNamespace;
    std::unique_ptr<CXmlWriterContext> m_context;
    std::map<std::u16string, std::u16string> m_namespaces;

    /// What WriteLeaf stands for.
    void WriteLeafByParts(const LeafName& name, const std::u16string& text, ItemType type);

private:
    std::unique_ptr<CXmlWriterContext> MakeContext(const std::u16string& name,
                                                   const std::u16string& namespaceUri);
    void DropSpareContext();

    std::u16string m_keptNamespace;
    const std::type_info* m_leafClass = nullptr;
    LeafOperation m_writeLeaf = nullptr;
    /// Contexts that are done with, chained by their parents: there are few levels and many elements.
    std::unique_ptr<CXmlWriterContext> m_spareContexts;
};

} // namespace KzXmlLib10
