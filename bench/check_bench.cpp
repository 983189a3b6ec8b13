// Benchmarks of "lumenkit check" on an estate of 10,000 forms: how the cost of a form grows with
// the number of forms. The peer is an estate of 100 such forms. One thread does the work.
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include <unistd.h>

#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check_run.h"
#include "bench/ratio_table.h"
#include "bench/require.h"

namespace {

using lumenkit::bench::AddComparison;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::cli::CheckOptions;
using lumenkit::cli::CheckRun;
namespace check = lumenkit::check;
namespace fs = std::filesystem;

constexpr std::size_t many = 10000;
constexpr std::size_t few = 100;

// A folder for temporary files, which goes with the program.
class Scratch {
 public:
    Scratch() { fs::create_directories(path_); }
    ~Scratch() {
        std::error_code error;
        fs::remove_all(path_, error);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const fs::path& Path() const { return path_; }

 private:
    const fs::path path_ =
        fs::temp_directory_path() / ("lumenkit_check_bench_" + std::to_string(getpid()));
};

class CountingReporter : public check::Reporter {
 public:
    void Report(const check::Findings& findings) override { findings_ += findings.size(); }
    void Report(const check::Note& /*note*/) override {}
    void Report(const check::FileError& /*error*/) override { Require(false, "an unread form"); }
    void Finish(std::size_t files) override { files_ = files; }

    std::size_t Findings() const { return findings_; }
    std::size_t Files() const { return files_; }

 private:
    std::size_t findings_ = 0;
    std::size_t files_ = 0;
};

// A form with a named memo and a label. Without its companion, it has one finding.
std::string FormText(const std::string& name, bool hasCompanion) {
    return "VERSION 5.00\r\nBegin VB.Form " + name +
           "\r\n   Caption         =   \"Orders\"\r\n   ClientHeight    =   4000\r\n"
           "   ClientWidth     =   6000\r\n   Begin lumenkit.VLabel lblTotal\r\n"
           "      Caption         =   \"|b:1|Total|b:0| of the order\"\r\n"
           "      TabIndex        =   0\r\n   End\r\n   Begin lumenkit.VMemo memNote\r\n"
           "      Text            =   " +
           (hasCompanion ? std::string("\"none\"") : "$\"" + name + ".frx\":0000") +
           "\r\n      TabIndex        =   1\r\n   End\r\nEnd\r\n";
}

struct Estate {
    fs::path folder;
    std::size_t forms;
};

// All forms are in one folder. Every second one has lost its companion.
Estate Make(const fs::path& folder, std::size_t forms) {
    fs::create_directories(folder);
    for (std::size_t i = 0; i < forms; ++i) {
        const std::string name = "Form" + std::to_string(i);
        std::ofstream(folder / (name + ".frm"), std::ios::binary) << FormText(name, i % 2 == 0);
    }
    return {.folder = folder, .forms = forms};
}

Side Checking(const Estate& estate) {
    return {[estate] {
                CheckOptions options;
                options.paths = {estate.folder.string()};
                options.jobs = 1;
                CountingReporter reporter;
                CheckRun(options, reporter).Run();
                Require(reporter.Files() == estate.forms, "not all forms were checked");
                Require(reporter.Findings() == estate.forms / 2, "there are other findings");
            },
            static_cast<double>(estate.forms)};
}

}  // namespace

int main(int argc, char** argv) {
    const Scratch scratch;
    AddComparison({.what = "check 10,000 forms, half of them without companions, against 100",
                   .unit = "form",
                   .ours = Checking(Make(scratch.Path() / "many", many)),
                   .other = Checking(Make(scratch.Path() / "few", few)),
                   .ratio = Ratio::TimesSlower,
                   .aim = "<= 1.10x"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
