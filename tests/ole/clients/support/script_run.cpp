#include "tests/ole/clients/support/script_run.h"

#include <algorithm>
#include <fstream>

#include <windows.h>

#include "tests/ole/clients/support/boxes.h"

namespace lumenkit::clients {

namespace {

constexpr DWORD pause = 10;
constexpr int longestRun = 120 * 100;  // pauses

HANDLE Writable(const std::filesystem::path& file) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0,
                       nullptr);
}

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
    std::vector<std::string> lines;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}

std::string Narrow(const std::wstring& text) {
    std::string narrow;
    std::ranges::transform(text, std::back_inserter(narrow), [](wchar_t unit) {
        return unit < 0x80 ? static_cast<char>(unit) : '?';
    });
    return narrow;
}

}  // namespace

ScriptRun RunScript(const std::wstring& program, const std::wstring& arguments,
                    const std::filesystem::path& output) {
    ScriptRun run;
    const HANDLE file = Writable(output);
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = file;
    start.hStdError = file;
    PROCESS_INFORMATION process = {};
    std::wstring line = L"\"" + program + L"\" " + arguments;
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                        &process)) {
        CloseHandle(file);
        run.exitCode = GetLastError();
        return run;
    }
    CloseHandle(file);
    int pauses = 0;
    while (WaitForSingleObject(process.hProcess, pause) == WAIT_TIMEOUT) {
        if (const std::optional<Box> box = CloseBox(process.dwProcessId)) {
            const std::wstring error = ErrorIn(*box);
            run.errors.push_back(error.empty() ? box->title + L": " + box->text : error);
        }
        if (++pauses == longestRun) {
            TerminateProcess(process.hProcess, WAIT_TIMEOUT);
        }
    }
    GetExitCodeProcess(process.hProcess, &run.exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    run.lines = LinesOf(output);
    return run;
}

std::vector<std::string> Complaints(const ScriptRun& run) {
    std::vector<std::string> complaints;
    std::vector<std::string> announced;
    for (const std::string& line : run.lines) {
        if (line.starts_with("failed: ")) {
            complaints.push_back(line);
        } else if (line.starts_with("box: ")) {
            announced.push_back(line.substr(5));
        } else if (line != "all done") {
            complaints.push_back("wrote: " + line);
        }
    }
    std::vector<std::string> shown;
    std::ranges::transform(run.errors, std::back_inserter(shown), Narrow);
    for (std::size_t index = 0; index < std::max(announced.size(), shown.size()); ++index) {
        const std::string wanted = index < announced.size() ? announced[index] : "none";
        const std::string got = index < shown.size() ? shown[index] : "none";
        if (wanted != got) {
            complaints.push_back("message box: " + got + ", expected: " + wanted);
        }
    }
    if (run.lines.empty() || run.lines.back() != "all done") {
        complaints.emplace_back("broke off");
    }
    if (run.exitCode != 0) {
        complaints.push_back("ended with " + std::to_string(run.exitCode));
    }
    return complaints;
}

}  // namespace lumenkit::clients
