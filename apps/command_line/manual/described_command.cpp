#include "apps/command_line/manual/described_command.h"

#include "apps/command_line/help_formatter.h"

namespace lumenkit::cli {

namespace {

DescribedOption DescribedAs(const CLI::App& app, const CLI::Option& option) {
    DescribedOption described{.names = {},
                              .placeholder = PlaceholderOf(option),
                              .optionalValue = {},
                              .description = option.get_description(),
                              .offered = OfferedFor(app, option),
                              .required = option.get_required(),
                              .repeats = option.get_expected_max() > 1};
    for (const std::string& name : option.get_snames()) {
        described.names.push_back("-" + name);
    }
    for (const std::string& name : option.get_lnames()) {
        described.names.push_back("--" + name);
    }
    if (described.placeholder.starts_with('[') && described.placeholder.ends_with(']')) {
        described.optionalValue = described.placeholder.substr(1, described.placeholder.size() - 2);
        described.placeholder.clear();
    }
    return described;
}

}  // namespace

std::vector<std::string> WordsOf(const DescribedOption& option) {
    std::vector<std::string> words = option.names;
    if (!option.optionalValue.empty()) {
        words.push_back(words.back() + option.optionalValue);
    }
    return words;
}

DescribedCommand Described(const CLI::App& app) {
    DescribedCommand described{.name = app.get_name(),
                               .description = app.get_description(),
                               .positionals = {},
                               .options = {},
                               .notes = NotesOf(app),
                               .needsCommand = app.get_require_subcommand_min() > 0,
                               .commands = {}};
    for (const CLI::Option* option : app.get_options()) {
        if (option->get_group().empty()) {
            continue;  // hidden
        }
        (option->nonpositional() ? described.options : described.positionals)
            .push_back(DescribedAs(app, *option));
    }
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        if (!command->get_group().empty()) {
            described.commands.push_back(Described(*command));
        }
    }
    return described;
}

}  // namespace lumenkit::cli
