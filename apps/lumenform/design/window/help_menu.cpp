#include "apps/lumenform/design/window/help_menu.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

HelpMenu::HelpMenu(QWidget* parent) : QMenu(tr("&Help"), parent) {
    QAction* const keys = addAction(ThemeIcon(QStringLiteral("configure-shortcuts")),
                                    tr("&Keys and mouse…"), this, &HelpMenu::KeysWanted);
    keys->setShortcut(QKeySequence::HelpContents);
    addSeparator();
    addAction(ProgramIcon(), tr("&About lumenform"), this, &HelpMenu::ShowAbout);
    addAction(ThemeIcon(QStringLiteral("help-about")), tr("About &Qt"), qApp,
              &QApplication::aboutQt);
}

void HelpMenu::ShowAbout() {
    constexpr int iconSide = 64;
    QMessageBox box(parentWidget());
    box.setWindowTitle(tr("About lumenform"));
    box.setIconPixmap(ProgramIcon().pixmap({iconSide, iconSide}, devicePixelRatioF()));
    box.setText(tr("lumenform %1").arg(QStringLiteral(LUMENKIT_VERSION)));
    box.setInformativeText(
        tr("Designs, runs and draws forms with the controls of lumenkit, on Qt %1.\n\n"
           "Copyright (c) 2026 the lumenkit authors. It is free software under the MIT licence. "
           "Its icons are those of Breeze, copyright (c) 2014 Uri Herrera and others, under the "
           "GNU Lesser General Public License, version 3 or later.")
            .arg(QString::fromLatin1(qVersion())));
    box.addButton(QMessageBox::Close);
    box.exec();
}

}  // namespace lumenkit::lumenform
