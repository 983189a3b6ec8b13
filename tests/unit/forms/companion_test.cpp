#include "forms/companion.h"

#include <gmock/gmock.h>

namespace lumenkit::forms {
namespace {

using namespace std::string_literals;

// Returns the string in the first record of a companion whose records begin at `offsets`.
std::string StringIn(const std::string& bytes, std::vector<std::uint32_t> offsets = {0}) {
    const Companion companion(bytes, std::move(offsets));
    return std::string(companion.String(0));
}

TEST(Companion, ReadsTheThreeShapesOfStrings) {
    EXPECT_EQ(StringIn("\x05"s + "short"), "short");
    EXPECT_EQ(StringIn("\0"s), "");
    EXPECT_EQ(StringIn("\xFF\x06\0"s + "medium"), "medium");
    EXPECT_EQ(StringIn("\x04\0\0\0long"s), "long");
    EXPECT_EQ(StringIn("\xFE"s + std::string(254, 'x')), std::string(254, 'x'));
    EXPECT_EQ(StringIn("\xFF\xFF\0"s + std::string(255, 'x')), std::string(255, 'x'));
    EXPECT_EQ(StringIn("\xFF\xFF\xFF"s + std::string(65535, 'x')), std::string(65535, 'x'));
    EXPECT_EQ(StringIn("\0\0\1\0"s + std::string(65536, 'x')), std::string(65536, 'x'));
}

TEST(Companion, TellsTheShapeByTheNextRecord) {
    // The four bytes 03 00 00 00 could also be a one-byte length and a text of three NULs.
    EXPECT_EQ(StringIn("\3\0\0\0"s + "abc", {0, 4}), "\0\0\0"s);
    EXPECT_EQ(StringIn("\3\0\0\0"s + "abc", {0, 7}), "abc");
    // A one-byte string whose neighbours look like a four-byte length.
    EXPECT_EQ(StringIn("\1A\5\0\0\0"s, {0, 2}), "A");
}

TEST(Companion, ReadsStringsBeforeBytesThatNothingRefersTo) {
    EXPECT_EQ(StringIn("\3abc\4left"s), "abc");
    EXPECT_EQ(StringIn("\xFF\3\0abc\4left"s), "abc");
    EXPECT_EQ(StringIn("\3\0\0\0abc\4left"s), "abc");
    // With a length of four bytes, the text would contain a NUL or exceed the record.
    EXPECT_EQ(StringIn("\1\0\0\0\0\0"s), "\0"s);
    EXPECT_EQ(StringIn("\2ab\0"s), "ab");
}

TEST(Companion, GivesRecordsAsTheyStand) {
    const Companion companion("\3abc\1zrest"s, {4, 0, 4});
    EXPECT_EQ(companion.Record(0), "\3abc"s);
    EXPECT_EQ(companion.Record(4), "\1zrest"s);
    EXPECT_EQ(companion.Bytes(), "\3abc\1zrest"s);
}

TEST(Companion, RefusesWhatIsNoString) {
    const auto refusal = [](const std::string& bytes) -> std::string {
        try {
            return StringIn(bytes);
        } catch (const BadRecord& bad) {
            return bad.what();
        }
    };
    EXPECT_EQ(refusal("\4abc"s), "expected a string of 4 bytes in the companion, found 3");
    EXPECT_EQ(refusal("\xFF\4\0abc"s), "expected a string of 4 bytes in the companion, found 3");
    EXPECT_EQ(refusal("\xFF"s), "expected the length of a string in the companion, found 1 bytes");
    EXPECT_EQ(refusal("\xFF\1"s),
              "expected the length of a string in the companion, found 2 bytes");
    EXPECT_EQ(refusal("\x0A\0\0\0lt\0\0\2\0\0\0BM"s),
              "expected a string in the companion, found a picture");
    EXPECT_EQ(refusal(""), "expected an offset below the companion's size of 0 bytes, found 0");
}

TEST(Companion, AppendsWithTheShortestHeader) {
    const struct {
        std::size_t length;
        std::string header;
    } samples[] = {
        {0, "\0"s},           {1, "\1"s},
        {254, "\xFE"s},       {255, "\xFF\xFF\0"s},
        {256, "\xFF\0\1"s},   {65535, "\xFF\xFF\xFF"s},
        {65536, "\0\0\1\0"s}, {70000, "\x70\x11\1\0"s},
    };
    for (const auto& sample : samples) {
        const std::string content(sample.length, 'x');
        std::string bytes = "before";
        EXPECT_EQ(AppendString(bytes, content), 6U);
        EXPECT_TRUE(bytes == "before" + sample.header + content) << sample.length;
        EXPECT_TRUE(Companion(bytes, {0, 6}).String(6) == content) << sample.length;
    }
}

}  // namespace
}  // namespace lumenkit::forms
