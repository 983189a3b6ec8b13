#include <map>
#include <string>
#include <vector>

#include "apps/command_line/manual/completion.h"
#include "apps/command_line/manual/shell_text.h"

namespace lumenkit::cli {

namespace {

class ZshScript {
 public:
    explicit ZshScript(const DescribedCommand& program) : program_(program), name_(program.name) {}

    std::string Text() {
        std::string cases;
        for (const DescribedCommand& command : program_.commands) {
            cases += "        " + command.name + ")\n            _arguments -S -s" +
                     Specs(command, "                ") + " ;;\n";
        }
        const std::string specs = Specs(program_, "        ");
        return "#compdef " + name_ + "\n# Completes the arguments of " + name_ + " in zsh.\n\n" +
               functions_ + CommandFunction() + '_' + name_ +
               "() {\n"
               "    local curcontext=$curcontext state line\n"
               "    typeset -A opt_args\n"
               "    _arguments -C -S" +
               specs + " \\\n        '1:command:_" + name_ +
               "_commands' \\\n        '*::argument:->arguments'\n"
               "    [[ $state == arguments ]] || return\n"
               "    curcontext=${curcontext%:*:*}:" +
               name_ +
               "-$words[1]:\n"
               "    case $words[1] in\n" +
               cases +
               "    esac\n"
               "}\n\n"
               "if [[ $funcstack[1] == _" +
               name_ + " ]]; then\n    _" + name_ + " \"$@\"\nelse\n    compdef _" + name_ + ' ' +
               name_ + "\nfi\n";
    }

 private:
    static std::string Described(const Entry& entry) {
        const std::string name = WithBackslashes(entry.name, ":\\");
        return PosixQuoted(entry.meaning.empty() ? name : name + ':' + entry.meaning);
    }

    static std::string Body(const std::string& tag, const std::vector<Entry>& words) {
        std::string text = "() {\n    local -a words=(\n";
        for (const Entry& word : words) {
            text += "        " + Described(word) + '\n';
        }
        return text + "    )\n    _describe -t " + tag + ' ' + tag + " words\n}\n\n";
    }

    static std::string FilesAction(const Offered& offered) {
        return offered.extensions.empty()
                   ? " "
                   : "_files -g \"*.(#i)(" + Joined(offered.extensions, "|") + ")(-.)\"";
    }

    // What completes a value. Adds the function that it needs.
    std::string Action(const DescribedCommand& command, const std::string& placeholder,
                       const Offered& offered) {
        if (offered.words.empty()) {
            return FilesAction(offered);
        }
        std::string& function = functionOf_[Body("values", offered.words)];
        if (function.empty()) {
            function = FunctionName('_' + name_ + '_' + command.name + '_' + placeholder);
            functions_ += function + Body("values", offered.words);
        }
        return function;
    }

    std::string Specs(const DescribedCommand& command, const std::string& indent) {
        std::string specs;
        for (const DescribedOption& option : command.options) {
            for (const std::string& name : option.names) {
                specs += " \\\n" + indent + PosixQuoted(Spec(command, option, name));
            }
        }
        for (const DescribedOption& positional : command.positionals) {
            specs += " \\\n" + indent +
                     PosixQuoted((positional.repeats    ? "*:"
                                  : positional.required ? ":"
                                                        : "::") +
                                 positional.placeholder + ':' +
                                 Action(command, positional.placeholder, positional.offered));
        }
        return specs;
    }

    // "(-j --jobs)--jobs=[description]:N:action". An option that repeats begins with an asterisk
    // instead of the options that exclude it.
    std::string Spec(const DescribedCommand& command, const DescribedOption& option,
                     const std::string& name) {
        std::string spec = option.repeats ? "*" : '(' + Joined(option.names, " ") + ')';
        spec += name;
        if (TakesValue(option)) {
            spec += name.starts_with("--") ? "=" : "+";
        } else if (!option.optionalValue.empty()) {
            spec += "=-";
        }
        spec += '[' + WithBackslashes(option.description, "[]:\\") + ']';
        if (TakesValue(option)) {
            spec += ':' + option.placeholder + ':' +
                    Action(command, option.placeholder, option.offered);
        } else if (!option.optionalValue.empty()) {
            spec += "::value:(" + option.optionalValue.substr(1) + ')';
        }
        return spec;
    }

    std::string CommandFunction() const {
        std::vector<Entry> commands;
        for (const DescribedCommand& command : program_.commands) {
            commands.push_back({command.name, command.description});
        }
        std::string text = '_' + name_ + "_commands" + Body("commands", commands);
        if (!program_.notes.insteadOfCommand.extensions.empty()) {
            text.insert(text.size() - 3,
                        "    " + FilesAction(program_.notes.insteadOfCommand) + '\n');
        }
        return text;
    }

    const DescribedCommand& program_;
    const std::string name_;
    std::string functions_;
    std::map<std::string, std::string> functionOf_;  // by its body
};

}  // namespace

std::string ZshCompletion(const DescribedCommand& program) {
    return ZshScript(program).Text();
}

}  // namespace lumenkit::cli
