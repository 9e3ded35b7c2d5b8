#include "support/Test.h"

TEST(CBinaryData, NoArrayAndAnEmptyArrayAreDifferent) {
    CBinaryData none, alsoNone;
    EXPECT_TRUE(none == alsoNone && !none.GetData() && none.GetLength() == 0 && !none.ReleaseData());
    EXPECT_EQ(none.GetAsBase64() + none.GetAsHexString(), u"");
    for (const CBinaryData& empty : {ToBinary(""), CBinaryData(u""), CBinaryData(nullptr, 0, true)}) {
        EXPECT_TRUE(none != empty && empty != none && empty == ToBinary(""));
        EXPECT_EQ(empty.GetAsHexString(), u"");
    }
    EXPECT_EQ(Failure([&] { (void)none[0]; }) + Failure([&] { (void)std::as_const(none)[0]; }),
              "Index Out of range [0]Index Out of range [0]");
    none.Append(alsoNone);
    alsoNone.Reserve(1);
    EXPECT_TRUE(none == ToBinary("") && alsoNone == none);
}

TEST(CBinaryData, ChangesOfACopyLeaveTheSource) {
    CBinaryData source = ToBinary("abc");
    CBinaryData copy = source, indexed = source, written = source, assigned;
    EXPECT_EQ(copy.GetData(), source.GetData());
    copy.Append(static_cast<unsigned char>('d'));
    EXPECT_NE(copy.GetData(), source.GetData());
    indexed[1] = 'X';
    unsigned char* const to = written.Reserve(10'000);
    *to = 'e';
    written.Commit(to + 1);
    assigned = source;
    std::unique_ptr<unsigned char[]> released(assigned.ReleaseData());
    released[0] = 'Y';
    EXPECT_EQ(FromBinary(source) + FromBinary(copy) + FromBinary(indexed) + FromBinary(written),
              "abcabcdaXcabce");
    EXPECT_EQ(assigned.GetData(), nullptr);
}

TEST(CBinaryData, AdoptsArrays) {
    auto* const array = new unsigned char[1]{'a'};
    CBinaryData last;
    {
        const CBinaryData first(array, 1, true);
        last = first;
    }
    const CBinaryData& self = last;
    last = self;
    last = std::move(const_cast<CBinaryData&>(self));
    EXPECT_EQ(last.GetAsHexString(), u"61");
    const std::unique_ptr<unsigned char[]> same(last.ReleaseData());
    EXPECT_EQ(same.get(), array);
}

TEST(CBinaryData, AppendsItselfAndPiecesOfItself) {
    CBinaryData adopted(new unsigned char[3]{'a', 'b', 'c'}, 3, true); // full, so that each step moves it
    adopted.Append(adopted);
    adopted.Append(adopted.GetData() + 4, 2);
    EXPECT_EQ(FromBinary(adopted), "abcabcbc");
    const CBinaryData shared = adopted;
    adopted.Append(adopted.GetData(), 1);
    adopted.Append(shared);
    EXPECT_EQ(FromBinary(adopted), "abcabcbcaabcabcbc");
    adopted.SetBuffer(adopted.GetData() + 1, 2);
    EXPECT_EQ(FromBinary(adopted) + FromBinary(shared), "bcabcabcbc");
}

TEST(CBinaryData, AppendsTextAsLittleEndianUnits) {
    CBinaryData data(u"A");
    data.Append(u'\u20ac');
    data.Append(u"B\0C");
    data.Append(std::u16string(u"\0D", 2));
    EXPECT_EQ(data.GetAsHexString(), u"4100AC20420000004400");
    data.SetBuffer(u"Z");
    EXPECT_EQ(data.GetAsHexString(), u"5A00");
}

TEST(CBinaryData, TheIndexEqualToTheLengthIsASpareByte) {
    CBinaryData data(new unsigned char[2]{1, 2}, 2, true);
    const CBinaryData& view = data;
    EXPECT_EQ(view[1], 2);
    EXPECT_EQ(view[2], view[2]);
    data[2] = 9;
    EXPECT_EQ(data.GetAsHexString(), u"0102");
    EXPECT_EQ(&data[2], &data[0] + 2);
    EXPECT_EQ(Failure([&] { data[3] = 0; }) + Failure([&] { (void)view[3]; }),
              "Index Out of range [3]Index Out of range [3]");
}

TEST(CBinaryData, BadHexadecimalTextLeavesNothing) {
    const auto failure = [](const std::u16string& text) {
        CBinaryData data = ToBinary("x");
        const std::string message = Failure([&] { data.SetAsHexString(text); });
        EXPECT_EQ(data.GetData(), nullptr);
        unsigned char* array = nullptr;
        EXPECT_EQ(Failure([&] { CBinaryData::ConvertToHexData(text, &array); }), message);
        EXPECT_EQ(array, nullptr);
        return message;
    };
    EXPECT_EQ(failure(u"zzz"), "Invalid length in hex string");
    for (const char16_t c : u" Gg@`/:\u0141") { // and the terminating zero
        const std::string message = "Invalid char in hex string [" + ToUtf8(std::u16string(1, c)) + ']';
        for (const auto& text :
             {std::u16string{u'0', u'1', u'2', c}, {u'0', u'1', c, u'2'}, {c, u'z'}, {c, u'1'}})
            EXPECT_EQ(failure(text), message);
    }
}

TEST(CBinaryData, Base64AndHexadecimalTextBothWays) {
    CBinaryData data;
    ExpectRows({" -> ", "Zg== -> 66", "Zm8= -> 666F", "Zm9v -> 666F6F", "+/+//g== -> FBFFBFFE",
                "ASNFZ4mrze8= -> 0123456789ABCDEF"},
               [&](const char16_t* base64) {
                   data.SetAsBase64(base64);
                   const std::u16string hex = data.GetAsHexString();
                   data.SetAsHexString(hex);
                   EXPECT_EQ(data.GetAsBase64(), base64);
                   return ToUtf8(hex);
               });
    data.SetAsHexString(u"abcdef");
    EXPECT_EQ(FromBinary(data), "\xab\xcd\xef");
    EXPECT_EQ(CBinaryData::GetAsHexString(nullptr, 5), u"");
    EXPECT_EQ(ToBinary(std::string(999, '\0')).GetAsBase64(), std::u16string(1332, u'A')); // in one line

    // Loose forms are accepted silently.
    const auto decoded = [&](const std::u16string& text) {
        data.SetAsBase64(text);
        return FromBinary(data);
    };
    ExpectRows({" Zm\r\n9v\tYmFy  -> foobar", "Zg==Zg== -> f\x06`", "Zm9vYg -> foob", "=Z=m=9=v= -> foo",
                "Z -> ", "Zm9v* -> ", "* -> ", "\u015a\u016d\u20b9\u0176 -> foo"}, // low seven bits: Z m 9 v
               decoded);
    data = ToBinary("old");
    EXPECT_EQ(decoded(std::u16string(u"Zm\0v", 4)), "");
}

TEST(CBinaryData, RefusesNullAndWhatDoesNotFit32Bits) {
    unsigned char byte = 1;
    CBinaryData data = ToBinary("abc");
    const std::string tooLong = "Binary data cannot hold more than 4294967295 bytes";
    for (const std::size_t length : {(1ul << 32) - 3, 1ul << 32, ~0ul})
        EXPECT_EQ(Failure([&] { data.Append(&byte, length); }), tooLong);
    CBinaryData empty;
    empty.SetBuffer(&byte, 0);
    EXPECT_EQ(Failure([&] { empty.Append(&byte, 1ul << 32); }), tooLong);
    EXPECT_EQ(Failure([&] { data.SetBuffer(&byte, 1ul << 32); }), tooLong);
    EXPECT_EQ(Failure([&] { CBinaryData(&byte, 1ul << 32, true); }), tooLong);
    EXPECT_THROW(data.Append(static_cast<const char16_t*>(nullptr)), CKzInvalidParamException);
    EXPECT_THROW(data.Append(nullptr, 1), CKzInvalidParamException);
    EXPECT_THROW(CBinaryData::ConvertToHexData(u"", nullptr), CKzInvalidParamException);
    EXPECT_THROW(data.SetBuffer(nullptr, 1), CKzInvalidParamException);
    EXPECT_THROW(CBinaryData(nullptr, 1, true), CKzInvalidParamException);
    EXPECT_EQ(FromBinary(data), "abc");
}

TEST(CBinaryData, ThreadsChangeTheirOwnHandlesOnOneArray) {
    const CBinaryData shared = ToBinary("shared");
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([handle = shared] {
            for (int j = 0; j < 1000; ++j) {
                CBinaryData copy = handle;
                copy.Append(static_cast<unsigned char>('!'));
                copy[0] = 'S';
                ASSERT_EQ(FromBinary(handle) + FromBinary(copy), "sharedShared!");
            }
        });
}
