#include "apps/lumenform/display_watch.h"

#include <cstdio>
#include <cstdlib>

#include "apps/command_line/exit_status.h"

namespace lumenkit::lumenform {

const char* DisplayWatch::instead_ = "";
QString DisplayWatch::reason_;

DisplayWatch::DisplayWatch(const char* instead) {
    instead_ = instead;
    reason_.clear();
    former_ = qInstallMessageHandler(&DisplayWatch::Handle);
}

DisplayWatch::~DisplayWatch() {
    qInstallMessageHandler(former_);
}

void DisplayWatch::Handle(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& text) {
    if (type != QtFatalMsg) {
        reason_ = reason_.isEmpty() ? text.simplified() : reason_;
        return;
    }
    const QByteArray reason =
        (reason_.isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : reason_).toLocal8Bit();
    static_cast<void>(std::fprintf(stderr, "lumenform: the display cannot be used (%s); %s\n",
                                   reason.constData(), instead_));
    std::_Exit(cli::exitUnusable);  // Qt is half started and cannot be shut down
}

}  // namespace lumenkit::lumenform
