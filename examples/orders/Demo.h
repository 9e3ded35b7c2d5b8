#pragma once

#include <filesystem>

/// The demonstrations. Each reads documents of the folder `samples` and writes into the folder `output`.
namespace orders::demo {

/// Single members: a nested object, facets, an enumeration, a nillable element, an abstract type.
void ShowShipment(const std::filesystem::path& samples, const std::filesystem::path& output);

} // namespace orders::demo
