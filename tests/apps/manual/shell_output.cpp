#include "tests/apps/manual/shell_output.h"

#include <array>
#include <cstdio>

#include <sys/wait.h>

namespace lumenkit::testing {

ShellOutput OutputOf(const std::string& command) {
    std::FILE* const pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
    ShellOutput output;
    std::array<char, 4096> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), pipe)) {
        output.text.append(block.data(), count);
    }
    const int status = pclose(pipe);
    output.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return output;
}

}  // namespace lumenkit::testing
