#pragma once

#include <KzXmlLib10/object/CKzException.h>

#include <filesystem>
#include <functional>
#include <string_view>

/// What the demonstrations print, to standard output in UTF-8.
namespace orders::demo {

void PrintHeading(std::string_view text);
void PrintLine(std::string_view text);
/// The lines of a text file, indented.
void PrintFile(const std::filesystem::path& file);
/// Runs what is expected to fail, and prints the path of messages, a level a line.
void PrintFailure(const std::function<void()>& action);

} // namespace orders::demo
