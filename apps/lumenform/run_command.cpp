#include "apps/lumenform/run_command.h"

#include <QApplication>
#include <cstdio>
#include <memory>
#include <string>

#include "apps/lumenform/application_arguments.h"
#include "apps/lumenform/desktop.h"
#include "apps/lumenform/run/run_window.h"
#include "apps/lumenkit/code_page_option.h"
#include "apps/lumenkit/exit_status.h"
#include "forms/encoding.h"
#include "forms/file.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/application.h"
#include "runtime/qt/interaction.h"

namespace lumenkit::form {

namespace {

struct Options {
    std::string form;
    bool dark = false;
    int codePage = forms::defaultCodePage;
};

int RunForm(const Options& options) {
    forms::Document document = forms::Load(options.form, options.codePage);
    if (!HasDisplay()) {
        static_cast<void>(std::fputs(
            "lumenform: there is no display; \"lumenform render\" draws the form without one\n",
            stderr));
        return cli::exitUnusable;
    }
    ApplicationArguments arguments;
    const QApplication application(arguments.count, arguments.values.data());
    if (options.dark) {
        UseOwnStyle(true);
    }
    qt::Application component(lumenkitClasses);
    qt::Interaction interaction;
    const qt::Context context{
        .classes = lumenkitClasses, .application = component, .interaction = interaction};
    RunWindow window(context, document);
    window.show();
    return QApplication::exec() == 0 ? cli::exitDone : cli::exitUnusable;
}

}  // namespace

void AddRunCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "run", "Show a form as its users see it, and what its controls raise");
    const auto options = std::make_shared<Options>();
    command->add_option("FORM", options->form, "The form: .frm, .ctl, .pag or .dob")->required();
    command->add_flag("--dark", options->dark, "With a dark palette");
    cli::AddCodePageOption(*command, options->codePage);
    command->footer(
        R"(The form's code does not run, and nothing is saved. F12 hides and shows the event log.

Examples:
  lumenform run samples/forms/all_three.frm
  lumenform run --code-page 1250 samples/forms/polish.frm)");
    command->callback([options, &status] { status = RunForm(*options); });
}

}  // namespace lumenkit::form
