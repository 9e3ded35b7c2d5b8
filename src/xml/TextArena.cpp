#include "xml/TextArena.h"

#include <algorithm>
#include <cstring>

namespace KzXmlLib10 {

void TextArena::Append(TextPiece*& last, std::u16string_view text) {
    constexpr std::size_t most = TextPiece::mostUnits / 2;
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), most))) {
        const std::size_t size = std::min(text.size(), most);
        TextRun run = Open(last, size);
        std::memcpy(run.to, text.data(), size * sizeof(char16_t));
        run.to += size;
        Close(run);
    }
}

void TextArena::Clear(TextPiece* last) {
    if (!last)
        return;
    last->next = last;
    last->size = 0;
    last->times = 1;
    *last->End() = u'\0';
}

void TextArena::AddChunk(TextRun& run, std::size_t units) {
    constexpr std::size_t first = 1024, most = 64 * 1024;
    std::size_t size = std::max(sizeof(TextPiece), TextPiece::headerSize + (units + 1) * sizeof(char16_t));
    if constexpr (!hasAddressSanitizer)
        size = std::max(size, std::min(first << std::min<std::size_t>(m_chunks.size(), 8), most));
    auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
    std::byte* const start = bytes.get();
    char16_t* const limit = reinterpret_cast<char16_t*>(start + size);
    m_chunks.push_back({std::move(bytes), limit});
    run.to = reinterpret_cast<char16_t*>(start + TextPiece::headerSize);
    run.limit = m_limit = limit;
}

void TextArena::Rewind(const Mark& mark) {
    m_chunks.resize(mark.chunks);
    m_newest = mark.newest;
    m_next = m_newest ? Behind(m_newest->End()) : mark.next; // the newest may have been emptied
    m_limit = m_chunks.empty() ? nullptr : m_chunks.back().limit;
}

} // namespace KzXmlLib10
