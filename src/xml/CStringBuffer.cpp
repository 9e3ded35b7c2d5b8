#include <KzXmlLib10/xml/CStringBuffer.h>

#include "object/NotNull.h"
#include "object/Throw.h"
#include "xml/Messages.h"

#include <algorithm>

namespace KzXmlLib10 {

using Traits = std::char_traits<char16_t>;

CStringBuffer::CStringBuffer(std::uint32_t chunkSize)
    : CInstanceMonitor(u"CStringBuffer"), m_chunkSize(chunkSize) {
    if (chunkSize == 0)
        Throw<CKzInvalidParamException>(messages::ZeroChunkSize);
}

CStringBuffer::~CStringBuffer() = default;

void CStringBuffer::Append(const char16_t* text) { Append(std::u16string_view(NotNull(text, u"text"))); }

void CStringBuffer::AppendAcrossChunks(std::u16string_view text) {
    while (!text.empty()) {
        if (m_used == m_capacity)
            AddChunk();
        const std::size_t count = std::min<std::size_t>(text.size(), m_capacity - m_used);
        Traits::copy(m_current + m_used, text.data(), count);
        m_used += static_cast<std::uint32_t>(count);
        text.remove_prefix(count);
    }
}

void CStringBuffer::AddChunk() {
    if (!m_chunkLengths.empty())
        m_chunkLengths.back() = m_used; // the same as its capacity unless the chunk is closed early
    m_chunkLengths.push_back(m_chunkSize);
    try {
        m_chunks.push_back(std::make_unique<char16_t[]>(std::size_t{m_chunkSize} + 1));
    } catch (...) {
        m_chunkLengths.pop_back();
        throw;
    }
    m_current = m_chunks.back().get();
    m_used = 0;
    m_capacity = m_chunkSize;
}

const char16_t* CStringBuffer::GetString() {
    if (m_chunks.empty())
        return u"";
    if (m_chunks.size() == 1)
        return m_current;
    auto joined = std::make_unique_for_overwrite<char16_t[]>(std::size_t{m_length} + 1);
    char16_t* to = joined.get();
    m_chunkLengths.back() = m_used;
    for (std::size_t i = 0; i < m_chunks.size(); ++i) {
        Traits::copy(to, m_chunks[i].get(), m_chunkLengths[i]);
        to += m_chunkLengths[i];
    }
    std::fill(to, joined.get() + m_length + 1, u'\0'); // the terminator, and what a failed Append left out
    m_chunks.resize(1);
    m_chunkLengths.assign(1, m_length);
    m_chunks.front() = std::move(joined);
    m_current = m_chunks.front().get();
    m_used = m_capacity = m_length;
    return m_current;
}

void CStringBuffer::Clear() {
    m_chunks.clear();
    m_chunkLengths.clear();
    m_used = 0;
    m_capacity = 0;
    m_current = nullptr;
    m_length = 0;
}

void CStringBuffer::Reuse() {
    if (m_chunks.size() != 1) {
        Clear();
        return;
    }
    std::fill_n(m_current, m_used, u'\0'); // what lies behind is zero already
    m_used = 0;
    m_length = 0;
}

void CStringBuffer::FailTooLong() { Throw<CKzException>(messages::OutputTooLarge); }

} // namespace KzXmlLib10
