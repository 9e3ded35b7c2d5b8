#pragma once

#include <KzXmlLib10/object/CInstanceMonitor.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// Accumulates 16-bit text in chunks, so that a long document is never copied while it grows.
///
///     CStringBuffer buffer;
///     buffer.Append(u"<a>");
///     buffer.AppendChar(u'x');
///     std::u16string text(buffer.GetString(), buffer.GetLength());
///
/// Used by one thread at a time. Holds at most 2^32 - 1 characters: what would go beyond throws CKzException
/// and is not taken.
class QUILLON_EXPORT CStringBuffer : public CInstanceMonitor {
public:
    /// `chunkSize` is the capacity of a chunk in characters; 0 throws CKzInvalidParamException.
    explicit CStringBuffer(std::uint32_t chunkSize = 4095);
    CStringBuffer(const CStringBuffer&) = delete;
    CStringBuffer& operator=(const CStringBuffer&) = delete;
    ~CStringBuffer() override;

    /// Appends a text up to its terminating zero. Null throws CKzInvalidParamException.
    void Append(const char16_t* text);

    /// Appends the whole of a text whose length is known. A zero in it would end the text for readers of
    /// GetString.
    void Append(std::u16string_view text) {
        RequireRoom(text.size());
        if (text.size() > m_capacity - m_used)
            AppendAcrossChunks(text);
        else
            AppendToChunk(text);
    }

    /// Appends one character.
    void AppendChar(char16_t c) {
        RequireRoom(1);
        if (m_used == m_capacity)
            AddChunk();
        m_current[m_used++] = c;
        ++m_length;
    }

    /// Room for `count` characters in one piece behind the text, to be written in place. What was written
    /// becomes part of the text by Commit, which has to be the next operation.
    char16_t* Reserve(std::size_t count) {
        RequireRoom(count);
        if (count > m_capacity - m_used)
            AddChunk(count);
        return m_current + m_used;
    }

    /// Takes over what was written into the room that Reserve has given, up to `end`.
    void Commit(const char16_t* end) {
        const auto used = static_cast<std::uint32_t>(end - m_current);
        m_length += used - m_used;
        m_used = used;
    }

    /// Starts a new chunk, whether the current one is full or not.
    void AddChunk();

    /// The whole text, terminated by a zero. Joins the chunks into one if there are several. Valid until the
    /// buffer changes.
    const char16_t* GetString();

    /// The number of pieces that the text is held in, and each of them. Valid until the buffer changes.
    std::size_t GetChunkCount() const { return m_chunks.size(); }
    std::u16string_view GetChunk(std::size_t index) const {
        return {m_chunks[index].get(), index + 1 == m_chunks.size() ? m_used : m_chunkLengths[index]};
    }

    /// The number of characters held.
    std::uint32_t GetLength() const { return m_length; }

    /// Frees all chunks.
    void Clear();

    /// Empties the buffer, but keeps the chunk for reuse if there is exactly one.
    void Reuse();

private:
    void RequireRoom(std::size_t count) const {
        if (count > std::numeric_limits<std::uint32_t>::max() - m_length)
            FailTooLong();
    }
    void AppendToChunk(std::u16string_view text) {
        std::char_traits<char16_t>::copy(m_current + m_used, text.data(), text.size());
        m_used += static_cast<std::uint32_t>(text.size());
        m_length += static_cast<std::uint32_t>(text.size());
    }
    void AppendAcrossChunks(std::u16string_view text);
    void AddChunk(std::size_t leastCapacity);
    [[noreturn]] static void FailTooLong();

    std::vector<std::unique_ptr<char16_t[]>> m_chunks;
    std::vector<std::uint32_t> m_chunkLengths;
    std::uint32_t m_chunkSize;
    std::uint32_t m_used = 0;
    std::uint32_t m_capacity = 0;
    char16_t* m_current = nullptr;
    std::uint32_t m_length = 0;
};

} // namespace KzXmlLib10
