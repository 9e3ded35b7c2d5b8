#pragma once

#include "support/Test.h"

/// Whole documents in, one line of text out: what tests of content models compare.
namespace kit {

inline constexpr char16_t xsi[] = u" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";

/// A tolerance of the context to switch on.
using Flag = void (CXmlSerializationContext::*)(bool);
inline constexpr Flag none = nullptr;
inline constexpr Flag unknownElements = &CXmlSerializationContext::SetIgnoreUnknownElements;
inline constexpr Flag missingElements = &CXmlSerializationContext::SetIgnoreMissingMandatoryElements;
inline constexpr Flag unknownAttributes = &CXmlSerializationContext::SetIgnoreUnknownAttributes;
inline constexpr Flag missingChoice = &CXmlSerializationContext::SetIgnoreMissingChoice;
inline constexpr Flag invalidCounts = &CXmlSerializationContext::SetIgnoreInvalidCollectionCounts;
inline constexpr Flag defaultAttributes = &CXmlSerializationContext::SetNoOptionalAttributeDefaultOutput;
inline constexpr Flag namespaces = &CXmlSerializationContext::SetIgnoreNamespaces;

/// The failure of reading an element of this name, in front of `cause`.
std::u16string FailedToRead(const char16_t* name, const std::u16string& cause);
/// The failure of writing an element of this name, in front of `cause`.
std::u16string FailedToWrite(const char16_t* name, const std::u16string& cause);

/// The properties of an object: values separated by |, of objects in braces and by commas, of collections in
/// brackets, generic content as its text, "-" where there is nothing.
std::u16string Show(const CModelObject& object);

/// The properties of a fresh object of the model after reading the document, or the full message of the
/// failure.
std::u16string Read(const Model& model, const std::u16string& xml, Flag flag = none);

/// Compares what Read gives for each document. In the rows "!cause" is FailedToRead the root, and "+child" is
/// the failure of a root that has this child left over.
void ExpectReads(const Model& model, std::initializer_list<Row> rows, Flag flag = none);

/// The object as unformatted text, or the full message of the failure.
std::u16string Write(const CXmlObjectBase& object, const CXmlSerializationContext& context = {});
std::u16string Write(const CXmlObjectBase& object, Flag flag);

/// What a fresh object of the model writes after reading the document.
std::u16string Rewritten(const Model& model, const std::u16string& xml);

} // namespace kit
