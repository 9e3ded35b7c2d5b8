#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

class AsyncFile;
struct OpenElement;
struct TreeMemory;

/// A small read-only tree of elements: the form in which every input reaches the objects.
///
///     CXmlDocument document;
///     document.LoadXml(u"<order xmlns='urn:o'><id>7</id></order>");
///     document.GetDocumentElement()->GetFirstElement()->GetText(); // u"7"
///
/// A callback, given at construction, is called for each element as it ends; where it returns true the
/// element is dropped, so that documents of any size can be read a record at a time. What it throws ends the
/// load and reaches the caller.
///
/// A document owns its tree and may be loaded repeatedly; each load lets the tree before it go. It keeps a
/// pointer to the context, which the caller keeps alive. It belongs to one thread.
///
/// All failures of loading are CKzException: malformed XML in the words of the parser, with the line, such as
/// "mismatched tag at line 3"; files with their name and the error number of the system. A null argument
/// throws CKzInvalidParamException. After a failure the tree may be there in part. Inputs and trees have
/// limits, see Limits.
class QUILLON_EXPORT CXmlDocument : public CInstanceMonitor {
public:
    /// Uses the default context of the process.
    CXmlDocument();
    explicit CXmlDocument(const CXmlSerializationContext& context);
    /// Deliberate: an answer of true for the root is passed over; there is no parent to remove it from.
    explicit CXmlDocument(bool (*elementCallback)(CXmlElement*));
    CXmlDocument(bool (*elementCallback)(CXmlElement*), const CXmlSerializationContext& context);
    CXmlDocument(const CXmlDocument&) = delete;
    CXmlDocument& operator=(const CXmlDocument&) = delete;
    ~CXmlDocument() override;

    /// Lets the tree, the input and the declarations of namespaces go.
    virtual void Cleanup();

    /// Reads zero-terminated text in the encoding that it declares, UTF-8 if it declares none.
    /// Empty text fails with "XML String is empty!".
    void LoadXml(const char* text);
    /// Reads zero-terminated UTF-16 text, whatever encoding it declares.
    ///
    /// Deliberate: empty text fails in the parser, with "no element found at line 1".
    void LoadXml(const char16_t* text);

    /// Reads a file: whole, or block by block as AsyncFromXmlFile has set it.
    ///
    /// A whole file may be in any form that LoadXmlStream takes.
    void Load(const char16_t* fileName);
    /// Reads `size` bytes, which may go afterwards: text, in the encoding that its mark or its declaration
    /// tells, or a Fast Infoset document (ITU-T X.891), or a gzip or zlib stream of either, which is found
    /// out by trying. No bytes fail with "XML Stream is empty!".
    ///
    /// For Fast Infoset the callback is not called, SchemaType_NoNamespaces leaves its namespaces, and its
    /// strings may hold what XML forbids.
    void LoadXmlStream(const unsigned char* data, unsigned long size);

    /// The root, or null: before a load, and where a Fast Infoset document has none.
    CXmlElement* GetDocumentElement() const { return m_documentElement.get(); }

    /// The namespace that the document declared last for a prefix, or an empty string. The empty prefix
    /// stands for the default namespace.
    ///
    /// Deliberate: declarations have no scope here; the last one of a prefix in the document holds for all.
    std::u16string LookupNamespaceFromAlias(const char16_t* alias) const;
    /// What LookupNamespaceFromAlias knows: from prefix to namespace.
    std::map<std::u16string, std::u16string> GetNamespaceAliases() const;

private:
    friend class CExpatReader;
    friend class CFastInfosetReader;
    friend class CXmlElement;
    friend class RecordParser;

    void Init();
    void DropTree();
    void ParseText(std::uint64_t handedIn, const char* protocolEncoding = nullptr);
    void Parse();
    void DecompressBuffer();
    void LoadWhole(const std::u16string& fileName);
    void LoadInBlocks(const std::u16string& fileName);
    void ReadChunkFromFile(unsigned char* block);
    void AsyncParse(bool isLast);
    static void RequireInputSize(std::uint64_t size);
    static std::unique_ptr<unsigned char[]> NewBuffer(std::uint64_t size);
    void ReleaseBuffer();
    unsigned char* SetBuffer(std::unique_ptr<unsigned char[]> buffer, std::uint64_t size);
    void SetInput(const unsigned char* input, std::uint64_t size);

    /// Makes the memory of a new tree, before the name of its root is shared.
    void StartTree();
    CXmlElement* AddDocElement(const SharedName& name);
    CXmlElement* AddChildElement(const SharedName& name);
    void EndElement();
    void OfferElement(CXmlElement* element);
    static void AppendTextExcludingCR(CXmlElement* element, std::u16string_view text);

    /// Where the next block of a file starts. Outlives the load.
    std::uint64_t m_readOffset = 0;
    /// The file, with its read in flight, while it is read in blocks.
    std::unique_ptr<AsyncFile> m_file;
    std::unique_ptr<CXmlElement> m_documentElement;
    std::vector<CXmlElement*> m_elementStack;
    std::map<std::u16string, std::u16string, std::less<>> m_namespaceAliases;
    std::unique_ptr<unsigned char[]> m_buffer;
    /// What is parsed: in the buffer, or the bytes of the caller.
    const unsigned char* m_input = nullptr;
    std::uint32_t m_inputSize = 0;
    SchemaType m_schemaType;
    bool (*m_elementCallback)(CXmlElement*);
    const CXmlSerializationContext* m_context;
    /// What dropping an open element needs. Kept only where the callback can drop.
    std::vector<OpenElement> m_openElements;
    /// There from the first start tag on.
    std::unique_ptr<TreeMemory> m_memory;
};

} // namespace KzXmlLib10
