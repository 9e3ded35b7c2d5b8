// Time and memory that hostile documents and values take, byte by byte.
//
//     hostile_test [--size BYTES] [--bombs 1] [--only NAME]
//
// Each shape is made at the size and at eight times the size (1 MiB unless given), and read in a process of
// its own. --bombs 1 adds a few megabytes of gzip that hold gigabytes.
#include "faults/Report.h"
#include "support/Bytes.h"
#include "support/Model.h"
#include "support/TempDir.h"

#include <KzXmlLib10/KzXmlLib10.h>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace KzXmlLib10;
using namespace kit;

namespace {

faults::Report report;
const CXmlSerializationContext context;

std::string Repeated(std::string_view unit, std::size_t size) {
    std::string all;
    all.reserve(size + unit.size());
    while (all.size() < size)
        all += unit;
    return all;
}

/// Units with a number where the first # stands.
std::string Numbered(std::string_view unit, std::size_t size) {
    const std::size_t at = unit.find('#');
    std::string all;
    for (long i = 0; all.size() < size; ++i)
        all.append(unit.substr(0, at)).append(std::to_string(i)).append(unit.substr(at + 1));
    return all;
}

std::string Wide(std::string_view text, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text)
        bytes.append(bigEndian ? std::string{'\0', c} : std::string{c, '\0'});
    return bytes;
}

using namespace std::string_literals;
using namespace std::string_view_literals;

// Ways into the library

void LoadStream(const std::string& bytes) {
    CXmlDocument().LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

void LoadWide(const std::string& text) { CXmlDocument().LoadXml(FromUtf8(text).c_str()); }

void LoadInBlocks(const std::string& bytes) {
    const support::TempDir directory;
    directory.Write("f", bytes);
    AsyncFromXmlFile(true);
    CXmlDocument().Load(directory.Path16("f").c_str());
}

/// Drops each record, which others stand in front of.
void LoadAndDrop(const std::string& bytes) {
    CXmlDocument([](CXmlElement* element) { return element->GetLocalName() == u"b"; }).LoadXml(bytes.c_str());
}

void CopyGeneric(const std::string& text) {
    CElement element(u"e");
    element.FromXml(FromUtf8(text).c_str());
    element.Clone()->ToXml(false, false, EOLType_LF, context);
    element.ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None);
}

/// Twice into the same object, and out.
void ReadObject(const Model& model, const std::string& text, bool lenient = false) {
    CXmlSerializationContext reading;
    reading.SetIgnoreUnknownElements(lenient);
    const CSmartPtr<CModelObject> object = model.New();
    for (int round = 0; round < 2; ++round)
        object->FromXml(text.c_str(), reading);
    // Great exponents come out as digits.
    if (text.find('E') == text.npos)
        object->ToXml(false, false, EOLType_LF, context);
}

template <class Collection>
void ReadCollection(const std::string& text) {
    Model model(u"r");
    model.Element(new CElementInfoSeqClsCol(u"i", u"", 0, XmlElementType_Element), [] {
        return new Collection(u"i", u"", 0, -1, u"", -1, -1, u"", u"", u"", u"", -1,
                              CWhitespaceUtils::WhitespaceRule_None, nullptr);
    });
    ReadObject(model, text);
}

void ReadObjects(const std::string& text) {
    Model item(u"i"), model(u"r");
    item.Attribute(u"a", Optional, ItemType_i4).Prim(u"v", Opt, ItemType_string);
    model.Collection(u"i", item);
    ReadObject(model, text);
}

void ReadAmongUnknown(const std::string& text) {
    Model model(u"r");
    model.Prim(u"v", Mnd, ItemType_i4).Prim(u"w", Opt, ItemType_i4);
    ReadObject(model, text, true);
}

// Shapes

std::string Root(const std::string& content) { return "<r>" + content + "</r>"; }

std::string Fi(std::string_view head, std::string_view unit, std::size_t size) {
    return "\xE0\0\0\x01\0"s + std::string(head) + Repeated(unit, size);
}

/// A text of a third of the size as a Fast Infoset string whose length stands `offset` below it, and
/// references to it.
std::string FiReferences(std::string_view head, unsigned offset, std::string_view reference,
                         std::size_t size) {
    const std::size_t length = size / 3 - offset;
    std::string bytes = "\xE0\0\0\x01\0"s + std::string(head);
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(length >> shift);
    return bytes + std::string(size / 3, 'x') + Repeated(reference, size - size / 3);
}

std::string Laughs(std::size_t size) {
    std::string document = "<!DOCTYPE r [<!ENTITY e0 '" + Repeated("ha", size / 2) + "'>";
    for (int i = 1; i < 30; ++i) {
        const std::string before = "&e" + std::to_string(i - 1) + ";";
        document += "<!ENTITY e" + std::to_string(i) + " '" + before + before + "'>";
    }
    return document + "]><r>&e29;</r>";
}

std::string EntityChain(std::size_t size) {
    std::string document = "<!DOCTYPE r [<!ENTITY e0 'x'>";
    int i = 1;
    for (; document.size() < size; ++i)
        document += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    return document + "]><r>&e" + std::to_string(i - 1) + ";</r>";
}

std::string Nested(std::string_view start, std::string_view end, std::size_t size) {
    const std::size_t levels = size / (start.size() + end.size());
    return Repeated(start, levels * start.size()) + Repeated(end, levels * end.size());
}

std::string NestedNewNamespaces(std::size_t size) {
    std::string document, ends;
    for (long i = 0; document.size() + ends.size() < size; ++i) {
        document += "<a xmlns='urn:" + std::to_string(i) + "'>";
        ends += "</a>";
    }
    return document + ends;
}

struct Shape {
    const char* name;
    std::function<std::string(std::size_t)> make;
    void (*use)(const std::string& input);
    /// How much memory a byte of it may take.
    enum Memory { plainText, any, digits } memory = plainText;
};
/// Text without a document type and without long namespaces makes 96 bytes at most; anything else up to 1 GiB
/// a MiB, but that the digits which exponents stand for have a limit of their own, Limits::decimalExponent.
constexpr Shape::Memory notPlain = Shape::any, digits = Shape::digits;

const Shape shapes[] = {
    {"deep", [](auto n) { return Nested("<a>", "</a>", n); }, LoadStream},
    {"deep, never closed", [](auto n) { return Repeated("<a>", n); }, LoadStream},
    {"empty elements", [](auto n) { return Root(Repeated("<a/>", n)); }, LoadStream},
    {"empty elements, dropped", [](auto n) { return Root(Repeated("<a/><b/>", n)); }, LoadAndDrop},
    {"one attribute each", [](auto n) { return Root(Repeated("<a b=''/>", n)); }, LoadStream},
    {"attributes of one element", [](auto n) { return "<r" + Numbered(" a#=''", n) + "/>"; }, LoadStream},
    {"text", [](auto n) { return Root(Repeated("x", n)); }, LoadStream},
    {"text in blocks", [](auto n) { return Root(Repeated("x", n)) + "\n"; }, LoadInBlocks},
    {"name", [](auto n) { return "<" + Repeated("x", n) + "/>"; }, LoadStream},
    {"attribute", [](auto n) { return "<r a='" + Repeated("x", n) + "'/>"; }, LoadStream},
    {"attribute in blocks", [](auto n) { return "<r a='" + Repeated("x", n) + "'/> "; }, LoadInBlocks},
    {"comment", [](auto n) { return Root("<!--" + Repeated("x", n) + "-->"); }, LoadStream},
    {"comment in blocks", [](auto n) { return Root("<!--" + Repeated("x", n) + "-->"); }, LoadInBlocks},
    {"instructions", [](auto n) { return Root(Repeated("<?a b?>", n)); }, LoadStream},
    {"CDATA", [](auto n) { return Root("<![CDATA[" + Repeated("x", n) + "]]>"); }, LoadStream},
    {"empty CDATA", [](auto n) { return Root(Repeated("<![CDATA[]]>", n)); }, LoadStream},
    {"references", [](auto n) { return Root(Repeated("&lt;", n)); }, LoadStream},
    {"carriage returns", [](auto n) { return Root(Repeated("&#13;", n)); }, LoadStream},
    {"line ends", [](auto n) { return Root(Repeated("\r\n", n)); }, LoadStream},
    {"text between elements", [](auto n) { return Root(Repeated("x<a/>", n)); }, LoadStream},
    {"UTF-16", [](auto n) { return Wide(Root(Repeated("<a/>", n / 2)), false); }, LoadStream},
    {"UTF-16, big-endian", [](auto n) { return Wide(Root(Repeated("x&lt;", n / 2)), true); }, LoadStream},
    {"wide text", [](auto n) { return Root(Repeated("<a b=''/>", n)); }, LoadWide},
    {"malformed at the end", [](auto n) { return Root(Repeated("<a/>", n)) + "<"; }, LoadStream},
    {"prefixes redeclared", [](auto n) { return Root(Repeated("<p:a xmlns:p='u'/>", n)); }, LoadStream},
    {"namespaces of one element", [](auto n) { return "<r" + Numbered(" xmlns:a#='u'", n) + "/>"; },
     LoadStream},
    {"nested new namespaces", NestedNewNamespaces, LoadStream},
    {"long namespace",
     [](auto n) { return "<r xmlns='" + Repeated("u", n / 2) + "'>" + Repeated("<a/>", n / 2) + "</r>"; },
     LoadStream, notPlain},
    {"laughs", Laughs, LoadStream, notPlain},
    {"long entity, often",
     [](auto n) {
         return "<!DOCTYPE r [<!ENTITY e '" + Repeated("x", n / 2) + "'>]>" + Root(Repeated("&e;", n / 2));
     },
     LoadStream, notPlain},
    {"chain of entities", EntityChain, LoadStream, notPlain},
    {"long default",
     [](auto n) {
         return "<!DOCTYPE r [<!ATTLIST a x CDATA '" + Repeated("x", n / 2) + "'>]>" +
                Root(Repeated("<a/>", n / 2));
     },
     LoadStream, notPlain},
    {"many defaults",
     [](auto n) {
         return "<!DOCTYPE r [<!ATTLIST a" + Numbered(" x# CDATA ''", n / 2) + ">]>" +
                Root(Repeated("<a/>", n / 2));
     },
     LoadStream, notPlain},
    {"gzip", [](auto n) { return support::Compressed(Root(Repeated("<a/>", n)), CompressionType_GZip); },
     [](const std::string& bytes) { LoadStream(bytes); }, notPlain},
    {"zlib", [](auto n) { return support::Compressed(Root(Numbered("<a>#</a>", n)), CompressionType_ZLib); },
     LoadStream, notPlain},

    {"FI elements", [](auto n) { return Fi("\x3C\0r\x3C\0a\xF0"sv, "\x01\xF0"sv, n); }, LoadStream, notPlain},
    {"FI deep", [](auto n) { return Fi("\x3C\0r"sv, "\0"sv, n); }, LoadStream, notPlain},
    {"FI deep, closed",
     [](auto n) { return Fi("\x3C\0r"sv, "\0"sv, n / 3 * 2) + std::string(n / 3 + 2, '\xFF'); }, LoadStream,
     notPlain},
    {"FI chunk again", [](auto n) { return FiReferences("\x3C\0r\x93"sv, 259, "\xA0", n); }, LoadStream,
     notPlain},
    {"FI name again", [](auto n) { return FiReferences("\x3C\x60"sv, 321, "\0"sv, n); }, LoadStream,
     notPlain},
    {"FI value again", [](auto n) { return FiReferences("\x7C\0r\x78\0b\x4C"sv, 265, "\0\x80"sv, n); },
     LoadStream, notPlain},
    {"FI literals", [](auto n) { return Fi("\x3C\0r"sv, "\x3C\0a\xF0"sv, n); }, LoadStream, notPlain},
    {"FI attributes", [](auto n) { return Fi("\x7C\0r\x78\0b\x40x"sv, "\0\x80"sv, n); }, LoadStream,
     notPlain},
    {"FI empty values", [](auto n) { return Fi("\x7C\0r\x78\0b\xFF"sv, "\0\xFF"sv, n); }, LoadStream,
     notPlain},
    {"FI comments", [](auto n) { return Fi("\x3C\0r"sv, "\xE2\x40x"sv, n); }, LoadStream, notPlain},
    {"FI instructions", [](auto n) { return Fi("\x3C\0r"sv, "\xE1\0x\x40x"sv, n); }, LoadStream, notPlain},
    {"FI numbers", [](auto n) { return Fi("\x3C\0r"sv, "\x88\0\x12"sv, n); }, LoadStream, notPlain},

    {"generic, flat", [](auto n) { return Root(Repeated("<a b='c'>d</a>", n)); }, CopyGeneric, notPlain},
    {"generic, namespaces", [](auto n) { return Root(Numbered("<a xmlns='u#'/>", n)); }, CopyGeneric,
     notPlain},
    {"generic, nested namespaces", NestedNewNamespaces, CopyGeneric, notPlain},
    {"objects", [](auto n) { return Root(Repeated("<i a='1'><v>x</v></i>", n)); }, ReadObjects, notPlain},
    {"strings", [](auto n) { return Root(Repeated("<i>x</i>", n)); }, ReadCollection<CstringCol>, notPlain},
    {"integers", [](auto n) { return Root(Numbered("<i>#</i>", n)); }, ReadCollection<Ci4Col>, notPlain},
    {"great decimals", [](auto n) { return Root(Repeated("<i>1E10000</i>", n)); },
     ReadCollection<CdecimalCol>, digits},
    {"one long integer", [](auto n) { return Root("<i>" + Repeated("7", n) + "</i>"); },
     ReadCollection<CintegerCol>, notPlain},
    {"one long fraction", [](auto n) { return Root("<i>0." + Repeated("7000000000", n) + "</i>"); },
     ReadCollection<CdecimalCol>, notPlain},
    {"one long double", [](auto n) { return Root("<i>" + Repeated("7", n) + "</i>"); },
     ReadCollection<Cr8Col>, notPlain},
    {"one long base64", [](auto n) { return Root("<i>" + Repeated("QUJD ", n) + "</i>"); },
     ReadCollection<Cbase64BinaryCol>, notPlain},
    {"unknown elements", [](auto n) { return Root(Repeated("<x/>", n) + "<v>1</v>" + Repeated("<x/>", n)); },
     ReadAmongUnknown, notPlain},
};

struct Measured {
    double seconds = 0;
    double peak = 0;
    char outcome[64] = "died";
};

/// The peak of resident memory since the last call, or 0 where the system does not tell.
double TakePeak() {
    std::ifstream status("/proc/self/status");
    double kibibytes = 0;
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:"))
            kibibytes = std::strtod(line.c_str() + 6, nullptr);
    std::ofstream("/proc/self/clear_refs") << "5";
    return kibibytes * 1024;
}

/// Reads the input in a process of its own, which is ended if it does not end by itself.
Measured Measure(const Shape& shape, std::size_t size) {
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0) {
        const rlimit seconds{120, 120}; // of processor time
        setrlimit(RLIMIT_CPU, &seconds);
        const std::string input = shape.make(size);
        Measured measured;
        TakePeak();
        const double before = TakePeak();
        std::string outcome = "read";
        measured.seconds = faults::Seconds([&] {
            try {
                shape.use(input);
            } catch (const CKzException& failure) {
                outcome = ToUtf8(failure.GetFullMessage());
                outcome.erase(0, outcome.rfind('\n') + 1);
            }
        });
        measured.peak = TakePeak() - before;
        outcome.resize(std::min(outcome.size(), sizeof measured.outcome - 1));
        std::copy_n(outcome.c_str(), outcome.size() + 1, measured.outcome);
        _exit(write(ends[1], &measured, sizeof measured) == sizeof measured ? 0 : 1);
    }
    close(ends[1]);
    Measured measured;
    [[maybe_unused]] const ssize_t got = read(ends[0], &measured, sizeof measured);
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return measured;
}

void MeasureShape(const Shape& shape, std::size_t size) {
    constexpr double mebibyte = 1 << 20, gibibyte = 1 << 30;
    Measured once = Measure(shape, size), eight = Measure(shape, 8 * size);
    for (int again = 0; again < 6 && eight.seconds > 10 * once.seconds; ++again) { // the machine is busy
        once.seconds = std::min(once.seconds, Measure(shape, size).seconds);
        eight.seconds = std::min(eight.seconds, Measure(shape, 8 * size).seconds);
    }
    const double bytes = static_cast<double>(size);
    // An input that no longer fits the caches takes longer a byte, which matters where a byte takes little.
    const double mostTimes = eight.seconds <= 0.4e-6 * 8 * bytes ? 16 : 10;
    const bool ended = std::string_view(once.outcome) != "died" && std::string_view(eight.outcome) != "died";
    const bool inTime = once.seconds <= 2e-6 * bytes && eight.seconds <= 2e-6 * 8 * bytes &&
                        (eight.seconds <= mostTimes * once.seconds || eight.seconds < 0.01);
    // Each process has some memory of its own, whatever it reads.
    const bool inMemory =
        (shape.memory != Shape::plainText || eight.peak <= 96 * 8 * bytes + mebibyte) &&
        (shape.memory == Shape::digits || once.peak <= gibibyte * std::max(1.0, bytes / mebibyte));
    report.Line(ended && ((inTime && inMemory) || !faults::isFast),
                "%-27s %5.0f ns a byte, x8 %5.1f times, %6.1f bytes a byte: %s", shape.name,
                once.seconds / bytes * 1e9, eight.seconds / once.seconds, eight.peak / (8 * bytes),
                eight.outcome);
}

/// Base64 whose bits do not count in 32 bits.
void EncodeHalfGibibyte(const std::string&) {
    const std::size_t length = 1u << 29;
    CBinaryData data(new unsigned char[length](), length, true);
    if (data.GetAsBase64().size() != (length + 2) / 3 * 4)
        throw CKzException(u"the text is cut");
}

void ReportGibibytes(const char* name, const Measured& measured) {
    const std::string_view outcome = measured.outcome;
    report.Line(outcome != "died" && outcome != "the text is cut" && measured.peak <= 4.0 * (1 << 30),
                "%-27s %.1f s, %.2f GiB: %s", name, measured.seconds, measured.peak / (1 << 30),
                measured.outcome);
}

/// A few megabytes of gzip that hold gigabytes.
void MeasureBomb(const char* name, std::string_view unit, int mebibytes) {
    const auto bomb = [=](std::size_t) {
        CBinaryData data;
        const std::string elements = Repeated(unit, 1 << 20);
        for (int i = 0; i < mebibytes; ++i)
            data.Append(reinterpret_cast<const unsigned char*>(elements.data()), elements.size());
        Compress(data, CompressionType_GZip);
        return support::FromBinary(data);
    };
    ReportGibibytes(name, Measure({name, bomb, LoadStream}, 0));
}

// Values of up to 4 KB

struct Value {
    const char* name;
    ItemType type;
    std::string text;
    const char16_t* pattern = u"";
    /// Whether PCRE2 ends it, after 10 million steps of some 20 ns.
    bool takesAllSteps = false;
};

/// Reads, checks and writes a value as an element of an object would.
void MeasureValue(const Value& row) {
    const bool isCalendar = row.type >= ItemType_duration && row.type <= ItemType_time;
    const std::u16string bound = isCalendar ? FromUtf8(row.text) : std::u16string();
    const CPrimitiveRestrictions facets(row.pattern, -1, -1, bound.c_str(), bound.c_str(), u"", u"", -1);
    const double limit = row.takesAllSteps ? 0.4 : *row.pattern ? 0.15 : 0.01;
    double best = 1e9;
    std::string outcome;
    for (int round = 0; round < 3; ++round)
        best = std::min(best, faults::Seconds([&] {
                            outcome = "read";
                            try {
                                KzVariant value;
                                value.FromString(FromUtf8(row.text), row.type,
                                                 CWhitespaceUtils::WhitespaceRule_Collapse);
                                CheckPrimitiveRestrictions(u"e", value, row.type, facets);
                                value.ToString(u"");
                            } catch (const CKzException& failure) {
                                outcome = ToUtf8(failure.GetMessageW()).substr(0, 60);
                            }
                        }));
    report.Line(best <= limit || !faults::isFast, "%-27s %8.3f ms: %s", row.name, best * 1e3,
                outcome.c_str());
}

void MeasureValues() {
    const std::string zeros(4000, '0'), nines(4000, '9');
    const Value rows[] = {
        {"decimal of 4 KB", ItemType_decimal, nines},
        {"fraction of 4 KB", ItemType_decimal, "0." + nines},
        {"zeros of 4 KB", ItemType_decimal, zeros + "." + zeros},
        {"small decimal", ItemType_decimal, "1E-4000"},
        {"great decimal", ItemType_decimal, nines + "E10000"},
        {"too great decimal", ItemType_decimal, "1E999999999"},
        {"small exponent", ItemType_decimal, "1E-999999999999999999999999999999999999"},
        {"integer of 4 KB", ItemType_integer, nines},
        {"great integer", ItemType_integer, nines + "E10000"},
        {"too great integer", ItemType_integer, "1E4294967297"},
        {"double of 4 KB", ItemType_r8, nines + "." + nines},
        {"small double", ItemType_r8, "0." + zeros + "1e4000"},
        {"duration, float carry", ItemType_duration, "P16777215M1D"},
        {"duration, months", ItemType_duration, "P201326593M1D"},
        {"duration, days", ItemType_duration, "P4294967295D"},
        {"duration, minutes", ItemType_duration, "PT2147483648M"},
        {"duration, digits", ItemType_duration, "P" + nines + "Y"},
        {"date, no digits", ItemType_date, "12:"},
        {"date, digits", ItemType_date, nines + "-01-01"},
        {"dateTime, zone", ItemType_datetime, "2001-01-01T00:00:00+99:99"},
        {"base64 of spaces", ItemType_base64Binary, "QQ" + std::string(4000, ' ') + "=="},
        {"hex, odd", ItemType_hexBinary, zeros + "0"},
        {"pattern, nested repeats", ItemType_string, std::string(40, 'a') + "!", u"(a+)+", true},
        {"pattern, 4 KB", ItemType_string, std::string(4000, 'a'), u"(a|b)*"},
        {"pattern, 4 KB, no match", ItemType_string, std::string(4000, 'a') + "c", u"(a|aa)*(b|a)*", true},
    };
    for (const Value& row : rows)
        MeasureValue(row);
}

} // namespace

int main(int argc, char** argv) {
    const auto size = static_cast<std::size_t>(faults::Option(argc, argv, "--size", 1 << 20));
    std::string_view only;
    for (int i = 1; i + 1 < argc; ++i)
        if (argv[i] == "--only"sv)
            only = argv[i + 1];
    Register(10, 1);
    Limits limits; // what is allowed whatever the size of the input goes down with it
    limits.treeTextBytes = std::min<std::uint64_t>(limits.treeTextBytes, 64 * size);
    SetLimits(limits);
    for (const Shape& shape : shapes)
        if (only.empty() || only == shape.name)
            MeasureShape(shape, size);
    if (only.empty())
        MeasureValues();
    if (faults::Option(argc, argv, "--bombs", 0) != 0) {
        ReportGibibytes("half a GiB to base64",
                        Measure({"", [](std::size_t) { return std::string(); }, EncodeHalfGibibyte}, 0));
        MeasureBomb("bomb of elements", "<a/>", 1023);
        MeasureBomb("bomb of text", "x", 1023);
        MeasureBomb("bomb beyond the limit", "x", 1025);
        limits.inflatedBytes = 0xFFFFFFFF;
        SetLimits(limits);
        MeasureBomb("comments beyond 2 GiB", "<!--x-->", 2200);
    }
    return report.ExitCode();
}
