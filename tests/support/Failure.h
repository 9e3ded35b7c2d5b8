#pragma once

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Text.h>

#include <string>
#include <typeinfo>

namespace KzXmlLib10::support {

/// The full message, in UTF-8, of the exception of exactly the class E that `action` throws.
/// Another class of the family stands in front of the message; "no failure" if nothing is thrown.
template <class E = CKzException, class Action>
std::string Failure(Action action) {
    try {
        action();
    } catch (const CKzException& failure) {
        const std::string message = ToUtf8(failure.GetFullMessage());
        return typeid(failure) == typeid(E) ? message : std::string(typeid(failure).name()) + ": " + message;
    }
    return "no failure";
}

inline constexpr auto InvalidValue = [](auto action) { return Failure<CKzInvalidValueException>(action); };
inline constexpr auto InvalidState = [](auto action) { return Failure<CKzInvalidStateException>(action); };
inline constexpr auto InvalidParam = [](auto action) { return Failure<CKzInvalidParamException>(action); };

/// What the action gives as text, or the message of its failure.
template <class E = CKzException, class Action>
std::string Outcome(Action action) {
    std::string result;
    const std::string failure = Failure<E>([&] { result = action(); });
    return failure == "no failure" ? result : failure;
}

} // namespace KzXmlLib10::support
