#include "apps/lumenform/design/window/help_menu.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "apps/lumenform/design/window/class_icon.h"

namespace lumenkit::lumenform {

HelpMenu::HelpMenu(QWidget* parent) : QMenu(tr("&Help"), parent) {
    QAction* const keys = addAction(tr("&Keys and mouse…"), this, &HelpMenu::KeysWanted);
    keys->setShortcut(QKeySequence::HelpContents);
    addSeparator();
    addAction(tr("&About lumenform"), this, &HelpMenu::ShowAbout);
    addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void HelpMenu::ShowAbout() {
    constexpr int iconSide = 64;
    QMessageBox box(parentWidget());
    box.setWindowTitle(tr("About lumenform"));
    box.setIconPixmap(ClassIcon(u"Form", palette()).pixmap(iconSide, iconSide));
    box.setText(tr("lumenform %1").arg(QStringLiteral(LUMENKIT_VERSION)));
    box.setInformativeText(
        tr("Designs, runs and draws forms with the controls of lumenkit, on Qt %1.\n\n"
           "Copyright (c) 2026 the lumenkit authors. It is free software under the MIT licence.")
            .arg(QString::fromLatin1(qVersion())));
    box.addButton(QMessageBox::Close);
    box.exec();
}

}  // namespace lumenkit::lumenform
