#include "frame/host/font.h"

#include <functional>
#include <memory>

#include <gmock/gmock.h>

#include "frame/automation/value_type.h"
#include "tests/unit/frame/plain_font.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

TEST(Font, IsReadAndAssignedByName) {
    PlainFont font;
    font.Let(u"Name", Text(u"Arial"));
    font.Let(u"size", 12.5F);
    font.Let(u"BOLD", true);
    font.Let(u"Italic", std::int16_t{-1});
    font.Let(u"Underline", Text(u"True"));
    font.Let(u"Strikethrough", 1);
    font.Let(u"Weight", 700);
    font.Let(u"Charset", Text(u"2"));
    EXPECT_EQ(font.name, u"Arial");
    EXPECT_EQ(font.size, 12.5F);
    EXPECT_TRUE(font.bold && font.italic && font.underline && font.strikethrough);
    EXPECT_EQ(font.weight, 700);
    EXPECT_EQ(font.charset, 2);
    EXPECT_EQ(font.Get(u"NAME"), Value(Text(u"Arial")));
    EXPECT_EQ(font.Get(u"Size"), Value(12.5F));
    EXPECT_EQ(font.Get(u"Bold"), Value(true));
    EXPECT_EQ(font.Get(u"Weight"), Value(std::int16_t{700}));
}

TEST(Font, HasThePlatformsIdentifiers) {
    const std::pair<TextView, std::int32_t> identifiers[] = {
        {u"Name", 0},      {u"Size", 2},          {u"Bold", 3},   {u"Italic", 4},
        {u"Underline", 5}, {u"Strikethrough", 6}, {u"Weight", 7}, {u"Charset", 8},
    };
    const PlainFont font;
    for (const auto& [name, identifier] : identifiers) {
        EXPECT_EQ(font.FindMember(name), identifier);
    }
    EXPECT_EQ(font.FindMember(u"Color"), std::nullopt);
}

TEST(Font, StandsForItsName) {
    EXPECT_EQ(ToText(std::make_shared<PlainFont>()), u"MS Sans Serif");
}

TEST(Font, RefusesUnknownMembers) {
    PlainFont font;
    EXPECT_THAT([&] { font.Get(u"Color"); }, Raises(438));
    EXPECT_THAT([&] { font.Get(1); }, Raises(438));
    EXPECT_THAT([&] { font.Let(u"Size", Text(u"big")); }, Raises(13));
    EXPECT_THAT([&] { font.Let(u"Weight", 40000); }, Raises(6));
}

TEST(Font, IsTheSameAsAnotherWithAllItsAttributes) {
    const PlainFont font;
    EXPECT_TRUE(font.IsSame(font));
    EXPECT_TRUE(font.IsSame(PlainFont()));
    const std::function<void(PlainFont&)> changes[] = {
        [](PlainFont& other) { other.name = u"MS Sans serif"; },
        [](PlainFont& other) { other.size = 10.25F; },
        [](PlainFont& other) { other.bold = true; },
        [](PlainFont& other) { other.italic = true; },
        [](PlainFont& other) { other.underline = true; },
        [](PlainFont& other) { other.strikethrough = true; },
        [](PlainFont& other) { other.weight = 500; },
        [](PlainFont& other) { other.charset = 2; },
    };
    for (const auto& change : changes) {
        PlainFont other;
        change(other);
        EXPECT_FALSE(font.IsSame(other));
        EXPECT_FALSE(other.IsSame(font));
    }
}

// An object that is not a font.
class Stranger : public Object {
 public:
    std::optional<std::int32_t> FindMember(TextView /*name*/) const override { return {}; }
    Value Invoke(std::int32_t /*identifier*/, InvokeKind /*kind*/,
                 std::span<Value> /*arguments*/) override {
        Raise(ErrorNumber::NoSuchMember);
    }
};

TEST(Font, IsNotTheSameAsAnotherKindOfObject) {
    EXPECT_FALSE(PlainFont().IsSame(Stranger()));
}

TEST(Font, IsTakenFromAnObjectReference) {
    using Fonts = Automation<host::FontRef>;
    const auto font = std::make_shared<PlainFont>();
    EXPECT_EQ(Fonts::From(ObjectRef(font)), font);
    EXPECT_THAT([] { Fonts::From(ObjectRef()); }, Raises(13));
    EXPECT_EQ(host::ToFont(ObjectRef()), nullptr);
    EXPECT_EQ(Fonts::To(font), Value(ObjectRef(font)));
    EXPECT_THAT([] { Fonts::From(ObjectRef(std::make_shared<Stranger>())); }, Raises(13));
    EXPECT_THAT([] { Fonts::From(Text(u"Arial")); }, Raises(13));
    EXPECT_THAT([] { Fonts::From(Empty{}); }, Raises(13));
}

}  // namespace
}  // namespace lumenkit
