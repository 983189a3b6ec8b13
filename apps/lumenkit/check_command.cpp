#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check_run.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/terminal.h"

namespace lumenkit::cli {

namespace {

enum class Format { Text, Json, Sarif, Github };

struct CheckArguments : CheckOptions {
    Format format = Format::Text;
};

std::unique_ptr<check::Reporter> NewReporter(Format format) {
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
        check::ColoredStreams{.output = TakesColors(Stream::Output),
                              .errors = TakesColors(Stream::Errors)});
}

int Check(const CheckArguments& arguments) {
    try {
        const std::unique_ptr<check::Reporter> reporter = NewReporter(arguments.format);
        return CheckRun(arguments, *reporter).Run();
    } catch (const check::BadException& error) {
        std::cerr << "lumenkit: " << check::Printable(error.what()) << '\n';
    } catch (const check::BadBaseline& error) {
        std::cerr << "lumenkit: " << check::Printable(error.what()) << '\n';
    }
    return exitUnusable;
}

std::string NotARule(const std::string& name) {
    return check::FindRule(name) == nullptr ? "there is no rule \"" + name + '"' : std::string();
}

template <typename Value>
std::vector<std::string> NamesOf(const std::map<std::string, Value>& values) {
    std::vector<std::string> names;
    names.reserve(values.size());
    for (const auto& [name, value] : values) {
        names.push_back(name);
    }
    return names;
}

void AddFormatOptions(CLI::App& command, CheckArguments& arguments) {
    static const std::map<std::string, Format> formats = {{"text", Format::Text},
                                                          {"json", Format::Json},
                                                          {"sarif", Format::Sarif},
                                                          {"github", Format::Github}};
    command
        .add_option_function<std::string>(
            "--format",
            [&arguments](const std::string& name) { arguments.format = formats.at(name); },
            "Format of the output: text, json, sarif (SARIF 2.1.0) or github (annotations)")
        ->check(CLI::IsMember(NamesOf(formats)).description(""))
        ->option_text("FORMAT");
    command.add_flag_callback(
        "--json", [&arguments] { arguments.format = Format::Json; }, "The same as --format json");
}

void AddSelectionOptions(CLI::App& command, CheckArguments& arguments) {
    static const std::map<std::string, check::Severity> severities = {
        {"note", check::Severity::Note},
        {"warning", check::Severity::Warning},
        {"error", check::Severity::Error}};
    command
        .add_option("--rule", arguments.selection.only,
                    "Report only findings of this rule; may be repeated")
        ->check(NotARule, "")
        ->option_text("RULE")
        ->allow_extra_args(false);
    command
        .add_option("--no-rule", arguments.selection.without,
                    "Report no findings of this rule; may be repeated")
        ->check(NotARule, "")
        ->option_text("RULE")
        ->allow_extra_args(false);
    command
        .add_option_function<std::string>(
            "--severity",
            [&arguments](const std::string& name) {
                arguments.selection.least = severities.at(name);
            },
            "Report only findings of this severity or a higher one: note, warning or error")
        ->check(CLI::IsMember(NamesOf(severities)).description(""))
        ->option_text("LEVEL");
    command
        .add_option("--baseline", arguments.baseline,
                    "Do not report the findings that this file lists")
        ->option_text("FILE");
    command
        .add_option("--write-baseline", arguments.writeBaseline,
                    "Write the findings to this file, and exit with 0")
        ->option_text("FILE");
}

Section RuleSection() {
    Section section{.heading = "Rules and their names in findings"};
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
                              "docs/check.md for details."}},
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

void AddCheckCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "check", "Find mistakes in captions and form files and print their places");
    const auto options = std::make_shared<CheckArguments>();
    command
        ->add_option("PATH", options->paths,
                     "Forms (.frm, .ctl, .pag, .dob), or folders to search for such files, "
                     "including all subfolders")
        ->required();
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
    command->callback([options, &status] { status = Check(*options); });
}

}  // namespace lumenkit::cli
