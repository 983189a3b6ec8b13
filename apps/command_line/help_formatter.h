#pragma once

#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include "apps/command_line/notes.h"

namespace lumenkit::cli {

/// Prints help that fits a terminal, and keeps what CLI11 has no place for. A program and its
/// commands share one formatter.
class HelpFormatter final : public CLI::Formatter {
 public:
    std::string make_option_desc(const CLI::Option* option) const override;
    std::string make_description(const CLI::App* app) const override;
    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_footer(const CLI::App* app) const override;

    void SetNotes(const CLI::App& app, Notes notes) { notes_[&app] = std::move(notes); }
    const Notes& NotesOf(const CLI::App& app) const;

 private:
    std::map<const CLI::App*, Notes> notes_;
};

/// Says more about a program or a command, below its options. SetUpProgram comes first.
void SetNotes(CLI::App& app, Notes notes);

/// Returns what SetNotes has set, or empty notes.
const Notes& NotesOf(const CLI::App& app);

}  // namespace lumenkit::cli
