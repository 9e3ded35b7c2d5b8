#pragma once

#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>

#include <cstddef>
#include <functional>
#include <string>

/// Trees as texts that can be compared.
namespace fuzz {

/// All of a tree in document order. Goes through every accessor once, and fails where they disagree.
std::u16string Flat(const KzXmlLib10::CXmlDocument& document);

/// The elements at and below an element.
std::size_t CountElements(const KzXmlLib10::CXmlElement* root);

/// The flat tree after loading, or the full message of the failure.
std::u16string Outcome(KzXmlLib10::CXmlDocument& document, const std::function<void()>& load);

} // namespace fuzz
