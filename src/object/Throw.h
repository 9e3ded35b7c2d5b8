#pragma once

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/FormatString.h>

#include <concepts>
#include <cstddef>
#include <string>
#include <type_traits>

namespace KzXmlLib10 {

namespace detail {

/// The kind of argument that a placeholder wants: 's' text, 'w' 64-bit integer, 'd' 32-bit integer, 'f' real.
constexpr char PlaceholderKind(const char16_t*& at) {
    while (*at == u'0' || (*at >= u'1' && *at <= u'9') || *at == u'-' || *at == u'.' || *at == u'l')
        ++at;
    if (at[0] == u'I' && at[1] == u'6' && at[2] == u'4') {
        at += 4;
        return 'w';
    }
    const char16_t letter = *at++;
    return letter == u's' ? 's' : letter == u'f' || letter == u'g' ? 'f' : 'd';
}

template <class A>
constexpr bool Fits(char kind) {
    if constexpr (std::floating_point<A>)
        return kind == 'f';
    else if constexpr (std::integral<A> || std::is_enum_v<A>)
        return kind == (sizeof(A) == 8 ? 'w' : 'd');
    else
        return kind == 's';
}

template <class... Args>
constexpr bool PlaceholdersFit(const char16_t* format) {
    [[maybe_unused]] char kinds[sizeof...(Args) + 1] = {};
    std::size_t count = 0;
    while (*format) {
        if (*format++ != u'%')
            continue;
        if (count == sizeof...(Args))
            return false;
        kinds[count++] = PlaceholderKind(format);
    }
    [[maybe_unused]] std::size_t i = 0;
    return count == sizeof...(Args) && (Fits<std::remove_cvref_t<Args>>(kinds[i++]) && ...);
}

inline const char16_t* Passed(const std::u16string& text) { return text.c_str(); }
inline const char16_t* Passed(const char16_t* text) { return text; }
template <class A>
requires std::is_arithmetic_v<A> || std::is_enum_v<A>
constexpr A Passed(A value) { return value; }

} // namespace detail

/// A constant message whose placeholders are checked against the arguments at compile time.
template <class... Args>
struct Message {
    consteval Message(const char16_t* constant) : text(constant) {
        if (!detail::PlaceholdersFit<Args...>(constant))
            throw "the placeholders of the message do not fit its arguments";
    }

    std::u16string Format(const Args&... args) const {
        if constexpr (sizeof...(Args) == 0)
            return text;
        else
            return FormatString(text, detail::Passed(args)...);
    }

    const char16_t* text;
};

/// Throws an exception of class E with the formatted message.
template <class E, class... Args>
[[noreturn]] void Throw(Message<std::type_identity_t<Args>...> message, const Args&... args) {
    throw E(message.Format(args...));
}

struct ExceptionAccess {
    template <class E>
    [[noreturn]] static void ThrowAround(CKzException& caught, std::u16string message) {
        throw E(CKzException::MoveInner{}, std::move(message), caught);
    }
};

/// Throws an exception of class E around a caught one, whose chain moves under it. The caught one keeps its
/// class as inner exception, but is empty afterwards.
template <class E, class... Args>
[[noreturn]] void ThrowAround(CKzException& caught, Message<std::type_identity_t<Args>...> message,
                              const Args&... args) {
    ExceptionAccess::ThrowAround<E>(caught, message.Format(args...));
}

} // namespace KzXmlLib10
