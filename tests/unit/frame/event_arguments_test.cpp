#include "frame/automation/event_arguments.h"

#include <array>
#include <memory>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "tests/unit/frame/plain_font.h"

namespace lumenkit {
namespace {

// Returns the argument after a handler has replaced `original` by `given`.
Value Restored(const Value& original, const Value& given) {
    std::array arguments = {given};
    const std::array originals = {original};
    RestoreTypes(arguments, originals);
    return arguments[0];
}

TEST(RestoreTypes, ConvertsToTheTypeThatWasRaised) {
    EXPECT_EQ(Restored(std::int16_t{1}, 2.5), Value(std::int16_t{2}));
    EXPECT_EQ(Restored(std::int32_t{1}, Text(u"70000")), Value(std::int32_t{70000}));
    EXPECT_EQ(Restored(1.0F, std::int16_t{3}), Value(3.0F));
    EXPECT_EQ(Restored(1.0, Text(u"2.5")), Value(2.5));
    EXPECT_EQ(Restored(false, std::int16_t{-1}), Value(true));
    EXPECT_EQ(Restored(Text(u"a"), std::int16_t{5}), Value(Text(u"5")));
    const Value font = ObjectRef(std::make_shared<PlainFont>());
    EXPECT_EQ(Restored(ObjectRef(), font), font);
}

TEST(RestoreTypes, KeepsWhatCannotBeConverted) {
    EXPECT_EQ(Restored(std::int16_t{1}, Text(u"x")), Value(std::int16_t{1}));
    EXPECT_EQ(Restored(std::int16_t{1}, 32768.0), Value(std::int16_t{1}));
    EXPECT_EQ(Restored(1.5, Null()), Value(1.5));
    EXPECT_EQ(Restored(ObjectRef(), Text(u"x")), Value(ObjectRef()));
}

TEST(RestoreTypes, TakesAnythingInPlaceOfNoValue) {
    EXPECT_EQ(Restored(Empty(), Text(u"x")), Value(Text(u"x")));
    EXPECT_EQ(Restored(Null(), 2.5), Value(2.5));
    EXPECT_EQ(Restored(Missing(), std::int16_t{1}), Value(std::int16_t{1}));
    EXPECT_EQ(Restored(Empty(), Missing()), Value(Missing()));
}

TEST(RestoreTypes, GoesArgumentByArgument) {
    std::array<Value, 2> arguments = {Text(u"x"), Text(u"7")};
    const std::array<Value, 2> originals = {std::int16_t{1}, std::int16_t{2}};
    RestoreTypes(arguments, originals);
    EXPECT_EQ(arguments[0], Value(std::int16_t{1}));
    EXPECT_EQ(arguments[1], Value(std::int16_t{7}));
}

}  // namespace
}  // namespace lumenkit
