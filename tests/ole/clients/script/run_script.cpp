// run_script [--expect complaint] target source...
// Joins the sources into the script `target`, runs it with cscript and prints the complaints.
// Succeeds if there are none, or if the expected one is the only one.
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "tests/ole/clients/support/script_run.h"

namespace {

void Join(const std::filesystem::path& target, int count, wchar_t** sources) {
    std::ofstream joined(target, std::ios::binary);
    for (int index = 0; index < count; ++index) {
        joined << std::ifstream(std::filesystem::path(sources[index]), std::ios::binary).rdbuf();
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    using namespace lumenkit::clients;
    std::vector<std::string> expected;
    int first = 1;
    if (count > 2 && std::wstring(arguments[1]) == L"--expect") {
        expected.push_back(std::filesystem::path(arguments[2]).string());
        first = 3;
    }
    if (count < first + 2) {
        std::puts("run_script [--expect complaint] target source...");
        return 2;
    }
    // cscript takes a name that starts with a slash for an option.
    const std::filesystem::path target = std::filesystem::absolute(arguments[first]);
    Join(target, count - first - 1, arguments + first + 1);
    std::filesystem::path output = target;
    output += ".txt";
    const ScriptRun run =
        RunScript(L"cscript.exe", L"//nologo \"" + target.wstring() + L"\"", output);
    const std::vector<std::string> complaints = Complaints(run);
    for (const std::string& complaint : complaints) {
        std::puts(complaint.c_str());
    }
    return complaints == expected ? 0 : 1;
}
