#include "frame/runtime_error.h"

#include <new>
#include <stdexcept>
#include <string>
#include <type_traits>

#include <gmock/gmock.h>

#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

TEST(RuntimeErrorText, IsTheRuntimesOwn) {
    const std::pair<std::int32_t, TextView> texts[] = {
        {5, u"Invalid procedure call or argument"},
        {6, u"Overflow"},
        {7, u"Out of memory"},
        {9, u"Subscript out of range"},
        {11, u"Division by zero"},
        {13, u"Type mismatch"},
        {28, u"Out of stack space"},
        {51, u"Internal error"},
        {91, u"Object variable or With block variable not set"},
        {94, u"Invalid use of Null"},
        {340, u"Control array element doesn't exist"},
        {360, u"Object already loaded"},
        {380, u"Invalid property value"},
        {382, u"Set not supported at runtime"},
        {383, u"Set not supported (read-only property)"},
        {387, u"Set not permitted"},
        {393, u"Get not supported at runtime"},
        {394, u"Get not supported (write-only property)"},
        {424, u"Object required"},
        {429, u"ActiveX component can't create object"},
        {438, u"Object doesn't support this property or method"},
        {449, u"Argument not optional"},
        {450, u"Wrong number of arguments or invalid property assignment"},
        {31036, u"Error saving to file"},
    };
    for (const auto& [number, text] : texts) {
        EXPECT_EQ(RuntimeErrorText(number), text) << number;
    }
}

TEST(RuntimeErrorText, NamesEveryOtherNumberAsTheApplications) {
    for (const std::int32_t number : {0, 1, -1, 4, 1000, 65535, -2147467259}) {
        EXPECT_EQ(RuntimeErrorText(number), u"Application-defined or object-defined error");
    }
}

TEST(RuntimeError, CarriesNumberLineAndDescription) {
    const RuntimeError error(1234, u"No such lamp", 20);
    EXPECT_EQ(error.Number(), 1234);
    EXPECT_EQ(error.Line(), 20);
    EXPECT_EQ(error.Description(), u"No such lamp");
    EXPECT_STREQ(error.what(), "lumenkit::RuntimeError");
}

TEST(RuntimeError, HasTheRuntimesTextAndNoLineWhenMadeOfANumber) {
    const RuntimeError error(ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.Number(), 13);
    EXPECT_EQ(error.Line(), 0);
    EXPECT_EQ(error.Description(), u"Type mismatch");
}

TEST(Raise, ThrowsTheErrorWithItsText) {
    const auto described = [](std::int32_t number, const Text& text) {
        return ::testing::Throws<RuntimeError>(
            ::testing::AllOf(::testing::Property(&RuntimeError::Number, number),
                             ::testing::Property(&RuntimeError::Line, 0),
                             ::testing::Property(&RuntimeError::Description, text)));
    };
    EXPECT_THAT([] { Raise(ErrorNumber::Overflow); }, described(6, u"Overflow"));
    EXPECT_THAT([] { Raise(380); }, described(380, u"Invalid property value"));
    EXPECT_THAT([] { Raise(-2147467259); },
                described(-2147467259, u"Application-defined or object-defined error"));
}

// Throws `thrown` and returns the runtime error that CurrentError makes of it.
template <typename Thrown>
RuntimeError Seen(const Thrown& thrown) {
    try {
        throw thrown;
    } catch (...) {
        return CurrentError();
    }
}

TEST(CurrentError, IsARuntimeErrorAsItStands) {
    const RuntimeError seen = Seen(RuntimeError(77, u"as it stands", 5));
    EXPECT_EQ(seen.Number(), 77);
    EXPECT_EQ(seen.Line(), 5);
    EXPECT_EQ(seen.Description(), u"as it stands");
}

TEST(CurrentError, IsOutOfMemoryForExhaustedMemory) {
    const RuntimeError seen = Seen(std::bad_alloc());
    EXPECT_EQ(seen.Number(), 7);
    EXPECT_EQ(seen.Description(), u"Out of memory");
    EXPECT_EQ(Seen(std::bad_array_new_length()).Number(), 7);
}

TEST(CurrentError, IsAnInternalErrorForEverythingElse) {
    for (const RuntimeError& seen : {Seen(std::logic_error("foreign")), Seen(42)}) {
        EXPECT_EQ(seen.Number(), 51);
        EXPECT_EQ(seen.Line(), 0);
        EXPECT_EQ(seen.Description(), u"Internal error");
    }
}

}  // namespace
}  // namespace lumenkit
