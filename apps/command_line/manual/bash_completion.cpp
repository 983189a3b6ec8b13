#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "apps/command_line/manual/completion.h"
#include "apps/command_line/manual/shell_text.h"

namespace lumenkit::cli {

namespace {

// In what follows, "here" is the command and the option before the cursor: "check --rule". The
// program itself has an empty command. readline takes an equals sign for a word of its own.
class BashScript {
 public:
    explicit BashScript(const DescribedCommand& program) : program_(program), name_(program.name) {}

    std::string Text() const {
        return "# Completes the arguments of " + name_ + " in bash.\n\n" + Helpers() + '_' + name_ +
               "() {\n" + Scan() + Values() + Options() + Positionals() + "}\ncomplete -F _" +
               name_ + ' ' + name_ + '\n';
    }

 private:
    std::string Helpers() const {
        return '_' + name_ +
               "_words() {\n"
               "    mapfile -t COMPREPLY < <(compgen -W \"$1\" -- \"$cur\")\n"
               "}\n\n"
               "# Folders, and files with one of these extensions.\n"
               "_" +
               name_ +
               "_files() {\n"
               "    if declare -F _filedir >/dev/null; then\n"
               "        _filedir \"@($1)\"\n"
               "    else\n"
               "        compopt -o default\n"
               "    fi\n"
               "}\n\n";
    }

    // Options that take a value, as patterns: "check --rule".
    std::vector<std::string> Patterns(const DescribedCommand& command,
                                      const DescribedOption& option) const {
        std::vector<std::string> patterns;
        for (const std::string& name : option.names) {
            patterns.push_back('"' + (&command == &program_ ? std::string() : command.name) + ' ' +
                               name + '"');
        }
        return patterns;
    }

    template <typename Visit>
    void ForEachCommand(const Visit& visit) const {
        visit(program_);
        for (const DescribedCommand& command : program_.commands) {
            visit(command);
        }
    }

    // Finds the command and counts its arguments.
    std::string Scan() const {
        std::vector<std::string> valued;
        ForEachCommand([&](const DescribedCommand& command) {
            for (const DescribedOption& option : command.options) {
                if (TakesValue(option)) {
                    for (const std::string& pattern : Patterns(command, option)) {
                        valued.push_back(pattern);
                    }
                }
            }
        });
        const std::string skipValue =
            valued.empty() ? ""
                           : "            " + Joined(valued, " | ") +
                                 ")\n"
                                 "                [[ ${COMP_WORDS[i + 1]} != = ]] || ((i++))\n"
                                 "                ((i++)) ;;\n";
        return "    local cur=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
               "    local command= arguments=0 i\n"
               "    COMPREPLY=()\n"
               "    if [[ $cur == = ]]; then\n"
               "        cur=\n"
               "    elif [[ $before == = ]]; then\n"
               "        before=${COMP_WORDS[COMP_CWORD - 2]}\n"
               "    fi\n"
               "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
               "        case \"$command ${COMP_WORDS[i]}\" in\n" +
               skipValue +
               "            *\" -\"*)\n"
               "                [[ ${COMP_WORDS[i + 1]} != = ]] || ((i += 2)) ;;\n"
               "            \" \"*) command=${COMP_WORDS[i]} ;;\n"
               "            *) ((arguments++)) ;;\n"
               "        esac\n"
               "    done\n";
    }

    std::string Offering(const Offered& offered) const {
        if (!offered.words.empty()) {
            std::vector<std::string> words;
            for (const Entry& word : offered.words) {
                words.push_back(word.name);
            }
            return '_' + name_ + "_words '" + Joined(words, " ") + '\'';
        }
        if (!offered.extensions.empty()) {
            return '_' + name_ + "_files '" + Joined(offered.extensions, "|") + '\'';
        }
        return {};
    }

    std::string Values() const {
        std::string cases;
        ForEachCommand([&](const DescribedCommand& command) {
            for (const DescribedOption& option : command.options) {
                if (TakesValue(option)) {
                    cases += "        " + Joined(Patterns(command, option), " | ") + ") " +
                             Offering(option.offered) +
                             (Offering(option.offered).empty() ? "" : "; ") + "return ;;\n";
                }
            }
        });
        return cases.empty() ? "" : "    case \"$command $before\" in\n" + cases + "    esac\n";
    }

    std::string Options() const {
        std::string cases;
        ForEachCommand([&](const DescribedCommand& command) {
            std::vector<std::string> names;
            for (const DescribedOption& option : command.options) {
                std::ranges::copy(WordsOf(option), std::back_inserter(names));
            }
            cases += "            '" + (&command == &program_ ? "" : command.name) + "') _" +
                     name_ + "_words '" + Joined(names, " ") + "' ;;\n";
        });
        return "    if [[ $cur == -* ]]; then\n"
               "        case $command in\n" +
               cases +
               "        esac\n"
               "        return\n"
               "    fi\n";
    }

    std::string Positionals() const {
        std::string cases;
        std::vector<std::string> commands;
        for (const DescribedCommand& command : program_.commands) {
            commands.push_back(command.name);
            for (std::size_t i = 0; i < command.positionals.size(); ++i) {
                const DescribedOption& positional = command.positionals[i];
                if (const std::string offering = Offering(positional.offered); !offering.empty()) {
                    cases += "        \"" + command.name + ' ' +
                             (positional.repeats ? "\"*" : std::to_string(i) + '"') + ") " +
                             offering + " ;;\n";
                }
            }
        }
        std::string first = '_' + name_ + "_words '" + Joined(commands, " ") + '\'';
        if (const std::string files = Offering(program_.notes.insteadOfCommand); !files.empty()) {
            first += "\n            [[ ${#COMPREPLY[@]} -gt 0 ]] || " + files;
        }
        return "    case \"$command $arguments\" in\n"
               "        ' 0') " +
               first + " ;;\n" + cases + "    esac\n";
    }

    const DescribedCommand& program_;
    const std::string name_;
};

}  // namespace

std::string BashCompletion(const DescribedCommand& program) {
    return BashScript(program).Text();
}

}  // namespace lumenkit::cli
