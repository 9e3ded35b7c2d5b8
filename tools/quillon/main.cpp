// The command line of `quillon`: what it takes, and what the program ends with.

#include "Commands.h"
#include "Files.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/Register.h>

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>
#include <new>
#include <optional>
#include <sstream>
#include <string>

namespace quillon {

namespace {

using namespace KzXmlLib10;

enum ExitCode { Done = 0, BadDocument = 1, BadUsage = 2, BadFile = 3 };

constexpr char description[] =
    "Converts and shows XML documents: text and Fast Infoset, plain or under gzip or zlib.";

constexpr char footer[] = R"(Inputs are recognised by their content; "-" stands for standard input or output.

Kept: elements, attributes, texts, namespaces and the prefixes declared for them.
Dropped: comments, processing instructions, the document type (its entities and
default attributes are filled in), CDATA marks, white space beside child elements.
Moved: text among child elements comes in front of them, namespaces are declared
at the root. What a document holds of the former is told by a warning.

Exit codes: 0 done; 1 bad document; 2 bad usage; 3 failure of a file or of memory.)";

constexpr char convertFooter[] =
    R"(Without --to and --compress the ending of OUT decides: .finf and .fi are Fast
Infoset, all others text; .gz behind it means gzip, .zz and .zlib mean zlib.)";

/// An option that takes one of a few words.
template <class Value>
void AddChoice(CLI::App* command, const std::string& names, std::optional<Value>& value,
               const std::string& help, std::map<std::string, Value> words) {
    command
        ->add_option_function<std::string>(
            names, [&value, words](const std::string& word) { value = words.at(word); }, help)
        ->check([words](const std::string& word) {
            return words.contains(word) ? std::string() : "there is no " + word;
        })
        ->type_name("WORD");
}

CLI::App* AddConvert(CLI::App& app, ConvertOptions& options) {
    CLI::App* command = app.add_subcommand("convert", "Writes a document in another format");
    command->footer(convertFooter);
    command->add_option("IN", options.m_input, "The document to read")->required();
    command->add_option("OUT", options.m_output, "The file to write, standard output if not given");
    AddChoice(command, "-t,--to", options.m_syntax, "What to write: text or fast-infoset",
              {{"text", Syntax::Text}, {"fast-infoset", Syntax::FastInfoset}});
    AddChoice(
        command, "-c,--compress", options.m_compression, "What to compress it with: none, gzip or zlib",
        {{"none", CompressionType_None}, {"gzip", CompressionType_GZip}, {"zlib", CompressionType_ZLib}});
    command->add_flag("-f,--formatted", options.m_formatted, "Text: each element on a line of its own");
    AddChoice(command, "-e,--encoding", options.m_encoding, "Text: utf-8, unless told otherwise, or utf-16",
              {{"utf-8", XmlEncoding_UTF8}, {"utf-16", XmlEncoding_UTF16}});
    command->final_callback([&options] { // before the command runs
        if (options.OutputFormat().syntax == Syntax::FastInfoset &&
            (options.m_formatted || options.m_encoding))
            throw CLI::ValidationError("--formatted and --encoding are for text only");
    });
    return command;
}

CLI::App* AddShow(CLI::App& app, ShowOptions& options) {
    CLI::App* command = app.add_subcommand("show", "Prints the tree of a document, a line for each element");
    command->add_option("IN", options.m_input, "The document to read")->required();
    command->add_option("-d,--depth", options.m_depth, "Show no more than this many levels");
    command->add_flag("--full", options.m_full, "Show long values whole");
    return command;
}

void AddStat(CLI::App& app, std::string& input) {
    CLI::App* command =
        app.add_subcommand("stat", "Prints what a document holds, and its size in each format");
    command->add_option("IN", input, "The document to read")->required();
}

/// Runs a command on an input and tells of its failure.
template <class Command>
ExitCode Run(const std::string& input, Command command) {
    try {
        command();
        return Done;
    } catch (const FileFailure& failure) {
        std::cerr << "quillon: " << failure.what() << '\n';
        return BadFile;
    } catch (const CKzException& failure) {
        std::cerr << "quillon: " << NameOfInput(input) << ": " << failure << '\n';
        return BadDocument;
    } catch (const std::bad_alloc&) {
        std::cerr << "quillon: " << NameOfInput(input) << ": out of memory\n";
        return BadFile;
    }
}

/// Tells of a bad command line or, on standard output, what --help and --version ask for.
ExitCode Explain(const CLI::App& app, const CLI::ParseError& answer) {
    std::ostringstream text;
    if (app.exit(answer, text, text) != 0) {
        std::cerr << "quillon: " << text.str();
        return BadUsage;
    }
    return Run("", [&] { WriteFile("-", text.str()); });
}

int Main(int argc, char** argv) {
    Register(10, 1);
    CLI::App app(description, "quillon");
    app.set_version_flag("--version", "quillon " QUILLON_VERSION);
    app.footer(footer);
    app.require_subcommand(0, 1); // so that an unknown one is told by its name
    ConvertOptions convert;
    ShowOptions show;
    std::string stat;
    const CLI::App* const converts = AddConvert(app, convert);
    const CLI::App* const shows = AddShow(app, show);
    AddStat(app, stat);
    try {
        app.parse(argc, argv);
        if (app.get_subcommands().empty())
            throw CLI::RequiredError("A subcommand");
    } catch (const CLI::ParseError& answer) {
        return Explain(app, answer);
    }
    if (converts->parsed())
        return Run(convert.m_input, [&] { Convert(convert); });
    if (shows->parsed())
        return Run(show.m_input, [&] { Show(show); });
    return Run(stat, [&] { Stat(stat); });
}

} // namespace

} // namespace quillon

int main(int argc, char** argv) { return quillon::Main(argc, argv); }
