#pragma once

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace KzXmlLib10 {

/// What one exception of a chain is about.
enum class FailureKind {
    // The way to the cause
    Record,          ///< a record was being read: `number`
    ReadElement,     ///< an element was being read: `name`
    WriteElement,    ///< an object was being written: `name` of its element
    WriteAttributes, ///< the attributes of an object were being written

    // What is wrong in a document or an object
    Element,   ///< an element is missing, not expected or of no use: `name`, where the failure knows it
    Attribute, ///< an attribute is missing or not expected: `name`
    Choice,    ///< no member of a choice is set, or more than one: `name` of its element or of the member set
    Count,     ///< a collection has too many or too few items: `name` of their element
    Value,     ///< a value is refused: `name` of its element or attribute, where the failure knows it
    Namespace, ///< a namespace is refused
    Syntax,    ///< malformed XML, with `number` as its line; a malformed Fast Infoset or compressed stream

    // What else can end the work
    File,     ///< a file or stream cannot be read or written: `name` of the file, where the failure knows it
    Limit,    ///< something goes beyond a limit
    State,    ///< an operation that the state of an object forbids
    Argument, ///< a bad argument
    Other,
};

/// One exception of a chain. Texts are UTF-8, with U+FFFD for lone surrogates.
struct FailureFrame {
    std::size_t depth = 0; ///< 0 for the outermost
    FailureKind kind = FailureKind::Other;
    std::string name;         ///< see FailureKind; empty where there is none
    std::uint64_t number = 0; ///< see FailureKind; 0 where there is none
    std::string message;      ///< of this exception alone

    friend bool operator==(const FailureFrame&, const FailureFrame&) = default;
};

/// A caught exception as a list of frames, outermost first, so that a program need not parse texts.
///
///     } catch (const CKzException& failure) {
///         const std::vector<FailureFrame> frames = GetFailureFrames(failure);
///         if (frames.back().kind == FailureKind::Syntax)
///             Highlight(frames.back().number);
///     }
///
/// The names of the frames of kind ReadElement, from the first to the last, are the path to the element at
/// fault. A group of the schema that is a class of its own has a frame too, under the name of its element, so
/// that a name may come twice. The last frame is the cause.
///
/// Exceptions that the application throws, such as those of generated code, get their kind from their class:
/// CKzInvalidValueException is a Value, CKzInvalidStateException a State, and so on.
QUILLON_EXPORT std::vector<FailureFrame> GetFailureFrames(const CKzException& failure);

/// The name of a kind, such as "ReadElement".
QUILLON_EXPORT const char* GetFailureKindName(FailureKind kind);

} // namespace KzXmlLib10
