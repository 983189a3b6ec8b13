// The values, logs, drawings and properties of controls in JSON.
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "apps/lumenkit/drive/json.h"
#include "runtime/memory/form.h"

namespace lumenkit::cli {

namespace {

std::string Said(const Value& value) {
    return ToJson(value).dump();
}

TEST(DriveJson, SaysValues) {
    EXPECT_EQ(Said(Empty{}), "null");
    EXPECT_EQ(Said(Null{}), "null");
    EXPECT_EQ(Said(Missing{}), "null");
    EXPECT_EQ(Said(true), "true");
    EXPECT_EQ(Said(std::int16_t{-32768}), "-32768");
    EXPECT_EQ(Said(std::numeric_limits<std::int32_t>::min()), "-2147483648");
    EXPECT_EQ(Said(Text(u"a\"\r\n\u00e4\U0001F600")), "\"a\\\"\\r\\n\xC3\xA4\xF0\x9F\x98\x80\"");
    EXPECT_EQ(Said(Text(1, u'\xD83D')), "\"\xEF\xBF\xBD\"");
    EXPECT_EQ(Said(ObjectRef()), "null");
}

TEST(DriveJson, SaysNumbersInTheFewestDigits) {
    EXPECT_EQ(Said(300.0F), "300");
    EXPECT_EQ(Said(-0.5F), "-0.5");
    EXPECT_EQ(Said(8.4F), "8.4");
    EXPECT_EQ(Said(648.5F), "648.5");
    EXPECT_EQ(Said(0.1F), "0.1");
    EXPECT_EQ(Said(1e20F), "1e+20");
    EXPECT_EQ(Said(300.0), "300");
    EXPECT_EQ(Said(0.1), "0.1");
    EXPECT_EQ(Said(-3e9), "-3000000000");
    EXPECT_EQ(Said(std::numeric_limits<float>::infinity()), "null");
    EXPECT_EQ(Said(std::numeric_limits<double>::quiet_NaN()), "null");
}

TEST(DriveJson, SaysFonts) {
    const ClassTable classes = {.libraryName = u"lumenkit", .classes = {}};
    const memory::Form form(classes);
    const auto font = form.NewFont(u"Arial", 8.25F);
    font->SetItalic(true);
    EXPECT_EQ(Said(ObjectRef(font)),
              R"({"Name":"Arial","Size":8.25,"Bold":false,"Italic":true,"Underline":false})");
}

TEST(DriveJson, SaysTheLogInItsOrder) {
    memory::Log log;
    EXPECT_EQ(ToJson(log).dump(), "[]");
    log.Add(memory::HeardBeep{});
    log.Add(
        memory::ShownMessage{.text = u"no", .title = u"t", .style = host::MessageStyle::Critical});
    log.Add(memory::ShownMessage{.text = u"", .title = std::nullopt});
    log.Add(memory::ChangedProperty{.control = u"a", .name = u"Text"});
    log.Add(memory::RaisedEvent{
        .control = u"a", .name = u"MouseUp", .arguments = {std::int16_t{1}, 2.5F}});
    EXPECT_EQ(ToJson(log).dump(),
              R"([{"beep":true},{"message":{"text":"no","title":"t","style":16}},)"
              R"({"message":{"text":"","title":null,"style":0}},{"changed":"Text"},)"
              R"({"event":"MouseUp","args":[1,2.5]}])");
}

TEST(DriveJson, SaysWhatIsDrawn) {
    memory::DisplayList list;
    EXPECT_EQ(ToJson(list).dump(), "[]");
    list.Cls();
    memory::Font::Attributes font;
    font.name = u"Arial";
    font.size = 8.25F;
    font.weight = memory::Font::boldWeight;
    font.underline = true;
    list.Print(u"x", 1.5F, -2, font, Color{255});
    list.Box({.x1 = 1, .y1 = 2, .x2 = 3, .y2 = 4, .color = Color::ButtonText});
    EXPECT_EQ(ToJson(list).dump(),
              R"([{"op":"cls"},{"op":"print","text":"x","x":1.5,"y":-2,"bold":true,)"
              R"("italic":false,"underline":true,"size":8.25,"color":255},)"
              R"({"op":"box","x1":1,"y1":2,"x2":3,"y2":4,"color":-2147483630}])");
}

TEST(DriveJson, SaysPropertiesAndBags) {
    EXPECT_EQ(ToJson(memory::PropertyList{{u"Left", 1.0F}, {u"Caption", Text(u"c")}}).dump(),
              R"({"Left":1,"Caption":"c"})");
    memory::PropertyBag bag;
    EXPECT_EQ(ToJson(bag).dump(), "{}");
    bag.Store(u"B", true);
    bag.Store(u"A", Text(u"a"));
    EXPECT_EQ(ToJson(bag).dump(), R"({"B":true,"A":"a"})");
}

}  // namespace

}  // namespace lumenkit::cli
