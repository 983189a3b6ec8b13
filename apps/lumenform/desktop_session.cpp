#include "apps/lumenform/desktop_session.h"

#include <QApplication>
#include <cstdio>
#include <memory>

#include "apps/command_line/code_page_option.h"
#include "apps/command_line/exit_status.h"
#include "apps/lumenform/desktop.h"
#include "apps/lumenform/display_watch.h"
#include "apps/lumenform/language/language.h"
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
    std::unique_ptr<QApplication> application;
    {
        const DisplayWatch watch(instead);
        application = std::make_unique<QApplication>(arguments.count, arguments.values.data());
    }
    UseLanguage();
    if (options.dark) {
        UseOwnStyle(true);
    }
    qt::Application component(lumenkitClasses);
    qt::Interaction interaction;
    const qt::Context context{
        .classes = lumenkitClasses, .application = component, .interaction = interaction};
    std::unique_ptr<QWidget> window = make(context);
    window->show();
    const int status = QApplication::exec() == 0 ? cli::exitDone : cli::exitUnusable;
    window.reset();
    // When Qt 6.4 closes its connection to a Wayland compositor, its two threads may wait for each
    // other, and the program never ends. The connection therefore stays open until the process
    // ends.
    if (QGuiApplication::platformName() == QLatin1String("wayland")) {
        static_cast<void>(application.release());
    }
    return status;
}

}  // namespace lumenkit::lumenform
