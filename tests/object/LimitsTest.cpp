#include "object/RecursionLevel.h"
#include "support/Test.h"

namespace {

constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();

std::string LoadFailure(const std::string& bytes) {
    CXmlDocument document;
    return Failure([&] { LoadBytes(document, bytes); });
}

/// Begins a level of nesting on a thread that has used 40 MiB of its 64 MiB of stack.
std::string NestOnUsedStack() {
    std::string failure;
    RunOnStack(64 << 20, [&] {
        volatile char used[40 << 20];
        volatile std::size_t some = 0; // unknown to the compiler, which must keep the whole array
        used[some] = 0;
        failure = Failure([] { RecursionLevel(); }) + std::string(1, used[some]).c_str();
    });
    return failure;
}

TEST(Limits, EachFigureBoundsItsWork) {
    const std::string elements = Repeat<std::string>("<a b=''/>", 5000);
    const std::string compressed = Compressed("<r>" + elements + "</r>", CompressionType_GZip);
    // Small nodes, so that their names alone do not reach the limit: as text and as Fast Infoset.
    const std::string nodes = Compressed("<r>" + Repeat("<a/>"s, 5000) + "</r>", CompressionType_GZip);
    const std::string binaryNodes = Compressed(
        "\xE0\0\0\x01\0\x3C\0r\x3C\0a\xF0"s + Repeat("\x01\xF0"s, 5000) + "\xF0", CompressionType_GZip);
    const auto tooMany = [](const std::string& bytes, std::size_t perByte) {
        return "The tree of the document comes to more than " + std::to_string(perByte * bytes.size()) +
               " bytes";
    };
    const std::string text = "<a>" + std::string(1000, 'b') + "</a>";
    const auto load = [](const std::string& bytes) { return [&] { return LoadFailure(bytes); }; };
    const auto loadWide = [&] { return Failure([&] { CXmlDocument().LoadXml(FromUtf8(text).c_str()); }); };
    const auto decimal = [] { return Failure<CKzInvalidValueException>([] { CDecimal(u"1E3"); }); };
    const auto write = [] { return Failure([] { Text(CElement(u"a")); }); };
    const auto skip = [] {
        kit::Model group(u"g", KzXmlLib10Data::XmlElementGroupType_Sequence,
                         KzXmlLib10Data::XmlElementType_Pseudo);
        group.Prim(u"a", kit::Mnd, ItemType_i4);
        kit::Model root(u"r");
        root.Class(u"g", kit::Opt, group);
        const auto context = With(&CXmlSerializationContext::SetIgnoreUnknownElements);
        return Failure<CKzValidationException>([&] { root.New()->FromXml(u"<r><u/><u/><u/></r>", context); });
    };
    const auto match = [] {
        return MatchXsdPattern("(a|b)*", std::u16string(10000, u'a')) ? "no failure" : "no match";
    };
    const std::tuple<std::uint64_t Limits::*, std::uint64_t, std::function<std::string()>, std::string>
        rows[] = {
            {&Limits::inputBytes, 1006, load(text), "The XML input has 1007 bytes; the limit is 1006"},
            {&Limits::inputBytes, 2015, loadWide, "The XML input has 2016 bytes; the limit is 2015"},
            {&Limits::inflatedBytes, 45006, load(compressed),
             "The content of the compressed stream is larger than the limit of 45006 bytes"},
            {&Limits::treeTextBytesPerInputByte, 1, load(text),
             "The names, values and texts of the document come to more than 1007 bytes"},
            {&Limits::treeBytesPerInputByte, 100, load(compressed), tooMany(compressed, 100)},
            {&Limits::treeBytesPerInputByte, 500, load(nodes), tooMany(nodes, 500)},
            {&Limits::treeBytesPerInputByte, 500, load(binaryNodes), tooMany(binaryNodes, 500)},
            {&Limits::decimalExponent, 2, decimal,
             "The string representing a Decimal, contained an exponent above 2 [1E3]"},
            {&Limits::nestedObjects, 0, write, "The elements are nested too deep (0 levels)"},
            {&Limits::stackReserve, most, NestOnUsedStack, "The elements are nested too deep (0 levels)"},
            {&Limits::skippedElements, 2, skip,
             "Failed to process the element [r]\nFailed to process the element [r]\n"
             "More unknown elements were skipped than the limit of 2"},
            {&Limits::patternHeapBytes, 1024, match, "no match"},
        };
    for (const auto& [figure, value, work, failure] : rows) {
        EXPECT_EQ(work(), "no failure");
        LimitsScope limits(&Limits::treeTextBytes, 0); // leaves what the size of the input allows
        limits.Set(&Limits::treeBytes, 0);
        limits.Set(figure, value);
        EXPECT_EQ(work(), failure);
    }
}

TEST(Limits, WhatIsReadAtTheDeepestLevelIsWritten) {
    kit::Model leaf(u"n");
    leaf.Attribute(u"id", kit::Optional, ItemType_string);
    kit::Model root(u"n");
    root.Class(u"n", kit::Opt, leaf);
    LimitsScope limits(&Limits::nestedObjects, 2);
    const auto object = root.New();
    object->FromXml(u"<n><n id='x'/></n>", CXmlSerializationContext());
    EXPECT_EQ(Text(*object), "<n><n id=\"x\"/></n>");
}

TEST(Limits, AreSetTogetherOrNotAtAll) {
    const LimitsScope unchanged;
    Limits limits;
    limits.treeTextBytes = limits.treeTextBytesPerInputByte = most; // saturate instead of wrapping
    limits.treeBytes = limits.treeBytesPerInputByte = most;
    SetLimits(limits);
    EXPECT_EQ(LoadFailure("<a b='c'>d</a>"), "no failure");
    limits.treeBytes = 7;
    limits.patternHeapBytes = most;
    EXPECT_EQ(Failure<CKzInvalidParamException>([&] { SetLimits(limits); }),
              "The limit patternHeapBytes may not be above 4398046510080");
    EXPECT_EQ(GetLimits().treeBytes, most);
    for (const auto figure : {&Limits::inputBytes, &Limits::inflatedBytes}) { // 32-bit fields hold them
        limits = GetLimits();
        limits.*figure = 1ull << 32;
        EXPECT_THROW(SetLimits(limits), CKzInvalidParamException);
    }
}

} // namespace
