// Tables of tests in which each row is a test of its own.
//
//     struct CompiledTest : ::testing::TestWithParam<Row<TextView, std::string_view>> {};
//     TEST_P(CompiledTest, IsDumped) { EXPECT_EQ(Dump(GetParam().input), GetParam().expected); }
//     constexpr Row<TextView, std::string_view> lines[] = {
//         {"SeparatorEndsALine", u"A|CR|B", R"(line "A";line "B")"},
//     };
//     INSTANTIATE_TEST_SUITE_P(Lines, CompiledTest, ::testing::ValuesIn(lines), RowName());
#pragma once

#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace lumenkit::testing {

/// The name states the rule in UpperCamel.
template <typename Input, typename Expected>
struct Row {
    const char* name;
    Input input;
    Expected expected;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

/// Names each test of a table after its row.
struct RowName {
    template <typename AnyRow>
    std::string operator()(const ::testing::TestParamInfo<AnyRow>& row) const {
        return row.param.name;
    }
};

}  // namespace lumenkit::testing
