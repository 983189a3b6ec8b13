#include "apps/lumenform/desktop_session.h"

#include <QApplication>
#include <cstdio>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/lumenform/desktop.h"
#include "project/lumenkit_classes.h"
#include "runtime/qt/application.h"
#include "runtime/qt/interaction.h"

namespace lumenkit::lumenform {

void AddDesktopOptions(CLI::App& command, DesktopOptions& options) {
    command.add_flag("--dark", options.dark, "Use a dark palette");
    cli::AddCodePageOption(command, options.codePage);
}

int ShowOnDesktop(const DesktopOptions& options, const char* instead, const MakeWindow& make) {
    if (!HasDisplay()) {
        static_cast<void>(std::fprintf(stderr, "lumenform: there is no display; %s\n", instead));
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
    const std::unique_ptr<QWidget> window = make(context);
    window->show();
    return QApplication::exec() == 0 ? cli::exitDone : cli::exitUnusable;
}

}  // namespace lumenkit::lumenform
