#include "Commands.h"
#include "Document.h"
#include "Files.h"
#include "Progress.h"

#include <KzXmlLib10/object/CKzException.h>

#include <cstdint>
#include <iostream>

namespace quillon {

using namespace KzXmlLib10;

namespace {

void Warn(const std::string& input, std::uint64_t count, const char* what) {
    if (count > 0)
        std::cerr << "quillon: " << NameOfInput(input) << ": warning: " << count << ' ' << what << '\n';
}

/// Fast Infoset can hold names and characters that XML forbids, and the text writer passes them on.
void CheckIsXml(const CBinaryData& text) {
    try {
        CXmlDocument().LoadXmlStream(text.GetData(), text.GetLength());
    } catch (const CKzException& failure) {
        throw CKzException(u"The document cannot be written as text", failure);
    }
}

CBinaryData Write(const Document& document, const ConvertOptions& options, Syntax syntax) {
    if (syntax == Syntax::FastInfoset)
        return document.ToFastInfoset();
    const CBinaryData text =
        document.ToText(options.m_formatted, options.m_encoding.value_or(XmlEncoding_UTF8));
    if (document.GetFormat().syntax == Syntax::FastInfoset)
        CheckIsXml(text);
    return text;
}

void WarnOfLosses(const ConvertOptions& options, const Survey& survey, Syntax syntax) {
    Warn(options.m_input, survey.m_mixedElements,
         "element(s) with text among their children; the text now stands in front of them");
    if (syntax == Syntax::Text)
        Warn(options.m_input, survey.m_unstableValues,
             "attribute value(s) with tabs or carriage returns, which do not survive in text");
}

} // namespace

Format ConvertOptions::OutputFormat() const {
    const Format named = FormatOfName(m_output);
    return {m_syntax.value_or(named.syntax), m_compression.value_or(named.compression)};
}

void Convert(const ConvertOptions& options) {
    const Format format = options.OutputFormat();
    std::optional<Progress> progress(std::in_place);
    progress->SetStep("reading " + NameOfInput(options.m_input));
    const Document document(options.m_input);
    progress->SetStep("writing " + Describe(format));
    const std::string bytes = Compressed(Write(document, options, format.syntax), format.compression);
    WriteFile(options.m_output, bytes);
    progress.reset();
    WarnOfLosses(options, document.GetSurvey(), format.syntax);
}

} // namespace quillon
