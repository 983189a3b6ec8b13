#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "apps/command_line/choice.h"
#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check_run.h"
#include "apps/lumenkit/color_option.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/terminal.h"
#include "apps/lumenkit/text_input.h"

namespace lumenkit::cli {

namespace {

enum class Format { Text, Json, Sarif, Github };

struct CheckArguments : CheckOptions {
    Format format = Format::Text;
    std::string fix;  // "safe", "all" or empty

    Fixing WantedFixing() const {
        return fix == "all" ? Fixing::All : fix.empty() && !diff ? Fixing::None : Fixing::Safe;
    }
};

// The standard output takes the mended text of the standard input.
bool PrintsMendedText(const CheckArguments& arguments) {
    return arguments.fixing != Fixing::None && !arguments.diff &&
           std::ranges::any_of(arguments.paths, [&](const std::string& path) {
               return path == "-" || (arguments.captions && IsStandardInput(path));
           });
}

std::unique_ptr<check::Reporter> NewReporter(const CheckArguments& arguments) {
    const Stream stream = PrintsMendedText(arguments) ? Stream::Errors : Stream::Output;
    std::ostream& output = stream == Stream::Errors ? std::cerr : std::cout;
    if (arguments.diff) {
        return std::make_unique<check::DiffReporter>(
            std::cerr, TakesColors(Stream::Errors, arguments.coloring));
    }
    switch (arguments.format) {
        case Format::Json:
            return std::make_unique<check::JsonReporter>(output, arguments.fixing != Fixing::None);
        case Format::Sarif:
            return std::make_unique<check::SarifReporter>(output, LUMENKIT_VERSION);
        case Format::Github:
            return std::make_unique<check::GithubReporter>(output);
        case Format::Text:
            break;
    }
    return std::make_unique<check::TextReporter>(
        output, std::cerr,
        check::ColoredStreams{.output = TakesColors(stream, arguments.coloring),
                              .errors = TakesColors(Stream::Errors, arguments.coloring)});
}

int Check(const CheckArguments& arguments) {
    const std::unique_ptr<check::Reporter> reporter = NewReporter(arguments);
    return CheckRun(arguments, *reporter).Run();
}

std::string NotARule(const std::string& name) {
    return check::FindRule(name) == nullptr ? "there is no rule \"" + name + '"' : std::string();
}

void AddFormatOptions(CLI::App& command, CheckArguments& arguments) {
    AddChoice<Format>(command, "--format", "FORMAT",
                      "Format of the output: text, json, sarif (SARIF 2.1.0) or github "
                      "(annotations)",
                      {{"text", Format::Text, "a line for each finding"},
                       {"json", Format::Json, "one JSON object"},
                       {"sarif", Format::Sarif, "SARIF 2.1.0"},
                       {"github", Format::Github, "annotations"}},
                      [&arguments](Format format) { arguments.format = format; });
    command.add_flag_callback(
        "--json", [&arguments] { arguments.format = Format::Json; }, "The same as --format json");
}

void AddFixOptions(CLI::App& command, CheckArguments& arguments) {
    command
        .add_flag(
            "--fix{safe}", arguments.fix,
            "Mend what can be mended without changing what is drawn; --fix=all also makes "
            "mendings that change it. A form or caption from the standard input is written to "
            "the standard output, and the findings to the standard error stream")
        ->check(CLI::IsMember({"safe", "all"}).description(""))
        ->option_text("[=all]");
    command.add_flag(
        "--diff", arguments.diff,
        "Write no file, but print what --fix (or --fix=all, if named) would change, as "
        "input for patch -p1");
}

// Throws CLI::ExcludesError.
void RefuseTogether(const CLI::App& command, const std::string& option,
                    std::initializer_list<std::string> others) {
    for (const std::string& other : others) {
        if (command.count(option) > 0 && command.count(other) > 0) {
            throw CLI::ExcludesError(option, other);
        }
    }
}

Offered AllRules() {
    Offered rules;
    for (const check::Rule& rule : check::allRules) {
        rules.words.push_back({std::string(rule.name), std::string(rule.meaning)});
    }
    return rules;
}

void AddRuleOption(CLI::App& command, const std::string& name, const std::string& description,
                   std::vector<std::string>& rules) {
    CLI::Option* const option = command.add_option(name, rules, description)
                                    ->check(NotARule, "")
                                    ->option_text("RULE")
                                    ->allow_extra_args(false);
    Offer(command, *option, AllRules());
}

void AddSeverityOption(CLI::App& command, check::Selection& selection) {
    using check::Severity;
    Choices<Severity> severities;
    for (const Severity severity : {Severity::Note, Severity::Warning, Severity::Error}) {
        severities.push_back({std::string(NameOf(severity)), severity});
    }
    AddChoice<Severity>(
        command, "--severity", "LEVEL",
        "Report only findings of this severity or a higher one: note, warning or error", severities,
        [&selection](Severity severity) { selection.least = severity; });
}

void AddBaselineOption(CLI::App& command, const std::string& name, const std::string& description,
                       std::string& file) {
    CLI::Option* const option = command.add_option(name, file, description)->option_text("FILE");
    Offer(command, *option, FilesNamed({"json"}));
}

void AddSelectionOptions(CLI::App& command, CheckArguments& arguments) {
    AddRuleOption(command, "--rule", "Report only findings of this rule; may be repeated",
                  arguments.selection.only);
    AddRuleOption(command, "--no-rule", "Report no findings of this rule; may be repeated",
                  arguments.selection.without);
    AddSeverityOption(command, arguments.selection);
    AddBaselineOption(command, "--baseline", "Do not report the findings that this file lists",
                      arguments.baseline);
    AddBaselineOption(command, "--write-baseline",
                      "Write the findings to this file, and exit with 0", arguments.writeBaseline);
}

Section RuleSection() {
    Section section{.heading = "Rules"};
    for (const check::Rule& rule : check::allRules) {
        section.entries.push_back(
            {std::string(rule.name),
             std::string(rule.meaning) + " (" + std::string(NameOf(rule.severity)) + ')'});
    }
    return section;
}

Notes CheckNotes() {
    return {
        .sections = {RuleSection(),
                     {.text = "Lines and columns count from 1, offsets in a text from 0. Columns "
                              "and offsets are in UTF-16 units. A text in a binary companion "
                              "file is reported at the place of its property. See "
                              "docs/check.md for details."},
                     ColorVariables()},
        .exitStatuses = {{exitDone, "no findings"},
                         {exitReported,
                          "findings; with --fix, findings that are left; with --diff, differences"},
                         {exitUnusable,
                          "wrong arguments, a file could not be read or mended (all other files "
                          "are checked), or the findings could not be written"}},
        .examples = {"lumenkit check order.frm", "lumenkit check --json src/forms",
                     "lumenkit check --code-page 1250 polish.frm",
                     "lumenkit check --fix=all --diff src/forms",
                     "lumenkit check --caption samples/captions/mistakes.txt",
                     "echo '|Blod:1|Hello' | lumenkit check --caption -"}};
}

}  // namespace

void AddCheckCommand(CLI::App& program, const Coloring& color, int& status) {
    CLI::App* const command = program.add_subcommand(
        "check", "Find mistakes in captions and form files, print their places and mend them");
    const auto options = std::make_shared<CheckArguments>();
    CLI::Option* const paths =
        command
            ->add_option("PATH", options->paths,
                         "Forms (.frm, .ctl, .pag, .dob), or folders to search for such files, "
                         "including all subfolders")
            ->required();
    Offer(*command, *paths, FilesNamed({"frm", "ctl", "pag", "dob", "txt"}));
    command->add_flag("--caption", options->captions,
                      "Each file contains one caption in UTF-8; - is the standard input. Folders "
                      "are searched for .txt files. One line break at the end of a file is not "
                      "part of the caption");
    AddFormatOptions(*command, *options);
    AddSelectionOptions(*command, *options);
    AddFixOptions(*command, *options);
    command
        ->add_option("-j,--jobs", options->jobs,
                     "Number of files to check at once; default: one for each processor")
        ->check(CLI::Range(1, 1024))
        ->option_text("N");
    AddCodePageOption(*command, options->codePage);
    SetNotes(*command, CheckNotes());
    command->callback([command, options, &color, &status] {
        RefuseTogether(*command, "--diff", {"--format", "--json", "--write-baseline"});
        RefuseTogether(*command, "--fix", {"--write-baseline"});
        options->fixing = options->WantedFixing();
        options->coloring = color;
        status = Check(*options);
    });
}

}  // namespace lumenkit::cli
