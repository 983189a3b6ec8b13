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

namespace lumenkit::cli {

namespace {

enum class Format { Text, Json, Sarif, Github };

struct CheckArguments : CheckOptions {
    Format format = Format::Text;
};

std::unique_ptr<check::Reporter> NewReporter(Format format, Color color) {
    switch (format) {
        case Format::Json:
            return std::make_unique<check::JsonReporter>(std::cout);
        case Format::Sarif:
            return std::make_unique<check::SarifReporter>(std::cout, LUMENKIT_VERSION);
        case Format::Github:
            return std::make_unique<check::GithubReporter>(std::cout);
        case Format::Text:
            break;
    }
    return std::make_unique<check::TextReporter>(
        std::cout, std::cerr,
        check::ColoredStreams{.output = TakesColors(Stream::Output, color),
                              .errors = TakesColors(Stream::Errors, color)});
}

int Check(const CheckArguments& arguments, Color color) {
    const std::unique_ptr<check::Reporter> reporter = NewReporter(arguments.format, color);
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
                         {exitReported, "findings"},
                         {exitUnusable,
                          "wrong arguments, a file could not be read (all other files are "
                          "checked), or the findings could not be written"}},
        .examples = {"lumenkit check order.frm", "lumenkit check --json src/forms",
                     "lumenkit check --code-page 1250 polish.frm",
                     "lumenkit check --caption samples/captions/mistakes.txt",
                     "echo '|Blod:1|Hello' | lumenkit check --caption -"}};
}

}  // namespace

void AddCheckCommand(CLI::App& program, const Color& color, int& status) {
    CLI::App* const command = program.add_subcommand(
        "check", "Find mistakes in captions and form files and print their places");
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
    command
        ->add_option("-j,--jobs", options->jobs,
                     "Number of files to check at once; default: one for each processor")
        ->check(CLI::Range(1, 1024))
        ->option_text("N");
    AddCodePageOption(*command, options->codePage);
    SetNotes(*command, CheckNotes());
    command->callback([options, &color, &status] { status = Check(*options, color); });
}

}  // namespace lumenkit::cli
