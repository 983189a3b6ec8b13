#include <memory>
#include <string>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenform/commands.h"
#include "apps/lumenform/desktop_session.h"
#include "apps/lumenform/run/run_window.h"
#include "apps/lumenform/warnings.h"
#include "forms/file.h"

namespace lumenkit::lumenform {

namespace {

struct RunOptions {
    std::string form;
    DesktopOptions desktop;
};

int RunForm(const RunOptions& options) {
    forms::Document document = forms::Load(options.form, options.desktop.codePage);
    return ShowOnDesktop(options.desktop, "\"lumenform render\" draws the form without one",
                         [&](const qt::Context& context) {
                             auto window = std::make_unique<RunWindow>(context, document);
                             PrintWarnings(document);
                             return window;
                         });
}

}  // namespace

void AddRunCommand(CLI::App& program, int& status) {
    CLI::App* const command =
        program.add_subcommand("run", "Show a form as its users see it, with a log of its events");
    const auto options = std::make_shared<RunOptions>();
    CLI::Option* const form =
        command->add_option("FORM", options->form, "The form (.frm, .ctl, .pag, .dob)")->required();
    cli::Offer(*command, *form, cli::FormFiles());
    AddDesktopOptions(*command, options->desktop);
    cli::SetNotes(
        *command,
        {.sections = {{.text = "The code of the form does not run, and nothing is saved. F12 hides "
                               "and shows the event log."}},
         .exitStatuses = {{cli::exitDone, "the window was closed"},
                          {cli::exitUnusable,
                           "wrong arguments, the form cannot be read, or there is no display"}},
         .examples = {"lumenform run samples/forms/all_three.frm",
                      "lumenform run --code-page 1250 samples/forms/polish.frm"}});
    command->callback([options, &status] { status = RunForm(*options); });
}

}  // namespace lumenkit::lumenform
