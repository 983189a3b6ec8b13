// Reads requests, with every type checked.
#include <functional>
#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "apps/lumenkit/drive/request.h"
#include "frame/host/font.h"
#include "frame/runtime_error.h"

namespace lumenkit::cli {

namespace {

// Returns the message for the client; empty if there is none.
std::string Complaint(const std::function<void()>& act) {
    try {
        act();
        return "";
    } catch (const BadRequest& error) {
        return error.what();
    }
}

std::string Complaint(const std::string& line) {
    return Complaint([&] { ParseRequest(line); });
}

TEST(DriveRequest, SaysWhereALineStopsBeingJson) {
    EXPECT_EQ(Complaint(R"({"a":[1,-2.5e3,true,null,"\u00e4"]})"), "");
    EXPECT_EQ(Complaint("x"), "not valid JSON at column 1");
    EXPECT_EQ(Complaint("  x"), "not valid JSON at column 3");
    EXPECT_EQ(Complaint("[01]"), "not valid JSON at column 3");
    EXPECT_EQ(Complaint("[1,]"), "not valid JSON at column 4");
    EXPECT_EQ(Complaint("\"\t\""), "not valid JSON at column 2");
    EXPECT_EQ(Complaint("[\"\xC3\xA4\",\"\xF0\x9F\x98\x80\",x]"), "not valid JSON at column 10");
    EXPECT_EQ(Complaint(""), "not valid JSON: the line ends too early");
    EXPECT_EQ(Complaint("[\"a"), "not valid JSON: the line ends too early");
    EXPECT_EQ(Complaint("\"\xC3\xA4\xC3\""), "not valid UTF-8 at column 3");
    EXPECT_EQ(Complaint("[-1e400]"), "a number is beyond double precision");
}

TEST(DriveRequest, NestsAsDeepAsSixteenLevels) {
    EXPECT_EQ(Complaint(std::string(16, '[') + std::string(16, ']')), "");
    EXPECT_EQ(Complaint(std::string(16, '[') + "1" + std::string(16, ']')), "");
    EXPECT_EQ(Complaint(std::string(17, '[') + std::string(17, ']')),
              "nested deeper than 16 levels");
    EXPECT_EQ(Complaint(std::string(17, '[') + "1" + std::string(17, ']')),
              "nested deeper than 16 levels");
    EXPECT_EQ(Complaint("\"" + std::string(99, '[') + "\""), "");
}

class DriveFields : public ::testing::Test {
 protected:
    std::string Complaint(const std::function<void()>& act) { return cli::Complaint(act); }

    const RequestJson json = RequestJson::parse(
        R"({"s":"x","t":true,"n":null,"whole":3,"point":3.0,"half":0.5,"most":32767,"more":32768,)"
        R"("least":-32768,"less":-32769,"big":3.4e38,"bigger":3.5e38,"list":["a","b"],"o":{}})");
    const Fields fields{json, "the thing"};
};

TEST_F(DriveFields, ReadWhatIsThere) {
    EXPECT_EQ(fields.String("s"), "x");
    EXPECT_TRUE(fields.Boolean("t"));
    EXPECT_EQ(fields.Single("half"), 0.5F);
    EXPECT_EQ(fields.Single("big"), 3.4e38F);
    EXPECT_EQ(fields.Whole<std::int32_t>("whole"), 3);
    EXPECT_EQ(fields.Whole<std::int32_t>("point"), 3);
    EXPECT_EQ(fields.Whole<std::int16_t>("most"), 32767);
    EXPECT_EQ(fields.Whole<std::int16_t>("least"), -32768);
    EXPECT_EQ(fields.Whole<std::int32_t>("more"), 32768);
    EXPECT_EQ(fields.Strings("list"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(fields.List("list").size(), 2U);
}

TEST_F(DriveFields, FallBackWhereNothingIs) {
    EXPECT_EQ(fields.String("none", "f"), "f");
    EXPECT_TRUE(fields.Boolean("none", true));
    EXPECT_EQ(fields.Single("none", 2.5F), 2.5F);
    EXPECT_EQ(fields.Whole<std::int16_t>("none", 7), 7);
    EXPECT_TRUE(fields.List("none").empty());
    EXPECT_EQ(Complaint([&] { fields.Strings("none"); }), "the thing needs \"none\"");
    EXPECT_EQ(Complaint([&] { fields.At("none"); }), "the thing needs \"none\"");
}

TEST_F(DriveFields, RefuseOtherTypesWithAFallbackToo) {
    EXPECT_EQ(Complaint([&] { fields.String("n", ""); }), "\"n\" must be a string");
    EXPECT_EQ(Complaint([&] { fields.Boolean("whole", true); }), "\"whole\" must be true or false");
    EXPECT_EQ(Complaint([&] { fields.Single("s", 1); }), "\"s\" must be a number");
    EXPECT_EQ(Complaint([&] { fields.Single("bigger"); }), "\"bigger\" is beyond single precision");
    const std::string range = " must be a whole number from -32768 to 32767";
    for (const char* key : {"s", "t", "n", "half", "more", "less", "bigger", "list"}) {
        EXPECT_EQ(Complaint([&] { fields.Whole<std::int16_t>(key, 1); }),
                  '"' + std::string(key) + '"' + range);
    }
    EXPECT_EQ(Complaint([&] { fields.List("o"); }), "\"o\" must be an array");
    EXPECT_EQ(Complaint([&] { Fields(RequestJson::array(), "the thing"); }),
              "the thing must be a JSON object");
}

class DriveValues : public ::testing::Test {
 protected:
    Value ValueIn(const char* line) { return ValueOf(ParseRequest(line), form); }
    std::string Complaint(const char* line) {
        return cli::Complaint([&] { ValueIn(line); });
    }

    memory::Form form{{.libraryName = u"lumenkit", .classes = {}}};
};

TEST_F(DriveValues, AreWhatControlsTake) {
    EXPECT_EQ(ValueIn("null"), Value(Empty{}));
    EXPECT_EQ(ValueIn("true"), Value(true));
    EXPECT_EQ(ValueIn("\"\\u00e4\""), Value(Text(u"\u00e4")));
    EXPECT_EQ(ToInteger(ValueIn("-32768")), -32768);
    EXPECT_EQ(ToColor(ValueIn("2147483653")), Color::WindowBackground);
    EXPECT_EQ(ToColor(ValueIn("-2147483643")), Color::WindowBackground);
    EXPECT_EQ(ToSingle(ValueIn("8.25")), 8.25F);
    EXPECT_EQ(ToDouble(ValueIn("18446744073709551615")), 18446744073709551615.0);
    EXPECT_EQ(ToText(ValueIn("12")), u"12");
    EXPECT_EQ(Complaint("[1]"), "an array is no value");
}

TEST_F(DriveValues, ReadFonts) {
    form.AmbientFont().SetBold(true);
    const host::FontRef partial = host::ToFont(ValueIn("{}"));
    EXPECT_EQ(partial->Name(), u"MS Sans Serif");
    EXPECT_EQ(partial->Size(), 10.0F);
    EXPECT_FALSE(partial->Bold());
    const host::FontRef whole = host::ToFont(
        ValueIn(R"({"Name":"Arial","Size":8.25,"Bold":true,"Italic":true,"Underline":true})"));
    EXPECT_EQ(whole->Name(), u"Arial");
    EXPECT_EQ(whole->Size(), 8.25F);
    EXPECT_TRUE(whole->Bold() && whole->Italic() && whole->Underline());
    EXPECT_EQ(Complaint(R"({"name":"Arial"})"),
              "an object as value is a font, and a font has no \"name\"");
    EXPECT_EQ(Complaint(R"({"Name":1})"), "\"Name\" must be a string");
    EXPECT_THROW(ValueIn(R"({"Size":-1})"), RuntimeError);
}

TEST_F(DriveValues, ReadBags) {
    const memory::PropertyBag bag =
        BagOf(ParseRequest(R"({"Text":"x","Font":{"Name":"Arial"}})"), form);
    ASSERT_NE(bag.Find(u"text"), nullptr);
    EXPECT_EQ(*bag.Find(u"text"), Value(Text(u"x")));
    EXPECT_EQ(host::ToFont(*bag.Find(u"Font"))->Name(), u"Arial");
    EXPECT_EQ(cli::Complaint([&] { BagOf(ParseRequest("[]"), form); }),
              "the bag must be a JSON object");
}

TEST_F(DriveValues, ReadLargeBags) {
    RequestJson large = RequestJson::object();
    for (int i = 0; i < 100000; ++i) {
        large["member" + std::to_string(i)] = i;
    }
    const memory::PropertyBag bag = BagOf(large, form);
    EXPECT_EQ(bag.Entries().size(), 100000U);
    EXPECT_EQ(*bag.Find(u"Member99999"), Value(99999.0));
}

}  // namespace

}  // namespace lumenkit::cli
