#pragma once

#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/ItemType.h>

/// The names of the library that descriptors are declared with.
namespace KzXmlLib10Data {

using KzXmlLib10::CPrimitiveRestrictions;
using KzXmlLib10::CSmartPtr;
using KzXmlLib10::CWhitespaceUtils;
using KzXmlLib10::CXmlAttribute;
using KzXmlLib10::CXmlCollectionBase;
using KzXmlLib10::CXmlElement;
using KzXmlLib10::CXmlGeneratedClass;
using KzXmlLib10::CXmlObjectBase;
using KzXmlLib10::CXmlSerializationContext;
using KzXmlLib10::CXmlWriter;
using KzXmlLib10::ItemType;
using KzXmlLib10::KzVariant;

/// A generated function that gives the text of an enumerator.
using EnumToString = const char16_t* (*)(int);
/// A generated function that gives the enumerator of a text; what it does with unknown text is its own
/// affair.
using StringToEnum = int (*)(const char16_t*);
/// A generated function that creates an object of a class, which it names by a number, for an element name.
using ClassFactory = CSmartPtr<CXmlObjectBase> (*)(int classId, const char16_t* elementName);
/// A generated function that creates the object to read an element into, or gives null.
using SubstitutionFactory = CSmartPtr<CXmlObjectBase> (*)(CXmlElement* element);

} // namespace KzXmlLib10Data
