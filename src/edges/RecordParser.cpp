#include "edges/RecordParser.h"

#include "object/CurrentLimit.h"
#include "object/Throw.h"
#include "xml/Messages.h"

#include <KzXmlLib10/xml/CXmlElement.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

namespace {

/// The parser at work on this thread. The callback of a document is a plain function, called only while the
/// parser parses a block; what it shows may read other documents meanwhile.
thread_local RecordParser* parserAtWork = nullptr;

class AtWork {
public:
    explicit AtWork(RecordParser* parser) : m_before(std::exchange(parserAtWork, parser)) {}
    AtWork(const AtWork&) = delete;
    AtWork& operator=(const AtWork&) = delete;
    ~AtWork() { parserAtWork = m_before; }

private:
    RecordParser* m_before;
};

} // namespace

RecordParser::RecordParser(const RecordSource& source, const CXmlSerializationContext& context,
                           ShowChild showChild)
    : m_context(context), m_showChild(std::move(showChild)), m_source(OpenByteSource(source)),
      m_document(OnElementEnd, context), m_reader(&m_document) {
    m_document.SetBuffer(CXmlDocument::NewBuffer(BlockSize), 0);
}

bool RecordParser::Step() {
    if (m_isFastInfoset)
        return ShowNext();
    if (m_isLast)
        return false;
    ReadBlock();
    if (!std::exchange(m_hasStarted, true)) {
        if (CFastInfosetReader(&m_context.GetFIContext(), &m_document, m_handedIn).IsFastInfoset()) {
            LoadFastInfoset();
            return true;
        }
        m_reader.Initialize();
    }
    ParseBlock();
    return true;
}

void RecordParser::ReadBlock() {
    const std::uint64_t before = m_hasStarted ? m_source->GetPosition() : 0;
    m_document.m_inputSize =
        static_cast<std::uint32_t>(m_source->Read({m_document.m_buffer.get(), BlockSize}));
    m_handedIn = m_source->GetPosition() - before;
    m_isLast = m_document.m_inputSize < BlockSize;
}

void RecordParser::ParseBlock() {
    m_sinceChild += m_document.m_inputSize;
    {
        const AtWork atWork(this);
        m_reader.ParseChunk(m_isLast, m_handedIn);
    }
    CheckInflatedSize(m_sinceChild);
    if (!m_document.m_elementStack.empty())
        m_document.m_elementStack.front()->ClearText();
}

bool RecordParser::OnElementEnd(CXmlElement* element) { return parserAtWork->TakeChild(*element); }

bool RecordParser::TakeChild(const CXmlElement& element) {
    if (m_document.m_elementStack.size() != 1)
        return false; // the root, or what is inside a child
    m_showChild(element);
    m_document.m_elementStack.front()->ClearText();
    m_reader.RenewBudget(m_handedIn, m_document.m_inputSize); // what was charged goes with the child
    m_sinceChild = 0;
    return true;
}

/// A few bytes of a compressed stream may stand for any number, which the parser may have to hold.
void RecordParser::CheckInflatedSize(std::uint64_t size) const {
    if (const std::uint64_t limit = CurrentLimit(&Limits::inflatedBytes);
        m_source->IsCompressed() && size > limit)
        Throw<CKzException>(messages::InflatedTooLong, limit);
}

void RecordParser::LoadFastInfoset() {
    std::vector<unsigned char> bytes;
    for (;;) {
        const unsigned char* block = m_document.m_buffer.get();
        bytes.insert(bytes.end(), block, block + m_document.m_inputSize);
        CheckInflatedSize(bytes.size());
        if (const std::uint64_t limit = CurrentLimit(&Limits::inputBytes); bytes.size() > limit)
            Throw<CKzException>(messages::InputTooLarge, std::uint64_t{bytes.size()}, limit);
        if (m_isLast)
            break;
        ReadBlock();
    }
    std::ranges::copy(bytes, m_document.SetBuffer(CXmlDocument::NewBuffer(bytes.size()), bytes.size()));
    CFastInfosetReader reader(&m_context.GetFIContext(), &m_document, m_source->GetPosition());
    m_isFastInfoset = reader.IsFastInfoset();
    reader.ReadHeader();
    reader.ParseDocument();
    if (const CXmlElement* root = m_document.GetDocumentElement())
        m_nextChild = root->GetFirstElement();
}

bool RecordParser::ShowNext() {
    if (!m_nextChild)
        return false;
    m_showChild(*std::exchange(m_nextChild, m_nextChild->GetNextSiblingElement()));
    return true;
}

} // namespace KzXmlLib10
