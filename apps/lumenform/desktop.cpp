#include "apps/lumenform/desktop.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <cstdio>

#include "apps/lumenform/design/look/dark_palette.h"

namespace lumenkit::lumenform {

namespace {

constexpr const char* platformVariable = "QT_QPA_PLATFORM";

// Suppresses Qt's warnings about the missing screen, which do not concern a picture.
void TellOnlyFailures(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        static_cast<void>(std::fprintf(stderr, "lumenform: %s\n", qPrintable(text)));
    }
}

}  // namespace

bool HasDisplay() {
    return qEnvironmentVariableIsSet(platformVariable) || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void DrawOffscreen() {
    qInstallMessageHandler(TellOnlyFailures);
    qputenv(platformVariable, "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");  // a desktop's theme may ask for its display
}

void DrawAt(double scale) {
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}

void UseOwnStyle(bool dark) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
}

}  // namespace lumenkit::lumenform
