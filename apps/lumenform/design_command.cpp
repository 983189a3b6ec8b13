#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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

struct DesignOptions {
    std::vector<std::string> forms;
    DesktopOptions desktop;
};

int DesignForms(const DesignOptions& options) {
    std::optional<QSettings> settings;  // created after the application
    return ShowOnDesktop(
        options.desktop, "\"lumenform render --design\" draws the designer without one",
        [&](const qt::Context& context) {
            settings.emplace(QStringLiteral("lumenkit"), QStringLiteral("lumenform"));
            auto window = std::make_unique<DesignWindow>(
                DesignWindow::Setup{.classes = context.classes,
                                    .application = context.application,
                                    .interaction = context.interaction,
                                    .settings = *settings,
                                    .recovery = RecoveryFolder(),
                                    .codePage = options.desktop.codePage});
            for (const std::string& form : options.forms) {
                window->Load(QString::fromLocal8Bit(form));
                PrintWarnings(window->Bench()->GetDesign().Document());
            }
            QTimer::singleShot(0, window.get(), &DesignWindow::OfferAbandonedWork);
            return window;
        });
}

}  // namespace

void AddDesignCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand("design", "Edit forms in the designer");
    const auto options = std::make_shared<DesignOptions>();
    CLI::Option* const form = command->add_option(
        "FORM", options->forms,
        "The forms (.frm, .ctl, .pag, .dob), each in a tab; without one, the start screen");
    cli::Offer(*command, *form, cli::FormFiles());
    AddDesktopOptions(*command, options->desktop);
    cli::SetNotes(
        *command,
        {.sections = {{.text = "Unchanged parts of the form are saved byte for byte. \"lumenform\" "
                               "without arguments opens the start screen."}},
         .exitStatuses = {{cli::exitDone, "the designer was closed"},
                          {cli::exitUnusable,
                           "wrong arguments, a form cannot be read, or there is no display"}},
         .examples = {"lumenform design samples/forms/order.frm",
                      "lumenform design samples/forms/*.frm", "lumenform"}});
    command->callback([options, &status] { status = DesignForms(*options); });
    program.callback([&program, options, &status] {
        if (program.get_subcommands().empty()) {
            status = DesignForms(*options);
        }
    });
}

}  // namespace lumenkit::lumenform
