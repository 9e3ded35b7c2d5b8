#pragma once

#include "Format.h"

#include <KzXmlLib10/object/Enumerations.h>

#include <optional>
#include <string>

namespace quillon {

struct ConvertOptions {
    std::string m_input;
    std::string m_output = "-";
    /// What the ending of the output's name says, unless they are given.
    std::optional<Syntax> m_syntax;
    std::optional<KzXmlLib10::CompressionType> m_compression;
    // For text only. Without an encoding it is UTF-8.
    bool m_formatted = false;
    std::optional<KzXmlLib10::XmlEncoding> m_encoding;

    Format OutputFormat() const;
};

struct ShowOptions {
    std::string m_input;
    /// How many levels of elements are shown; 0 for all.
    unsigned m_depth = 0;
    /// Long values are shown whole.
    bool m_full = false;
};

// The commands. They throw FileFailure for files, and the exceptions of the library for documents.

void Convert(const ConvertOptions& options);
void Show(const ShowOptions& options);
void Stat(const std::string& input);

} // namespace quillon
