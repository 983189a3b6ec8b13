#include "apps/command_line/program.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/spelling/nearest.h"
#include "apps/command_line/spelling/printable.h"
#include "apps/command_line/spelling/suggestion.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

std::string Quoted(const std::string& argument) {
    return '"' + Printable(argument) + '"';
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
    return DidYouMean(ToUtf8(Nearest(text, views)));
}

// The commands that help shows.
std::vector<std::string> CommandNames(const CLI::App& program) {
    std::vector<std::string> names;
    for (const CLI::App* command : program.get_subcommands(
             [](const CLI::App* offered) { return !offered->get_group().empty(); })) {
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

std::string BeforeEqualsSign(const std::string& argument) {
    return argument.substr(0, argument.find('='));
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
        if (const std::string word = WrongWord(); !word.empty()) {
            throw CLI::ExtrasError({word});
        }
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
    // The place of the command among the arguments: after the program's own options and their
    // values.
    std::size_t Place() const {
        std::size_t place = 0;
        while (place < arguments_.size() && arguments_[place].starts_with('-')) {
            const CLI::Option* const option = program_.get_option_no_throw(arguments_[place]);
            place += option != nullptr && option->get_items_expected_max() > 0 ? 2 : 1;
        }
        return place;
    }
    bool HasCommand() const { return Place() < arguments_.size(); }
    const std::string& CommandWord() const { return arguments_[Place()]; }
    bool IsCommand(const std::string& word) const {
        const auto isNamed = [&](const CLI::App* command) { return command->get_name() == word; };
        return !program_.get_subcommands(isNamed).empty();
    }

    void ExpandHelp() {
        if (HasCommand() && CommandWord() == "help") {
            arguments_.erase(arguments_.begin() + static_cast<std::ptrdiff_t>(Place()));
            arguments_.emplace_back("--help");
        }
    }
    void Imply(const ImpliedCommand& implied) {
        if (implied && HasCommand() && !IsCommand(CommandWord())) {
            if (std::string command = implied(CommandWord()); !command.empty()) {
                arguments_.insert(arguments_.begin() + static_cast<std::ptrdiff_t>(Place()),
                                  std::move(command));
            }
        }
    }
    // The first word up to the command that is neither the command nor an option of the program, or
    // an empty text.
    std::string WrongWord() const {
        const std::size_t place = std::min(Place(), arguments_.size());
        for (std::size_t i = 0; i < place; ++i) {
            std::string word = BeforeEqualsSign(arguments_[i]);
            if (word.starts_with('-') && program_.get_option_no_throw(word) == nullptr) {
                return word;
            }
        }
        return HasCommand() && !IsCommand(CommandWord()) ? CommandWord() : std::string();
    }

    const CLI::App& Command() const {
        return HasCommand() && IsCommand(CommandWord()) ? *program_.get_subcommand(CommandWord())
                                                        : program_;
    }

    std::string Reason(const CLI::ParseError& error, const CLI::App& command) const {
        if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && !HasCommand()) {
            return "a command is required";
        }
        if (dynamic_cast<const CLI::ExtrasError*>(&error) == nullptr) {
            return Printable(error.what());
        }
        if (&command == &program_) {
            return Unexpected(WrongWord(), "command", command, CommandNames(program_));
        }
        const std::vector<std::string> extras = program_.remaining(true);
        return extras.empty() ? error.what() : Unexpected(extras.front(), "", command, {});
    }

    // `kind` is what a word that is no option should have been.
    static std::string Unexpected(const std::string& argument, const std::string& kind,
                                  const CLI::App& command, const std::vector<std::string>& words) {
        const std::string word = BeforeEqualsSign(argument);
        if (word.starts_with('-')) {
            return "there is no option " + Quoted(word) + Question(word, OptionNames(command));
        }
        return kind.empty()
                   ? "did not expect " + Quoted(argument)
                   : "there is no " + kind + ' ' + Quoted(argument) + Question(argument, words);
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
