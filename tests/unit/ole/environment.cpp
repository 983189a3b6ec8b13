// Initializes COM on the thread of the tests.
#include <gtest/gtest.h>

#include "runtime/ole/values/ole_header.h"

namespace {

class ComEnvironment final : public ::testing::Environment {
    void SetUp() override { ASSERT_EQ(OleInitialize(nullptr), S_OK); }
    void TearDown() override { OleUninitialize(); }
};

const auto* const environment = ::testing::AddGlobalTestEnvironment(new ComEnvironment);

}  // namespace
