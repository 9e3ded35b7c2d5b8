#pragma once

#include <KzXmlLib10/object/Export.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <utility>

namespace KzXmlLib10 {

/// The bytes that handles of CBinaryData share. Its array comes from `new unsigned char[]`.
struct CBinaryDataBuffer {
    unsigned char* m_data;
    std::uint32_t m_length;
    std::uint32_t m_capacity;
    std::atomic<std::int32_t> m_refCount;
};

/// The bytes of a hexBinary or base64Binary value, and the library's general byte buffer.
///
///     CBinaryData data;
///     data.SetAsHexString(u"0aFF");
///     data.Append(static_cast<unsigned char>(1));
///     data.GetAsHexString(); // "0AFF01"
///     data.GetAsBase64();    // "Cv8B"
///
/// A handle on a counted array: copies are cheap and share it, and a change copies it first when it is
/// shared. Handles belong to one thread each; the arrays behind them may be shared between threads.
/// A handle without an array and a handle with an empty one are different values.
///
/// Up to 2^32 - 1 bytes; an operation that would need more throws CKzException and changes nothing.
/// A null text or destination, or a null array with a length, throws CKzInvalidParamException.
class QUILLON_EXPORT CBinaryData {
public:
    CBinaryData() = default;
    CBinaryData(const CBinaryData& other) : m_buffer(Share(other.m_buffer)) {}
    CBinaryData(CBinaryData&& other) noexcept : m_buffer(std::exchange(other.m_buffer, nullptr)) {}
    /// With `adopt` takes over `data`, which comes from `new unsigned char[]`, unless it throws. Otherwise
    /// copies it.
    CBinaryData(unsigned char* const data, unsigned long length, bool adopt);
    /// The code units of `text`, as SetBuffer does it.
    explicit CBinaryData(const char16_t* text);
    virtual ~CBinaryData();

    CBinaryData& operator=(const CBinaryData& other);
    CBinaryData& operator=(CBinaryData&& other) noexcept;

    /// Lets the array go; the last handle frees it.
    void Clear();

    /// The bytes, or null. They may be shared: changes go through Append and operator[].
    unsigned char* GetData() const { return m_buffer ? m_buffer->m_data : nullptr; }
    /// The number of bytes.
    std::uint32_t GetLength() const { return m_buffer ? m_buffer->m_length : 0; }

    /// Adds bytes at the end. They may be a piece of this object's own.
    void Append(const unsigned char* data, unsigned long length);
    void Append(unsigned char byte);
    /// Adds UTF-16 code units at the end, two bytes each, as they lie in memory, without a terminator.
    void Append(char16_t unit);
    void Append(const char16_t* text);
    void Append(const std::u16string& text);
    /// Room for `count` bytes behind the others, to be written in place. What was written becomes part of the
    /// data by Commit, up to `end`, which has to be the next operation.
    unsigned char* Reserve(unsigned long count) {
        if (!m_buffer || count > m_buffer->m_capacity - m_buffer->m_length ||
            m_buffer->m_refCount.load(std::memory_order_acquire) != 1)
            MakeRoom(count);
        return m_buffer->m_data + m_buffer->m_length;
    }
    void Commit(const unsigned char* end) {
        m_buffer->m_length = static_cast<std::uint32_t>(end - m_buffer->m_data);
    }
    /// Adds the bytes of another object, or of this one.
    void Append(const CBinaryData& other);

    /// Replaces the content by a copy of the bytes.
    void SetBuffer(const unsigned char* data, unsigned long length);
    /// Replaces the content by the code units of a text, two bytes each, without its terminator.
    void SetBuffer(const char16_t* text);

    /// Hands the array to the caller, who frees it with delete[]; the handle is then empty. Null for a handle
    /// without an array.
    unsigned char* ReleaseData();

    /// The byte at `index`. Throws CKzException beyond the length.
    ///
    /// Deliberate: the index equal to the length is accepted and refers to a spare byte.
    const unsigned char& operator[](std::uint32_t index) const;
    unsigned char& operator[](std::uint32_t index);

    /// Compares the bytes. A handle without an array is equal to its like only.
    bool operator==(const CBinaryData& other) const;
    bool operator!=(const CBinaryData& other) const { return !(*this == other); }

    /// The base64 form (RFC 4648) on one line. Empty for a handle without an array.
    std::u16string GetAsBase64() const;
    /// Replaces the content by the bytes of a base64 text. Blanks, tabs, line ends and "=" are ignored
    /// wherever they stand; of each character the low seven bits count.
    ///
    /// Deliberate: any other character gives an empty array, and no failure.
    void SetAsBase64(const std::u16string& text);

    /// The hexadecimal form, in upper case. Empty for a handle without an array.
    std::u16string GetAsHexString() const;
    /// The hexadecimal form of an array, in upper case. Empty for a null pointer.
    static std::u16string GetAsHexString(const unsigned char* data, unsigned long length);
    /// Replaces the content by the bytes of a hexadecimal text, in either case. Throws CKzException for an
    /// odd length or any other character, blanks included; the object is empty then.
    void SetAsHexString(const std::u16string& text);
    /// Converts a hexadecimal text into a new array, which the caller frees with delete[], and returns the
    /// number of bytes. Throws like SetAsHexString; there is no array then.
    static unsigned long ConvertToHexData(const std::u16string& text, unsigned char** data);

private:
    static CBinaryDataBuffer* Share(CBinaryDataBuffer* buffer) {
        if (buffer)
            buffer->m_refCount.fetch_add(1, std::memory_order_relaxed);
        return buffer;
    }

    void MakePrivate();
    void MakeRoom(unsigned long count);
    void MoveToArrayOf(std::uint32_t capacity);

    CBinaryDataBuffer* m_buffer = nullptr;
};

inline void CBinaryData::Append(unsigned char byte) {
    if (m_buffer && m_buffer->m_length < m_buffer->m_capacity &&
        m_buffer->m_refCount.load(std::memory_order_acquire) == 1)
        m_buffer->m_data[m_buffer->m_length++] = byte;
    else
        Append(&byte, 1);
}

} // namespace KzXmlLib10
