// "lumenkit check" with little memory. Not with sanitizers, which need more addresses.
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "tests/apps/program.h"

namespace lumenkit::testing {
namespace {

// Limits the memory of the programs that this one starts.
class MemoryLimit {
 public:
    explicit MemoryLimit(rlim_t bytes) {
        getrlimit(RLIMIT_AS, &former_);
        rlimit limit = former_;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_AS, &limit);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &former_); }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

 private:
    rlimit former_{};
};

TEST(CheckMemory, AFormThatExhaustsItIsNamedAndTheNextOneChecked) {
    std::string lines;
    constexpr int count = 1'000'000;
    for (int i = 0; i < count; ++i) {
        lines += "A=1\n";
    }
    const std::string large = FileWith("VERSION 5.00\nBegin VB.Form F\n" + lines + "End\n");
    const MemoryLimit limit(rlim_t{200} << 20U);
    const Outcome outcome =
        RunProgram("check " + large + " " LUMENKIT_SOURCE_DIR "/tests/apps/check/forms/good.frm");
    EXPECT_EQ(outcome.errors, "lumenkit: " + large + ": there is not enough memory to check it\n");
    EXPECT_EQ(outcome.output, "1 file checked: 0 findings, 1 error\n");
    EXPECT_EQ(outcome.status, 2);
}

}  // namespace
}  // namespace lumenkit::testing
