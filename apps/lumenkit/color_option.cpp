#include "apps/lumenkit/color_option.h"

#include "apps/command_line/choice.h"

namespace lumenkit::cli {

namespace {

void AddTo(CLI::App& command, Coloring& color) {
    AddChoice<Coloring>(command, "--color", "WHEN",
                        "Colour findings and errors: auto (on a terminal, unless NO_COLOR is set), "
                        "always or never",
                        {{"auto", Coloring::Auto, "on a terminal"},
                         {"always", Coloring::Always, "on every output"},
                         {"never", Coloring::Never, "on none"}},
                        [&color](Coloring chosen) { color = chosen; });
}

}  // namespace

void AddColorOption(CLI::App& program, Coloring& color) {
    AddTo(program, color);
    for (CLI::App* const command : program.get_subcommands([](CLI::App*) { return true; })) {
        AddTo(*command, color);
    }
}

Section ColorVariables() {
    return {.heading = "Environment",
            .entries = {{"NO_COLOR", "if it is not empty, there are no colours"},
                        {"CLICOLOR_FORCE",
                         "if it is neither empty nor 0, there are colours on every output; "
                         "NO_COLOR is stronger"},
                        {"TERM", "if it is \"dumb\", the terminal has no colours"}}};
}

}  // namespace lumenkit::cli
