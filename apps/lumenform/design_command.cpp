#include "apps/lumenform/design_command.h"

#include <QApplication>
#include <QSettings>
#include <cstdio>
#include <memory>
#include <string>

#include "apps/lumenform/application_arguments.h"
#include "apps/lumenform/design/window/design_window.h"
#include "apps/lumenform/desktop.h"
#include "apps/lumenkit/code_page_option.h"
#include "apps/lumenkit/exit_status.h"
#include "forms/encoding.h"
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

int DesignForm(const Options& options) {
    if (!HasDisplay()) {
        static_cast<void>(std::fputs(
            "lumenform: there is no display; \"lumenform render --design\" draws the designer "
            "without one\n",
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
    QSettings settings(QStringLiteral("lumenkit"), QStringLiteral("lumenform"));
    DesignWindow window({.classes = lumenkitClasses,
                         .application = component,
                         .interaction = interaction,
                         .settings = settings,
                         .codePage = options.codePage});
    if (!options.form.empty()) {
        window.Load(QString::fromLocal8Bit(options.form));
    }
    window.show();
    return QApplication::exec() == 0 ? cli::exitDone : cli::exitUnusable;
}

}  // namespace

void AddDesignCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand("design", "Change a form, and try it out");
    const auto options = std::make_shared<Options>();
    command->add_option("FORM", options->form,
                        "The form: .frm, .ctl, .pag or .dob; none: the first screen");
    command->add_flag("--dark", options->dark, "With a dark palette");
    cli::AddCodePageOption(*command, options->codePage);
    command->footer(
        R"(What is not changed is saved byte for byte as it was. "lumenform" alone shows the first screen.

Examples:
  lumenform design samples/forms/order.frm
  lumenform)");
    command->callback([options, &status] { status = DesignForm(*options); });
    program.callback([&program, options, &status] {
        if (program.get_subcommands().empty()) {
            status = DesignForm(*options);
        }
    });
}

}  // namespace lumenkit::form
