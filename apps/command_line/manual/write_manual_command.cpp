#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/manual/commands.h"
#include "apps/command_line/manual/completion.h"
#include "apps/command_line/manual/manual_page.h"

namespace lumenkit::cli {

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    if (!stream.flush()) {
        throw std::runtime_error(file.string() + ": cannot be written");
    }
}

void WriteManual(const CLI::App& program, const fs::path& folder) {
    const DescribedCommand described = Described(program);
    // Pages of commands that are no more must not be installed.
    fs::remove_all(folder / "man1");
    for (const ManualPage& page : ManualPages(described, program.version())) {
        Write(folder / "man1" / page.name, page.text);
    }
    const DescribedCommand completed = WithHelp(described);
    Write(folder / "bash" / described.name, BashCompletion(completed));
    Write(folder / "zsh" / ('_' + described.name), ZshCompletion(completed));
    Write(folder / "fish" / (described.name + ".fish"), FishCompletion(completed));
}

}  // namespace

void AddWriteManualCommand(CLI::App& program, int& status) {
    CLI::App* const command =
        program.add_subcommand("write-manual", "Write the manual pages and completions")->group("");
    const auto folder = std::make_shared<std::string>();
    command->add_option("FOLDER", *folder, "The folder for them")->required();
    command->callback([&program, folder, &status] {
        WriteManual(program, *folder);
        status = exitDone;
    });
}

}  // namespace lumenkit::cli
