#include "frame/automation/value.h"

#include <cstdio>
#include <limits>
#include <memory>
#include <string>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

// An object with only a default member.
class Holder : public Object {
 public:
    explicit Holder(Value held) : held_(std::move(held)) {}
    std::optional<std::int32_t> FindMember(TextView /*name*/) const override { return {}; }
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override {
        EXPECT_EQ(identifier, 0);
        EXPECT_EQ(kind, InvokeKind::Get);
        EXPECT_TRUE(arguments.empty());
        return held_;
    }

 private:
    Value held_;
};

class Memberless : public Object {
 public:
    std::optional<std::int32_t> FindMember(TextView /*name*/) const override { return {}; }
    Value Invoke(std::int32_t /*identifier*/, InvokeKind /*kind*/,
                 std::span<Value> /*arguments*/) override {
        Raise(ErrorNumber::NoSuchMember);
    }
};

ObjectRef Hold(Value value) {
    return std::make_shared<Holder>(std::move(value));
}

std::string Image(bool truth) {
    return truth ? "True" : "False";
}
std::string Image(const Text& text) {
    return "'" + ToUtf8(text) + "'";
}
std::string Image(Color color) {
    return std::to_string(static_cast<std::uint32_t>(color));
}
std::string Image(std::int16_t number) {
    return std::to_string(number);
}
std::string Image(std::int32_t number) {
    return std::to_string(number);
}
std::string Digits(double number, int digits) {
    char image[64];
    std::snprintf(image, sizeof image, "%.*g", digits, number);
    return image;
}
std::string Image(float number) {
    return Digits(static_cast<double>(number), 9);
}
std::string Image(double number) {
    return Digits(number, 17);
}

// Returns the result of `convert` as text, or "#" and the number of the error.
template <typename Convert>
std::string Outcome(const Value& value, Convert convert) {
    try {
        return Image(convert(value));
    } catch (const RuntimeError& error) {
        return "#" + std::to_string(error.Number());
    }
}

struct Row {
    std::string name;
    Value value;
    std::string boolean, integer, longNumber, single, doubleNumber, text, color;
};

void Expect(const Row& row) {
    SCOPED_TRACE(row.name);
    const Value& value = row.value;
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToBoolean(v); }), row.boolean);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToInteger(v); }), row.integer);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToLong(v); }), row.longNumber);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToSingle(v); }), row.single);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToDouble(v); }), row.doubleNumber);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToText(v); }), row.text);
    EXPECT_EQ(Outcome(value, [](const Value& v) { return ToColor(v); }), row.color);
}

Row Failing(const std::string& name, Value value, const std::string& error) {
    return {name, std::move(value), error, error, error, error, error, error, error};
}

// clang-format off
TEST(Value, ConvertsNumbersAndBooleans) {
    const Row rows[] = {
        {"Empty", Empty{}, "False", "0", "0", "0", "0", "''", "0"},
        {"True", true, "True", "-1", "-1", "-1", "-1", "'True'", "4294967295"},
        {"False", false, "False", "0", "0", "0", "0", "'False'", "0"},
        {"Integer 0", std::int16_t{0}, "False", "0", "0", "0", "0", "'0'", "0"},
        {"Integer 7", std::int16_t{7}, "True", "7", "7", "7", "7", "'7'", "7"},
        {"Integer -32768", std::int16_t{-32768}, "True", "-32768", "-32768", "-32768", "-32768", "'-32768'", "4294934528"},
        {"Long 70000", std::int32_t{70000}, "True", "#6", "70000", "70000", "70000", "'70000'", "70000"},
        {"Long 16777217", std::int32_t{16777217}, "True", "#6", "16777217", "16777216", "16777217", "'16777217'", "16777217"},
        {"Long 0x80000005", std::int32_t{-2147483643}, "True", "#6", "-2147483643", "-2.14748365e+09", "-2147483643", "'-2147483643'", "2147483653"},
        {"Single 2.5", 2.5F, "True", "2", "2", "2.5", "2.5", "'2.5'", "2"},
        {"Single 0.1", 0.1F, "True", "0", "0", "0.100000001", "0.10000000149011612", "'0.1'", "0"},
        {"Single -1E+10", -1e10F, "True", "#6", "#6", "-1e+10", "-10000000000", "'-1E+10'", "#6"},
        {"Double 3.5", 3.5, "True", "4", "4", "3.5", "3.5", "'3.5'", "4"},
        {"Double -0.5", -0.5, "True", "0", "0", "-0.5", "-0.5", "'-0.5'", "0"},
        {"Double 32767.5", 32767.5, "True", "#6", "32768", "32767.5", "32767.5", "'32767.5'", "32768"},
        {"Double 0.1 + 0.2", 0.1 + 0.2, "True", "0", "0", "0.300000012", "0.30000000000000004", "'0.3'", "0"},
        {"Double 1E+39", 1e39, "True", "#6", "#6", "#6", "9.9999999999999994e+38", "'1E+39'", "#6"},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(Value, ConvertsTextsThatAreNumericAsAWhole) {
    const Row rows[] = {
        {"12.5", Text(u" 12.5 "), "True", "12", "12", "12.5", "12.5", "' 12.5 '", "12"},
        {"0", Text(u"0"), "False", "0", "0", "0", "0", "'0'", "0"},
        {"1E3", Text(u"1E3"), "True", "1000", "1000", "1000", "1000", "'1E3'", "1000"},
        {"&HFFFF", Text(u"&HFFFF"), "True", "-1", "-1", "-1", "-1", "'&HFFFF'", "4294967295"},
        {"40000", Text(u"40000"), "True", "#6", "40000", "40000", "40000", "'40000'", "40000"},
        {"1E400", Text(u"1E400"), "#6", "#6", "#6", "#6", "#6", "'1E400'", "#6"},
        {"empty", Text(), "#13", "#13", "#13", "#13", "#13", "''", "#13"},
        {"abc", Text(u"abc"), "#13", "#13", "#13", "#13", "#13", "'abc'", "#13"},
        {"12 apples", Text(u"12 apples"), "#13", "#13", "#13", "#13", "#13", "'12 apples'", "#13"},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(Value, ReadsTheWordsForBooleansAsBooleansOnly) {
    const Row rows[] = {
        {"True", Text(u"True"), "True", "#13", "#13", "#13", "#13", "'True'", "#13"},
        {"fALSE", Text(u"fALSE"), "False", "#13", "#13", "#13", "#13", "'fALSE'", "#13"},
        {"Yes", Text(u"Yes"), "#13", "#13", "#13", "#13", "#13", "'Yes'", "#13"},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(Value, TakesAnObjectForItsDefaultMember) {
    const Row rows[] = {
        {"holds 2.5", Hold(2.5), "True", "2", "2", "2.5", "2.5", "'2.5'", "2"},
        {"holds a text", Hold(Text(u"false")), "False", "#13", "#13", "#13", "#13", "'false'", "#13"},
        {"holds Empty", Hold(Empty{}), "False", "0", "0", "0", "0", "''", "0"},
        Failing("holds Null", Hold(Null{}), "#94"),
        Failing("holds Missing", Hold(Missing{}), "#449"),
        Failing("holds an object", Hold(Hold(1.0)), "#13"),
        Failing("holds nothing", Hold(ObjectRef()), "#13"),
        Failing("has no default member", std::make_shared<Memberless>(), "#438"),
        Failing("is nothing", ObjectRef(), "#91"),
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}

TEST(Value, RefusesNullAndMissing) {
    Expect(Failing("Null", Null{}, "#94"));
    Expect(Failing("Missing", Missing{}, "#449"));
}

TEST(Value, TakesColoursInTheirUnsignedFormToo) {
    const Row rows[] = {
        {"0x80000005", 2147483653.0, "True", "#6", "#6", "2.14748365e+09", "2147483653", "'2147483653'", "2147483653"},
        {"as a text", Text(u"2147483653"), "True", "#6", "#6", "2.14748365e+09", "2147483653", "'2147483653'", "2147483653"},
        {"the last", 4294967295.0, "True", "#6", "#6", "4.2949673e+09", "4294967295", "'4294967295'", "4294967295"},
        {"the first", 2147483648.0, "True", "#6", "#6", "2.14748365e+09", "2147483648", "'2147483648'", "2147483648"},
        {"rounded to the first", 2147483647.5, "True", "#6", "#6", "2.14748365e+09", "2147483647.5", "'2147483647.5'", "2147483648"},
        {"rounded past the last", 4294967295.5, "True", "#6", "#6", "4.2949673e+09", "4294967295.5", "'4294967295.5'", "#6"},
        {"below the least", -2147483649.0, "True", "#6", "#6", "-2.14748365e+09", "-2147483649", "'-2147483649'", "#6"},
    };
    for (const Row& row : rows) {
        Expect(row);
    }
}
// clang-format on

TEST(Value, ShowsNoTextForWhatIsNotFinite) {
    EXPECT_THAT([] { ToText(std::numeric_limits<double>::infinity()); }, Raises(6));
    EXPECT_THAT([] { ToLong(std::numeric_limits<double>::quiet_NaN()); }, Raises(6));
}

TEST(ToObject, GivesTheReferenceEvenToNothing) {
    const ObjectRef object = Hold(1.0);
    EXPECT_EQ(ToObject(object), object);
    EXPECT_EQ(ToObject(ObjectRef()), nullptr);
}

TEST(ToObject, RefusesWhatIsNoObject) {
    for (const Value& value : {Value(Empty{}), Value(Null{}), Value(Missing{}), Value(true),
                               Value(1), Value(1.5), Value(Text(u"x"))}) {
        EXPECT_THAT([&] { ToObject(value); }, Raises(13));
    }
}

TEST(FromColor, IsASigned32BitNumber) {
    EXPECT_EQ(FromColor(Rgb(255, 128, 0)), Value(std::int32_t{33023}));
    EXPECT_EQ(FromColor(Color::WindowBackground), Value(std::int32_t{-2147483643}));
    EXPECT_EQ(ToColor(FromColor(Color::ButtonText)), Color::ButtonText);
}

TEST(Color, TellsSystemColoursFromMixedOnes) {
    EXPECT_TRUE(IsSystemColor(Color::WindowText));
    EXPECT_FALSE(IsSystemColor(Rgb(255, 255, 255)));
    EXPECT_EQ(Rgb(1, 2, 3), static_cast<Color>(197121));
}

TEST(SameValue, TakesNumbersOfAllTypesAsNumbers) {
    EXPECT_TRUE(SameValue(std::int16_t{2}, std::int32_t{2}));
    EXPECT_TRUE(SameValue(std::int32_t{2}, 2.0));
    EXPECT_TRUE(SameValue(2.5F, 2.5));
    EXPECT_TRUE(SameValue(true, std::int16_t{-1}));
    EXPECT_TRUE(SameValue(0, false));
    EXPECT_FALSE(SameValue(true, 1));
    EXPECT_FALSE(SameValue(0.1F, 0.1));
    EXPECT_FALSE(SameValue(2, 3));
}

TEST(SameValue, KeepsOtherTypesApart) {
    EXPECT_TRUE(SameValue(Text(u"abc"), Text(u"abc")));
    EXPECT_FALSE(SameValue(Text(u"abc"), Text(u"ABC")));
    EXPECT_FALSE(SameValue(Text(u"5"), 5));
    EXPECT_TRUE(SameValue(Empty{}, Empty{}));
    EXPECT_FALSE(SameValue(Empty{}, 0));
    EXPECT_FALSE(SameValue(Empty{}, Text()));
    EXPECT_FALSE(SameValue(Empty{}, Null{}));
    EXPECT_TRUE(SameValue(Null{}, Null{}));
}

class Twin : public Holder {
 public:
    using Holder::Holder;
    bool IsSame(const Object& other) const override {
        return dynamic_cast<const Twin*>(&other) != nullptr;
    }
};

TEST(SameValue, AsksObjectsWhetherTheyAreTheSame) {
    const ObjectRef one = Hold(1.0);
    EXPECT_TRUE(SameValue(one, one));
    EXPECT_FALSE(SameValue(one, Hold(1.0)));
    EXPECT_TRUE(
        SameValue(ObjectRef(std::make_shared<Twin>(1.0)), ObjectRef(std::make_shared<Twin>(2.0))));
    EXPECT_TRUE(SameValue(ObjectRef(), ObjectRef()));
    EXPECT_FALSE(SameValue(one, ObjectRef()));
    EXPECT_FALSE(SameValue(ObjectRef(), one));
    EXPECT_FALSE(SameValue(one, 1.0));
}

}  // namespace
}  // namespace lumenkit
