#include <iostream>
#include <stdexcept>
#include <string>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/drive/session.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

Section Introduction() {
    return {.text =
                "Each input line is one request. Each request gets one line as its answer, "
                "written at once. Blank lines are skipped. The answer to a failed request "
                "contains the error, and drive continues with the next line."};
}

Section Answers() {
    return {.heading = "Answers",
            .text =
                "\"value\" is absent if there is no result, \"number\" if the error is not a "
                "runtime error. \"warnings\" lists what a loaded form contains that has no "
                "effect, and its guessed code page. \"log\" lists the notifications to the "
                "container.",
            .entries = {
                {R"({"ok":true,"value":...,"log":[...]})", "the request succeeded"},
                {R"({"ok":false,"error":{"number":...,"text":...},"log":[...]})", "it failed"}}};
}

Section Notifications() {
    return {.heading = "Entries of the log",
            .entries = {
                {R"({"event":NAME,"args":[...]})", "a control raised an event"},
                {R"({"changed":NAME})", "a control announced a new value of a property"},
                {R"({"message":{"text":...,"title":...,"style":...}})", "a message box was shown"},
                {R"({"beep":true})", "the speaker beeped"}}};
}

Section Requests() {
    return {
        .heading = "Requests",
        .text = "Keys after the bar are optional.",
        .entries = {
            {R"({"do":"new","class","id" | "mode","bag","width","height","tag"})",
             "create a control"},
            {R"({"do":"new","class":"VLabelCaption","id","select":[ID...]})",
             "open the caption page"},
            {R"({"do":"drop","id"})", "end a control or a page"},
            {R"({"do":"get","id","name" | "dispid","index"})", "read a property"},
            {R"({"do":"let","id","name","value" | "dispid","index"})", "assign a property"},
            {R"({"do":"call","id","name" | "dispid","args"})", "call a method"},
            {R"({"do":"save","id"})", "return the saved properties"},
            {R"({"do":"apply","id"})", "apply a page to its first control"},
            {R"({"do":"resize","id","width","height"})", "resize the control, in twips"},
            {R"({"do":"draw","id"})", "return the display list"},
            {R"({"do":"state","id"})", "return the constituents"},
            {R"({"do":"type","id","text" | "on"})", R"(type keys; \r is Enter, \b is Backspace)"},
            {R"({"do":"select","id","start","length" | "on"})", "select text"},
            {R"({"do":"paste","id","text" | "on"})", "replace the selection"},
            {R"({"do":"click","id" | "on"})", "click"},
            {R"({"do":"dblclick","id" | "on"})", "double-click"},
            {R"({"do":"mouse","id","event" | "on","button","shift","x","y"})",
             "press, move or release the mouse"},
            {R"({"do":"scroll","id","on","value"})", "move a scroll bar"},
            {R"({"do":"focus" | "id","on"})", R"(move the focus; without "on", leave the control)"},
            {R"({"do":"ambient" | "BackColor","Font"})", "set the ambient colour and font"},
            {R"({"do":"allow","id","name","value"})", "allow or refuse changes of a property"},
            {R"({"do":"form","file" | "mode","codePage"})", "load a form with its controls"},
            {R"({"do":"write","file"})", "save the form with the current values"},
            {R"({"do":"version"})", "return the version of the answers"},
            {R"({"do":"quit"})", "end the program"}}};
}

Section Constituents() {
    return {.heading = "Constituents",
            .text =
                "\"on\" is the name of a constituent, such as \"Text1(0)\". Without \"on\", a "
                "request goes to the visible text box. If there is none, clicks and mouse "
                "events go to the surface of the control. See docs/drive.md for details."};
}

Notes DriveNotes() {
    return {.sections = {Introduction(), Answers(), Notifications(), Requests(), Constituents()},
            .exitStatuses = {{exitDone, "the end of the input, or quit"},
                             {exitUnusable,
                              "wrong arguments, the requests cannot be read, or the answers cannot "
                              "be written"}},
            .examples = {R"(echo '{"do":"new","class":"VMemo","id":"m"}' | lumenkit drive)",
                         R"(printf '%s\n' '{"do":"new","class":"VLabel","id":"a"}' \)"
                         "\n"
                         R"(  '{"do":"draw","id":"a"}' | lumenkit drive)"}};
}

int StatusOf(const std::istream& input, const std::ostream& output) {
    if (input.bad()) {
        throw std::runtime_error("cannot read the requests");
    }
    if (!output) {
        throw std::runtime_error("cannot write the answers");
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
    SetNotes(*command, DriveNotes());
    command->callback([&status] { status = Drive(); });
}

}  // namespace lumenkit::cli
