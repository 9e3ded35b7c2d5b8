#include "faults/Scenarios.h"

#include "support/DumpTree.h"
#include "support/Model.h"
#include "support/TempDir.h"

#include <KzXmlLib10/KzXmlLib10.h>

#include <sstream>

#include <fcntl.h>
#include <unistd.h>

namespace faults {

namespace {

using namespace KzXmlLib10;
using namespace KzXmlLib10Data;
using namespace kit;

const std::string small = "<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE r [<!ENTITY e 'entity'>]>"
                          "<r xmlns='urn:r' xmlns:p='urn:p' a='a value too long to stand in a short string'>"
                          "<p:c b='2'>text &e; of some length, and more</p:c><![CDATA[ cdata ]]></r>\n";

/// More than two blocks of a file.
std::string Large() {
    std::string xml = "<r>";
    while (xml.size() < 300'000)
        xml += "<c>" + std::string(2000, 'x') + "</c>";
    return xml + "</r>\n";
}

std::string Bytes(const CBinaryData& data) {
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

CBinaryData Data(const std::string& bytes) {
    CBinaryData data;
    data.SetBuffer(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    return data;
}

/// The bytes of a file, without a stream, which would keep want of memory to itself.
std::string Contents(const char* name) {
    std::string bytes(1 << 20, '\0');
    const int file = open(name, O_RDONLY);
    const ssize_t size = read(file, bytes.data(), bytes.size());
    close(file);
    bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return bytes;
}

std::string Packed(const std::string& bytes, CompressionType type) {
    CBinaryData data = Data(bytes);
    Compress(data, type);
    return Bytes(data);
}

/// The message of a failure that belongs to the scenario.
template <class Action>
std::string Message(Action action) {
    try {
        action();
        return "no failure";
    } catch (const CKzException& failure) {
        return ToUtf8(failure.GetFullMessage());
    }
}

/// What the scenarios share, made once.
struct World {
    World() {
        point.Attribute(u"unit", Optional, ItemType_string, u"metre").Prim(u"x", Mnd, ItemType_decimal);
        choice.Prim(u"i", Opt, ItemType_integer).Prim(u"d", Opt, ItemType_date).Class(u"p", Opt, point);
        all.Prim(u"a", Mnd, ItemType_base64Binary).Prim(u"b", Opt, ItemType_duration);
        node.Class(u"n", Opt, node).Prim(u"v", Opt, ItemType_i4);
        order.Attribute(u"id", Required, ItemType_i8)
            .Prim(u"note", Opt, ItemType_string, true, Facets(u"[a-z ,]*", 1, 100))
            .Class(u"choice", Opt, choice)
            .Class(u"all", Opt, all)
            .Collection(u"point", point)
            .Element(new CElementInfoSeqClsCol(u"s", u"", 5, XmlElementType_Element),
                     [] { return Strings(); })
            .Element(new CElementInfoSeqUntpdCol(u"AnyElement", u"", 6),
                     [] { return new CElementCol(u"", u"##any", u"", 0, unbounded); });
        context.GetNamespaceAliases().Add(u"o", u"urn:some:namespace:of:orders");
        context.GetProcessingInstructions().push_back(u"instruction with data");
        context.SetInLineSchema(u"<schema/>");
        context.SetStripCDATA(false);
        context.GetFIContext().SetSuggestedValues();
        directory.Write("small", small);
        directory.Write("large", Large());
        directory.Write("broken", "<a>\n</b>");
    }

    static CXmlObjectBase* Strings() {
        return new CstringCol(u"s", u"", 0, -1, u"", -1, -1, u"", u"", u"", u"", -1,
                              CWhitespaceUtils::WhitespaceRule_Collapse, nullptr);
    }

    CSmartPtr<CModelObject> Order() const {
        const CSmartPtr<CModelObject> object = order.New();
        object->FromXml(orderText.c_str(), plain);
        return object;
    }

    /// Runs on one document, whatever became of it before.
    template <class Load>
    std::function<std::string()> Document(Load load, bool (*callback)(CXmlElement*) = nullptr) const {
        const auto document = std::make_shared<CXmlDocument>(callback, context);
        return [=] {
            load(*document);
            return support::DumpTree(document->GetDocumentElement());
        };
    }
    std::function<std::string()> Stream(const std::string& bytes) const {
        return Document([bytes](CXmlDocument& document) {
            document.LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        });
    }
    /// Fills one object over and over, and writes it.
    template <class Fill>
    std::function<std::string()> Object(const Model& model, Fill fill) const {
        const CSmartPtr<CModelObject> object = model.New();
        return [=, this] {
            fill(*object);
            return ToUtf8(object->ToXml(true, true, EOLType_CRLF, plain));
        };
    }
    /// Writes an object to a file, and gives the bytes of the file.
    template <class Save>
    std::function<std::string()> File(Save save, bool async = false) const {
        const CSmartPtr<CModelObject> object = Order();
        return [=, this] {
            AsyncToXmlFile(async);
            save(*object, directory.Path16("out").c_str());
            return Contents(directory.Path("out").c_str());
        };
    }
    std::function<std::string()> Load(const char* name, bool async) const {
        return [=, this] {
            AsyncFromXmlFile(async);
            CXmlDocument document; // one that reads blocks goes on where it ended
            document.Load(directory.Path16(name).c_str());
            return support::DumpTree(document.GetDocumentElement());
        };
    }

    Model point{u"point"}, choice{u"choice", XmlElementGroupType_Choice},
        all{u"all", XmlElementGroupType_All};
    Model node{u"n"}, order{u"order"};
    CXmlSerializationContext context;
    const CXmlSerializationContext plain;
    const support::TempDir directory;
    const std::u16string orderText =
        u"<order id='9223372036854775807'><note>a note that is not short</note>"
        u"<choice><p unit='mile'><x>12345678901234567890.5</x></p></choice>"
        u"<all><b>P1Y2M3DT4H5M6.7S</b><a>QUJDREVGR0hJSktMTU5PUFFSU1RVVldYWVo=</a></all>"
        u"<point><x>1.5</x></point><point><x>-2</x></point><s>one</s><s>a string of more than a few</s>"
        u"<q:wild xmlns:q='urn:wild' q:a='1'><in>generic text</in></q:wild></order>";
};

template <class T>
std::string Shown(const T& value) {
    return ToUtf8(value.ToString());
}

std::vector<Scenario> Make() {
    static const World world;
    const auto& w = world;
    const std::string fastInfoset =
        Bytes(w.Order()->ToFastInfosetStream(FInfoDecl_10, w.context, CompressionType_None));
    const auto deep = [](int levels) {
        std::u16string text;
        for (int i = 0; i < levels; ++i)
            text += u"<n>";
        text += u"<v>bad</v>";
        for (int i = 0; i < levels; ++i)
            text += u"</n>";
        return text;
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
    return {
        {"text", w.Document([](CXmlDocument& d) { d.LoadXml(small.c_str()); })},
        {"wide text", w.Document([](CXmlDocument& d) { d.LoadXml(FromUtf8(small).c_str()); })},
        {"stream", w.Stream(small)},
        {"gzip", w.Stream(Packed(Large(), CompressionType_GZip).append("rest"))},
        {"zlib", w.Stream(Packed(Large().substr(0, 2000) + "</c></r>", CompressionType_ZLib))},
        {"Fast Infoset", w.Stream(fastInfoset)},
        {"dropping", w.Document([](CXmlDocument& d) { d.LoadXml(small.c_str()); },
                                [](CXmlElement* e) { return e->GetLocalName() == u"c"; })},
        {"malformed", [] { return Message([] { CXmlDocument().LoadXml(u"<a><b></a>"); }); }},
        {"entities",
         [] {
             return Message([] {
                 CXmlDocument().LoadXml(
                     "<!DOCTYPE r [<!ENTITY a 'aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa'>]><r>&a;&b;</r>");
             });
         }},
        {"limit of the tree",
         [] {
             return Message([] {
                        std::string bytes("\xE0\0\0\x01\0\x3C\0r\x93\0\1\0\0", 13);
                        bytes += std::string(65536 + 259, 'x') + std::string(1000, '\xA0');
                        CXmlDocument().LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()),
                                                     bytes.size());
                    })
                 .substr(0, 40);
         }},
        {"limit of exponents", [] { return Message([] { CDecimal(u"1E999999999"); }); }},
        {"limits",
         [] {
             Limits limits = GetLimits();
             SetLimits(limits);
             limits.inputBytes = ~0ull;
             return Message([&] { SetLimits(limits); });
         }},

        {"object from wide text",
         w.Object(w.order, [&](CModelObject& o) { o.FromXml(w.orderText.c_str(), w.plain); })},
        {"object from text", w.Object(w.order, [&, text = ToUtf8(w.orderText)](
                                                   CModelObject& o) { o.FromXml(text.c_str(), w.plain); })},
        {"object from Fast Infoset",
         w.Object(w.order,
                  [&, data = Data(fastInfoset)](CModelObject& o) { o.FromXmlStream(data, w.plain); })},
        {"object from gzip",
         w.Object(w.order, [&, data = Data(Packed(ToUtf8(w.orderText), CompressionType_GZip))](
                               CModelObject& o) { o.FromXmlStream(data, w.plain); })},
        {"failure in an object",
         [&, text = deep(20)] { return Message([&] { w.node.New()->FromXml(text.c_str(), w.plain); }); }},
        {"failure in writing",
         [&] { return Message([&] { w.order.New()->ToXml(true, false, EOLType_LF, w.context); }); }},
        {"unknown elements",
         [&] {
             CXmlSerializationContext lenient;
             lenient.SetIgnoreUnknownElements(true);
             const auto object = w.node.New();
             object->FromXml(u"<n><x/><v>1</v><y/></n>", lenient);
             return ToUtf8(object->ToXml(false, false, EOLType_LF, lenient));
         }},
        {"object to UTF-8",
         [object = w.Order()] {
             return Bytes(object->ToXmlStream(true, true, XmlEncoding_UTF8, EOLType_LF, w.context,
                                              CompressionType_None));
         }},
        {"object to UTF-16 and zlib",
         [object = w.Order()] {
             return Bytes(object->ToXmlStream(true, true, XmlEncoding_UTF16, EOLType_LF, w.context,
                                              CompressionType_ZLib));
         }},
        {"object to Fast Infoset",
         [object = w.Order()] {
             return Bytes(object->ToFastInfosetStream(FInfoDecl_10, w.context, CompressionType_GZip));
         }},

        {"file", w.Load("small", false), true},
        {"large file", w.Load("large", false), true},
        {"file in blocks", w.Load("small", true), true},
        {"large file in blocks", w.Load("large", true), true},
        {"broken file", [&] { return Message(w.Load("broken", false)); }, true},
        {"broken file in blocks", [&] { return Message(w.Load("broken", true)); }, true},
        {"object from file",
         w.Object(w.order,
                  [&](CModelObject& o) {
                      AsyncFromXmlFile(false);
                      w.directory.Write("order", ToUtf8(w.orderText));
                      o.FromXmlFile(w.directory.Path16("order").c_str(), w.plain);
                  }),
         true},
        {"object to file", w.File([&](const CModelObject& o, const char16_t* name) {
             o.ToXmlFile(name, true, true, XmlEncoding_UTF8, EOLType_LF, w.plain, CompressionType_None);
         }),
         true},
        {"object to file in blocks",
         w.File(
             [&](const CModelObject& o, const char16_t* name) {
                 o.ToXmlFile(name, true, true, XmlEncoding_UTF16, EOLType_LF, w.plain, CompressionType_None);
             },
             true),
         true},
        {"object to gzip file", w.File([&](const CModelObject& o, const char16_t* name) {
             o.ToXmlFile(name, true, true, XmlEncoding_UTF8, EOLType_LF, w.plain, CompressionType_GZip);
         }),
         true},
        {"object to Fast Infoset file", w.File([&](const CModelObject& o, const char16_t* name) {
             o.ToFastInfosetFile(name, FInfoDecl_None, w.plain, CompressionType_None);
         }),
         true},

        {"generic element",
         [&] {
             CElement element(u"e");
             element.FromXml(w.orderText.c_str());
             return ToUtf8(element.Clone()->ToXml(false, false, EOLType_LF, w.plain));
         }},
        {"generic copy of an object",
         [object = w.Order()] {
             return ToUtf8(CElement(object, nullptr).ToXml(false, true, EOLType_LF, w.plain));
         }},
        {"object from a generic element", w.Object(w.order,
                                                   [&](CModelObject& o) {
                                                       CElement element(u"e");
                                                       element.FromXml(w.orderText.c_str());
                                                       o.FromXmlElement(&element, w.plain);
                                                   })},
        {"restriction",
         [&] {
             CElement element(u"e");
             element.FromXml(w.orderText.c_str());
             try {
                 element.SetNamespaceRestrictions(u"urn:other", u"");
             } catch (const CKzException* failure) {
                 const std::unique_ptr<const CKzException> owner(failure);
                 return ToUtf8(failure->GetFullMessage());
             }
             return std::string("no failure");
         }},
        {"default namespace",
         [&] {
             const CElement element(w.Order(), u"urn:default");
             return ToUtf8(element.ToXml(false, false, EOLType_LF, w.plain));
         }},
        {"root attributes",
         [] {
             CXmlSerializationContext context;
             context.GetAdditionalRootAttributes()->Add(u"name", u"a value", u"urn:of:attribute");
             const CXmlSerializationContext copy(context);
             CElement element(u"e");
             return ToUtf8(element.ToXml(false, false, EOLType_LF, copy));
         }},

        {"decimal",
         [] {
             CDecimal a(u"12345678901234567890.123456789"), b(u"-9.87E20");
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
             return Shown(date + span) + Shown(date.GetNormalized());
         }},
        {"variant of a date", variant(ItemType_date, u" 2001-02-03Z ")},
        {"variant of a duration", variant(ItemType_duration, u"P1Y2M3DT4H5M6.789S")},
        {"variant of a real", variant(ItemType_r8, u"1.25e300")},
        {"variant of a text", variant(ItemType_string, u" a text that is longer  than short ")},
        {"variant of bytes", variant(ItemType_hexBinary, u"0123456789ABCDEF0123456789abcdef")},
        {"bad variant",
         [=] { return Message(variant(ItemType_i4, u"no number at all, but a longer text")); }},
        {"facets",
         [] {
             return Message(
                        [] { CheckString(u"name", u"a value that is too long", Facets(u"[a-z]+", 1, 5)); }) +
                    Message([] { CheckDecimal(u"name", CDecimal(u"7.5"), Facets(u"", -1, -1, u"8", u"9")); });
         }},
        {"pattern", [] { return std::to_string(MatchXsdPattern("(\\i\\c*|[0-9]+)*", u"name1234567890")); }},
        {"bad pattern", [] { return Message([] { MatchXsdPattern("(", u"value"); }); }},
        {"typed collection",
         [] {
             CdecimalCol items(u"i", u"", 0, 3, u"", -1, -1, u"", u"", u"", u"", -1,
                               CWhitespaceUtils::WhitespaceRule_None, nullptr);
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
             const CKzException copy(outer);
             std::ostringstream out;
             out.exceptions(std::ios::badbit); // or it keeps want of memory to itself
             out << copy;
             return out.str();
         }},
        {"vocabulary",
         [&] {
             CXmlSerializationContext context;
             CFIVocabulary& vocabulary = context.GetFIContext().GetVocabulary();
             vocabulary.AddElement(u"o", u"urn:order", u"order");
             vocabulary.AddAttributeValue(u"a value of some length");
             context.GetFIContext().SetUseGeneratedVocabulary(true);
             return std::to_string(
                 w.Order()->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None).GetLength());
         }},
        {"text writer",
         [] {
             CTextStream stream(XmlEncoding_UTF8);
             CXmlTextWriter writer(&stream);
             writer.SetFormatted(true);
             writer.SetDefaultNamespace(u"urn:default");
             for (int i = 0; i < 40; ++i)
                 writer.StartElement(u"element", u"urn:" + FromUtf8(std::to_string(i)));
             writer.WriteAttribute(u"name", u"urn:a", u"<value>", ItemType_string);
             for (int i = 0; i < 40; ++i)
                 writer.EndElement();
             writer.Close();
             return ToUtf8(std::u16string(stream.GetBuffer().GetString()));
         }},
        {"formatting",
         [] {
             return ToUtf8(FormatString(u"%s %d %I64u %f %08x", u"some text of a certain length", 7,
                                        1ull << 40, 1e308, 255));
         }},
        {"other encodings", [] { return ToUtf8(FromUtf8("\xE2\x82\xAC and \xF0\x9F\x98\x80 and more")); }},
    };
}

} // namespace

const std::vector<Scenario>& Scenarios() {
    static const std::vector<Scenario> scenarios = Make();
    return scenarios;
}

} // namespace faults
