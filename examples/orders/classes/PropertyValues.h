// In the form that a generator emits: how the members of the classes travel in variants.
#pragma once

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDecimal.h>
#include <KzXmlLib10/values/KzVariant.h>

#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace orders {

using namespace KzXmlLib10;

/// The value of a nillable element: a value, or nil.
template <class T>
class Nillable {
public:
    Nillable() = default;
    Nillable(T value) : m_value(std::move(value)) {}
    bool IsNil() const { return !m_value; }
    const T& Get() const { return m_value.value(); }

private:
    std::optional<T> m_value;
};

// To and from a variant: one pair for each kind of member. An optional member that is not set is an empty
// variant.

inline void ToVariant(const std::u16string& member, KzVariant& value) { value.CopyString(member); }
inline void ToVariant(std::u16string&& member, KzVariant& value) { value.SetString(std::move(member)); }
inline void ToVariant(std::int32_t member, KzVariant& value) { value.SetI4(member); }
inline void ToVariant(double member, KzVariant& value) { value.SetR8(member); }
inline void ToVariant(bool member, KzVariant& value) { value.SetBoolean(member); }
inline void ToVariant(const CDecimal& member, KzVariant& value) { value.CopyDecimal(member); }
inline void ToVariant(const CDateTime& member, KzVariant& value) {
    if (member.GetType() == CDateTime::DTType_date)
        value.SetDate(member);
    else
        value.SetDateTime(member);
}
template <class T>
requires std::is_enum_v<T>
void ToVariant(T member, KzVariant& value) { value.SetI4(member); }
template <class T>
void ToVariant(const std::optional<T>& member, KzVariant& value) {
    if (member)
        ToVariant(*member, value);
    else
        value.SetInvalid();
}
template <class T>
void ToVariant(const Nillable<T>& member, KzVariant& value) {
    if (member.IsNil())
        value.SetNil();
    else
        ToVariant(member.Get(), value);
}

inline void FromVariant(KzVariant& value, std::u16string& member) { member = value.TakeString(); }
inline void FromVariant(const KzVariant& value, std::int32_t& member) { member = value.GetI4(); }
inline void FromVariant(const KzVariant& value, double& member) { member = value.GetR8(); }
inline void FromVariant(const KzVariant& value, bool& member) { member = value.GetBoolean(); }
inline void FromVariant(KzVariant& value, CDecimal& member) { member = value.TakeDecimal(); }
inline void FromVariant(const KzVariant& value, CDateTime& member) { member = value.GetDateTime(); }
template <class T>
requires std::is_enum_v<T>
void FromVariant(const KzVariant& value, T& member) { member = static_cast<T>(value.GetI4()); }
template <class T>
void FromVariant(KzVariant& value, std::optional<T>& member) {
    if (value.IsValid())
        FromVariant(value, member.emplace());
    else
        member.reset();
}
template <class T>
void FromVariant(KzVariant& value, Nillable<T>& member) {
    if (value.IsNil()) {
        member = Nillable<T>();
    } else {
        T content;
        FromVariant(value, content);
        member = Nillable<T>(std::move(content));
    }
}

/// The object in a variant, or null. An object of another class throws CKzInvalidParamException.
template <class T>
T* ObjectFromVariant(const KzVariant& value) {
    CXmlObjectBase* object = value.GetXmlObject();
    T* result = dynamic_cast<T*>(object);
    if (object && !result)
        throw CKzInvalidParamException(u"The object is not of the class of the property");
    return result;
}

} // namespace orders
