#pragma once

#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/ItemType.h>
#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>
#include <KzXmlLib10/values/CDecimal.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace KzXmlLib10 {

/// One value of any ItemType, or a nil, on its way between generated classes, descriptors and facet checks.
///
///     KzVariant value;
///     value.FromString(u" 7 ", ItemType_i4, CWhitespaceUtils::WhitespaceRule_Collapse);
///     value.GetI4();       // 7
///     value.ToString(u""); // u"7"
///
/// A plain record with typed setters and getters. It owns its payload: a text or value is a copy of its own
/// (binary data shares its bytes until one side changes them), an object is the caller's with one reference
/// added. A variant belongs to one thread at a time.
///
/// Getters of scalars trust the caller: they read the low bits of the cell, whatever the kind, so that kinds
/// of one width share their value. Getters of payloads throw CKzInvalidStateException if the variant holds no
/// payload of their class; those of one class are one operation.
///
/// Deliberate: setters leave the nil flag alone. It goes with the next Clear that finds a kind set, so it
/// survives SetNil followed by a setter on a variant that was empty.
class QUILLON_EXPORT KzVariant {
public:
    KzVariant() = default;
    KzVariant(const KzVariant& other);
    KzVariant(KzVariant&& other) noexcept;
    virtual ~KzVariant();

    /// Copies a text or value, adds one reference to an object. A nil brings its kind and no payload.
    /// Throws CKzException if the kind of `other` is none of ItemType.
    ///
    /// Deliberate: a variant assigned to itself is empty afterwards.
    KzVariant& operator=(const KzVariant& other);
    /// Takes the payload over and leaves `other` empty.
    KzVariant& operator=(KzVariant&& other) noexcept;

    /// Lets the payload go and resets kind and nil flag.
    ///
    /// Deliberate: without a kind it does nothing, and the nil flag stays.
    void Clear();
    /// True if a kind is set, or nil.
    bool IsValid() const { return m_type != ItemType_Invalid || m_isNil; }
    void SetInvalid();
    /// Drops the value, keeps its kind.
    void SetNil();
    bool IsNil() const { return m_isNil; }
    ItemType GetTypeAsEnum() const { return m_type; }
    /// The name of the kind, which is the enumerator without `ItemType_`. Throws CKzException for no kind and
    /// for the object kinds.
    std::u16string GetType() const;

    /// The value as XML text. `format` is heeded by three kinds: r4 and r8 take a printf format with one
    /// floating-point conversion, a decimal the number of its places; null and empty mean the usual text.
    /// Dates and times are written in the form of their own DTType. The nil flag is not looked at: a nil of a
    /// kind with a payload has none and throws. Throws CKzException for a kind without a text.
    std::u16string ToString(const char16_t* format) const;
    /// The same for a format that is a string.
    std::u16string ToText(const std::u16string& format) const;
    /// Takes the value of an XML text of the given kind under the given rule. Throws what the conversion of
    /// the kind throws for a text of another form, CKzException for a kind that cannot come from text; the
    /// variant is unchanged then.
    void FromString(const std::u16string& text, ItemType type, CWhitespaceUtils::WhitespaceRule rule);
    /// The same for a text wherever it lies, which a zero follows.
    void FromText(std::u16string_view text, ItemType type, CWhitespaceUtils::WhitespaceRule rule);

    void SetI1(std::int8_t value);
    void SetI2(std::int16_t value);
    void SetI4(std::int32_t value);
    void SetI8(long long value);
    void SetUI1(std::uint8_t value);
    void SetUI2(std::uint16_t value);
    void SetUI4(std::uint32_t value);
    void SetUI8(unsigned long long value);
    void SetR4(float value);
    void SetR8(double value);
    void SetYear(std::uint16_t value);
    void SetMonth(std::uint8_t value);
    void SetDay(std::uint8_t value);
    void SetChar(char16_t value);
    void SetBoolean(bool value);

    std::int8_t GetI1() const;
    std::int16_t GetI2() const;
    std::int32_t GetI4() const;
    long long GetI8() const;
    std::uint8_t GetUI1() const;
    std::uint16_t GetUI2() const;
    std::uint32_t GetUI4() const;
    unsigned long long GetUI8() const;
    float GetR4() const;
    double GetR8() const;
    std::uint16_t GetYear() const;
    std::uint8_t GetMonth() const;
    std::uint8_t GetDay() const;
    char16_t GetChar() const;
    bool GetBoolean() const;

    /// Moves the text in; pass an rvalue to spare the copy.
    void SetString(std::u16string value);
    /// What SetString does with a copy, mostly without an allocation. For generated classes.
    void CopyString(const std::u16string& value);
    std::u16string GetString() const;
    /// The text itself, valid until the variant changes.
    const std::u16string& GetStringRef() const {
        if (m_type != ItemType_string || !m_value.payload)
            FailNoPayload(ItemType_string);
        return *static_cast<const std::u16string*>(m_value.payload);
    }
    /// The text itself, to be moved from. For generated classes, which need not copy it.
    std::u16string&& TakeString();

    // Setters move the value in; getters copy it.

    void SetHexBinary(CBinaryData value);
    void SetBase64Binary(CBinaryData value);
    void SetDuration(CDateTimeSpan value);
    /// The kind of the variant and the DTType of the value need not agree.
    void SetYearMonth(CDateTime value);
    void SetMonthDay(CDateTime value);
    void SetDate(CDateTime value);
    void SetDateTime(CDateTime value);
    void SetTime(CDateTime value);
    void SetDecimal(CDecimal value);
    void SetInteger(CBigInteger value);

    CBinaryData GetHexBinary() const;
    CBinaryData GetBase64Binary() const;
    CDateTimeSpan GetDuration() const;
    CDateTime GetYearMonth() const;
    CDateTime GetMonthDay() const;
    CDateTime GetDate() const;
    CDateTime GetDateTime() const;
    CDateTime GetTime() const;
    CDecimal GetDecimal() const;
    CBigInteger GetInteger() const;
    /// The numbers themselves, valid until the variant changes.
    const CDecimal& GetDecimalRef() const;
    const CBigInteger& GetIntegerRef() const;
    /// The number itself, to be moved from.
    CDecimal&& TakeDecimal();
    /// What SetDecimal does with a copy. For generated classes.
    void CopyDecimal(const CDecimal& value);

    /// Adds a reference to the object, which may be null.
    void SetXmlObject(CXmlObjectBase* object);
    CSmartPtr<CXmlObjectBase> GetXmlObject() const;
    /// The object itself, or null; the variant keeps its reference.
    CXmlObjectBase* PeekXmlObject() const;
    /// As for objects. Either getter reads what either setter stored; this one throws
    /// CKzInvalidStateException for an object that is no collection.
    void SetXmlCollection(CXmlCollectionBase* collection);
    CSmartPtr<CXmlCollectionBase> GetXmlCollection() const;

    /// A scalar in its low bits, or an owning pointer; zero in all other bits.
    union Cell {
        std::uint64_t bits = 0;
        void* payload;
    };

    bool m_isNil = false;
    ItemType m_type = ItemType_Invalid;
    Cell m_value;

private:
    [[noreturn]] void FailNoPayload(ItemType wanted) const;
    void SetBits(ItemType type, std::uint64_t bits);
    template <class T>
    void SetValue(ItemType type, T&& value);
    template <class Make>
    void SetMade(ItemType type, Make make);
    template <class T>
    const T& GetValue(ItemType type) const;
    void SetCounted(ItemType type, CXmlObjectBase* object);
};

} // namespace KzXmlLib10
