#pragma once

#include "object/AddressSanitizer.h"
#include "object/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
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

/// What is being written behind the end of a text.
struct TextRun {
    TextPiece* piece = nullptr;
    char16_t* to = nullptr;
    char16_t* limit = nullptr;
    TextPiece** last = nullptr;  ///< where the text refers to the piece
    TextPiece* before = nullptr; ///< the piece before, if this one is new

    /// Whether there is room for so many code units and the zero behind them.
    bool HasRoom(std::size_t units) const { return limit - to > static_cast<std::ptrdiff_t>(units); }

    /// Appends UTF-8 without a fault, where there is room for a code unit for each byte.
    void AppendUtf8(std::string_view text) {
        to += WriteAscii(to, text) ? text.size() : WriteUtf16(to, text).units;
    }
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

    /// Starts a run at the end of the text of which `last` is the last piece, null if it is empty. It has
    /// room for so many code units at least. Nothing else may happen to the texts until it is closed.
    TextRun Open(TextPiece*& last, std::size_t units) {
        if (last && last == m_newest) {
            const TextRun run{last, last->End(), m_limit, &last, nullptr};
            if (run.HasRoom(units))
                return run;
        }
        TextRun run{nullptr, m_next, m_limit, &last, last};
        if (!run.HasRoom(units))
            AddChunk(run, units);
        run.piece = ::new (reinterpret_cast<std::byte*>(run.to) - TextPiece::headerSize) TextPiece;
        run.piece->size = 0;
        run.piece->times = 1;
        run.piece->next = last ? std::exchange(last->next, run.piece) : run.piece;
        m_newest = last = run.piece;
        return run;
    }
    /// Makes a run part of its text. Returns the number of its code units.
    std::size_t Close(const TextRun& run) {
        const auto size = static_cast<std::uint32_t>(run.to - run.piece->Units());
        const std::size_t units = size - run.piece->size;
        run.piece->size = size & TextPiece::mostUnits;
        *run.to = u'\0';
        if (run.before && run.before->size == size && IsOneMore(run))
            Drop(run);
        else
            m_next = Behind(run.to);
        return units;
    }
    /// Appends to a text.
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
    void AddChunk(TextRun& run, std::size_t units);

    /// Whether the piece of a run is like the one before it, which is as long.
    static bool IsOneMore(const TextRun& run) {
        return run.before->times < TextPiece::mostTimes &&
               std::memcmp(run.before->Units(), run.piece->Units(), run.piece->size * sizeof(char16_t)) == 0;
    }
    void Drop(const TextRun& run) {
        ++run.before->times;
        run.before->next = run.piece->next;
        *run.last = run.before;
        m_newest = nullptr;
        m_next = run.piece->Units();
    }

    std::vector<Chunk> m_chunks;
    TextPiece* m_newest = nullptr; ///< in the last chunk; null if it was dropped
    char16_t* m_next = nullptr;    ///< where the code units of the next piece go, if there is room
    char16_t* m_limit = nullptr;   ///< the end of that chunk
};

} // namespace KzXmlLib10
