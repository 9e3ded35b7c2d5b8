// Time and memory that hostile documents and values take, byte by byte.
//
//     hostile_test [--size BYTES] [--bombs 1] [--only NAME]
//
// Each shape is made at the size and at eight times the size (1 MiB unless given), and read in a process of
// its own. --bombs 1 adds a few megabytes of gzip that hold gigabytes.
#include "faults/Report.h"
#include "support/Test.h"

#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace kit;
namespace {

faults::Report report;
const CXmlSerializationContext context;

// Ways into the library

void LoadStream(const std::string& bytes) {
    CXmlDocument document;
    LoadBytes(document, bytes);
}

/// In too little for a length of 32 bits that a document only claims.
void LoadInLittleMemory(const std::string& bytes) {
    const rlimit memory{1 << 30, 1 << 30};
    if (!faults::isSanitized)
        setrlimit(RLIMIT_AS, &memory);
    LoadStream(bytes);
}

void LoadWide(const std::string& text) { CXmlDocument().LoadXml(FromUtf8(text).c_str()); }

void LoadInBlocks(const std::string& bytes) {
    const TempDir directory;
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
void ReadObject(const Model& model, const std::string& text, const CXmlSerializationContext& reading = {}) {
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
    model.Element(new CElementInfoSeqClsCol(u"i", u"", 0, XmlElementType_Element),
                  [] { return new auto(support::Make<Collection>()); });
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
    ReadObject(model, text, With(&CXmlSerializationContext::SetIgnoreUnknownElements));
}

// Shapes

using Maker = std::function<std::string(std::size_t size)>;

/// So many bytes of a unit, with a new number in each where ~ stands.
std::string Filled(std::string_view unit, std::size_t size) {
    const std::size_t at = unit.find('~');
    std::string all;
    all.reserve(size + unit.size());
    for (long i = 0; all.size() < size; ++i)
        if (at == unit.npos)
            all += unit;
        else
            all.append(unit, 0, at).append(std::to_string(i)).append(unit, at + 1);
    return all;
}

Maker Around(const std::string& start, const std::string& unit, const std::string& end) {
    return [=](std::size_t n) { return start + Filled(unit, n) + end; };
}
Maker Root(const std::string& unit) { return Around("<r>", unit, "</r>"); }
Maker Item(const std::string& unit) { return Around("<r><i>", unit, "</i></r>"); }

/// One half of the size from each unit.
Maker Halves(const std::string& start, const std::string& unit, const std::string& middle,
             const std::string& other, const std::string& end) {
    return [=](std::size_t n) { return start + Filled(unit, n / 2) + middle + Filled(other, n / 2) + end; };
}

Maker BigEndian(const std::string& unit) {
    return [=](std::size_t n) {
        std::string bytes = "\xFE\xFF";
        for (const char c : Root(unit)(n / 2))
            bytes += {'\0', c};
        return bytes;
    };
}

Maker Packed(const std::string& unit, CompressionType type) {
    return [=](std::size_t n) { return Compressed(Root(unit)(n), type); };
}

Maker Fi(const std::string& head, const std::string& unit) {
    return Around("\xE0\0\0\x01\0"s + head, unit, "");
}

/// A text of a third of the size as a Fast Infoset string whose length stands `offset` below it, and
/// references to it.
Maker FiReferences(const std::string& head, unsigned offset, const std::string& reference) {
    return [=](std::size_t size) {
        std::string bytes = "\xE0\0\0\x01\0"s + head;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>((size / 3 - offset) >> shift);
        return bytes + std::string(size / 3, 'x') + Filled(reference, size - size / 3);
    };
}

/// Entities that each consist of `pattern`, in which ~ is the entity before; the root has the last.
std::string Entities(const std::string& first, const std::string& pattern, std::size_t size, int most) {
    std::string document = "<!DOCTYPE r [<!ENTITY e0 '" + first + "'>", last = "&e0;";
    for (int i = 1; document.size() < size || i < most; ++i) {
        document += "<!ENTITY e" + std::to_string(i) + " '";
        for (const char c : pattern)
            document += c == '~' ? last : std::string(1, c);
        document += "'>";
        last = "&e" + std::to_string(i) + ";";
    }
    return document + "]><r>" + last + "</r>";
}

std::string Nested(std::size_t size) { return Repeat("<a>"s, size / 7) + Repeat("</a>"s, size / 7); }

std::string NestedNewNamespaces(std::size_t size) {
    std::string document;
    std::size_t levels = 0;
    for (; document.size() + 4 * levels < size; ++levels)
        document += "<a xmlns='urn:" + std::to_string(levels) + "'>";
    return document + Repeat("</a>"s, levels);
}

/// How many bytes of memory a byte may take. Text without a document type and without long namespaces makes
/// 96 at most; anything else up to 1 GiB a MiB, but that the digits which exponents stand for have a limit of
/// their own, Limits::decimalExponent.
constexpr double plainText = 96, any = 1024, digits = 2048;

struct Shape {
    const char* name;
    Maker make;
    double most = plainText;
    void (*use)(const std::string& input) = LoadStream;
};

const std::string doctype = "<!DOCTYPE r [<!";

const Shape shapes[] = {
    {"deep", Nested},
    {"deep, unclosed", Around("", "<a>", "")},
    {"empty elements", Root("<a/>")},
    {"empty elements, dropped", Root("<a/><b/>"), plainText, LoadAndDrop},
    {"one attribute each", Root("<a b=''/>")},
    {"attributes of one element", Around("<r", " a~=''", "/>")},
    {"text", Root("x")},
    {"name", Around("<", "x", "/>")},
    {"attribute", Around("<r a='", "x", "'/>")},
    {"attribute in blocks", Around("<r a='", "x", "'/> "), plainText, LoadInBlocks},
    {"comment", Around("<r><!--", "x", "--></r>")},
    {"CDATA", Around("<r><![CDATA[", "x", "]]></r>")},
    {"empty CDATA", Root("<![CDATA[]]>")},
    {"references", Root("&lt;")},
    {"carriage returns", Root("&#13;")},
    {"text between elements", Root("x<a/>")},
    {"UTF-16, big-endian", BigEndian("x&lt;")},
    {"wide text", Root("<a b=''/>"), plainText, LoadWide},
    {"malformed at the end", Around("<r>", "<a/>", "</r><")},
    {"prefixes redeclared", Root("<p:a xmlns:p='u'/>")},
    {"namespaces of one element", Around("<r", " xmlns:a~='u'", "/>")},
    {"nested new namespaces", NestedNewNamespaces},
    {"long namespace", Halves("<r xmlns='", "u", "'>", "<a/>", "</r>"), any},
    {"laughs", [](auto n) { return Entities(Filled("ha", n / 2), "~~", 0, 30); }, any},
    {"long entity, often", Halves(doctype + "ENTITY e '", "x", "'>]><r>", "&e;", "</r>"), any},
    {"chain of entities", [](auto n) { return Entities("x", "~", n, 0); }, any},
    {"long default", Halves(doctype + "ATTLIST a x CDATA '", "x", "'>]><r>", "<a/>", "</r>"), any},
    {"many defaults", Halves(doctype + "ATTLIST a", " x~ CDATA ''", ">]><r>", "<a/>", "</r>"), any},
    {"gzip", Packed("<a/>", CompressionType_GZip), any},
    {"zlib", Packed("<a/>", CompressionType_ZLib), any},

    {"FI elements", Fi("\x3C\0r\x3C\0a\xF0"s, "\x01\xF0"), any},
    {"FI deep", Fi("\x3C\0r"s, "\0"s), any},
    {"FI chunk again", FiReferences("\x3C\0r\x93"s, 259, "\xA0"), any},
    {"FI name again", FiReferences("\x3C\x60", 321, "\0"s), any},
    {"FI value again", FiReferences("\x7C\0r\x78\0b\x4C"s, 265, "\0\x80"s), any},
    {"FI literals", Fi("\x3C\0r"s, "\x3C\0a\xF0"s), any},
    {"FI attributes", Fi("\x7C\0r\x78\0b\x40x"s, "\0\x80"s), any},
    {"FI comments", Fi("\x3C\0r"s, "\xE2\x40x"), any},
    {"FI instructions", Fi("\x3C\0r"s, "\xE1\0x\x40x"s), any},
    {"FI empty strings", Fi("\x7C\0r\x78\0b\xFF"s, "\0\xFF"s), any},
    {"FI end marks", Halves("\xE0\0\0\x01\0\x3C\0r"s, "\0"s, "", "\xF0", "\xF0"), any},
    {"FI length that is not there", Around("\xE0\0\0\x01\0\x3C\0r"s, "\xE2\x40x", "\x93\xFF\xFF\xFF\xFF"),
     any, LoadInLittleMemory},
    {"FI numbers", Fi("\x3C\0r"s, "\x88\0\x12"s), any},

    {"generic, flat", Root("<a b='c'>d</a>"), any, CopyGeneric},
    {"generic, nested namespaces", NestedNewNamespaces, any, CopyGeneric},
    {"objects", Root("<i a='1'><v>x</v></i>"), any, ReadObjects},
    {"strings", Root("<i>x</i>"), any, ReadCollection<CstringCol>},
    {"great decimals", Root("<i>1E10000</i>"), digits, ReadCollection<CdecimalCol>},
    {"one long integer", Item("7"), any, ReadCollection<CintegerCol>},
    {"one long fraction", Around("<r><i>0.", "7000000000", "</i></r>"), any, ReadCollection<CdecimalCol>},
    {"one long double", Item("7"), any, ReadCollection<Cr8Col>},
    {"one long base64", Item("QUJD "), any, ReadCollection<Cbase64BinaryCol>},
    {"one long odd hex", Item("ABC"), any, ReadCollection<ChexBinaryCol>},
    {"unknown elements", Halves("<r>", "<x/>", "<v>1</v>", "<x/>", "</r>"), any, ReadAmongUnknown},
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
    static auto* const shared = static_cast<Measured*>(
        mmap(nullptr, sizeof(Measured), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    *shared = Measured();
    const pid_t child = fork();
    if (child == 0) {
        const rlimit seconds{120, 120}; // of processor time
        setrlimit(RLIMIT_CPU, &seconds);
        const std::string input = shape.make(size);
        TakePeak();
        const double before = TakePeak();
        std::string outcome;
        shared->seconds = Seconds([&] {
            outcome = Outcome([&] {
                shape.use(input);
                return "read"s;
            });
        });
        shared->peak = TakePeak() - before;
        outcome.erase(0, outcome.rfind('\n') + 1);
        shared->outcome[outcome.copy(shared->outcome, sizeof shared->outcome - 1)] = '\0';
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    return *shared;
}

void MeasureShape(const Shape& shape, std::size_t size) {
    constexpr double mebibyte = 1 << 20;
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
    // Each process has some memory of its own, whatever it reads, which counts where the bound is narrow.
    const double own = shape.most == plainText ? mebibyte : 0;
    const bool inMemory = once.peak <= shape.most * std::max(bytes, mebibyte) + own &&
                          eight.peak <= shape.most * std::max(8 * bytes, mebibyte) + own;
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

void ReportGibibytes(const char* name, const Measured& measured, std::string_view expected) {
    report.Line(std::string_view(measured.outcome).starts_with(expected) && measured.peak <= 4.0 * (1 << 30),
                "%-27s %.1f s, %.2f GiB: %s", name, measured.seconds, measured.peak / (1 << 30),
                measured.outcome);
}

/// A megabyte of gzip, or a few, that hold up to gigabytes.
void MeasureBomb(const char* name, std::string_view head, std::string_view unit, int mebibytes,
                 std::string_view expected) {
    const auto bomb = [=](std::size_t) {
        CBinaryData data = ToBinary(std::string(head));
        const std::string elements = Filled(unit, 1 << 20);
        for (int i = 0; i < mebibytes; ++i)
            data.Append(reinterpret_cast<const unsigned char*>(elements.data()), elements.size());
        Compress(data, CompressionType_GZip);
        return FromBinary(data);
    };
    ReportGibibytes(name, Measure({name, bomb}, 0), expected);
}

// Values of up to 4 KB

struct Value {
    const char* name;
    ItemType type;
    std::string text;
    const char16_t* pattern = u"";
    double limit = 0.01;
};

/// Reads, checks and writes a value as an element of an object would.
void MeasureValue(const Value& row) {
    const bool isCalendar = row.type >= ItemType_duration && row.type <= ItemType_time;
    const std::u16string bound = isCalendar ? FromUtf8(row.text) : std::u16string();
    const CPrimitiveRestrictions facets = Facets(row.pattern, -1, -1, bound.c_str(), bound.c_str());
    double best = 1e9;
    std::string outcome;
    for (int round = 0; round < 3; ++round)
        best = std::min(best, Seconds([&] {
                            outcome = Outcome([&] {
                                KzVariant value;
                                value.FromString(FromUtf8(row.text), row.type,
                                                 CWhitespaceUtils::WhitespaceRule_Collapse);
                                CheckPrimitiveRestrictions(u"e", value, row.type, facets);
                                value.ToString(u"");
                                return "read"s;
                            });
                        }));
    report.Line(best <= row.limit || !faults::isFast, "%-27s %8.3f ms: %.60s", row.name, best * 1e3,
                outcome.c_str());
}

void MeasureValues() {
    const std::string zeros(4000, '0'), nines(4000, '9');
    constexpr double pattern = 0.15, allSteps = 0.4; // PCRE2 ends it, after 10 million steps of some 20 ns
    const Value rows[] = {
        {"decimal of 4 KB", ItemType_decimal, nines},
        {"fraction of 4 KB", ItemType_decimal, "0." + nines},
        {"great decimal", ItemType_decimal, nines + "E10000"},
        {"too great decimal", ItemType_decimal, "1E999999999"},
        {"small decimal", ItemType_decimal, "1E-4000"},
        {"integer of 4 KB", ItemType_integer, nines},
        {"double of 4 KB", ItemType_r8, nines + "." + nines},
        {"small double", ItemType_r8, "0." + zeros + "1e4000"},
        {"duration, float carry", ItemType_duration, "P16777215M1D"},
        {"duration, days", ItemType_duration, "P4294967295D"},
        {"duration, minutes", ItemType_duration, "PT2147483648M"},
        {"duration, digits", ItemType_duration, "P" + nines + "Y"},
        {"date, digits", ItemType_date, nines + "-01-01"},
        {"base64 of spaces", ItemType_base64Binary, "QQ" + std::string(4000, ' ') + "=="},
        {"pattern, nested repeats", ItemType_string, std::string(40, 'a') + "!", u"(a+)+", allSteps},
        {"pattern, 4 KB", ItemType_string, std::string(4000, 'a'), u"(a|b)*", pattern},
        {"pattern, 4 KB, no match", ItemType_string, std::string(4000, 'a') + "c", u"(a|aa)*(b|a)*",
         allSteps},
    };
    for (const Value& row : rows)
        MeasureValue(row);
}

} // namespace

int main(int argc, char** argv) {
    const std::size_t size = std::strtoul(faults::Option(argc, argv, "--size", "1048576"), nullptr, 10);
    const std::string_view only = faults::Option(argc, argv, "--only", "");
    Register(10, 1);
    Limits limits; // what is allowed whatever the size of the input goes down with it
    limits.treeTextBytes = std::min<std::uint64_t>(limits.treeTextBytes, 64 * size);
    SetLimits(limits);
    for (const Shape& shape : shapes)
        if (only.empty() || only == shape.name)
            MeasureShape(shape, size);
    if (only.empty())
        MeasureValues();
    if (faults::Option(argc, argv, "--bombs", "0") != "0"s) {
        ReportGibibytes("half a GiB to base64",
                        Measure({"", [](std::size_t) { return ""s; }, any, EncodeHalfGibibyte}, 0), "read");
        const char tree[] = "The tree of the document comes to more than ";
        MeasureBomb("bomb of elements", "<r>", "<a/>", 205, tree);
        MeasureBomb("bomb of text", "<r>", "x", 1023, "no element found at line 1");
        MeasureBomb("bomb beyond the limit", "<r>", "x", 1025,
                    "The content of the compressed stream is larger");
        limits.inflatedBytes = 0xFFFFFFFF;
        SetLimits(limits);
        MeasureBomb("comments beyond 2 GiB", "", "<!--x-->", 2200, "no element found at line 1");
        MeasureBomb("lines beyond 2^31", "", "\n", 2200, "no element found at line 2147483647");
    }
    return report.ExitCode();
}
