#pragma once

#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/xml/CXmlDocument.h>

#include <string_view>

/// Objects of generated classes, for the targets that read and write such.
namespace fuzz {

/// How many classes there are: a sequence of all kinds of values, a choice, an all group, nillable members,
/// wildcards, typed collections in a class that contains itself, and two of real schemas.
inline constexpr unsigned sampleCount = 8;

KzXmlLib10::CSmartPtr<KzXmlLib10::CXmlObjectBase> NewSample(unsigned index);

/// Tolerances by the bits of a byte.
void SetTolerances(KzXmlLib10::CXmlSerializationContext& context, unsigned bits);

/// Whether an input is XML text of one byte a character, and so no Fast Infoset, which carries more than
/// text.
bool IsPlainText(std::string_view bytes);

/// Whether a tree has an element with both text and children. Text behind a child is the child's in Fast
/// Infoset, by design.
bool HasMixedContent(const KzXmlLib10::CXmlDocument& document);

/// Whether a text that was written has a value that is refused or written otherwise once it was read, by
/// design: a duration of nothing, a decimal that the maximum of places has cut, or a year without its leading
/// zeros.
bool HasUnstableValue(const std::u16string& text);

/// Whether a tree has what text cannot carry back and forth, by design: text that looks like a CDATA section
/// is written as one, namespaces are written as they stand, and line ends in attributes become blanks.
bool HasWhatTextLoses(const KzXmlLib10::CXmlDocument& document);

} // namespace fuzz
