#include "apps/lumenform/design/window/form_dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace lumenkit::lumenform {

namespace {

QString Translated(const char* text) {
    return QCoreApplication::translate("form_dialogs", text);
}

bool AskWhetherToReplace(QWidget& window, const QString& path) {
    QMessageBox box(QMessageBox::Warning, Translated("Replace the file?"),
                    Translated("%1 is there already.").arg(path), QMessageBox::Cancel, &window);
    box.setInformativeText(Translated("Saving replaces it."));
    const QPushButton* const replace =
        box.addButton(Translated("&Replace"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == replace;
}

}  // namespace

QString AskForFormToOpen(QWidget& window, const QString& folder) {
    return QFileDialog::getOpenFileName(
        &window, Translated("Open a form"), folder,
        Translated("Forms (*.frm *.ctl *.pag *.dob *.FRM *.CTL *.PAG *.DOB);;All files (*)"));
}

QString AskForPlaceToSave(QWidget& window, const QString& proposed) {
    QString path = QFileDialog::getSaveFileName(
        &window, Translated("Save the form"), proposed,
        Translated("Forms (*.frm);;Controls (*.ctl);;Property pages (*.pag);;Documents (*.dob)"));
    if (!path.isEmpty() && QFileInfo(path).suffix().isEmpty()) {
        path += QStringLiteral(".frm");
        // The dialog asked about the name without the extension.
        if (QFileInfo::exists(path) && !AskWhetherToReplace(window, path)) {
            path.clear();
        }
    }
    return path;
}

SaveAnswer AskWhetherToSave(QWidget& window, const QString& form) {
    QMessageBox box(QMessageBox::Question, Translated("Save changes?"),
                    Translated("Save the changes to %1?").arg(form),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setInformativeText(Translated("Changes that are not saved are lost."));
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
        case QMessageBox::Save:
            return SaveAnswer::Save;
        case QMessageBox::Discard:
            return SaveAnswer::Discard;
        default:
            return SaveAnswer::Cancel;
    }
}

bool AskWhetherToOverwrite(QWidget& window, const QString& path) {
    QMessageBox box(QMessageBox::Warning, Translated("The file was changed"),
                    Translated("Another program has changed %1 since it was opened.").arg(path),
                    QMessageBox::Cancel, &window);
    box.setInformativeText(Translated("Saving overwrites these changes."));
    const QPushButton* const replace =
        box.addButton(Translated("&Replace"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == replace;
}

void Warn(QWidget& window, const QString& heading, const QString& why) {
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), heading,
                    QMessageBox::Ok, &window);
    box.setInformativeText(why);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.exec();
}

}  // namespace lumenkit::lumenform
