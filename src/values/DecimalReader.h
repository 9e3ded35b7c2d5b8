#pragma once

#include <string>

namespace KzXmlLib10 {

/// The parts of the text of a decimal.
struct DecimalText {
    bool negative = false;
    std::u16string integerDigits;
    std::u16string fractionDigits;
    bool hasExponent = false;
    bool exponentNegative = false;
    /// The magnitude; what is above 10^12 reads as 10^12.
    long long exponent = 0;
};

/// Splits the text of a decimal, stage by stage: integer, fraction, exponent.
class DecimalReader {
public:
    explicit DecimalReader(const char16_t* text) : m_text(text), m_at(text) {}

    /// Throws CKzInvalidValueException with the position of the first character that no stage takes.
    /// What it returns belongs to the reader.
    const DecimalText& Read();

private:
    void ReadInteger();
    void ReadFraction();
    void ReadExponent();
    const char16_t* AppendDigits(std::u16string& digits) const;
    [[noreturn]] void Refuse() const;

    const char16_t* m_text;
    const char16_t* m_at;
    DecimalText m_parts;
};

} // namespace KzXmlLib10
