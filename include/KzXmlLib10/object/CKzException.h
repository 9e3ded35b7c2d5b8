#pragma once

#include <KzXmlLib10/object/Export.h>

#include <iosfwd>
#include <string>
#include <utility>

namespace KzXmlLib10 {

struct ExceptionAccess;

/// The root of all failures of the library: a message and, if one failure led to another, the inner one.
///
///     try {
///         order->FromXmlFile(u"order.xml", context);
///     } catch (const CKzException& failure) {
///         std::cerr << failure << '\n'; // the path of elements, outermost first
///     }
///
/// Thrown by value, caught by reference. An exception owns its inner exception. Chains of any length are
/// copied, printed and destroyed in a loop.
class QUILLON_EXPORT CKzException {
public:
    CKzException();
    CKzException(std::u16string message);
    /// Keeps a copy of `inner`, and of all that is inside it, with their own classes.
    CKzException(std::u16string message, const CKzException& inner);
    CKzException(const CKzException& other);
    /// Deliberate: the inner exception held until now is not deleted.
    CKzException& operator=(const CKzException& other);
    virtual ~CKzException();

    /// The message of this exception alone.
    std::u16string GetMessageW() const;
    /// The messages of the whole chain, outermost first, with a line feed between each two.
    std::u16string GetFullMessage() const;
    /// The same in UTF-8; a lone surrogate becomes U+FFFD.
    std::string GetFullMessageUtf8() const;
    /// The inner exception, which stays the property of this one, or null.
    const CKzException* GetInnerException() const;

protected:
    /// Selects the constructors that take over the inner chain of a caught exception instead of copying it.
    struct MoveInner {};
    CKzException(MoveInner, std::u16string message, CKzException& caught);

    /// A copy on the heap, of the same dynamic class.
    virtual CKzException* Clone() const;

private:
    friend struct ExceptionAccess;

    static CKzException* CopyChain(const CKzException* head);
    static CKzException* CloneOne(const CKzException& link);
    static CKzException* MoveToHeap(CKzException& caught);

    std::u16string m_message;
    CKzException* m_innerException;
};

/// What every class of the family repeats: the constructors, and Clone with its own class.
#define QUILLON_EXCEPTION_MEMBERS(Class, Base)                                                               \
public:                                                                                                      \
    Class() = default;                                                                                       \
    Class(std::u16string message) : Base(std::move(message)) {}                                              \
    Class(std::u16string message, const CKzException& inner) : Base(std::move(message), inner) {}            \
    /** Takes the message and a copy of the inner exception of `other`; `other` itself is not wrapped. */    \
    Class(const CKzException& other) : Base(other) {}                                                        \
    Class(const Class& other) = default;                                                                     \
    Class& operator=(const Class& other) = default;                                                          \
    ~Class() override;                                                                                       \
                                                                                                             \
protected:                                                                                                   \
    Class(MoveInner tag, std::u16string message, CKzException& caught)                                       \
        : Base(tag, std::move(message), caught) {}                                                           \
    CKzException* Clone() const override;                                                                    \
                                                                                                             \
private:                                                                                                     \
    friend struct ExceptionAccess;

/// A document or object that breaks its schema.
class QUILLON_EXPORT CKzValidationException : public CKzException {
    QUILLON_EXCEPTION_MEMBERS(CKzValidationException, CKzException)
};

/// A text or value that the target type cannot take.
class QUILLON_EXPORT CKzInvalidValueException : public CKzValidationException {
    QUILLON_EXCEPTION_MEMBERS(CKzInvalidValueException, CKzValidationException)
};

/// A namespace outside what a wildcard allows.
class QUILLON_EXPORT CKzInvalidNamespaceException : public CKzValidationException {
    QUILLON_EXCEPTION_MEMBERS(CKzInvalidNamespaceException, CKzValidationException)
};

/// An operation that the state of the object forbids.
class QUILLON_EXPORT CKzInvalidStateException : public CKzException {
    QUILLON_EXCEPTION_MEMBERS(CKzInvalidStateException, CKzException)
};

/// A bad argument.
class QUILLON_EXPORT CKzInvalidParamException : public CKzException {
    QUILLON_EXCEPTION_MEMBERS(CKzInvalidParamException, CKzException)
};

/// A numeric overflow.
class QUILLON_EXPORT CKzOverFlowException : public CKzException {
    QUILLON_EXCEPTION_MEMBERS(CKzOverFlowException, CKzException)
};

#undef QUILLON_EXCEPTION_MEMBERS

/// Writes GetFullMessageUtf8.
QUILLON_EXPORT std::ostream& operator<<(std::ostream& stream, const CKzException& exception);

} // namespace KzXmlLib10
