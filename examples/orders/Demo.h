#pragma once

#include <filesystem>

/// The demonstrations. Each reads documents of the folder `samples` and writes into the folder `output`.
namespace orders::demo {

/// Exact amounts, dates, repeated objects and texts, a choice; plain and gzip files.
void ShowOrders(const std::filesystem::path& samples, const std::filesystem::path& output);

/// A nillable element, an abstract type, two namespaces, content that the schema leaves open.
void ShowShipment(const std::filesystem::path& samples, const std::filesystem::path& output);

/// The same orders in the binary form of XML, and what it saves.
void ShowFastInfoset(const std::filesystem::path& samples);

} // namespace orders::demo
