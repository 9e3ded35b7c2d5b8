#include "xml/TextArena.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace KzXmlLib10 {

namespace {

constexpr std::size_t headerSize = sizeof(TextPiece::next) + sizeof(TextPiece::size);

/// The bytes of a piece, in which the next one can follow.
constexpr std::size_t SizeOf(std::size_t units) {
    const std::size_t size = headerSize + (units + 1) * sizeof(char16_t);
    return std::max((size + alignof(TextPiece) - 1) / alignof(TextPiece) * alignof(TextPiece),
                    sizeof(TextPiece));
}

std::byte* AsBytes(void* pointer) { return static_cast<std::byte*>(pointer); }

} // namespace

void TextArena::Append(TextPiece*& last, std::u16string_view text) {
    constexpr std::size_t most = 1u << 30; // the size of a piece has 32 bits
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), most))) {
        const std::u16string_view run = text.substr(0, most);
        std::memcpy(Room(last, run.size()), run.data(), run.size() * sizeof(char16_t));
        Grow(*last, run.size());
    }
}

void TextArena::AddPiece(TextPiece*& last, std::size_t units) {
    const std::size_t size = SizeOf(units);
    std::byte* at = m_newest ? AsBytes(m_newest) + SizeOf(m_newest->size) : nullptr;
    if (!at || AsBytes(m_limit) - at < static_cast<std::ptrdiff_t>(size))
        at = AddChunk(size);
    TextPiece* piece = m_newest = ::new (at) TextPiece{nullptr, 0};
    piece->next = last ? std::exchange(last->next, piece) : piece;
    last = piece;
}

std::byte* TextArena::AddChunk(std::size_t size) {
    constexpr std::size_t first = 1024, most = 64 * 1024;
    if constexpr (!hasAddressSanitizer)
        size = std::max(size, std::min(first << std::min<std::size_t>(m_chunks.size(), 8), most));
    auto bytes = std::make_unique_for_overwrite<std::byte[]>(size);
    std::byte* start = bytes.get();
    m_limit = reinterpret_cast<char16_t*>(start + size);
    m_chunks.push_back({std::move(bytes), m_limit});
    return start;
}

void TextArena::Rewind(const Mark& mark) {
    m_chunks.resize(mark.chunks);
    m_newest = mark.newest;
    m_limit = m_chunks.empty() ? nullptr : m_chunks.back().limit;
}

} // namespace KzXmlLib10
