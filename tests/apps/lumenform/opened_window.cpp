#include "tests/apps/lumenform/opened_window.h"

#include <QApplication>
#include <QTest>
#include <stdexcept>

#include "project/lumenkit_classes.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

OpenedWindow::OpenedWindow()
    : settings(Path(QStringLiteral("settings.ini")), QSettings::IniFormat),
      window({.classes = lumenkitClasses,
              .application = surface.application,
              .interaction = surface.interaction,
              .settings = settings,
              .recovery = Path(QStringLiteral("recovery"))}) {
    // On a small screen there is room for the canvas, too.
    window.resize(1200, 800);
    ShowActive(window);
}

QString OpenedWindow::Copy(const std::string& name) const {
    for (const std::filesystem::path& source :
         {sampleForms / (name + ".frm"), sampleForms / (name + ".frx")}) {
        if (std::filesystem::exists(source)) {
            std::filesystem::copy_file(source,
                                       File(QString::fromStdString(source.filename().string())),
                                       std::filesystem::copy_options::overwrite_existing);
        }
    }
    return Path(QString::fromStdString(name + ".frm"));
}

void OpenedWindow::Nudge() const {
    QTest::keyClick(&window.Bench()->GetCanvas().GetGlass(), Qt::Key_Right);
}

void OpenedWindow::TypeInto(TextView property, const char* text) const {
    ASSERT_TRUE(window.Bench()->Properties().Edit(property));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
}

QAction& OpenedWindow::Command(const QString& title) const {
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text().remove(u'&') == title) {
            return *action;
        }
    }
    throw std::out_of_range("no command " + title.toStdString());
}

}  // namespace lumenkit::testing
