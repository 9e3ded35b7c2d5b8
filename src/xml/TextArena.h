#pragma once

#include "object/AddressSanitizer.h"
#include "object/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace KzXmlLib10 {

/// A run of the text of an element, followed by a zero. An element refers to its last piece, which refers to
/// the first, so that both are at hand; a text that has no child in its midst mostly is one piece.
struct TextPiece {
    TextPiece* next;
    std::uint32_t size;

    /// The code units follow the size.
    char16_t* Units() {
        return reinterpret_cast<char16_t*>(reinterpret_cast<std::byte*>(&size) + sizeof size);
    }
    char16_t* End() { return Units() + size; }
    std::u16string_view View() { return {Units(), size}; }
};

/// The texts of a tree: pieces behind each other in chunks of memory. The newest piece grows in place, any
/// other is continued by one more, so nothing is ever copied.
///
/// Under the address sanitizer each piece is a block of the heap, so that it sees a text used after its end.
class TextArena {
public:
    TextArena() = default;
    TextArena(const TextArena&) = delete;
    TextArena& operator=(const TextArena&) = delete;

    /// Appends to the text of which `last` is the last piece, null if it is empty.
    void Append(TextPiece*& last, std::u16string_view text);
    /// Appends less than 2^30 bytes of UTF-8 without a fault. Returns the number of its code units.
    std::size_t AppendUtf8(TextPiece*& last, std::string_view text) {
        char16_t* to = Room(last, text.size());
        std::size_t units = text.size();
        if (!WriteAscii(to, text))
            units = WriteUtf16(to, text).units;
        Grow(*last, units);
        return units;
    }
    /// Empties a text. Its memory serves again once its last piece is the newest.
    static void Clear(TextPiece* last) {
        if (!last)
            return;
        last->next = last;
        last->size = 0;
        *last->End() = u'\0';
    }

    /// What has been appended so far.
    struct Mark {
        TextPiece* newest;
        std::size_t chunks;
    };
    Mark GetMark() const { return {m_newest, m_chunks.size()}; }
    /// Gives the memory of all pieces behind a mark back, no text of which is in use any more.
    void Rewind(const Mark& mark);

private:
    struct Chunk {
        std::unique_ptr<std::byte[]> bytes;
        char16_t* limit;
    };

    /// The place behind a text, where there is room for so many code units and a zero.
    char16_t* Room(TextPiece*& last, std::size_t units) {
        if (!last || last != m_newest || static_cast<std::size_t>(m_limit - last->End()) <= units)
            AddPiece(last, units);
        return last->End();
    }
    static void Grow(TextPiece& piece, std::size_t units) {
        piece.size += static_cast<std::uint32_t>(units);
        *piece.End() = u'\0';
    }
    void AddPiece(TextPiece*& last, std::size_t units);
    std::byte* AddChunk(std::size_t size);

    std::vector<Chunk> m_chunks;
    TextPiece* m_newest = nullptr; ///< in the last chunk
    char16_t* m_limit = nullptr;   ///< the end of that chunk
};

} // namespace KzXmlLib10
