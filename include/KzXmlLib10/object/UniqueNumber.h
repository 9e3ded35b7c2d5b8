#pragma once

#include <KzXmlLib10/object/Export.h>

#include <cstdint>

namespace KzXmlLib10 {

/// A number above zero that no other has, at any time; a copy takes one of its own, and so does what is
/// assigned to. What was found out about its owner can be kept with it. May be made by several threads at
/// once.
class QUILLON_EXPORT UniqueNumber {
public:
    UniqueNumber() : m_value(Next()) {}
    UniqueNumber(const UniqueNumber&) : UniqueNumber() {}
    UniqueNumber& operator=(const UniqueNumber&) {
        Renew();
        return *this;
    }
    ~UniqueNumber() = default;

    std::uint64_t Get() const { return m_value; }
    void Renew() { m_value = Next(); }

private:
    static std::uint64_t Next();

    std::uint64_t m_value;
};

} // namespace KzXmlLib10
