#include "faults/Scenarios.h"

#include "support/Test.h"

namespace faults {

namespace {

using namespace KzXmlLib10Data;
using namespace kit;

const std::string small = "<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE r [<!ENTITY e 'entity'>]>"
                          "<r xmlns='urn:r' xmlns:p='urn:p' a='a value too long to stand in a short string'>"
                          "<p:c b='2'>text &e; of some length, and more</p:c><![CDATA[ cdata ]]></r>\n";

/// Each more than two blocks of a file.
const std::string record = "<c>" + std::string(2000, 'x') + "</c>";
const std::string large = "<r>" + Repeat(record, 150) + "</r>\n";

const std::string manyNamespaces =
    "+=urn:d " + Repeat("<{urn:a}e <{urn:b}e "s, 20) + "@{urn:c}n=<v> " + Repeat("> "s, 40);

/// The bytes of a file, without a stream, which would keep want of memory to itself.
std::string Contents(const char* name) {
    std::string bytes(1 << 20, '\0');
    const int file = open(name, O_RDONLY);
    const ssize_t size = read(file, bytes.data(), bytes.size());
    close(file);
    bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return bytes;
}

using Run = std::function<std::string()>;

/// A record of `large`.
struct CRecord : CModelObject {
    CRecord() : CModelObject(*model, u"c") {}
    static inline const Model* model = nullptr;
};

/// What the scenarios share, made once.
struct World {
    World() {
        point.Attribute(u"unit", Optional, ItemType_string, u"metre").Prim(u"x", Mnd, ItemType_decimal);
        choice.Prim(u"i", Opt, ItemType_integer).Prim(u"d", Opt, ItemType_date).Class(u"p", Opt, point);
        all.Prim(u"a", Mnd, ItemType_base64Binary).Prim(u"b", Opt, ItemType_duration);
        node.Class(u"n", Opt, node).Prim(u"v", Opt, ItemType_i4);
        CRecord::model = &text.Content(ItemType_string);
        group.Prim(u"a", Mnd, ItemType_i4);
        skipping.Class(u"g", Opt, group);
        order.Attribute(u"id", Required, ItemType_i8)
            .Prim(u"note", Opt, ItemType_string, true, Facets(u"[a-z ,]*", 1, 100))
            .Class(u"choice", Opt, choice)
            .Class(u"all", Opt, all)
            .Collection(u"point", point)
            .Element(new CElementInfoSeqClsCol(u"i", u"", 5, XmlElementType_Element),
                     [] { return new auto(support::Make<CstringCol>()); })
            .Element(new CElementInfoSeqUntpdCol(u"AnyElement", u"", 6),
                     [] { return new CElementCol(u"", u"##any", u"", 0, unbounded); });
        context.GetNamespaceAliases().Add(u"o", u"urn:some:namespace:of:orders");
        context.GetProcessingInstructions().push_back(u"instruction with data");
        context.SetInLineSchema(u"<schema/>");
        context.SetStripCDATA(false);
        context.GetFIContext().SetSuggestedValues();
        directory.Write("small", small);
        directory.Write("large", large);
        directory.Write("broken", "<a>\n</b>");
        directory.Write("order", ToUtf8(orderText));
    }

    CSmartPtr<CModelObject> Order() const {
        const CSmartPtr<CModelObject> object = order.New();
        object->FromXml(orderText.c_str(), plain);
        return object;
    }

    /// Runs on one document, whatever became of it before.
    Run Document(std::function<void(CXmlDocument&)> load, bool (*callback)(CXmlElement*) = nullptr) const {
        const auto document = std::make_shared<CXmlDocument>(callback, context);
        return [=] {
            load(*document);
            return DumpTree(document->GetDocumentElement());
        };
    }
    Run Stream(const std::string& bytes) const {
        return Document([=](CXmlDocument& document) { LoadBytes(document, bytes); });
    }
    Run Load(const char* name, bool async) const {
        return [=, this] {
            AsyncFromXmlFile(async);
            CXmlDocument document; // one that reads blocks goes on where it ended
            document.Load(directory.Path16(name).c_str());
            return DumpTree(document.GetDocumentElement());
        };
    }
    /// Fills one order over and over, and writes it.
    Run Object(std::function<void(CModelObject&)> fill) const {
        const CSmartPtr<CModelObject> object = order.New();
        return [=, this] {
            fill(*object);
            return ToUtf8(object->ToXml(true, true, EOLType_CRLF, plain));
        };
    }
    /// Writes an order to bytes, in the way that is asked for.
    Run Bytes(std::function<CBinaryData(const CModelObject&)> write) const {
        return [write, object = Order()] { return FromBinary(write(*object)); };
    }
    /// Writes an order to a file, and gives the bytes of the file.
    Run File(XmlEncoding encoding, CompressionType compression, bool async = false) const {
        return [=, this, object = Order()] {
            AsyncToXmlFile(async);
            object->ToXmlFile(directory.Path16("out").c_str(), true, true, encoding, EOLType_LF, plain,
                              compression);
            return Contents(directory.Path("out").c_str());
        };
    }

    Model point{u"point"}, node{u"n"}, order{u"order"};
    Model choice{u"choice", XmlElementGroupType_Choice}, all{u"all", XmlElementGroupType_All};
    Model group{u"g", XmlElementGroupType_Sequence, XmlElementType_Pseudo}, skipping{u"r"}, text{u"c"};
    CXmlSerializationContext context;
    const CXmlSerializationContext plain, lenient = With(&CXmlSerializationContext::SetIgnoreUnknownElements);
    const TempDir directory;
    const std::u16string orderText =
        u"<order id='9223372036854775807'><note>a note that is not short</note>"
        u"<choice><p unit='mile'><x>12345678901234567890.5</x></p></choice>"
        u"<all><b>P1Y2M3DT4H5M6.7S</b><a>QUJDREVGR0hJSktMTU5PUFFSU1RVVldYWVo=</a></all>"
        u"<point><x>1.5</x></point><point><x>-2</x></point><i>one</i><i>a string of more than a few</i>"
        u"<q:wild xmlns:q='urn:wild' q:a='1'><in>generic text</in></q:wild></order>";
};

std::string Shown(const auto& value) { return ToUtf8(value.ToString()); }

/// The message of a failure that belongs to the scenario, perhaps because of a limit that is set for it.
template <class Action>
Run Fails(Action action, std::uint64_t Limits::*figure = &Limits::inputBytes,
          std::uint64_t value = Limits().inputBytes) {
    return [=] {
        const LimitsScope limits(figure, value);
        const std::string message = Failure(action);
        return message != "no failure" ? message : throw std::logic_error(message);
    };
}

std::string Texts(Records<CRecord> all) {
    std::string texts;
    for (const CRecord& one : all)
        texts += ToUtf8(one.Text(0)).substr(1990);
    return texts;
}

std::vector<Scenario> Make() {
    static const World w;
    const auto loadSmall = [](CXmlDocument& document) { document.LoadXml(small.c_str()); };
    const std::string narrowText = ToUtf8(w.orderText);
    const CBinaryData fastInfoset =
        w.Order()->ToFastInfosetStream(FInfoDecl_10, w.context, CompressionType_None);
    const std::string gzip = Compressed(narrowText, CompressionType_GZip);
    const std::string references = std::string("\xE0\0\0\x01\0\x3C\0r\x93\0\0\x10\0", 13) +
                                   std::string(4096 + 259, 'x') + std::string(1000, '\xA0');
    const std::u16string deep =
        Repeat<std::u16string>(u"<n>", 20) + u"<v>bad</v>" + Repeat<std::u16string>(u"</n>", 20);
    const auto readDeep = [=] { w.node.New()->FromXml(deep.c_str(), w.plain); };
    const std::string nodes = Compressed("<r>" + Repeat("<a/>"s, 5000) + "</r>", CompressionType_GZip);
    const auto element = [] {
        const CSmartPtr<CElement> read = new CElement(u"e");
        read->FromXml(w.orderText.c_str());
        return read;
    };
    const auto variant = [](ItemType type, const char16_t* text) {
        return [=] {
            KzVariant value, copy;
            value.FromString(text, type, CWhitespaceUtils::WhitespaceRule_Collapse);
            CheckPrimitiveRestrictions(u"e", value, type, Facets());
            copy = value;
            return ToUtf8(copy.ToString(u""));
        };
    };
    constexpr auto utf8 = XmlEncoding_UTF8, utf16 = XmlEncoding_UTF16;
    constexpr auto plain = CompressionType_None, packed = CompressionType_GZip;
    return {
        {"text", w.Document(loadSmall)},
        {"wide text", w.Document([](CXmlDocument& d) { d.LoadXml(FromUtf8(small).c_str()); })},
        {"stream", w.Stream(small)},
        {"gzip", w.Stream(Compressed(large, packed) + "rest")},
        {"Fast Infoset", w.Stream(FromBinary(fastInfoset))},
        {"dropping", w.Document(loadSmall, [](CXmlElement* e) { return e->GetLocalName() == u"c"; })},
        {"malformed", Fails([] { CXmlDocument().LoadXml(u"<a><b></a>"); })},
        {"entities", Fails([] {
             CXmlDocument().LoadXml(
                 "<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'>]><r>&a;&b;</r>");
         })},
        {"limit of the tree", Fails(w.Stream(references), &Limits::treeTextBytes, 0)},
        {"limit of exponents", Fails([] { CDecimal(u"1E999999999"); })},
        {"limit of the input", Fails(w.Stream(small), &Limits::inputBytes, 10)},
        {"limit of inflating", Fails(w.Stream(gzip), &Limits::inflatedBytes, 100)},
        {"limit of nodes", Fails(w.Stream(nodes), &Limits::treeBytes, 0)},
        {"limit of nesting", Fails(readDeep, &Limits::nestedObjects, 5)},
        {"limit of skipping", Fails([] { w.skipping.New()->FromXml(u"<r><u/><u/></r>", w.lenient); },
                                    &Limits::skippedElements, 1)},

        {"object from wide text", w.Object([](CModelObject& o) { o.FromXml(w.orderText.c_str(), w.plain); })},
        {"object from text", w.Object([=](CModelObject& o) { o.FromXml(narrowText.c_str(), w.plain); })},
        {"object from Fast Infoset",
         w.Object([=](CModelObject& o) { o.FromXmlStream(fastInfoset, w.plain); })},
        {"object by Read", w.Object([=](CModelObject& o) { Read(o, gzip, w.plain); })},
        {"failure in an object",
         [=] {
             try {
                 readDeep();
                 return "no failure"s;
             } catch (const CKzException& failure) {
                 return failure.GetFullMessageUtf8() + GetFailureFrames(failure).back().message;
             }
         }},
        {"failure in writing", Fails([] { w.order.New()->ToXml(true, false, EOLType_LF, w.context); })},
        {"object to UTF-8", w.Bytes([](const CModelObject& o) {
             return o.ToXmlStream(true, true, utf8, EOLType_LF, w.context, plain);
         })},
        {"object to UTF-16 and zlib", w.Bytes([](const CModelObject& o) {
             return o.ToXmlStream(true, true, utf16, EOLType_LF, w.context, CompressionType_ZLib);
         })},
        {"object to Fast Infoset", w.Bytes([](const CModelObject& o) {
             return o.ToFastInfosetStream(FInfoDecl_10, w.context, packed);
         })},

        {"file", w.Load("small", false), true},
        {"large file", w.Load("large", false), true},
        {"file in blocks", w.Load("small", true), true},
        {"large file in blocks", w.Load("large", true), true},
        {"broken file", Fails(w.Load("broken", false)), true},
        {"broken file in blocks", Fails(w.Load("broken", true)), true},
        {"object by ReadFile",
         w.Object([](CModelObject& o) { ReadFile(o, w.directory.Path("order"), w.plain); }), true},
        {"object by WriteFile to a device",
         [object = w.Order()] {
             WriteFile(*object, "/dev/null", {.compression = packed}, w.context);
             return ""s;
         },
         true},
        {"records of a file",
         [] { return Texts(records<CRecord>(std::filesystem::path(w.directory.Path("large")), w.plain)); },
         true},
        {"records of gzip", [bytes = Compressed(large, packed)] { return Texts(records<CRecord>(bytes)); }},
        {"object to file", w.File(utf8, plain), true},
        {"object to file in blocks", w.File(utf16, plain, true), true},
        {"object to gzip file", w.File(utf8, packed), true},
        {"object to Fast Infoset file",
         [object = w.Order()] {
             object->ToFastInfosetFile(w.directory.Path16("out").c_str(), FInfoDecl_None, w.plain, plain);
             return Contents(w.directory.Path("out").c_str());
         },
         true},

        {"generic element", [=] { return Text(*element()->Clone()); }},
        {"generic copy of an object",
         [object = w.Order()] {
             return ToUtf8(CElement(object, nullptr).ToXml(false, true, EOLType_LF, w.plain));
         }},
        {"object from a generic element", w.Object([=](CModelObject& o) {
             o.FromXmlElement(static_cast<const CElement*>(element()), w.plain);
         })},
        {"restriction",
         [=] {
             try {
                 element()->SetNamespaceRestrictions(u"urn:other", u"");
                 return std::string("no failure");
             } catch (const CKzException* failure) {
                 return ToUtf8(std::unique_ptr<const CKzException>(failure)->GetFullMessage());
             }
         }},
        {"default namespace", [] { return Text(CElement(w.Order(), u"urn:default")); }},

        {"decimal",
         [] {
             const CDecimal a(u"12345678901234567890.123456789"), b(u"-9.87E20");
             return Shown(a * b) + Shown(a / b) + Shown(a - b) + Shown(CDecimal(0.1) + b);
         }},
        {"integer",
         [] {
             CBigInteger a(u"123456789012345678901234567890"), b(u"-98765432109876543210");
             return Shown(a * b) + Shown(a / b) + Shown(a % CBigInteger(7)) + Shown(a - b);
         }},
        {"binary",
         [] {
             CBinaryData data;
             data.SetAsBase64(u"QUJDREVGR0hJSktMTU5PUFFSU1RVVldYWVo=");
             CBinaryData copy = data;
             copy.Append(u"more");
             data.SetAsHexString(copy.GetAsHexString());
             return ToUtf8(data.GetAsBase64());
         }},
        {"calendar",
         [] {
             CDateTime date;
             date.ParseXSDDateTime(u"2001-02-28T23:59:59.5+01:00");
             CDateTimeSpan span;
             span.ParseXSDDuration(u"P1M1DT1S");
             return Shown(date + span) + Shown(date.GetNormalized()) +
                    Shown(FromChrono(ToSysTime<std::chrono::milliseconds>(date)));
         }},
        {"variant of a date", variant(ItemType_date, u" 2001-02-03Z ")},
        {"variant of a duration", variant(ItemType_duration, u"P1Y2M3DT4H5M6.789S")},
        {"variant of a text", variant(ItemType_string, u" a text that is longer  than short ")},
        {"variant of bytes", variant(ItemType_hexBinary, u"0123456789ABCDEF0123456789abcdef")},
        {"bad variant", Fails(variant(ItemType_i4, u"no number at all, but a longer text"))},
        {"facets",
         [] {
             return Failure([] { CheckString(u"name", u"a long value", Facets(u"[a-z]+", 1, 5)); }) +
                    Failure([] { CheckDecimal(u"name", CDecimal(u"7.5"), Facets(u"", -1, -1, u"8", u"9")); });
         }},
        {"pattern", [] { return std::to_string(MatchXsdPattern("(\\i\\c*|[0-9]+)*", u"name1234567890")); }},
        {"patterns on the heap",
         [] {
             return std::to_string(MatchXsdPattern("(a|b)*", std::u16string(1000, u'a'))) +
                    std::to_string(MatchXsdPattern(std::string(30'000, 'x'), u"x"));
         }},
        {"typed collection",
         [] {
             auto items = support::Make<CdecimalCol>({.maxOccurs = 3});
             for (const char16_t* text : {u"1.5", u"12345678901234567890", u"3"})
                 items.Add(CDecimal(text));
             CdecimalCol copy(items);
             items.Clear();
             copy.Remove(1);
             return Shown(copy.Item(1)) + std::to_string(items.GetCount());
         }},
        {"chain of exceptions",
         [] {
             const CKzInvalidValueException inner(u"an inner message that is not short",
                                                  CKzException(u"innermost"));
             CKzValidationException outer(u"an outer message that is not short", inner);
             return ToUtf8(CKzException(outer).GetFullMessage());
         }},
        {"text writer", [] { return Text(ScriptedObject(manyNamespaces)); }},
    };
}

} // namespace

const std::vector<Scenario>& Scenarios() {
    static const std::vector<Scenario> scenarios = Make();
    return scenarios;
}

} // namespace faults
