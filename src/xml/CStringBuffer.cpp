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
        AppendToChunk(text.substr(0, count));
        text.remove_prefix(count);
    }
}

void CStringBuffer::AddChunk() { AddChunk(0); }

void CStringBuffer::AddChunk(std::size_t leastCapacity) {
    const std::uint32_t capacity = std::max(m_chunkSize, static_cast<std::uint32_t>(leastCapacity));
    if (!m_chunkLengths.empty())
        m_chunkLengths.back() = m_used; // the same as its capacity unless the chunk is closed early
    m_chunkLengths.push_back(capacity);
    try {
        // GetString sets the terminator, so nothing needs to be zero before.
        m_chunks.push_back(std::make_unique_for_overwrite<char16_t[]>(std::size_t{capacity} + 1));
    } catch (...) {
        m_chunkLengths.pop_back();
        throw;
    }
    m_current = m_chunks.back().get();
    m_used = 0;
    m_capacity = capacity;
}

const char16_t* CStringBuffer::GetString() {
    if (m_chunks.empty())
        return u"";
    if (m_chunks.size() == 1) {
        m_current[m_used] = u'\0';
        return m_current;
    }
    auto joined = std::make_unique_for_overwrite<char16_t[]>(std::size_t{m_length} + 1);
    char16_t* to = joined.get();
    m_chunkLengths.back() = m_used;
    for (std::size_t i = 0; i < m_chunks.size(); ++i) {
        Traits::copy(to, m_chunks[i].get(), m_chunkLengths[i]);
        to += m_chunkLengths[i];
    }
    *to = u'\0';
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
    m_used = 0;
    m_length = 0;
}

void CStringBuffer::FailTooLong() { Throw<CKzException>(messages::OutputTooLarge); }

} // namespace KzXmlLib10
