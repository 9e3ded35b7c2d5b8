#include <KzXmlLib10/edges/Records.h>

#include "edges/Messages.h"
#include "edges/RecordParser.h"
#include "object/Throw.h"

#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <deque>
#include <exception>
#include <optional>
#include <utility>

namespace KzXmlLib10 {

/// The records of the last block wait in a queue, each as an object or as its failure.
class RecordReader::State {
public:
    State(RecordSource source, const CXmlSerializationContext& context, RecordOptions options, Create create)
        : m_source(std::move(source)), m_context(context), m_options(std::move(options)), m_create(create) {
        FindNames();
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool Next();

    CSmartPtr<CXmlGeneratedClass> m_record;
    std::uint64_t m_number = 0;

private:
    struct Entry {
        std::uint64_t number;
        CSmartPtr<CXmlGeneratedClass> record;
        std::exception_ptr failure;
    };

    void FindNames();
    bool Fill();
    void Finish();
    void Take(const CXmlElement& element);
    CSmartPtr<CXmlGeneratedClass> ReadRecord(const CXmlElement& element) const;
    bool IsRecord(const CXmlElement& element) const;
    void ReportFailure(std::exception_ptr failure);

    RecordSource m_source;
    const CXmlSerializationContext m_context;
    RecordOptions m_options;
    Create m_create;
    std::u16string m_namespace;
    std::unique_ptr<RecordParser> m_parser;
    bool m_isFinished = false;
    /// What has ended the reading, until it is thrown.
    std::exception_ptr m_end;
    std::uint64_t m_taken = 0;
    std::deque<Entry> m_queue;
};

void RecordReader::State::FindNames() {
    const CSmartPtr<CXmlGeneratedClass> model =
        m_create(m_options.name.empty() ? nullptr : m_options.name.c_str());
    if (!model)
        Throw<CKzInvalidParamException>(messages::RecordNameNeeded);
    const KzXmlLib10Data::CParentElementInfo* info = model->GetClassInfo();
    if (m_options.name.empty())
        m_options.name = info->GetElementName();
    m_namespace = m_options.namespaceUri.value_or(info->GetElementNamespace());
}

bool RecordReader::State::Next() {
    m_record = nullptr;
    for (;;) {
        while (m_queue.empty())
            if (!Fill())
                return false;
        Entry entry = std::move(m_queue.front());
        m_queue.pop_front();
        m_number = entry.number;
        m_record = std::move(entry.record);
        if (m_record)
            return true;
        ReportFailure(std::move(entry.failure));
    }
}

/// Parses on; false once there is nothing more. Throws what has ended the reading, when all before it has
/// been handed out.
bool RecordReader::State::Fill() {
    if (m_end)
        std::rethrow_exception(std::exchange(m_end, nullptr));
    if (m_isFinished)
        return false;
    try {
        if (!m_parser)
            m_parser = std::make_unique<RecordParser>(m_source, m_context,
                                                      [this](const CXmlElement& child) { Take(child); });
        if (!m_parser->Step())
            Finish();
    } catch (...) {
        m_end = std::current_exception();
        Finish();
    }
    return true;
}

void RecordReader::State::Finish() {
    m_isFinished = true;
    m_parser.reset();
}

void RecordReader::State::Take(const CXmlElement& element) {
    if (!IsRecord(element))
        return;
    Entry entry{++m_taken, nullptr, nullptr};
    try {
        entry.record = ReadRecord(element);
    } catch (const CKzException&) {
        entry.failure = std::current_exception();
    }
    m_queue.push_back(std::move(entry));
}

CSmartPtr<CXmlGeneratedClass> RecordReader::State::ReadRecord(const CXmlElement& element) const {
    try {
        CSmartPtr<CXmlGeneratedClass> record = m_create(m_options.name.c_str());
        record->FromXmlElement(&element, m_context);
        return record;
    } catch (CKzException& failure) {
        ThrowAround<CKzValidationException>(failure, messages::RecordFailed, m_taken);
    }
}

bool RecordReader::State::IsRecord(const CXmlElement& element) const {
    return element.GetLocalName() == m_options.name &&
           (m_context.GetIgnoreNamespaces() || element.GetNamespaceURI() == m_namespace);
}

void RecordReader::State::ReportFailure(std::exception_ptr failure) {
    try {
        std::rethrow_exception(std::move(failure));
    } catch (const CKzException& caught) {
        if (!m_options.onFault)
            throw;
        m_options.onFault(m_number, caught);
    }
}

RecordReader::RecordReader(RecordSource source, const CXmlSerializationContext& context,
                           RecordOptions options, Create create)
    : m_state(std::make_unique<State>(std::move(source), context, std::move(options), create)) {}
RecordReader::RecordReader(RecordReader&& other) noexcept = default;
RecordReader& RecordReader::operator=(RecordReader&& other) noexcept = default;
RecordReader::~RecordReader() = default;

bool RecordReader::Next() { return m_state->Next(); }
CXmlGeneratedClass* RecordReader::Get() const { return m_state->m_record; }
std::uint64_t RecordReader::GetNumber() const { return m_state->m_number; }

} // namespace KzXmlLib10
