#pragma once

#include "object/AddressSanitizer.h"
#include "object/TextScan.h"
#include "object/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

namespace KzXmlLib10 {

/// A run of the text of an element: what stands in front of the code units, which a zero follows. An element
/// refers to its last piece, which refers to the first, so that both are at hand; a text that has no child in
/// its midst mostly is one piece.
///
/// The texts between children mostly are alike, since they are indentation. Such a row is one piece, with the
/// number of times.
struct TextPiece {
    static constexpr std::uint32_t mostUnits = (1u << 20) - 1, mostTimes = (1u << 12) - 1;

    TextPiece* next;
    std::uint32_t size : 20; ///< in code units
    std::uint32_t times : 12;

    static constexpr std::size_t headerSize = sizeof next + sizeof(std::uint32_t);

    char16_t* Units() { return reinterpret_cast<char16_t*>(reinterpret_cast<std::byte*>(this) + headerSize); }
    char16_t* End() { return Units() + size; }
    std::u16string_view View() { return {Units(), size}; }
    /// Whether it is all of its text.
    bool IsAlone() const { return next == this && times == 1; }
};

/// The texts of a tree: pieces behind each other in chunks of memory. A text is written behind the newest
/// piece and becomes a piece of its own there, or part of the last piece of its element, so nothing is copied
/// as a rule.
///
/// Under the address sanitizer each piece is a block of the heap, so that it sees a text used after its end.
class TextArena {
public:
    TextArena() = default;
    TextArena(const TextArena&) = delete;
    TextArena& operator=(const TextArena&) = delete;

    /// Whether there is room to write so many code units and the zero behind them.
    bool HasRoom(std::size_t units) const { return m_limit - m_to > static_cast<std::ptrdiff_t>(units); }
    /// Makes that room, where nothing is written that was not committed.
    void MakeRoom(std::size_t units) {
        if (!HasRoom(units))
            AddChunk(units);
    }
    /// Writes UTF-8 without a fault, where there is room for a code unit for each byte.
    void WriteUtf8(std::string_view text) {
        m_to += WriteAscii(m_to, text) ? text.size() : WriteUtf16(m_to, text).units;
    }
    /// Writes a text if it is ASCII, where there is room for it.
    bool TryWriteAscii(std::string_view text) {
        const bool isAscii = WriteAscii(m_to, text);
        m_to += isAscii ? text.size() : 0;
        return isAscii;
    }
    void WriteUnit(char16_t unit) { *m_to++ = unit; }
    bool HasText() const { return m_to != m_next; }
    /// Appends what has been written to the text of which `last` is the last piece, null if it is empty.
    /// Returns the number of its code units, which is not 0.
    std::size_t Commit(TextPiece*& last) {
        const auto size = static_cast<std::size_t>(m_to - m_next);
        if (last && IsOneMore(*last, size)) {
            ++last->times;
            m_to = m_next;
        } else if (last && last == m_newest && last->times == 1) {
            GrowNewest(size);
        } else {
            AddPiece(last, size);
        }
        return size;
    }
    /// Appends to a text, where nothing is written that was not committed.
    void Append(TextPiece*& last, std::u16string_view text);

    /// Empties a text. Its memory serves again once its last piece is the newest.
    static void Clear(TextPiece* last);

    /// What has been appended so far.
    struct Mark {
        TextPiece* newest;
        char16_t* next;
        std::size_t chunks;
    };
    Mark GetMark() const { return {m_newest, m_next, m_chunks.size()}; }
    /// Gives the memory of all pieces behind a mark back, no text of which is in use any more.
    void Rewind(const Mark& mark);

private:
    struct Chunk {
        std::unique_ptr<std::byte[]> bytes;
        char16_t* limit;
    };

    /// Where the code units of a piece go that follows a text with this end.
    static char16_t* Behind(char16_t* end) {
        constexpr std::uintptr_t unit = alignof(TextPiece);
        const auto free = reinterpret_cast<std::uintptr_t>(end + 1);
        return reinterpret_cast<char16_t*>((free + unit - 1) / unit * unit + TextPiece::headerSize);
    }
    /// Whether what is written is like the last piece.
    bool IsOneMore(TextPiece& last, std::size_t size) const {
        return last.size == size && last.times < TextPiece::mostTimes &&
               SameText(last.View(), {m_next, size});
    }
    void AddPiece(TextPiece*& last, std::size_t size) {
        std::byte* const room = reinterpret_cast<std::byte*>(m_next) - TextPiece::headerSize;
        auto* piece = ::new (std::assume_aligned<alignof(TextPiece)>(room)) TextPiece;
        piece->size = static_cast<std::uint32_t>(size) & TextPiece::mostUnits;
        piece->times = 1;
        piece->next = last ? std::exchange(last->next, piece) : piece;
        *m_to = u'\0';
        m_newest = last = piece;
        m_next = m_to = Behind(m_to);
    }
    void GrowNewest(std::size_t size);
    void AddChunk(std::size_t units);

    std::vector<Chunk> m_chunks;
    TextPiece* m_newest = nullptr; ///< in the last chunk; null if that has none
    char16_t* m_next = nullptr;    ///< where the code units of the next piece go, if there is room
    char16_t* m_to = nullptr;      ///< the end of what is written there
    char16_t* m_limit = nullptr;   ///< the end of that chunk
};

} // namespace KzXmlLib10
