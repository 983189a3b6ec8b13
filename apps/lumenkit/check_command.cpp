#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/lumenkit/check/quote.h"
#include "apps/lumenkit/check/reporter.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check_run.h"
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
        return std::make_unique<check::DiffReporter>(std::cerr, TakesColors(Stream::Errors));
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
        check::ColoredStreams{.output = TakesColors(stream),
                              .errors = TakesColors(Stream::Errors)});
}

int Check(const CheckArguments& arguments) {
    try {
        const std::unique_ptr<check::Reporter> reporter = NewReporter(arguments);
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

std::string Help() {
    std::string help = "Rules and their names in findings:\n";
    for (const check::Rule& rule : check::allRules) {
        constexpr std::size_t column = 26;
        constexpr std::size_t meaningColumn = 33;
        std::string line = "  " + std::string(rule.name);
        line.resize(column, ' ');
        line += NameOf(rule.severity);
        line.resize(meaningColumn, ' ');
        help += line + "  " + std::string(rule.meaning) + '\n';
    }
    return help +
           "\n"
           "Lines and columns count from 1, offsets in a text from 0. Columns and offsets "
           "are in UTF-16 units. A text in a binary companion file is reported at the place "
           "of its property. See docs/check.md for details.\n"
           "\n"
           "Exit status: 0 without findings, 1 with findings, 2 if a file could not be read or "
           "mended (all other files are checked) or the findings could not be written. With --fix, "
           "the findings that are left count; with --diff, 1 means that there are differences.\n"
           "\n"
           "Examples:\n"
           "  lumenkit check order.frm\n"
           "  lumenkit check --json src/forms\n"
           "  lumenkit check --code-page 1250 polish.frm\n"
           "  lumenkit check --fix=all --diff src/forms\n"
           "  lumenkit check --caption samples/captions/mistakes.txt\n"
           "  echo '|Blod:1|Hello' | lumenkit check --caption -";
}

}  // namespace

void AddCheckCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "check", "Find mistakes in captions and form files, print their places and mend them");
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
    AddFixOptions(*command, *options);
    command
        ->add_option("-j,--jobs", options->jobs,
                     "Number of files to check at once; default: one for each processor")
        ->check(CLI::Range(1, 1024))
        ->option_text("N");
    AddCodePageOption(*command, options->codePage);
    command->footer(Help());
    command->callback([command, options, &status] {
        RefuseTogether(*command, "--diff", {"--format", "--json", "--write-baseline"});
        RefuseTogether(*command, "--fix", {"--write-baseline"});
        options->fixing = options->WantedFixing();
        status = Check(*options);
    });
}

}  // namespace lumenkit::cli
