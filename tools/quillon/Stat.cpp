#include "Commands.h"
#include "Document.h"
#include "Files.h"
#include "Progress.h"

#include <iomanip>
#include <sstream>

namespace quillon {

using namespace KzXmlLib10;

namespace {

/// The sizes of one form of the document, plain and compressed.
void PrintSizes(std::ostream& out, const char* name, const CBinaryData& bytes) {
    out << std::left << std::setw(12) << name << std::right;
    for (const CompressionType type : {CompressionType_None, CompressionType_GZip, CompressionType_ZLib})
        out << std::setw(12) << Compressed(bytes, type).size();
    out << '\n';
}

void PrintCounts(std::ostream& out, const Document& document) {
    const Survey& survey = document.GetSurvey();
    std::set<std::u16string> namespaces = survey.m_elementNamespaces;
    namespaces.insert(survey.m_attributeNamespaces.begin(), survey.m_attributeNamespaces.end());
    namespaces.erase(u"");
    out << "format      " << Describe(document.GetFormat()) << "\nbytes       " << document.GetSize()
        << "\nelements    " << survey.m_elements << "\nattributes  " << survey.m_attributes
        << "\ndepth       " << survey.m_depth << "\ncharacters  " << survey.m_textLength << "\nnamespaces  "
        << namespaces.size() << "\n\n";
}

} // namespace

void Stat(const std::string& input) {
    std::optional<Progress> progress(std::in_place);
    progress->SetStep("reading " + NameOfInput(input));
    const Document document(input);
    std::ostringstream out;
    PrintCounts(out, document);
    progress->SetStep("writing each format");
    out << std::setw(24) << "plain" << std::setw(12) << "gzip" << std::setw(12) << "zlib" << '\n';
    PrintSizes(out, "text", document.ToText(false, XmlEncoding_UTF8));
    PrintSizes(out, "formatted", document.ToText(true, XmlEncoding_UTF8));
    PrintSizes(out, "FastInfoset", document.ToFastInfoset());
    progress.reset();
    WriteFile("-", out.str());
}

} // namespace quillon
