#include <iostream>
#include <string>

#include "apps/command_line/exit_status.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/drive/session.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

constexpr const char* help =
    R"help(Each input line is one request. Each request gets one line as its answer,
written at once. Blank lines are skipped. The answer to a failed request
contains the error, and drive continues with the next line.

Answers: {"ok":true,"value":...,"log":[...]} or
  {"ok":false,"error":{"number":...,"text":...},"log":[...]}. "value" is absent if there is
  no result, "number" if the error is not a runtime error. "warnings" lists what a loaded
  form contains that has no effect, and its guessed code page. "log" lists the notifications to
  the container: {"event":NAME,"args":[...]}, {"changed":NAME},
  {"message":{"text":...,"title":...,"style":...}}, {"beep":true}.

Requests (keys after the bar are optional):
  {"do":"new","class","id" | "mode","bag","width","height","tag"}    create a control
  {"do":"new","class":"VLabelCaption","id","select":[ID...]}         open the caption page
  {"do":"drop","id"}                               end a control or a page
  {"do":"get","id","name" | "dispid","index"}      read a property
  {"do":"let","id","name","value" | "dispid","index"}  assign a property
  {"do":"call","id","name" | "dispid","args"}      call a method
  {"do":"save","id"}                               return the saved properties
  {"do":"apply","id"}                              apply a page to its first control
  {"do":"resize","id","width","height"}            resize the control, in twips
  {"do":"draw","id"}                               return the display list
  {"do":"state","id"}                              return the constituents
  {"do":"type","id","text" | "on"}                 type keys; \r is Enter, \b is Backspace
  {"do":"select","id","start","length" | "on"}     select text
  {"do":"paste","id","text" | "on"}                replace the selection
  {"do":"click","id" | "on"}, {"do":"dblclick","id" | "on"}
  {"do":"mouse","id","event" | "on","button","shift","x","y"}
  {"do":"scroll","id","on","value"}
  {"do":"focus" | "id","on"}                       without "on", leave the control
  {"do":"ambient" | "BackColor","Font"}            set the ambient colour and font
  {"do":"allow","id","name","value"}               allow or refuse changes of a property
  {"do":"form","file" | "mode","codePage"}         load a form with its controls
  {"do":"write","file"}                            save the form with the current values
  {"do":"version"}                                 return the version of the answers
  {"do":"quit"}                                    end the program

"on" is the name of a constituent, such as "Text1(0)". Without "on", a request
goes to the visible text box. If there is none, clicks and mouse events go to
the surface of the control. See docs/drive.md for details.

Exit status: 0 at the end of the input or after quit, 2 if the requests cannot
be read or the answers cannot be written.

Examples:
  echo '{"do":"new","class":"VMemo","id":"m"}' | lumenkit drive
  printf '%s\n' '{"do":"new","class":"VLabel","id":"a"}' \
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
        "drive", "Drive controls without a display, by JSON requests on the standard input");
    command->footer(help);
    command->callback([&status] { status = Drive(); });
}

}  // namespace lumenkit::cli
