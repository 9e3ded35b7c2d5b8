#pragma once

#include "xml/Expat.h"
#include "xml/ParserNames.h"
#include "xml/SurrogateCheck.h"
#include "xml/TextArena.h"
#include "xml/TreeBudget.h"

#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/Fwd.h>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <string_view>

namespace KzXmlLib10 {

/// Feeds the buffer of a CXmlDocument to expat and builds the document's tree from what expat reports.
///
///     CExpatReader reader(&document);
///     reader.Initialize();
///     reader.ParseChunk(true);
///
/// Lives on the stack of the load. Encodings are expat's business. No handler is set for comments, processing
/// instructions, document types and external entities: the first three leave no trace, the last are never
/// opened. Declarations of entities are only looked at for carriage returns.
///
/// No exception crosses expat, which is C: what a handler throws is kept, ends the parse and leaves
/// ParseChunk.
class CExpatReader : public CInstanceMonitor {
public:
    explicit CExpatReader(CXmlDocument* document);
    CExpatReader(const CExpatReader&) = delete;
    CExpatReader& operator=(const CExpatReader&) = delete;
    ~CExpatReader() override;

    /// Creates the parser. A protocol encoding overrules what the document declares; null leaves it to expat.
    void Initialize(const char* protocolEncoding = nullptr);

    /// Parses the document's buffer; `isFinal` says that nothing follows. `handedIn` is the size that it had
    /// before decompression.
    void ParseChunk(bool isFinal, std::uint64_t handedIn);

    /// Lets the document put into its tree as much as if it began with the chunk of these sizes, for a
    /// callback that has dropped what came before.
    void RenewBudget(std::uint64_t handedIn, std::uint64_t parsed);

private:
    static void XMLCALL StartRootHandler(void* reader, const XML_Char* name, const XML_Char** attributes);
    static void XMLCALL StartElementHandler(void* reader, const XML_Char* name, const XML_Char** attributes);
    static void XMLCALL EndElementHandler(void* reader, const XML_Char* name);
    static void XMLCALL StartNamespaceDeclHandler(void* reader, const XML_Char* prefix, const XML_Char* uri);
    static void XMLCALL EndNamespaceDeclHandler(void* reader, const XML_Char* prefix);
    static void XMLCALL CharacterDataHandler(void* reader, const XML_Char* text, int length);
    static void TakeOtherData(void* reader, const XML_Char* text, int length);
    static void XMLCALL MixedDataHandler(void* reader, const XML_Char* text, int length);
    static void XMLCALL EntityDeclHandler(void* reader, const XML_Char* name, int isParameter,
                                          const XML_Char* text, int length, const XML_Char* base,
                                          const XML_Char* systemId, const XML_Char* publicId,
                                          const XML_Char* notation);
    static void XMLCALL StartCdataHandler(void* reader);
    static void XMLCALL EndCdataHandler(void* reader);

    /// Runs a handler's work at expat's border.
    template <class Action>
    static void Handle(void* reader, Action action) noexcept;

    void StartRoot(const XML_Char* name, const XML_Char** attributes);
    void StartElement(const XML_Char* name, const XML_Char** attributes);
    void AddAttributes(CXmlElement& element, const XML_Char** attributes);
    void AppendText(std::string_view text);
    void AppendTextWithoutRoom(std::string_view text);
    std::size_t CommitText();
    void ChargeText();
    [[noreturn]] void Fail();

    CXmlDocument* m_document;
    expat::Parser m_parser;
    SurrogateCheck m_surrogates;
    std::exception_ptr m_failure;
    ParserNames m_names;
    TreeBudget m_budget;
    TextArena* m_texts = nullptr; ///< of the tree, from its root on
};

} // namespace KzXmlLib10
