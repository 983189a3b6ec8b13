#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

/// Passes the content of each file of fuzz/corpus/`name` to `check`. Fails if there are too few.
inline void ForEachCorpusFile(const std::string& name,
                              const std::function<void(std::string_view)>& check) {
    constexpr int fewest = 5;
    const std::string folder = std::string(LUMENKIT_SOURCE_DIR "/fuzz/corpus/") + name;
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        SCOPED_TRACE(entry.path());
        check(FileBytes(entry.path()));
        ++count;
    }
    EXPECT_GE(count, fewest) << folder;
}

}  // namespace lumenkit::testing
