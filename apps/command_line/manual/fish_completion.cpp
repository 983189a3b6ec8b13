#include <cstddef>
#include <string>
#include <vector>

#include "apps/command_line/manual/completion.h"
#include "apps/command_line/manual/shell_text.h"

namespace lumenkit::cli {

namespace {

class FishScript {
 public:
    explicit FishScript(const DescribedCommand& program) : program_(program), name_(program.name) {}

    std::string Text() const {
        std::string text = "# Completes the arguments of " + name_ + " in fish.\n\n" + Place() +
                           "complete -c " + name_ + " -f\n";
        for (const DescribedCommand& command : program_.commands) {
            text += Line("'' 0") + " -a " + command.name + " -d " +
                    FishQuoted(command.description) + '\n';
        }
        if (const std::string files = Offering(program_.notes.insteadOfCommand); !files.empty()) {
            text += Line("'' 0") + files + '\n';
        }
        text += OptionLines(program_, "''");
        for (const DescribedCommand& command : program_.commands) {
            text += OptionLines(command, command.name) + PositionalLines(command);
        }
        return text;
    }

 private:
    // Functions that tell where the cursor is.
    std::string Place() const {
        std::vector<std::string> valued;
        AddValued(program_, "", valued);
        for (const DescribedCommand& command : program_.commands) {
            AddValued(command, command.name, valued);
        }
        const std::string skipValue =
            valued.empty() ? ""
                           : "            case " + Joined(valued, " ") +
                                 "\n"
                                 "                set -q words[2]; and set -e words[1]\n";
        const std::string function = "__" + name_;
        return "# Prints the command before the cursor and the number of its arguments.\n"
               "function " +
               function +
               "_place\n"
               "    set -l words (commandline -opc)\n"
               "    set -l command ''\n"
               "    set -l count 0\n"
               "    set -e words[1]\n"
               "    while set -q words[1]\n"
               "        switch \"$command $words[1]\"\n" +
               skipValue +
               "            case '* -*'\n"
               "            case ' *'\n"
               "                set command $words[1]\n"
               "            case '*'\n"
               "                set count (math $count + 1)\n"
               "        end\n"
               "        set -e words[1]\n"
               "    end\n"
               "    echo \"$command $count\"\n"
               "end\n\n"
               "# Whether the cursor is in this command, and at this argument if one is given.\n"
               "function " +
               function +
               "_in --argument-names command count\n"
               "    set -l place (string split ' ' -- (" +
               function +
               "_place))\n"
               "    test \"$place[1]\" = \"$command\"; or return 1\n"
               "    test -z \"$count\"; or test \"$place[2]\" = \"$count\"\n"
               "end\n\n"
               "# Folders, and files with one of these extensions.\n"
               "function " +
               function +
               "_files\n"
               "    set -l word (string replace -r -- '^-[^=]*=' '' (commandline -ct))\n"
               "    __fish_complete_path \"$word\" |\n"
               "        string match -rie -- '(/|\\.('(string join '|' $argv)'))(\\t|$)'\n"
               "end\n\n";
    }

    static void AddValued(const DescribedCommand& command, const std::string& word,
                          std::vector<std::string>& patterns) {
        for (const DescribedOption& option : command.options) {
            for (const std::string& name : option.names) {
                if (TakesValue(option)) {
                    patterns.push_back(FishQuoted(Joined({word, name}, " ")));
                }
            }
        }
    }

    std::string Line(const std::string& place) const {
        return "complete -c " + name_ + " -n " + FishQuoted("__" + name_ + "_in " + place);
    }

    // " -a ..." for what is offered, or an empty text.
    std::string Offering(const Offered& offered) const {
        if (!offered.words.empty()) {
            std::vector<std::string> words;
            for (const Entry& word : offered.words) {
                words.push_back(
                    FishQuoted(word.meaning.empty() ? word.name : word.name + '\t' + word.meaning));
            }
            return " -a " + FishQuoted(Joined(words, " "));
        }
        if (!offered.extensions.empty()) {
            return " -a " +
                   FishQuoted("(__" + name_ + "_files " + Joined(offered.extensions, " ") + ')');
        }
        return {};
    }

    std::string OptionLines(const DescribedCommand& command, const std::string& place) const {
        std::string lines;
        for (const DescribedOption& option : command.options) {
            lines += Line(place);
            for (const std::string& name : option.names) {
                lines += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            }
            if (TakesValue(option)) {
                lines += " -x" + Offering(option.offered);
            }
            lines += " -d " + FishQuoted(option.description) + '\n';
        }
        return lines;
    }

    std::string PositionalLines(const DescribedCommand& command) const {
        std::string lines;
        for (std::size_t i = 0; i < command.positionals.size(); ++i) {
            const DescribedOption& positional = command.positionals[i];
            if (const std::string offering = Offering(positional.offered); !offering.empty()) {
                lines += Line(command.name +
                              (positional.repeats ? std::string() : ' ' + std::to_string(i))) +
                         offering + '\n';
            }
        }
        return lines;
    }

    const DescribedCommand& program_;
    const std::string name_;
};

}  // namespace

std::string FishCompletion(const DescribedCommand& program) {
    return FishScript(program).Text();
}

}  // namespace lumenkit::cli
