#include "support/FileTest.h"

namespace {

/// `<r xmlns="urn:r"><n>7</n></r>`, as the class of a global element.
class CRecord : public kit::CModelObject {
public:
    CRecord() : CModelObject(Described(), u"r") {
        if (onCreate)
            onCreate();
        ++live;
    }
    ~CRecord() override { --live; }

    std::string N() const { return ToUtf8(Text(0)); }

    static inline int live = 0;
    static inline std::function<void()> onCreate;

private:
    static const kit::Model& Described() {
        static kit::Model model(u"r", KzXmlLib10Data::XmlElementGroupType_Sequence,
                                KzXmlLib10Data::XmlElementType_Element, u"urn:r");
        static const kit::Model& whole = model.Prim(u"n", kit::Mnd, ItemType_i4);
        return whole;
    }
};

/// The class of a type, which bears the name of any element.
struct CTypeRecord : CRecord {
    explicit CTypeRecord(const char16_t* name) { SetElementName(name); }
};

static_assert(std::ranges::input_range<Records<CRecord>> && !std::ranges::forward_range<Records<CRecord>>);
static_assert(!std::constructible_from<RecordSource, const char*> &&
              !std::constructible_from<RecordSource, std::string> &&
              !std::constructible_from<RecordSource, std::vector<std::byte>> &&
              std::convertible_to<const std::vector<std::byte>&, RecordSource>); // what WriteBytes gives

const std::string prefix = "<all xmlns='urn:r' xmlns:o='urn:other'>";

/// A document of records with these numbers, each on a line of its own.
std::string Document(std::initializer_list<const char*> numbers) {
    std::string text = prefix + '\n';
    for (const char* number : numbers)
        text += "<r><n>"s + number + "</n></r>\n";
    return text + "</all>";
}

/// The numbers in all records and what is thrown in between, each with the number of the record.
template <class T = CRecord>
std::string Seen(const RecordSource& source, const CXmlSerializationContext& context = {},
                 const RecordOptions& options = {}) {
    std::string seen;
    Records<T> all = records<T>(source, context, options);
    bool isOver = false;
    while (!isOver) {
        seen += Failure<CKzValidationException>([&] {
            for (T& record : all)
                seen += std::to_string(all.GetNumber()) + ":" + record.N() + " ";
            isOver = true;
        });
    }
    return seen.substr(0, seen.rfind("no failure"));
}

class RecordsTest : public FileTest {
protected:
    ~RecordsTest() override {
        CRecord::onCreate = nullptr;
        EXPECT_EQ(CRecord::live, 0);
    }
};

TEST_F(RecordsTest, EverySourceAndFormatGivesTheSameRecords) {
    // Neither the records of another namespace nor those further down count, nor does what else there is.
    const std::string document = prefix + "<head><r><n>0</n></r></head>text<r><n>1</n></r><o:r/><!-- -->\n"
                                          "<r><n>2</n></r><q/><r xmlns='urn:r'><n>3</n></r></all>";
    const std::string expected = "1:1 2:2 3:3 ";
    const std::string utf16(reinterpret_cast<const char*>(FromUtf8("\xEF\xBB\xBF" + document).data()),
                            2 * document.size() + 2);
    const ScriptedObject object(
        "<{urn:r}all <{urn:r}head <{urn:r}r > > <{urn:r}r <{urn:r}n '1 > > <{urn:o}r > "
        "<{urn:r}r <{urn:r}n '2 > > <{urn:r}r <{urn:r}n '3 > > >");
    const std::string binary = FromBinary(object.Written());
    const std::string padded = document + std::string(500, '\n'); // or it would not shrink
    for (const std::string& bytes : {document, utf16, binary, Compressed(padded, CompressionType_GZip),
                                     Compressed(padded, CompressionType_ZLib)}) {
        m_dir.Write("file", bytes);
        std::istringstream stream(bytes);
        stream.exceptions(std::ios::failbit | std::ios::eofbit); // the end is no failure
        EXPECT_EQ(Seen(bytes), expected);
        EXPECT_EQ(Seen(std::as_bytes(std::span(bytes))), expected);
        EXPECT_EQ(Seen(stream), expected);
        EXPECT_EQ(Seen(std::filesystem::path(m_dir.Path("file"))), expected);
    }
}

TEST_F(RecordsTest, OptionsNameTheRecords) {
    const std::string document = prefix + "<r><n>1</n></r><s><n>2</n></s><o:s><n>3</n></o:s></all>";
    const auto ignoring = With(&CXmlSerializationContext::SetIgnoreNamespaces);
    EXPECT_EQ(Seen(document), "1:1 ");
    EXPECT_EQ(Seen<CTypeRecord>(document, {}, {.name = u"s"}), "1:2 ");
    EXPECT_EQ(Seen<CTypeRecord>(document, ignoring, {.name = u"s"}), "1:2 2:3 ");
    EXPECT_EQ(Seen(document, {}, {.name = u"s", .namespaceUri = u"urn:other"}), "1:3 ");
    EXPECT_EQ(InvalidParam([&] { records<CTypeRecord>(document); }),
              "The class stands for a type; the records need the name of their element");
}

TEST_F(RecordsTest, AFaultyRecordLeavesTheOthers) {
    const std::string document = Document({"1", "2", "x", "4", "y", "6"});
    const std::string third =
        "Failed to process the record 3\nFailed to process the element [r]\nThe value [x] "
        "can not be converted to a i4";
    EXPECT_EQ(Seen(document),
              "1:1 2:2 " + third +
                  "4:4 Failed to process the record 5\nFailed to process the "
                  "element [r]\nThe value [y] can not be converted to a i46:6 "); // onFault: in the guide
}

TEST_F(RecordsTest, RecordsComeBeforeTheFaultBehindThem) {
    const auto seen = [](const RecordSource& source) {
        std::string numbers;
        Records<CRecord> all = records<CRecord>(source);
        const std::string failure = Failure([&] {
            for (const CRecord& record : all)
                numbers += record.N() + " ";
        });
        EXPECT_TRUE(all.begin() == all.end()); // and nothing follows
        return numbers + failure;
    };
    const std::string whole = Document({"1", "2", "3"});
    EXPECT_EQ(seen(std::string_view(prefix + "\n<r><n>1</n></r>\n<r><n>2</n></s>")),
              "1 mismatched tag at line 3");
    EXPECT_EQ(seen(std::string_view(whole).substr(0, whole.size() - 1)), "1 2 3 unclosed token at line 5");
    EXPECT_EQ(seen(std::filesystem::path("/none")), "Failed to open the file [/none] Error [0x00000002]");
    std::ifstream folder("/"); // opens, and cannot be read
    EXPECT_EQ(seen(folder), "Failed to read the stream of the document");
    // Enough of a compressed document for its records to arrive in front of its damage.
    const std::string many = prefix + Repeat("<r><n>1</n></r>"s, 50'000) + "</all>";
    std::string damaged = Compressed(many, CompressionType_GZip);
    damaged.resize(damaged.size() - 20);
    const std::string result = seen(damaged);
    EXPECT_TRUE(result.starts_with("1 1 1 1 ")) << result.substr(0, 100);
    EXPECT_TRUE(result.ends_with("The compressed stream is damaged or ends too early"));
    EXPECT_EQ(seen(std::string_view("\x78\xBB\0\0\0\x01", 6)), // wants a dictionary
              "The compressed stream is damaged or ends too early");
    m_dir.Write("file", "");
    EXPECT_EQ(seen(std::filesystem::path(m_dir.Path("file"))), "no element found at line 1");
    m_dir.Write("file", many); // of several blocks
    systemCalls.pread = [](int file, void* to, std::size_t size, off_t at) -> ssize_t {
        return at == 0 ? pread(file, to, size, at) : (errno = EIO, -1);
    };
    EXPECT_TRUE(seen(std::filesystem::path(m_dir.Path("file"))).ends_with("] Error [0x00000005]"));
    // What is no failure of the library ends the reading too.
    CRecord::onCreate = [] { throw std::runtime_error(""); };
    EXPECT_THROW(seen(std::string_view(whole)), std::runtime_error);
}

TEST_F(RecordsTest, ALoopMayBeLeftAndTakenUpAgain) {
    m_dir.Write("file", Document({"1", "2", "3", "4"}));
    const std::filesystem::path file = m_dir.Path("file");
    Records<CRecord> all = records<CRecord>(file);
    std::string numbers;
    for (const CRecord& record : all) {
        numbers += record.N();
        if (all.GetNumber() == 2)
            break;
    }
    Records<CRecord> moved = std::move(all);
    for (const CRecord& record : moved)
        numbers += record.N();
    EXPECT_EQ(numbers, "1234");
}

TEST_F(RecordsTest, DropsTheTreeThatIsRead) {
    LimitsScope limits(&Limits::treeBytes, 1 << 20);
    limits.Set(&Limits::treeBytesPerInputByte, 0);
    std::istringstream stream(
        prefix + Repeat("<r><n>1</n></r><skipped><a/></skipped>" + std::string(100, '\n'), 20'000) +
        "</all>");
    int most = 0;
    Records<CRecord> all = records<CRecord>(stream);
    for ([[maybe_unused]] const CRecord& record : all)
        most = std::max(most, CRecord::live);
    EXPECT_EQ(all.GetNumber(), 20'000u);
    EXPECT_LT(most, 2'000);
}

TEST_F(RecordsTest, BoundsTheSizeOfOneRecord) {
    const LimitsScope limits(&Limits::inflatedBytes, 300'000);
    const std::string many = Repeat("<r><n>1</n></r>"s, 20'000),
                      one = "<r>" + std::string(500'000, ' ') + "</r>";
    const std::string small = Compressed(prefix + many + "</all>", CompressionType_GZip);
    const std::string large = Compressed(prefix + one + "</all>", CompressionType_ZLib);
    EXPECT_TRUE(Seen(small).ends_with(" 20000:1 "));
    EXPECT_EQ(Failure([&] { records<CRecord>(large).begin(); }),
              "The content of the compressed stream is larger than the limit of 300000 bytes");
}

} // namespace
