#pragma once

#include <map>
#include <string>
#include <utility>

#include <CLI/CLI.hpp>

#include "apps/command_line/notes.h"
#include "apps/command_line/offered.h"

namespace lumenkit::cli {

/// Prints help that fits a terminal, and keeps what CLI11 has no place for. A program and its
/// commands share one formatter.
class HelpFormatter final : public CLI::Formatter {
 public:
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override;
    std::string make_option_opts(const CLI::Option* option) const override;
    std::string make_option_desc(const CLI::Option* option) const override;
    std::string make_description(const CLI::App* app) const override;
    std::string make_subcommand(const CLI::App* command) const override;
    std::string make_footer(const CLI::App* app) const override;

    void SetNotes(const CLI::App& app, Notes notes) { notes_[&app] = std::move(notes); }
    const Notes& NotesOf(const CLI::App& app) const;

    void SetOffered(const CLI::Option& option, Offered offered) {
        offered_[&option] = std::move(offered);
    }
    const Offered& OfferedFor(const CLI::Option& option) const;

 private:
    std::map<const CLI::App*, Notes> notes_;
    std::map<const CLI::Option*, Offered> offered_;
};

/// Says more about a program or a command, below its options. SetUpProgram comes first.
void SetNotes(CLI::App& app, Notes notes);

/// Returns what SetNotes has set, or empty notes.
const Notes& NotesOf(const CLI::App& app);

/// Says what shells offer as the value of an option or a positional argument of the command.
void Offer(CLI::App& command, const CLI::Option& option, Offered offered);

/// Returns what Offer has set, or an empty offer.
const Offered& OfferedFor(const CLI::App& command, const CLI::Option& option);

/// Returns the word for the value of an option, "FILE", or an empty text if the option takes none.
std::string PlaceholderOf(const CLI::Option& option);

}  // namespace lumenkit::cli
