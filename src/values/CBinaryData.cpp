#include <KzXmlLib10/values/CBinaryData.h>

#include "object/NotNull.h"
#include "object/Throw.h"
#include "values/CBase64.h"
#include "values/Messages.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

// The handle is a pointer to a counted record:
//
//     no data         null
//     empty text      {array, length 0, capacity 0, count}
//     one byte copied {array, length 1, capacity 8192, count}
//     3 bytes adopted {array, length 3, capacity 3, count}

namespace KzXmlLib10 {

namespace {

constexpr std::uint64_t maxLength = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint64_t minCapacity = 8192;

std::uint32_t Checked(std::uint64_t length) {
    if (length > maxLength)
        Throw<CKzException>(messages::BinaryDataTooLong);
    return static_cast<std::uint32_t>(length);
}

std::uint64_t TextBytes(std::uint64_t units) { return units * sizeof(char16_t); }

const unsigned char* BytesOf(const char16_t* text) { return reinterpret_cast<const unsigned char*>(text); }

std::uint32_t Doubled(std::uint64_t length) {
    return static_cast<std::uint32_t>(std::min(2 * length, maxLength));
}

CBinaryDataBuffer* Adopt(std::unique_ptr<unsigned char[]> data, std::uint32_t length) {
    auto* buffer = new CBinaryDataBuffer{data.get(), length, length, 1};
    data.release();
    return buffer;
}

CBinaryDataBuffer* Copy(const unsigned char* data, std::uint32_t length) {
    const auto capacity = static_cast<std::uint32_t>(std::max<std::uint64_t>(Doubled(length), minCapacity));
    std::unique_ptr<unsigned char[]> copy(new unsigned char[capacity]);
    std::copy_n(data, length, copy.get());
    CBinaryDataBuffer* buffer = Adopt(std::move(copy), length);
    buffer->m_capacity = capacity;
    return buffer;
}

void Destroy(CBinaryDataBuffer* buffer) {
    delete[] buffer->m_data;
    delete buffer;
}

/// Drops one reference.
void Drop(CBinaryDataBuffer* buffer) {
    if (buffer && buffer->m_refCount.fetch_sub(1, std::memory_order_acq_rel) == 1)
        Destroy(buffer);
}

bool IsShared(const CBinaryDataBuffer& buffer) {
    return buffer.m_refCount.load(std::memory_order_acquire) >= 2;
}

bool PointsInto(const CBinaryDataBuffer& buffer, const unsigned char* data) {
    const std::less<const unsigned char*> before;
    return !before(data, buffer.m_data) && before(data, buffer.m_data + buffer.m_length);
}

/// The value of a hexadecimal digit, or 16.
unsigned HexDigit(char16_t c) {
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10u;
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10u;
    return 16;
}

} // namespace

CBinaryData::CBinaryData(unsigned char* const data, unsigned long length, bool adopt) {
    if (length > 0)
        NotNull(data, u"data");
    const std::uint32_t checked = Checked(length);
    m_buffer = adopt ? new CBinaryDataBuffer{data, checked, checked, 1} : Copy(data, checked);
}

CBinaryData::CBinaryData(const char16_t* text) { SetBuffer(text); }

CBinaryData::~CBinaryData() { Drop(m_buffer); }

CBinaryData& CBinaryData::operator=(const CBinaryData& other) {
    CBinaryDataBuffer* shared = Share(other.m_buffer);
    Clear();
    m_buffer = shared;
    return *this;
}

CBinaryData& CBinaryData::operator=(CBinaryData&& other) noexcept {
    std::swap(m_buffer, other.m_buffer);
    if (this != &other)
        other.Clear();
    return *this;
}

void CBinaryData::Clear() { Drop(std::exchange(m_buffer, nullptr)); }

/// Copies the array if other handles use it, too.
void CBinaryData::MakePrivate() {
    if (IsShared(*m_buffer))
        Drop(std::exchange(m_buffer, Copy(m_buffer->m_data, m_buffer->m_length)));
}

void CBinaryData::MakeRoom(unsigned long count) {
    if (!m_buffer)
        SetBuffer(nullptr, 0);
    const std::uint32_t sum = Checked(std::min<std::uint64_t>(count, maxLength + 1) + m_buffer->m_length);
    MakePrivate();
    if (sum > m_buffer->m_capacity)
        MoveToArrayOf(Doubled(sum));
}

void CBinaryData::MoveToArrayOf(std::uint32_t capacity) {
    auto* array = new unsigned char[capacity];
    std::copy_n(m_buffer->m_data, m_buffer->m_length, array);
    delete[] std::exchange(m_buffer->m_data, array);
    m_buffer->m_capacity = capacity;
}

void CBinaryData::Append(const unsigned char* data, unsigned long length) {
    if (!m_buffer)
        return SetBuffer(data, length);
    if (length > 0)
        NotNull(data, u"data");
    if (length <= m_buffer->m_capacity - m_buffer->m_length && !IsShared(*m_buffer)) {
        std::copy_n(data, length, m_buffer->m_data + m_buffer->m_length);
        m_buffer->m_length += static_cast<std::uint32_t>(length);
        return;
    }
    // A piece of this object's own bytes is found again by its place when the array has moved.
    const bool isOwn = PointsInto(*m_buffer, data);
    const std::ptrdiff_t place = isOwn ? data - m_buffer->m_data : 0;
    const std::uint32_t sum = Checked(std::min<std::uint64_t>(length, maxLength + 1) + m_buffer->m_length);
    MakePrivate();
    if (IsShared(*m_buffer))
        Throw<CKzException>(messages::AppendToShared, m_buffer->m_refCount.load());
    if (sum > m_buffer->m_capacity)
        MoveToArrayOf(Doubled(sum));
    std::copy_n(isOwn ? m_buffer->m_data + place : data, length, m_buffer->m_data + m_buffer->m_length);
    m_buffer->m_length = sum;
}

void CBinaryData::Append(char16_t unit) { Append(BytesOf(&unit), sizeof unit); }

void CBinaryData::Append(const char16_t* text) {
    NotNull(text, u"text");
    Append(BytesOf(text), TextBytes(std::char_traits<char16_t>::length(text)));
}

void CBinaryData::Append(const std::u16string& text) { Append(BytesOf(text.data()), TextBytes(text.size())); }

void CBinaryData::Append(const CBinaryData& other) { Append(other.GetData(), other.GetLength()); }

void CBinaryData::SetBuffer(const unsigned char* data, unsigned long length) {
    if (length > 0)
        NotNull(data, u"data");
    CBinaryDataBuffer* copy = Copy(data, Checked(length)); // before Clear: the bytes may be this object's own
    Clear();
    m_buffer = copy;
}

void CBinaryData::SetBuffer(const char16_t* text) {
    NotNull(text, u"text");
    SetBuffer(BytesOf(text), TextBytes(std::char_traits<char16_t>::length(text)));
}

unsigned char* CBinaryData::ReleaseData() {
    if (!m_buffer)
        return nullptr;
    MakePrivate();
    unsigned char* data = m_buffer->m_data;
    CBinaryDataBuffer* buffer = std::exchange(m_buffer, nullptr);
    if (const std::int32_t left = buffer->m_refCount.fetch_sub(1, std::memory_order_acq_rel) - 1; left > 0)
        Throw<CKzException>(messages::ReleaseOfShared, left);
    delete buffer;
    return data;
}

const unsigned char& CBinaryData::operator[](std::uint32_t index) const {
    static constexpr unsigned char spare = 0;
    if (!m_buffer || index > m_buffer->m_length)
        Throw<CKzException>(messages::IndexOutOfRange, index);
    return index < m_buffer->m_capacity ? m_buffer->m_data[index] : spare;
}

unsigned char& CBinaryData::operator[](std::uint32_t index) {
    if (!m_buffer || index > m_buffer->m_length)
        Throw<CKzException>(messages::IndexOutOfRange, index);
    MakePrivate();
    if (index == m_buffer->m_capacity)
        MoveToArrayOf(Checked(std::uint64_t{index} + 1));
    return m_buffer->m_data[index];
}

bool CBinaryData::operator==(const CBinaryData& other) const {
    if (m_buffer == other.m_buffer)
        return true;
    if (!m_buffer || !other.m_buffer)
        return false;
    return std::equal(m_buffer->m_data, m_buffer->m_data + m_buffer->m_length, other.m_buffer->m_data,
                      other.m_buffer->m_data + other.m_buffer->m_length);
}

std::u16string CBinaryData::GetAsBase64() const { return CBase64(GetData(), GetLength()).Encode(); }

void CBinaryData::SetAsBase64(const std::u16string& text) {
    Clear();
    auto data = std::make_unique<unsigned char[]>(text.size() + 1);
    const std::size_t length = CBase64(text.data(), text.size()).Decode(data.get());
    m_buffer = Adopt(std::move(data), Checked(length));
}

std::u16string CBinaryData::GetAsHexString() const { return GetAsHexString(GetData(), GetLength()); }

std::u16string CBinaryData::GetAsHexString(const unsigned char* data, unsigned long length) {
    static constexpr char16_t digits[] = u"0123456789ABCDEF";
    if (!data)
        return {};
    std::u16string text(2 * length, u'\0');
    char16_t* to = text.data();
    for (unsigned long i = 0; i < length; ++i) {
        *to++ = digits[data[i] >> 4];
        *to++ = digits[data[i] & 0xF];
    }
    return text;
}

void CBinaryData::SetAsHexString(const std::u16string& text) {
    Clear();
    unsigned char* data;
    const unsigned long length = ConvertToHexData(text, &data);
    std::unique_ptr<unsigned char[]> owner(data);
    m_buffer = Adopt(std::move(owner), Checked(length));
}

unsigned long CBinaryData::ConvertToHexData(const std::u16string& text, unsigned char** data) {
    *NotNull(data, u"data") = nullptr;
    if (text.size() % 2 != 0)
        Throw<CKzException>(messages::OddHexLength);
    const unsigned long length = text.size() / 2;
    std::unique_ptr<unsigned char[]> bytes(new unsigned char[length]);
    for (unsigned long i = 0; i < length; ++i) {
        const unsigned high = HexDigit(text[2 * i]);
        const unsigned low = HexDigit(text[2 * i + 1]);
        if (high > 15 || low > 15)
            Throw<CKzException>(messages::InvalidHexChar, high > 15 ? text[2 * i] : text[2 * i + 1]);
        bytes[i] = static_cast<unsigned char>(high << 4 | low);
    }
    *data = bytes.release();
    return length;
}

} // namespace KzXmlLib10
