#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

#include "apps/command_line/console_host.h"
#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/svg/drawn_caption.h"
#include "apps/lumenkit/svg_options.h"
#include "apps/lumenkit/text_input.h"
#include "frame/utf8.h"
#include "vlabel/caption_compiler.h"
#include "vlabel/caption_dump.h"

namespace lumenkit::cli {

namespace {

struct CompileOptions {
    std::string file = "-";
    bool json = false;
    bool svg = false;
    svg::LabelLook look;  // of the drawing
};

constexpr int outputVersion = 1;  // docs/json.md says when it changes

// Keeps the members in insertion order.
using Json = nlohmann::ordered_json;

Json ToJson(const CompiledCaption& compiled) {
    Json lines = Json::array();
    for (std::int32_t i = 1; i <= compiled.CaptionLines.Count(); ++i) {
        lines.push_back(ToUtf8(compiled.CaptionLines.Item(i)));
    }
    Json commands = Json::array();
    for (std::int32_t i = 1; i <= compiled.CommandNames.Count(); ++i) {
        commands.push_back({{"name", ToUtf8(compiled.CommandNames.Item(i))},
                            {"parameter", ToUtf8(compiled.CommandParams.Item(i))}});
    }
    return {{"version", outputVersion}, {"lines", lines}, {"commands", commands}};
}

std::string CompiledForm(ModuleErrors& errors, TextView caption, bool json) {
    const Module module(errors, u"VLABEL");
    CaptionCompiler compiler(module);
    compiler.CompileCaption(caption);
    return json ? ToJson(compiler.Compiled()).dump() + '\n' : DumpCaption(compiler.Compiled());
}

int Compile(const CompileOptions& options) {
    const Text caption = ReadText(options.file);
    ConsoleHost host;
    ModuleErrors errors(host, host);
    std::cout << (options.svg ? svg::DrawnCaption(errors, caption, options.look).ToSvg()
                              : CompiledForm(errors, caption, options.json));
    if (!std::cout.flush()) {
        throw std::runtime_error("cannot write the compiled caption");
    }
    return host.HasReported() ? exitReported : exitDone;
}

}  // namespace

void AddCompileCommand(CLI::App& program, int& status) {
    CLI::App* const command =
        program.add_subcommand("compile", "Compile a caption and print its compiled form");
    const auto options = std::make_shared<CompileOptions>();
    CLI::Option* const file =
        command->add_option("FILE", options->file,
                            "The caption file, in UTF-8; without it, or for -, the standard input. "
                            "One line break at the end is not part of the caption");
    Offer(*command, *file, FilesNamed({"txt"}));
    CLI::Option* const json =
        command->add_flag("--json", options->json, "Print the lines and commands as JSON");
    CLI::Option* const text =
        command->add_flag("--text")
            ->description("Print each line with its commands below it (the default)")
            ->excludes(json);
    AddSvgOptions(*command, options->svg, options->look)->excludes(json)->excludes(text);
    SetNotes(
        *command,
        {.exitStatuses = {{exitDone, "success"},
                          {exitReported,
                           "compiling or drawing reported an error; the rest is still printed"},
                          {exitUnusable,
                           "wrong arguments, the caption cannot be read, or the result cannot "
                           "be written"}},
         .examples = {"lumenkit compile samples/captions/headline.txt",
                      "echo '|B:1|Note:|B:0| mind the gap' | lumenkit compile --json",
                      "lumenkit compile --svg --font Arial,12 caption.txt >caption.svg"}});
    command->callback([options, &status] { status = Compile(*options); });
}

}  // namespace lumenkit::cli
