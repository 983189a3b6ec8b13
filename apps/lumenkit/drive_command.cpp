#include "apps/lumenkit/drive_command.h"

#include <iostream>
#include <string>

#include "apps/lumenkit/drive/session.h"
#include "apps/lumenkit/exit_status.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

constexpr const char* help =
    R"help(Each line of the input is a request; each answer is one line, written at once. Blank
lines are skipped. A request that cannot be served gets an answer that says why, and the
next one is served.

Answers: {"ok":true,"value":...,"log":[...]} or
  {"ok":false,"error":{"number":...,"text":...},"log":[...]}; "value" where there is a
  result, "number" where the error has one. The log lists what the container saw:
  {"event":NAME,"args":[...]}, {"changed":NAME}, {"message":{"text":...,"title":...,
  "style":...}}, {"beep":true}.

Requests (keys after the bar may be left out):
  {"do":"new","class","id" | "mode","bag","width","height","tag"}    a control
  {"do":"new","class":"VLabelCaption","id","select":[ID...]}         the caption page
  {"do":"get","id","name" | "dispid","index"}      read a property
  {"do":"let","id","name","value" | "dispid","index"}  assign a property
  {"do":"call","id","name" | "dispid","args"}      call a method
  {"do":"save","id"}                               what its property bag holds
  {"do":"apply","id"}                              have a page write to its control
  {"do":"resize","id","width","height"}            in twips
  {"do":"draw","id"}                               what it draws
  {"do":"state","id"}                              its constituents
  {"do":"type","id","text" | "on"}                 keys; \r is Enter, \b Backspace
  {"do":"select","id","start","length" | "on"}     select text
  {"do":"paste","id","text" | "on"}                replace the selection
  {"do":"click","id" | "on"}, {"do":"dblclick","id" | "on"}
  {"do":"mouse","id","event" | "on","button","shift","x","y"}
  {"do":"scroll","id","on","value"}
  {"do":"focus" | "id","on"}                       without "on", to elsewhere
  {"do":"ambient" | "BackColor","Font"}            what controls see around them
  {"do":"allow","id","name","value"}               whether a property may change
  {"do":"form","file" | "mode","codePage"}         load a form with its controls
  {"do":"write","file"}                            save it with what they hold now
  {"do":"quit"}

"on" names a constituent, "Text1(0)"; without it the user reaches the visible text box or,
where there is none, the control's own surface. docs/drive.md says it all.

Exit status: 0 when the input ends or asks to quit, 2 when it cannot be read or the answers
cannot be written.

Examples:
  echo '{"do":"new","class":"VMemo","id":"m"}' | lumenkit drive
  printf '%s\n' '{"do":"new","class":"VLabel","id":"a","bag":{"Caption":"|B:1|Hello"}}' \
    '{"do":"draw","id":"a"}' | lumenkit drive)help";

int StatusOf(const std::istream& input, const std::ostream& output) {
    if (input.bad()) {
        std::cerr << "lumenkit: cannot read the requests\n";
        return exitUnusable;
    }
    if (!output) {
        std::cerr << "lumenkit: cannot write the answers\n";
        return exitUnusable;
    }
    return exitDone;
}

int Drive() {
    std::ios::sync_with_stdio(false);  // reads in blocks and sets badbit on a read failure
    DriveSession session(lumenkitClasses);
    std::string line;
    while (!session.HasQuit() && std::cout && std::getline(std::cin, line)) {
        if (line.find_first_not_of(" \t\r") != std::string::npos) {
            std::cout << session.Serve(line) << '\n' << std::flush;
        }
    }
    return StatusOf(std::cin, std::cout);
}

}  // namespace

void AddDriveCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "drive", "Drive controls without a screen: one JSON request a line in, one answer out");
    command->footer(help);
    command->callback([&status] { status = Drive(); });
}

}  // namespace lumenkit::cli
