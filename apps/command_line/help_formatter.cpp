#include "apps/command_line/help_formatter.h"

#include <algorithm>
#include <utility>

#include "apps/command_line/wrapped.h"

namespace lumenkit::cli {

namespace {

HelpFormatter& FormatterOf(const CLI::App& app) {
    return dynamic_cast<HelpFormatter&>(*app.get_formatter());
}

}  // namespace

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
    return Wrapped(CLI::Formatter::make_option_desc(option), terminalWidth - column_width_);
}

std::string HelpFormatter::make_description(const CLI::App* app) const {
    return Wrapped(app->get_description(), terminalWidth) + '\n';
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const {
    std::string line = "  " + command->get_name();
    line.resize(std::max(line.size() + 2, column_width_), ' ');
    return FittedToTerminal(line + command->get_description()) + '\n';
}

std::string HelpFormatter::make_footer(const CLI::App* app) const {
    const std::string text = HelpText(NotesOf(*app));
    return text.empty() ? text : text + '\n';
}

const Notes& HelpFormatter::NotesOf(const CLI::App& app) const {
    static const Notes none;
    const auto found = notes_.find(&app);
    return found == notes_.end() ? none : found->second;
}

void SetNotes(CLI::App& app, Notes notes) {
    FormatterOf(app).SetNotes(app, std::move(notes));
}

const Notes& NotesOf(const CLI::App& app) {
    return FormatterOf(app).NotesOf(app);
}

}  // namespace lumenkit::cli
