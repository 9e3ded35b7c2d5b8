#pragma once

#include <KzXmlLib10/values/CBinaryData.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillon {

/// A file or standard stream that could not be read or written; the message names it and says why.
class FileFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// How a file is called in messages: its name, and for "-" that of the standard stream.
std::string NameOfInput(const std::string& file);

/// All bytes of a file, or of standard input for "-". Throws FileFailure.
KzXmlLib10::CBinaryData ReadFile(const std::string& file);

/// Creates or replaces a file, or writes to standard output for "-". Throws FileFailure.
void WriteFile(const std::string& file, std::string_view bytes);

} // namespace quillon
