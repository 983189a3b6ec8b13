// run_script [--must-fail] target source...
// Joins the sources into the script `target`, runs it with cscript and tells what is wrong.
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
    const bool mustFail = count > 1 && std::wstring(arguments[1]) == L"--must-fail";
    const int first = mustFail ? 2 : 1;
    if (count < first + 2) {
        std::puts("run_script [--must-fail] target source...");
        return 2;
    }
    const std::filesystem::path target = arguments[first];
    Join(target, count - first - 1, arguments + first + 1);
    std::filesystem::path output = target;
    output += ".txt";
    const ScriptRun run = RunScript(L"cscript.exe", L"//nologo \"" + target.wstring() + L"\"", output);
    const std::vector<std::string> complaints = Complaints(run);
    for (const std::string& complaint : complaints) {
        std::puts(complaint.c_str());
    }
    return complaints.empty() == mustFail ? 1 : 0;
}
