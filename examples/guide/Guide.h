#pragma once

#include <KzXmlLib10/KzXmlLib10.h>

#include <functional>
#include <string_view>

/// The programs behind the guide in docs/guide. What stands between `// [name]` and `// [/name]` is shown
/// there under that name, and so is what the program prints behind the line `[name]`; a test holds both.
namespace guide {

using namespace KzXmlLib10;

/// Prints the line that names what the following output belongs to.
void Section(std::string_view name);
/// Runs what is expected to fail, and prints the failure.
void ShowFailure(const std::function<void()>& action);
/// Prints a 16-bit text, and a line end if it has none.
void Print(std::u16string_view text);
/// Prints a text file.
void PrintFile(const char* name);

void Reading();
void Writing();
void Checking();
void Content();
void Collections();
void LargeDocuments();
void FastInfoset();
void Values();
void Errors();
void Threads();
void Generators();

} // namespace guide
