#include "support/Test.h"

namespace {

// Bases that callers rely on.
static_assert(std::is_base_of_v<CInstanceMonitor, Ci4Col> && std::is_base_of_v<CInstanceMonitor, CdateCol>);
static_assert(!std::is_base_of_v<CInstanceMonitor, CdatetimeBaseCol> && std::is_abstract_v<CdatetimeBaseCol>);

/// Writes down the calls that a collection makes, such as "<i 5:-7>" for an element with a text of type 5.
struct RecordingWriter : CXmlTextWriter {
    using CXmlTextWriter::CXmlTextWriter;
    void StartElement(const std::u16string& name, const std::u16string&) override {
        calls += "<" + ToUtf8(name);
    }
    void WriteText(const std::u16string& text, ItemType type) override {
        calls += " " + std::to_string(type) + ":" + ToUtf8(text);
    }
    void EndElement() override { calls += ">"; }
    std::string calls;
};

/// An object <r> that contains one collection and nothing else.
struct CollectionOwner : ScriptedObject {
    explicit CollectionOwner(CXmlTypeCollection& items)
        : ScriptedObject([&items](CXmlWriter& writer) {
              writer.StartElement(u"r", u"");
              CXmlObjectBase::ToXml_Int(&items, &writer, false, u"", CXmlSerializationContext(), false);
              writer.EndElement();
          }),
          m_items(items) {
        SetElementName(u"r");
    }

    /// What the collection calls when it is written.
    std::string Calls(const CXmlSerializationContext& context = {}) const {
        CTextStream unused(XmlEncoding_None);
        RecordingWriter writer(&unused);
        CXmlObjectBase::ToXml_Int(&m_items, &writer, false, u"urn:not-used", context, false);
        return writer.calls;
    }
    /// Reads the items from the content of <r>.
    void Read(const std::u16string& content, const CXmlSerializationContext& context = {}) {
        FromXml((u"<r>" + content + u"</r>").c_str(), context);
    }
    CXmlElement* FromXml_Int(CXmlElement* element, CXmlElement* current,
                             const CXmlSerializationContext& context, bool) override {
        return CXmlObjectBase::FromXml_Int(&m_items, element, current, context);
    }
    CXmlTypeCollection& m_items;
};

template <class Collection>
std::string Items(const Collection& items) {
    return CollectionOwner(const_cast<Collection&>(items)).Calls();
}

/// What a collection writes of the items that it read.
template <class Collection>
std::string ReadAndWrite(const char16_t* content) {
    auto items = Make<Collection>();
    CollectionOwner(items).Read(content);
    const Collection copy(items);
    auto assigned = Make<Collection>({.maxOccurs = 0});
    assigned = copy;
    items.Clear();
    EXPECT_EQ(items.GetCount(), 0);
    EXPECT_EQ(Items(assigned), Items(copy));
    return Items(copy);
}

TEST(TypedCols, ReadAndWriteTheValuesOfTheirKind) {
    const std::tuple<std::string (*)(const char16_t*), const char16_t*, const char*> rows[] = {
        {ReadAndWrite<CbooleanCol>, u"<i>1</i><i>FALSE</i>", "<i 24:true><i 24:false>"},
        {ReadAndWrite<Ci1Col>, u"<i> -128</i><i>127 </i>", "<i 3:-128><i 3:127>"},
        {ReadAndWrite<Ci2Col>, u"<i>-32768</i>", "<i 4:-32768>"},
        {ReadAndWrite<Ci4Col>, u"<i>-2147483648</i><i/>", "<i 5:-2147483648><i 5:0>"},
        {ReadAndWrite<Ci8Col>, u"<i>-9223372036854775808</i>", "<i 6:-9223372036854775808>"},
        {ReadAndWrite<Cui1Col>, u"<i>255</i>", "<i 7:255>"},
        {ReadAndWrite<Cui2Col>, u"<i>65535</i>", "<i 8:65535>"},
        {ReadAndWrite<Cui4Col>, u"<i>4294967295</i>", "<i 9:4294967295>"},
        {ReadAndWrite<Cui8Col>, u"<i>18446744073709551615</i>", "<i 10:18446744073709551615>"},
        {ReadAndWrite<Cr4Col>, u"<i>0.1</i><i>INF</i>", "<i 11:0.1><i 11:INF>"},
        {ReadAndWrite<Cr8Col>, u"<i>0.10</i><i/>", "<i 12:0.1><i 12:NaN>"},
        {ReadAndWrite<CdecimalCol>, u"<i>-0.50</i>", "<i 25:-0.5>"},
        {ReadAndWrite<CintegerCol>, u"<i>-00100000000000000000000</i>", "<i 26:-100000000000000000000>"},
        {ReadAndWrite<CstringCol>, u"<i>  a  b </i><i/>", "<i 23:a b><i 23:>"},
        {ReadAndWrite<ChexBinaryCol>, u"<i> 0aff </i><i/>", "<i 1:0AFF><i 1:>"},
        {ReadAndWrite<Cbase64BinaryCol>, u"<i>Cv 8=</i><i>*</i>", "<i 2:Cv8=><i 2:>"},
        {ReadAndWrite<CdurationCol>, u"<i>-P1YT0.50S</i>", "<i 13:-P1YT0.5S>"},
        {ReadAndWrite<CyearCol>, u"<i>0987</i><i>2001-05-06</i>", "<i 16:987><i 16:2001>"},
        {ReadAndWrite<CmonthCol>, u"<i>--05--</i>", "<i 17:--05>"},
        {ReadAndWrite<CdayCol>, u"<i>---06</i>", "<i 18:---06>"},
        // Deliberate: the type handed to the writer is datetime for all of these.
        {ReadAndWrite<CdatetimeCol>, u"<i>2001-05-06T07:08:09.10Z</i>", "<i 20:2001-05-06T07:08:09.1Z>"},
        {ReadAndWrite<CdateCol>, u"<i> 2001-05-06 </i><i>-0001-01-01</i>",
         "<i 20:2001-05-06><i 20:-0001-01-01>"},
        {ReadAndWrite<CtimeCol>, u"<i>00:00:00</i>", "<i 20:00:00:00>"},
        {ReadAndWrite<CyearMonthCol>, u"<i>2001-05+01:00</i>", "<i 20:2001-05+01:00>"},
        {ReadAndWrite<CmonthDayCol>, u"<i>--02-29</i>", "<i 20:--02-29>"}};
    for (const auto& [readAndWrite, content, calls] : rows)
        EXPECT_EQ(readAndWrite(content), calls);
}

TEST(TypedCols, ReadAndWriteWholeDocuments) {
    auto items = Make<CdecimalCol>();
    CollectionOwner owner(items); // takes one run, and does not look at a nil attribute
    owner.Read(u"<i i:nil='true' xmlns:i='http://www.w3.org/2001/XMLSchema-instance'/><x/><i>3</i>");
    EXPECT_EQ(Text(owner), "<r><i>0</i></r>");

    auto qualified = Make<Ci4Col>({.elementNamespace = u"urn:i"});
    CollectionOwner qualifiedOwner(qualified);
    qualifiedOwner.Read(u"<p:i xmlns:p='urn:i'>7</p:i><i>8</i>"); // names are compared with their namespace
    EXPECT_EQ(Text(qualifiedOwner), "<r><AA:i xmlns:AA=\"urn:i\">7</AA:i></r>");
    qualifiedOwner.Read(u"<i>8</i>", With(&CXmlSerializationContext::SetIgnoreNamespaces));
    EXPECT_EQ(qualified.GetCount(), 2);
}

template <class Collection, class T>
std::string Written(T value, const ColArguments& arguments, bool ignoreCounts = false) {
    auto items = Make<Collection>(arguments);
    items.Add(value);
    CXmlSerializationContext context;
    context.SetIgnoreInvalidCollectionCounts(ignoreCounts);
    return Outcome<CKzValidationException>([&] { return CollectionOwner(items).Calls(context); });
}

TEST(TypedCols, CheckTheirCountBeforeTheyWrite) {
    EXPECT_EQ(Written<Ci4Col>(1, {.minOccurs = 2}),
              "The Minimum number of [i] elements allowed in this collection is 2");
    EXPECT_EQ(Written<CdateCol>(CDateTime(2001, 5, 6), {.maxOccurs = 0}),
              "The Maximum number of [i] elements allowed in this collection is 0");
    EXPECT_EQ(Written<Ci4Col>(5, {.minOccurs = 2}, true), "<i 5:5>");
}

TEST(TypedCols, HeedTheFormatOfRealsAndDecimals) {
    EXPECT_EQ(Written<Ci4Col>(5, {.format = u"%.2f"}), "<i 5:5>");
    EXPECT_EQ(Written<Cr8Col>(-2.0, {.format = u"%.2f"}), "<i 12:-2.00>");
    EXPECT_EQ(Written<Cr4Col>(0.5f, {.format = u"%.2f"}), "<i 11:0.50>");
    EXPECT_EQ(Written<CdecimalCol>(CDecimal(u"1.235"), {.format = u"2"}), "<i 25:1.24>");
}

/// A log in which `describe` turns an item into text.
template <class T, class Describe>
EventLog LogOf(Describe describe) {
    return EventLog([=](void* item) { return ToUtf8(describe(*static_cast<T*>(item))); });
}

TEST(PrimitiveCol, AddsBeforeItChecksIndexAndThenFacets) {
    EventLog log = LogOf<std::int32_t>(CConversions::i4ToString);
    auto items = Make<Ci4Col>({.minInclusive = u"0"});
    log.Watch(items);
    EXPECT_EQ(log.Of([&] { items.Add(2); }), "add(2) added(2) change ");
    items.AddAt(0, 1);
    items.AddAt(2, 3);
    EXPECT_EQ(Items(items), "<i 5:1><i 5:2><i 5:3>");
    for (const int index : {-1, 4})
        EXPECT_EQ(log.Of([&] { items.AddAt(index, -7); }), "add(-7) Index out of range");
    EXPECT_EQ(log.Of<CKzException>([&] { items.Add(-8); }), "add(-8) Invalid Value for i [-8]");
    EXPECT_EQ(items.GetCount() + items.Item(2), 6);
    for (const int index : {-1, 3})
        EXPECT_EQ(InvalidParam([&] { items.Item(index); }),
                  "Index " + std::to_string(index) + " is out of range, use 0 - 3");
    EXPECT_EQ(std::accumulate(items.begin(), items.end(), 0), 6);
}

/// Both models share the events of removals.
template <class Collection, class T>
void ExpectEventsOfRemovals(T value) {
    EventLog log([](void*) { return ""; });
    auto items = Make<Collection>();
    log.Watch(items);
    const auto removal = [&](int index) { return log.Of([&] { items.Remove(index); }); };
    EXPECT_EQ(removal(0), "remove(0) Index 0 is out of range, use 0 - 0");
    for (int i = 0; i < 3; ++i)
        items.Add(value);
    EXPECT_EQ(removal(2), "remove(2) removed(0) change ");
    EXPECT_EQ(removal(2), "remove(2) Index 2 is out of range, use 0 - 2");
    EXPECT_EQ(removal(-1), "remove(null) Index -1 is out of range, use 0 - 2");
    EXPECT_EQ(log.Of([&] { Collection copy(items); }), ""); // a copy has the listener and no events
    EXPECT_EQ(log.Of([&] { items.Clear(); }), "remove(0) removed(0) change remove(0) removed(0) change ");
}

TEST(TypedCols, RemoveCompleteReportsIndexZero) {
    ExpectEventsOfRemovals<Ci4Col>(7);
    ExpectEventsOfRemovals<CdateCol>(CDateTime(2001, 5, 6));
}

template <class Collection>
struct CountingCol : Collection {
    using Collection::Collection;
    void Remove(int index) override {
        ++removals;
        Collection::Remove(index);
    }
    int removals = 0;
};

/// Clears many items while somebody listens, who adds one when the last is gone.
template <class Collection, class T>
void ExpectLinearClear(T value) {
    constexpr int count = 100'000;
    EventLog log([](void*) { return ""; });
    auto items = Make<CountingCol<Collection>>();
    for (int i = 0; i < count; ++i)
        items.Add(value);
    log.Watch(items);
    log.during = [&](IEventSink::MsgType type) {
        log.Take();
        if (type == IEventSink::MsgType_CollectionRemoveComplete && items.removals == count)
            items.Add(value);
    };
    EXPECT_LT(Seconds([&] { items.Clear(); }), 8);
    EXPECT_EQ(items.removals, count + 1); // an overridden Remove is honoured
}

TEST(TypedCols, ClearIsLinearAlsoWhereSomebodyListens) {
    ExpectLinearClear<CstringCol>(u"a text longer than a short one"s);
    ExpectLinearClear<CdateCol>(CDateTime(2001, 5, 6));
}

TEST(TypedCols, ClearEndsWhereRemovalsAreInVain) {
    struct CStubbornCol : Ci4Col {
        using Ci4Col::Ci4Col;
        int GetCount() const override { return 0; } // which is not asked
        void Remove(int) override {}
    };
    auto items = Make<CStubbornCol>();
    items.Add(1);
    EXPECT_EQ(InvalidState([&] { items.Clear(); }), "The collection cannot be cleared; 1 items stay");
}

TEST(TypedCols, HoldWhatAVectorWouldHold) {
    std::minstd_rand random(1);
    auto items = Make<Ci4Col>();
    std::vector<std::int32_t> model;
    for (int step = 0; step < 2'000; ++step) {
        const bool growing = step / 100 % 2 == 0;
        const std::size_t index = random() % 3 == 0 ? random() % (model.size() + 1) : 0;
        if (random() % 4 != 0 ? growing : !growing) {
            items.AddAt(static_cast<int>(index), step);
            model.insert(model.begin() + static_cast<std::ptrdiff_t>(index), step);
        } else if (index < model.size()) {
            items.Remove(static_cast<int>(index));
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(index));
        }
        const Ci4Col copy(items);
        ASSERT_TRUE(std::ranges::equal(items, model) && std::ranges::equal(copy, model)) << step;
        ASSERT_EQ(items.GetCount(), static_cast<int>(model.size()));
        ASSERT_TRUE(model.empty() || items.Item(items.GetCount() - 1) == model.back()) << step;
    }
}

TEST(TypedCols, CheckFacetsOfTextsAndBytes) {
    EventLog log = LogOf<std::u16string>(CConversions::stringToString);
    auto items = Make<CstringCol>({.pattern = u"[a-z ]+", .minLength = 3});
    log.Watch(items);
    EXPECT_EQ(log.Of([&] { items.Add(u" a "); }), "add( a ) added( a ) change ");
    EXPECT_EQ(items.Item(0), u" a ");
    EXPECT_EQ(Failure([&] { items.Add(u"AB"); }), "Invalid Value for i [AB]");
    EXPECT_EQ(Failure([&] { CollectionOwner(items).Read(u"<i> a </i>"); }), "Invalid Value for i [a]");
    EXPECT_EQ(items.GetCount(), 1);

    // Booleans have no facets, and binary data has lengths.
    auto flags = Make<CbooleanCol>({.pattern = u"(", .minLength = 9, .minInclusive = u"x"});
    EXPECT_NO_THROW(flags.Add(true));

    auto blobs = Make<Cbase64BinaryCol>({.minLength = 2});
    CBinaryData data;
    data.SetAsHexString(u"0A0B");
    blobs.Add(data);
    data.SetAsHexString(u"0A");
    EXPECT_EQ(Failure([&] { blobs.Add(data); }), "Invalid Value for i [0A]");
    *blobs.begin() = data; // what is checked once is not checked again by writing
    EXPECT_EQ(Items(blobs), "<i 2:Cg==>");
}

TEST(DateTimeCols, AdmitDatesOfTheirKindAlone) {
    EventLog log = LogOf<CDateTime>(CConversions::dateToString);
    auto items = Make<CdateCol>({.minInclusive = u"2001-05-05"});
    log.Watch(items);
    CdatetimeBaseCol& base = items;
    EXPECT_EQ(log.Of([&] { base.Add(CDateTime(2001, 5, 6)); }), "add(2001-05-06) added(2001-05-06) change ");
    base.AddAt(0, CDateTime(2001, 5, 5));
    base.AddAt(2, *base.begin()); // a value of its own
    EXPECT_EQ(Items(items), "<i 20:2001-05-05><i 20:2001-05-06><i 20:2001-05-05>");
    EXPECT_EQ(base.Item(1), CDateTime(2001, 5, 6));
    EXPECT_EQ(InvalidParam([&] { base.Item(3); }), "Index 3 is out of range, use 0 - 3");

    const CDateTime wrongKind(2001, 1, 1, 0, 0, 0), tooLow(2001, 5, 4);
    EXPECT_EQ(log.Of([&] { base.AddAt(9, wrongKind); }),
              "Dates added to this collection must be of type dt_date");
    EXPECT_EQ(log.Of<CKzException>([&] { base.AddAt(9, tooLow); }), "Invalid Value for i [2001-05-04]");
    EXPECT_EQ(log.Of([&] { base.AddAt(4, CDateTime(2001, 5, 7)); }), "add(2001-05-07) Index out of range");

    const CDateTime date(2001, 5, 6); // the form of a text decides on its kind
    EXPECT_EQ(InvalidParam([&] { Make<CdatetimeCol>().Add(date); }),
              "Dates added to this collection must be of type dt_dateTime");
    EXPECT_EQ(InvalidParam([&] { Make<CyearMonthCol>().Add(date); }),
              "Dates added to this collection must be of type dt_gYearMonth");
    EXPECT_EQ(InvalidParam([&] { CollectionOwner(items).Read(u"<i>2001-05-06</i><i>2001</i>"); }),
              "Dates added to this collection must be of type dt_date");
    EXPECT_EQ(items.GetCount(), 4);
}

} // namespace
