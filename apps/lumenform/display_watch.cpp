#include "apps/lumenform/display_watch.h"

#include <cstdio>
#include <cstdlib>

#include "apps/command_line/exit_status.h"

namespace lumenkit::lumenform {

DisplayWatch::State& DisplayWatch::Shared() {
    static State state;
    return state;
}

DisplayWatch::DisplayWatch(const char* instead)
    : former_(qInstallMessageHandler(&DisplayWatch::Handle)) {
    Shared() = {.instead = instead, .reason = {}};
}

DisplayWatch::~DisplayWatch() {
    qInstallMessageHandler(former_);
}

void DisplayWatch::Handle(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& text) {
    State& state = Shared();
    if (type != QtFatalMsg) {
        state.reason = state.reason.isEmpty() ? text.simplified() : state.reason;
        return;
    }
    const QByteArray reason =
        (state.reason.isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : state.reason)
            .toLocal8Bit();
    static_cast<void>(std::fprintf(stderr, "lumenform: the display cannot be used (%s); %s\n",
                                   reason.constData(), state.instead));
    std::_Exit(cli::exitUnusable);  // Qt is half started and cannot be shut down
}

}  // namespace lumenkit::lumenform
