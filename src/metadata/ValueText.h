#pragma once

#include <KzXmlLib10/values/KzVariant.h>

#include <string>

namespace KzXmlLib10Data {

/// What KzVariant::ToText gives, without a copy where the value is a text. The variant must outlive it.
class ValueText {
public:
    ValueText(const KzXmlLib10::KzVariant& value, const std::u16string& format)
        : m_made(IsText(value) ? std::u16string() : value.ToText(format)),
          m_text(IsText(value) ? value.GetStringRef() : m_made) {}
    ValueText(const ValueText&) = delete;
    ValueText& operator=(const ValueText&) = delete;

    const std::u16string& Get() const { return m_text; }

private:
    static bool IsText(const KzXmlLib10::KzVariant& value) {
        return value.GetTypeAsEnum() == KzXmlLib10::ItemType_string;
    }

    std::u16string m_made;
    const std::u16string& m_text;
};

} // namespace KzXmlLib10Data
