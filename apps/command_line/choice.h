// Options whose value is one of a few words.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"

namespace lumenkit::cli {

template <typename Value>
struct Choice {
    std::string name;
    Value value;
    std::string meaning = {};
};

template <typename Value>
using Choices = std::vector<Choice<Value>>;

/// Adds an option, or a positional argument, that takes the name of a choice and calls `set` with
/// its value.
template <typename Value, typename Set>
CLI::Option* AddChoice(CLI::App& command, const std::string& name, const std::string& placeholder,
                       const std::string& description, const Choices<Value>& choices, Set set) {
    Offered offered;
    std::vector<std::string> names;
    for (const Choice<Value>& choice : choices) {
        names.push_back(choice.name);
        offered.words.push_back({choice.name, choice.meaning});
    }
    CLI::Option* const option = command.add_option_function<std::string>(
        name,
        [choices, set](const std::string& chosen) {
            set(std::ranges::find(choices, chosen, &Choice<Value>::name)->value);
        },
        description);
    option->check(CLI::IsMember(names).description(""))->option_text(placeholder);
    Offer(command, *option, std::move(offered));
    return option;
}

}  // namespace lumenkit::cli
