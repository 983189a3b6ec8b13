#include "runtime/ole/stored/stream_format.h"

#include <algorithm>
#include <limits>
#include <random>

#include <gmock/gmock.h>

#include "tests/support/corpus.h"
#include "tests/support/sealed_stream.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"
#include "tests/unit/ole/stored/stream_check.h"

namespace lumenkit::stored {
namespace {

using Bytes = std::vector<std::uint8_t>;

Records OneOfEachKind() {
    return {
        {u"Nothing", std::monostate()},
        {u"Yes", true},
        {u"No", false},
        {u"Integer", std::numeric_limits<std::int16_t>::min()},
        {u"Long", std::numeric_limits<std::int32_t>::max()},
        {u"Single", 0.1F},
        {u"Double", -1e300},
        {u"Text", Text(u"caf\u00E9\0\r\n\U0001F600", 9)},
        {u"", Text()},
        {u"Font", FontRecord{.name = u"Arial",
                             .size = 82500,
                             .weight = 700,
                             .charset = 204,
                             .italic = true,
                             .underline = false,
                             .strikethrough = true}},
    };
}

bool Same(const Records& left, const Records& right) {
    return std::ranges::equal(left, right, [](const Record& one, const Record& other) {
        return one.name == other.name && one.value == other.value;
    });
}

TEST(StreamFormat, IsReadAsItWasWritten) {
    EXPECT_TRUE(Same(Decode(Encode(OneOfEachKind())), OneOfEachKind()));
    EXPECT_TRUE(Decode(Encode({})).empty());
}

// Compares byte by byte, because existing files must stay readable.
TEST(StreamFormat, IsLaidOutAsDescribed) {
    const Bytes written = Encode({{u"Ab", std::int16_t{-2}}, {u"", Text(u"\u20AC")}});
    const Bytes expected = {
        'L', 'K', 'P', 'B', 1,   0, 2,   0, 22, 0,    0,    0,  // header: 2 records, 22 bytes
        2,   0,   0,   0,   'A', 0, 'b', 0, 2,  0xFE, 0xFF,     // a name, an integer
        0,   0,   0,   0,   6,   1, 0,   0, 0,  0xAC, 0x20,     // no name, a text
        0,   0,   0,   0,                                       // the checksum
    };
    EXPECT_EQ(written, testing::Sealed(expected));
}

TEST(StreamFormat, FontsAreLaidOutAsDescribed) {
    const FontRecord font = {.name = u"F",
                             .size = 0x0102030405060708,
                             .weight = 400,
                             .charset = -1,
                             .italic = true,
                             .underline = true,
                             .strikethrough = false};
    const Bytes expected = {
        'L', 'K', 'P', 'B', 1, 0, 1, 0, 26, 0, 0, 0, 1,    0, 0,    0,    'x', 0, 7, 1, 0,
        0,   0,   'F', 0,   8, 7, 6, 5, 4,  3, 2, 1, 0x90, 1, 0xFF, 0xFF, 3,   0, 0, 0, 0,
    };
    EXPECT_EQ(Encode({{u"x", font}}), testing::Sealed(expected));
}

TEST(StreamFormat, TheHeaderSaysHowMuchFollows) {
    const Bytes bytes = Encode(OneOfEachKind());
    EXPECT_EQ(EncodedRest(std::span(bytes).first(encodedHeaderSize)),
              bytes.size() - encodedHeaderSize);
    EXPECT_THROW(EncodedRest(std::span(bytes).first(encodedHeaderSize - 1)), Corrupt);
    EXPECT_THROW(EncodedRest(std::span(bytes).first(encodedHeaderSize + 1)), Corrupt);
}

TEST(StreamFormat, EveryTruncationIsRefused) {
    const Bytes bytes = Encode(OneOfEachKind());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_THROW(Decode(std::span(bytes).first(length)), Corrupt) << length;
    }
}

TEST(StreamFormat, EveryChangeOfOneBitIsRefused) {
    const Bytes bytes = Encode(OneOfEachKind());
    for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
        Bytes changed = bytes;
        changed[bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
        EXPECT_THROW(Decode(changed), Corrupt) << bit;
    }
}

TEST(StreamFormat, WhatFollowsTheLastRecordIsRefused) {
    Bytes bytes = Encode({{u"a", true}});
    ++bytes[8];
    bytes.push_back(0);
    EXPECT_THROW(Decode(testing::Sealed(bytes)), Corrupt);
}

TEST(StreamFormat, RecordsThatAreNotThereAreRefused) {
    Bytes bytes = Encode({{u"a", true}});
    bytes[6] = 0xFF;
    bytes[7] = 0xFF;
    EXPECT_THROW(Decode(testing::Sealed(bytes)), Corrupt);
}

TEST(StreamFormat, AVersionOfLaterIsRefused) {
    Bytes bytes = Encode({{u"a", true}});
    bytes[4] = 2;
    EXPECT_THROW(Decode(testing::Sealed(bytes)), Corrupt);
}

TEST(StreamFormat, AnUnknownKindIsRefused) {
    Bytes bytes = Encode({{u"a", true}});
    const std::size_t kind = encodedHeaderSize + 4 + 2;
    ASSERT_EQ(bytes[kind], 1);
    bytes[kind] = 8;
    EXPECT_THROW(Decode(testing::Sealed(bytes)), Corrupt);
}

// The changed bytes have a valid checksum.
TEST(StreamFormat, RecordsThatLieDoNoHarm) {
    std::mt19937 random(testing::TestSeed());
    const Bytes bytes = Encode(OneOfEachKind());
    for (int round = 0; round < testing::Rounds(3000); ++round) {
        Bytes changed = bytes;
        for (std::size_t changes = 1 + random() % 3; changes > 0; --changes) {
            changed[random() % changed.size()] = static_cast<std::uint8_t>(random());
        }
        EXPECT_EQ(testing::StreamFault(testing::Sealed(changed)), "");
    }
}

// The corpus holds the seeds and the findings of the fuzzers.
TEST(StreamFormat, IsReadOrRefusedFromTheCorpus) {
    testing::ForEachCorpusFile("stored", [](std::string_view bytes) {
        EXPECT_EQ(testing::StreamFault(testing::StreamFromBytes(bytes)), "");
    });
}

}  // namespace
}  // namespace lumenkit::stored
