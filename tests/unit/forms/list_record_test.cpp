// The records of lists and pictures in the companion.
#include "forms/list_record.h"

#include <gmock/gmock.h>

#include "forms/companion.h"
#include "forms/picture_mark.h"
#include "forms/picture_record.h"

namespace lumenkit::forms {
namespace {

using std::string_literals::operator""s;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const CodePage western(1252);

TEST(ListRecord, IsReadAndWrittenExactly) {
    const std::string record = "\3\0\7\0\3\0red\5\0green\4\0blue"s;
    const std::vector<Text> items = ReadListRecord(record, western);
    EXPECT_THAT(items, ElementsAre(u"red", u"green", u"blue"));
    EXPECT_EQ(WriteListRecord(items, western, {}), record);
    EXPECT_THAT(ReadListRecord("\0\0"s, western), IsEmpty());
    EXPECT_EQ(WriteListRecord({}, western, record), "\0\0"s);
}

TEST(ListRecord, ItsSecondNumberFollowsTheLongestItem) {
    EXPECT_EQ(WriteListRecord({u"a", u"four"}, western, {}), "\2\0\6\0\1\0a\4\0four"s);
    EXPECT_EQ(WriteListRecord({u"a", u"four"}, western, "\1\0\3\0\1\0b"s),
              "\2\0\6\0\1\0a\4\0four"s);
    EXPECT_EQ(WriteListRecord({u"a", u"four"}, western, "\1\0\0\0\1\0b"s), "\2\0\0\0\1\0a\4\0four"s)
        << "another number is kept";
}

TEST(ListRecord, CountsBytes) {
    const CodePage japanese(932);
    const std::string record = "\1\0\4\0\2\0\x83\x5C"s;
    EXPECT_THAT(ReadListRecord(record, japanese), ElementsAre(u"ソ"));
    EXPECT_EQ(WriteListRecord({u"ソ"}, japanese, {}), record);
}

TEST(ListRecord, IgnoresWhatFollows) {
    EXPECT_THAT(ReadListRecord("\1\0\3\0\1\0a"s + "rest", western), ElementsAre(u"a"));
    EXPECT_THAT(ReadItemDataRecord("\1\0\x05\0\0\0rest"s, 1), ElementsAre(5));
}

TEST(ListRecord, RefusesOtherRecords) {
    for (const std::string& record :
         {""s, "\1"s, "\1\0"s, "\1\0\0\0"s, "\2\0\0\0\1\0a"s, "\1\0\0\0\5\0abc"s}) {
        EXPECT_THROW(ReadListRecord(record, western), BadRecord) << record.size();
    }
}

TEST(ListRecord, RefusesWhatItCannotWriteAgain) {
    // 0x81 0xCA and 0xEE 0xF9 are the same character in code page 932.
    EXPECT_THROW(ReadListRecord("\1\0\4\0\2\0\xEE\xF9"s, CodePage(932)), BadRecord);
    EXPECT_THROW(WriteListRecord({u"ł"}, western, {}), Unmappable);
    EXPECT_THROW(WriteListRecord({Text(65536, u'x')}, western, {}), BadRecord);
    EXPECT_THROW(WriteListRecord(std::vector<Text>(65536), western, {}), BadRecord);
}

TEST(ItemDataRecord, IsReadAndWrittenExactly) {
    const std::string record = "\2\0\x01\0\0\0\xFE\xFF\xFF\xFF"s;
    EXPECT_THAT(ReadItemDataRecord(record, 2), ElementsAre(1, -2));
    EXPECT_EQ(WriteItemDataRecord({1, -2}), record);
    EXPECT_EQ(WriteItemDataRecord({}), "\0\0"s);
}

TEST(ItemDataRecord, RefusesAnotherCountAndOtherRecords) {
    EXPECT_THROW(ReadItemDataRecord("\2\0\1\0\0\0\2\0\0\0"s, 3), BadRecord);
    EXPECT_THROW(ReadItemDataRecord("\2\0\1\0\0\0\2\0\0"s, 2), BadRecord);
    EXPECT_THROW(ReadItemDataRecord(""s, 0), BadRecord);
    EXPECT_THROW(ReadItemDataRecord("\2\0\4\0\2\0\x31\x32\2\0\x33\x34"s, 2), BadRecord)
        << "numbers in digits";
}

TEST(PictureRecord, IsReadAndWrittenExactly) {
    const std::string record = "\x0D\0\0\0lt\0\0\x05\0\0\0BMxyz"s;
    EXPECT_EQ(ReadPictureRecord(record), "BMxyz");
    EXPECT_EQ(WritePictureRecord("BMxyz"), record);
    EXPECT_EQ(ReadPictureRecord(record + "rest"), "BMxyz");
}

TEST(PictureRecord, RefusesOtherRecords) {
    EXPECT_FALSE(IsPictureRecord("\x0D\0\0\0lx\0\0\x05\0\0\0BMxyz"s));
    for (const std::string& record :
         {""s, "\x0D\0\0\0lt\0\0\x05\0\0"s, "\x0D\0\0\0lx\0\0\x05\0\0\0BMxyz"s,
          "\x0D\0\0\0lt\0\0\x05\0\0\0BMxy"s, "\x0E\0\0\0lt\0\0\x05\0\0\0BMxyz"s}) {
        EXPECT_THROW(ReadPictureRecord(record), BadRecord) << record.size();
    }
}

}  // namespace
}  // namespace lumenkit::forms
