#include "apps/command_line/program.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/spelling/nearest.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

// Bytes that are not UTF-8 become question marks, and control characters blanks.
std::string Shown(const std::string& argument) {
    std::string shown;
    try {
        shown = ToUtf8(FromUtf8(argument));
    } catch (const MalformedUtf8&) {
        std::ranges::transform(argument, std::back_inserter(shown),
                               [](char letter) { return letter < 0 ? '?' : letter; });
    }
    std::ranges::replace_if(
        shown, [](char letter) { return (letter >= 0 && letter < ' ') || letter == '\x7f'; }, ' ');
    return '"' + shown + '"';
}

std::string Question(const std::string& written, const std::vector<std::string>& words) {
    std::vector<Text> known;
    std::ranges::transform(words, std::back_inserter(known), FromUtf8);
    const std::vector<TextView> views(known.begin(), known.end());
    Text text;
    try {
        text = FromUtf8(written);
    } catch (const MalformedUtf8&) {
        return {};
    }
    const TextView nearest = Nearest(text, views);
    return nearest.empty() ? std::string() : "; did you mean \"" + ToUtf8(nearest) + "\"?";
}

std::vector<std::string> CommandNames(const CLI::App& program) {
    std::vector<std::string> names;
    for (const CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; })) {
        names.push_back(command->get_name());
    }
    return names;
}

std::vector<std::string> OptionNames(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::Option* option : command.get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

class Call {
 public:
    Call(CLI::App& program, int argc, char** argv, const ImpliedCommand& implied)
        : program_(program), arguments_(argv + 1, argv + argc) {
        ExpandHelp();
        Imply(implied);
    }

    // Throws CLI::ParseError.
    void Parse() {
        RequireCommand();
        std::vector<std::string> backwards(arguments_.rbegin(), arguments_.rend());
        program_.parse(std::move(backwards));
    }

    int Answer(const CLI::ParseError& error) const {
        if (error.get_exit_code() == 0) {
            return program_.exit(error) == 0 ? exitDone : exitUnusable;
        }
        const CLI::App& command = Command();
        const std::string name = &command == &program_
                                     ? program_.get_name()
                                     : program_.get_name() + ' ' + command.get_name();
        std::cerr << name << ": " << Reason(error, command) << "\nRun \"" << name
                  << " --help\" for the arguments.\n";
        return exitUnusable;
    }

 private:
    bool HasCommand() const { return !arguments_.empty() && !arguments_.front().starts_with('-'); }
    bool IsCommand(const std::string& word) const {
        return std::ranges::count(CommandNames(program_), word) > 0;
    }

    void ExpandHelp() {
        if (HasCommand() && arguments_.front() == "help") {
            arguments_.erase(arguments_.begin());
            arguments_.emplace_back("--help");
        }
    }
    void Imply(const ImpliedCommand& implied) {
        if (implied && HasCommand() && !IsCommand(arguments_.front())) {
            if (std::string command = implied(arguments_.front()); !command.empty()) {
                arguments_.insert(arguments_.begin(), std::move(command));
            }
        }
    }
    // The first argument is a command or an option of the program.
    void RequireCommand() const {
        if (arguments_.empty()) {
            return;
        }
        const std::string& first = arguments_.front();
        const bool isKnown =
            HasCommand() ? IsCommand(first)
                         : first == "-h" || std::ranges::count(OptionNames(program_), first) > 0;
        if (!isKnown) {
            throw CLI::ExtrasError({first});
        }
    }

    const CLI::App& Command() const {
        return HasCommand() && IsCommand(arguments_.front())
                   ? *program_.get_subcommand(arguments_.front())
                   : program_;
    }

    std::string Reason(const CLI::ParseError& error, const CLI::App& command) const {
        if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && !HasCommand()) {
            return "a command is required";
        }
        if (dynamic_cast<const CLI::ExtrasError*>(&error) == nullptr) {
            return error.what();
        }
        if (&command == &program_) {
            return Unexpected(arguments_.front(), "command", command, CommandNames(program_));
        }
        const std::vector<std::string> extras = program_.remaining(true);
        return extras.empty() ? error.what() : Unexpected(extras.front(), "", command, {});
    }

    // `kind` is what a word that is no option should have been.
    static std::string Unexpected(const std::string& argument, const std::string& kind,
                                  const CLI::App& command, const std::vector<std::string>& words) {
        const std::string word = argument.substr(0, argument.find('='));
        if (word.starts_with('-')) {
            return "there is no option " + Shown(word) + Question(word, OptionNames(command));
        }
        return kind.empty()
                   ? "did not expect " + Shown(argument)
                   : "there is no " + kind + ' ' + Shown(argument) + Question(argument, words);
    }

    CLI::App& program_;
    std::vector<std::string> arguments_;
};

}  // namespace

void SetUpProgram(CLI::App& program, const std::string& version) {
    program.set_version_flag("--version", program.get_name() + ' ' + version);
    program.formatter(std::make_shared<HelpFormatter>());
}

int RunProgram(CLI::App& program, int argc, char** argv, const int& status,
               const ImpliedCommand& implied) {
    Call call(program, argc, argv, implied);
    try {
        call.Parse();
        return status;
    } catch (const CLI::ParseError& error) {
        return call.Answer(error);
    }
}

}  // namespace lumenkit::cli
