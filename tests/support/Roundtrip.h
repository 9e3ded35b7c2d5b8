#pragma once

#include "support/Test.h"

/// Whole documents in, one line of text out: what tests of content models compare.
namespace kit {

inline constexpr auto Sequence = XmlElementGroupType_Sequence;
inline constexpr auto Choice = XmlElementGroupType_Choice;
inline constexpr auto All = XmlElementGroupType_All;
inline constexpr auto Element = XmlElementType_Element;
inline constexpr auto Pseudo = XmlElementType_Pseudo;

/// As attributes of a start tag, when read and when written.
inline const std::u16string xsi = u" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";
inline const std::u16string nilled =
    u" xmlns:AA=\"http://www.w3.org/2001/XMLSchema-instance\" AA:nil=\"true\"";

using Context = const CXmlSerializationContext;
inline Context strict;
inline Context unknownElements = With(&Context::SetIgnoreUnknownElements);
inline Context missingElements = With(&Context::SetIgnoreMissingMandatoryElements);
inline Context unknownAttributes = With(&Context::SetIgnoreUnknownAttributes);
inline Context missingChoice = With(&Context::SetIgnoreMissingChoice);
inline Context invalidCounts = With(&Context::SetIgnoreInvalidCollectionCounts);
inline Context defaultAttributes = With(&Context::SetNoOptionalAttributeDefaultOutput);
inline Context namespaces = With(&Context::SetIgnoreNamespaces);

/// The failure of reading an element of this name, in front of `cause`.
std::u16string FailedToRead(const char16_t* name, const std::u16string& cause);
/// The failure of writing an element of this name, in front of `cause`.
std::u16string FailedToWrite(const char16_t* name, const std::u16string& cause);

/// The properties of an object: values separated by |, of objects in braces and by commas, of collections in
/// brackets, generic content as its text, "-" where there is nothing.
std::u16string Show(const CModelObject& object);

/// The properties of a fresh object of the model after reading the document, or the full message of the
/// failure.
std::u16string Read(const Model& model, const std::u16string& xml, Context& context = strict);

/// Compares what Read gives for each document. In the rows "!cause" is FailedToRead the root, "+child" is the
/// failure of a root that has this child left over, and "?child" of one in which this child is missing.
void ExpectReads(const Model& model, std::initializer_list<Row> rows, Context& context = strict);

/// The object as unformatted text, or the full message of the failure.
std::u16string Write(const CXmlObjectBase& object, Context& context = strict);

/// What a fresh object of the model writes after reading the document.
std::u16string Rewritten(const Model& model, const std::u16string& xml);

} // namespace kit
