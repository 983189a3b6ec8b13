// Serves the seeds and the findings of the fuzzers.
#include <gtest/gtest.h>

#include "tests/apps/drive/drive_check.h"
#include "tests/support/corpus.h"

namespace lumenkit::testing {

namespace {

TEST(DriveCorpus, IsServed) {
    ForEachCorpusFile("drive",
                      [](std::string_view requests) { EXPECT_EQ(DriveFault(requests), ""); });
}

}  // namespace

}  // namespace lumenkit::testing
