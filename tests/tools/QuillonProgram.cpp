// The program `quillon` as a user runs it: arguments and bytes in; bytes, messages and exit code out.

#include "support/Test.h"

#include <sys/wait.h>

namespace {

struct Result {
    int exitCode;
    std::string out, err;
};

class QuillonProgram : public testing::Test {
protected:
    /// Runs a shell command in the folder of the test; the word `quillon` in it is the program.
    Result Shell(const std::string& command, const std::string& input = "") const {
        m_dir.Write("<in", input);
        const std::string folder =
            "cd '" + m_dir.Path("") + "' && quillon() { '" QUILLON_PROGRAM "' \"$@\"; } && ";
        const int status = std::system((folder + "(" + command + ") <'<in' >'<out' 2>'<err'").c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, m_dir.Read("<out"), m_dir.Read("<err")};
    }
    Result Quillon(const std::string& arguments, const std::string& input = "") const {
        return Shell("quillon " + arguments, input);
    }

    const TempDir m_dir;
};

const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

const std::string text = declaration + "<a xmlns:p=\"u\" b=\"1\"><p:c>\xC3\xA4</p:c><d/></a>";

const std::string fastInfoset = "\xE0\x00\x00\x01\x00"           // identification, no optional components
                                "\x78\xCF\x00p\x00u\xF0\x3C\x00" // namespace attribute p = "u"; element
                                "a\x78\x00"
                                "b\x40\x31\xF0" // attribute b = "1"
                                "\x3F\x81\x81\x00"
                                "c\x91\xC3\xA4\xF0" // element p:c, its text, its end
                                "\x3C\x00"
                                "d\xFF\xF0"s; // element d, all ends

TEST_F(QuillonProgram, ConvertsEachFormatIntoEach) {
    m_dir.Write("in.xml", text);
    const std::vector<std::string> forms{"xml", "finf", "xml.gz", "finf.gz", "xml.zz", "fi.zlib"};
    for (const std::string& form : forms)
        ASSERT_EQ(Quillon("convert in.xml direct." + form).err, "");
    EXPECT_EQ(m_dir.Read("direct.xml"), text);
    EXPECT_EQ(m_dir.Read("direct.finf"), fastInfoset);
    EXPECT_EQ(m_dir.Read("direct.xml.gz").substr(0, 2), "\x1F\x8B");
    EXPECT_EQ(m_dir.Read("direct.xml.zz").substr(0, 1), "\x78");
    for (const std::string& from : forms)
        for (const std::string& to : forms) {
            const Result result = Quillon("convert direct." + from + " out." + to);
            EXPECT_EQ(result.exitCode, 0) << result.err;
            EXPECT_EQ(m_dir.Read("out." + to), m_dir.Read("direct." + to)) << from << " to " << to;
        }
}

TEST_F(QuillonProgram, OptionsPrevailOverTheEnding) {
    EXPECT_EQ(Quillon("convert -", text).out, text);
    Shell("quillon convert - out.finf -t text -c gzip && quillon convert out.finf out.xml", fastInfoset);
    EXPECT_EQ(m_dir.Read("out.finf").substr(0, 2), "\x1F\x8B");
    EXPECT_EQ(m_dir.Read("out.xml"), text);
    EXPECT_EQ(Quillon("convert -f out.xml out.xml").exitCode, 0) << "a file may be its own output";
    EXPECT_EQ(m_dir.Read("out.xml"),
              declaration + "<a xmlns:p=\"u\" b=\"1\">\n\t<p:c>\xC3\xA4</p:c>\n\t<d/>\n</a>\n");
    EXPECT_EQ(Shell("quillon convert -e utf-16 -c zlib - | quillon convert -", text).out, text);
    EXPECT_EQ(Quillon("convert -e utf-16 -", "<a/>").out.substr(0, 6), "\xFF\xFE<\0?\0"s);
}

TEST_F(QuillonProgram, KeepsTheNamespaceOfEveryName) {
    const std::array<std::string, 3> rows[] = {
        // the input, the output, the warning
        // the default namespace stays where it can hold for all
        {"<a xmlns='u'><b xmlns:q='v' q:t='q:x'/></a>", "<a xmlns=\"u\" xmlns:q=\"v\"><b q:t=\"q:x\"/></a>",
         ""},
        {"<p:a xmlns:p='u'><b xmlns='v'/></p:a>", "<p:a xmlns=\"v\" xmlns:p=\"u\"><b/></p:a>", ""},
        {"<a xmlns='u'><b xmlns='v'/></a>", "<a xmlns=\"u\" xmlns:ns1=\"v\"><ns1:b/></a>", ""},
        {"<a xmlns='u'><b xmlns=''/></a>", "<ns1:a xmlns:ns1=\"u\"><b/></ns1:a>", ""},
        // the last binding of a prefix is kept, and a prefix made up is none of the document's
        {"<p:a xmlns:p='u'><p:b xmlns:p='v' xmlns:ns1='w'/></p:a>",
         "<a xmlns=\"u\" xmlns:p=\"v\" xmlns:ns1=\"w\"><p:b/></a>", ""},
        {"<a xml:lang='en' xmlns:p='u' xmlns='u' p:x=''/>",
         "<a xmlns=\"u\" xmlns:p=\"u\" xml:lang=\"en\" p:x=\"\"/>", ""},
        // content
        {"<!DOCTYPE a [<!ENTITY e 'f'>]><?i?><a><!--c--> <b>&e;<![CDATA[&]]> </b>\n</a>",
         "<a><b>f&amp; </b></a>", ""},
        {"<a>&lt;![CDATA[x]]&gt;&#10;</a>", "<a>&lt;![CDATA[x]]&gt;\n</a>", ""},
        {"<a>s<b/>t<c/></a>", "<a>st<b/><c/></a>",
         "quillon: standard input: warning: 1 element(s) with text among their children; the text now stands "
         "in front of them\n"},
        {"<a b='&#9;'/>", "<a b=\"\t\"/>",
         "quillon: standard input: warning: 1 attribute value(s) with tabs or carriage returns, which do not "
         "survive in text\n"}};
    for (const auto& [in, out, warning] : rows) {
        const Result direct = Quillon("convert -", in);
        EXPECT_EQ(direct.out, declaration + out);
        EXPECT_EQ(direct.err, warning);
        EXPECT_EQ(Shell("quillon convert -t fast-infoset - | quillon convert -", in).out, direct.out);
    }
}

TEST_F(QuillonProgram, ShowsAndCounts) {
    m_dir.Write("in.xml", "<a xmlns='u' b='q\"\\'><c xmlns:p='v'>x&#x9B;</c><p:d xmlns:p='v' e=''><f>" +
                              std::string(71, '-') + "\xF0\x9F\x98\x80</f></p:d></a>");
    const std::string shown = R"(xmlns = "u"
xmlns:p = "v"
a
  @b = "q\"\\"
  c = "x\u009B"
  p:d
    @e = ""
)";
    EXPECT_EQ(Quillon("show in.xml").out,
              shown + "    f = \"" + std::string(71, '-') + "\"... (73 characters)\n");
    EXPECT_EQ(Quillon("show --depth 2 in.xml").out, shown + "    ...\n");
    EXPECT_NE(Quillon("show --full in.xml").out.find(std::string(71, '-') + "\xF0\x9F\x98\x80\"\n"),
              std::string::npos);

    const std::string stat = Shell("quillon convert -t fast-infoset -c gzip - | quillon stat -", text).out;
    EXPECT_TRUE(stat.starts_with("format      Fast Infoset under gzip\nbytes       ")) << stat;
    for (const char* line :
         {"elements    3", "attributes  1", "depth       2", "characters  2", "namespaces  1",
          "text                  81  ", "formatted             87  ", "FastInfoset           35  "})
        EXPECT_NE(stat.find("\n"s + line), std::string::npos) << line << " in\n" << stat;
}

TEST_F(QuillonProgram, TellsWhatFailedByMessageAndExitCode) {
    m_dir.Write("cut.gz", Quillon("convert -c gzip -", text).out.substr(0, 60));
    const std::tuple<std::string, std::string, int, std::string> rows[] = {
        {"quillon convert -", "<a>\n<b></a>", 1, "quillon: standard input: mismatched tag at line 2\n"},
        {"quillon show -", "\xE0\x00\x00\x01\x00\xF0"s, 1,
         "quillon: standard input: Invalid or empty XML document\n"},
        {"quillon convert -", "\xE0\x00\x00\x01\x00\x3C\x00\x01\xFF"s, 1,
         "quillon: standard input: The document cannot be written as text\nnot well-formed (invalid token) "
         "at line 2\n"},
        {"quillon convert -", "<a xmlns='&lt;'/>", 1,
         "quillon: standard input: The namespace [<] cannot be written as text\n"},
        {"quillon convert none.xml", "", 3, "quillon: none.xml: No such file or directory\n"},
        {"quillon convert - none/out.xml", "<a/>", 3, "quillon: none/out.xml: No such file or directory\n"},
        {"quillon show - >/dev/full", "<a/>", 3, "quillon: standard output: No space left on device\n"},
        {"quillon stat -", m_dir.Read("cut.gz"), 1,
         "quillon: standard input: The compressed stream is damaged or ends too early\n"},
        {"quillon", "", 2, "quillon: A subcommand is required\nRun with --help for more information.\n"},
        {"quillon convert - --to finf", "<a/>", 2,
         "quillon: --to: there is no finf\nRun with --help for more information.\n"},
        {"quillon convert - out.finf -f", "<a/>", 2,
         "quillon: --formatted and --encoding are for text only\nRun with --help for more information.\n"}};
    for (const auto& [command, input, exitCode, err] : rows) {
        const Result result = Shell(command, input);
        EXPECT_EQ(result.exitCode, exitCode) << command;
        EXPECT_EQ(result.out, "") << command;
        EXPECT_EQ(result.err, err);
    }
    EXPECT_FALSE(std::filesystem::exists(m_dir.Path("out.finf")));
    EXPECT_EQ(Quillon("--version").out, "quillon 10.1.0\n");
    EXPECT_EQ(Quillon("convert --help").exitCode, 0);
}

} // namespace
