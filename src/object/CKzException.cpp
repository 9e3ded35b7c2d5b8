#include <KzXmlLib10/object/CKzException.h>

#include "object/Utf8.h"

#include <ostream>
#include <string_view>
#include <utility>

namespace KzXmlLib10 {

namespace {

/// The link that is copied while a chain is copied link by link, so that the copy constructor leaves its
/// inner exception to the loop. Recursion would cost stack for every element of the path that the chain
/// describes.
thread_local constinit const CKzException* linkInCopy = nullptr;

class OneLink {
public:
    explicit OneLink(const CKzException& link) : m_before(std::exchange(linkInCopy, &link)) {}
    ~OneLink() { linkInCopy = m_before; }
    OneLink(const OneLink&) = delete;
    OneLink& operator=(const OneLink&) = delete;

private:
    const CKzException* m_before;
};

} // namespace

CKzException::CKzException() : m_innerException(nullptr) {}

CKzException::CKzException(std::u16string message)
    : m_message(std::move(message)), m_innerException(nullptr) {}

CKzException::CKzException(std::u16string message, const CKzException& inner)
    : m_message(std::move(message)), m_innerException(CopyChain(&inner)) {}

CKzException::CKzException(MoveInner, std::u16string message, CKzException& caught)
    : m_message(std::move(message)), m_innerException(MoveToHeap(caught)) {}

CKzException::CKzException(const CKzException& other)
    : m_message(other.m_message),
      m_innerException(linkInCopy == &other ? nullptr : CopyChain(other.m_innerException)) {}

CKzException& CKzException::operator=(const CKzException& other) {
    m_message = other.m_message;
    // Deliberate: the inner exception held until now is not deleted.
    m_innerException = CopyChain(other.m_innerException);
    return *this;
}

CKzException::~CKzException() {
    CKzException* link = std::exchange(m_innerException, nullptr);
    while (link) {
        CKzException* next = std::exchange(link->m_innerException, nullptr);
        delete link;
        link = next;
    }
}

std::u16string CKzException::GetMessageW() const { return m_message; }

std::u16string CKzException::GetFullMessage() const {
    std::u16string message = m_message;
    for (const CKzException* link = m_innerException; link; link = link->m_innerException)
        message.append(1, u'\n').append(link->m_message);
    return message;
}

std::string CKzException::GetFullMessageUtf8() const { return ToUtf8WithReplacements(GetFullMessage()); }

const CKzException* CKzException::GetInnerException() const { return m_innerException; }

CKzException* CKzException::CopyChain(const CKzException* head) {
    // The copy hangs on an exception of its own until it is whole, which frees it if memory runs out.
    CKzException chain;
    CKzException* last = &chain;
    for (const CKzException* link = head; link; link = link->m_innerException) {
        last->m_innerException = CloneOne(*link);
        last = last->m_innerException;
    }
    return std::exchange(chain.m_innerException, nullptr);
}

CKzException* CKzException::CloneOne(const CKzException& link) {
    const OneLink guard(link);
    CKzException* const clone = link.Clone();
    // A class of the application may have copied that too.
    delete std::exchange(clone->m_innerException, nullptr);
    return clone;
}

CKzException* CKzException::MoveToHeap(CKzException& caught) {
    CKzException* const moved = CloneOne(caught);
    moved->m_innerException = std::exchange(caught.m_innerException, nullptr);
    return moved;
}

CKzException* CKzException::Clone() const { return new CKzException(*this); }

CKzValidationException::~CKzValidationException() = default;
CKzException* CKzValidationException::Clone() const { return new CKzValidationException(*this); }

CKzInvalidValueException::~CKzInvalidValueException() = default;
CKzException* CKzInvalidValueException::Clone() const { return new CKzInvalidValueException(*this); }

CKzInvalidNamespaceException::~CKzInvalidNamespaceException() = default;
CKzException* CKzInvalidNamespaceException::Clone() const { return new CKzInvalidNamespaceException(*this); }

CKzInvalidStateException::~CKzInvalidStateException() = default;
CKzException* CKzInvalidStateException::Clone() const { return new CKzInvalidStateException(*this); }

CKzInvalidParamException::~CKzInvalidParamException() = default;
CKzException* CKzInvalidParamException::Clone() const { return new CKzInvalidParamException(*this); }

CKzOverFlowException::~CKzOverFlowException() = default;
CKzException* CKzOverFlowException::Clone() const { return new CKzOverFlowException(*this); }

std::ostream& operator<<(std::ostream& stream, const CKzException& exception) {
    return stream << exception.GetFullMessageUtf8();
}

} // namespace KzXmlLib10
