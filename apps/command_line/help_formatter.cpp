#include "apps/command_line/help_formatter.h"

#include <algorithm>
#include <utility>

#include "apps/command_line/wrapped.h"

namespace lumenkit::cli {

namespace {

HelpFormatter& FormatterOf(const CLI::App& app) {
    return dynamic_cast<HelpFormatter&>(*app.get_formatter());
}

template <typename Key, typename Value>
const Value& Found(const std::map<const Key*, Value>& values, const Key& key) {
    static const Value none;
    const auto found = values.find(&key);
    return found == values.end() ? none : found->second;
}

}  // namespace

// Without the value that a flag has by default: "--fix{safe}".
std::string HelpFormatter::make_option_name(const CLI::Option* option, bool isPositional) const {
    const std::string name = CLI::Formatter::make_option_name(option, isPositional);
    return name.substr(0, name.find('{'));
}

std::string HelpFormatter::make_option_opts(const CLI::Option* option) const {
    if (!option->nonpositional()) {
        return {};  // the name is the placeholder
    }
    const std::string placeholder = PlaceholderOf(*option);
    return (placeholder.empty() || placeholder.starts_with('[') ? placeholder : " " + placeholder) +
           (option->get_required() ? " (required)" : "");
}

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
    return Found(notes_, app);
}

const Offered& HelpFormatter::OfferedFor(const CLI::Option& option) const {
    return Found(offered_, option);
}

void SetNotes(CLI::App& app, Notes notes) {
    FormatterOf(app).SetNotes(app, std::move(notes));
}

const Notes& NotesOf(const CLI::App& app) {
    return FormatterOf(app).NotesOf(app);
}

void Offer(CLI::App& command, const CLI::Option& option, Offered offered) {
    FormatterOf(command).SetOffered(option, std::move(offered));
}

const Offered& OfferedFor(const CLI::App& command, const CLI::Option& option) {
    return FormatterOf(command).OfferedFor(option);
}

std::string PlaceholderOf(const CLI::Option& option) {
    if (!option.nonpositional()) {
        return option.get_name(true, false);
    }
    const bool isFlag = option.get_items_expected_max() == 0;
    const std::string& text = option.get_option_text();
    return text.empty() && !isFlag ? "VALUE" : text;
}

}  // namespace lumenkit::cli
