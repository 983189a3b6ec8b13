#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <memory>
#include <optional>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/offered.h"
#include "apps/lumenform/commands.h"
#include "apps/lumenform/design/window/design_window.h"
#include "apps/lumenform/desktop_session.h"
#include "apps/lumenform/warnings.h"

namespace lumenkit::lumenform {

namespace {

// The place for copies of unsaved work.
QString RecoveryFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/lumenkit/recovery");
}

int DesignForm(const DesktopOptions& options) {
    std::optional<QSettings> settings;  // created after the application
    return ShowOnDesktop(options, "\"lumenform render --design\" draws the designer without one",
                         [&](const qt::Context& context) {
                             settings.emplace(QStringLiteral("lumenkit"),
                                              QStringLiteral("lumenform"));
                             auto window = std::make_unique<DesignWindow>(
                                 DesignWindow::Setup{.classes = context.classes,
                                                     .application = context.application,
                                                     .interaction = context.interaction,
                                                     .settings = *settings,
                                                     .recovery = RecoveryFolder(),
                                                     .codePage = options.codePage});
                             if (!options.form.empty()) {
                                 window->Load(QString::fromLocal8Bit(options.form));
                                 PrintWarnings(window->Bench()->GetDesign().Document());
                             }
                             QTimer::singleShot(0, window.get(), &DesignWindow::OfferAbandonedWork);
                             return window;
                         });
}

}  // namespace

void AddDesignCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand("design", "Edit a form in the designer");
    const auto options = std::make_shared<DesktopOptions>();
    CLI::Option* const form = command->add_option(
        "FORM", options->form, "The form (.frm, .ctl, .pag, .dob); without it, the start screen");
    cli::Offer(*command, *form, cli::FormFiles());
    AddDesktopOptions(*command, *options);
    cli::SetNotes(
        *command,
        {.sections = {{.text = "Unchanged parts of the form are saved byte for byte. \"lumenform\" "
                               "without arguments opens the start screen."}},
         .exitStatuses = {{cli::exitDone, "the designer was closed"},
                          {cli::exitUnusable,
                           "wrong arguments, the form cannot be read, or there is no display"}},
         .examples = {"lumenform design samples/forms/order.frm", "lumenform"}});
    command->callback([options, &status] { status = DesignForm(*options); });
    program.callback([&program, options, &status] {
        if (program.get_subcommands().empty()) {
            status = DesignForm(*options);
        }
    });
}

}  // namespace lumenkit::lumenform
