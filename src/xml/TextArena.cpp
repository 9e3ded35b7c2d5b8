#include "xml/TextArena.h"

#include <algorithm>
#include <cstring>

namespace KzXmlLib10 {

void TextArena::Append(TextPiece*& last, std::u16string_view text) {
    constexpr std::size_t most = TextPiece::mostUnits / 2;
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), most))) {
        const std::size_t size = std::min(text.size(), most);
        MakeRoom(size);
        m_to = std::copy_n(text.data(), size, m_to);
        Commit(last);
    }
}

/// Moves what is written to the end of the newest piece.
void TextArena::GrowNewest(std::size_t size) {
    char16_t* const end = m_newest->End();
    std::memmove(end, m_next, size * sizeof(char16_t));
    end[size] = u'\0';
    m_newest->size = (m_newest->size + static_cast<std::uint32_t>(size)) & TextPiece::mostUnits;
    m_next = m_to = Behind(end + size);
}

void TextArena::Clear(TextPiece* last) {
    if (!last)
        return;
    last->next = last;
    last->size = 0;
    last->times = 1;
    *last->End() = u'\0';
}

void TextArena::AddChunk(std::size_t units) {
    constexpr std::size_t first = 4 * 1024, most = 64 * 1024;
    std::size_t size = std::max(sizeof(TextPiece), TextPiece::headerSize + (units + 1) * sizeof(char16_t));
    if constexpr (!hasAddressSanitizer)
        size = std::max(size, std::min(first << std::min<std::size_t>(m_chunks.size(), 4), most));
    auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
    std::byte* const start = bytes.get();
    char16_t* const limit = reinterpret_cast<char16_t*>(start + size);
    m_chunks.push_back({std::move(bytes), limit});
    m_newest = nullptr;
    m_next = m_to = reinterpret_cast<char16_t*>(start + TextPiece::headerSize);
    m_limit = limit;
}

void TextArena::Rewind(const Mark& mark) {
    m_chunks.resize(mark.chunks);
    m_newest = mark.newest;
    m_next = m_to = m_newest ? Behind(m_newest->End()) : mark.next; // the newest may have been emptied
    m_limit = m_chunks.empty() ? nullptr : m_chunks.back().limit;
}

} // namespace KzXmlLib10
