#include "apps/lumenform/design/window/form_dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "apps/lumenform/design/look/fitting.h"

namespace lumenkit::lumenform {

namespace {

struct FormDialogs {
    Q_DECLARE_TR_FUNCTIONS(form_dialogs)
};

QStringList Extensions() {
    return {QStringLiteral("frm"), QStringLiteral("ctl"), QStringLiteral("pag"),
            QStringLiteral("dob")};
}

bool AskWhetherToReplace(QWidget& window, const QString& path) {
    QMessageBox box(QMessageBox::Warning, FormDialogs::tr("Replace the file?"),
                    FormDialogs::tr("%1 is there already.").arg(path), QMessageBox::Cancel,
                    &window);
    box.setInformativeText(FormDialogs::tr("Saving replaces it."));
    const QPushButton* const replace =
        box.addButton(FormDialogs::tr("&Replace"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == replace;
}

// Qt's own dialog may be larger than a small screen.
QStringList Chosen(QFileDialog& dialog) {
    ResizeWithin(dialog, dialog.sizeHint());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

}  // namespace

QStringList AskForFormsToOpen(QWidget& window, const QString& folder) {
    QFileDialog dialog(
        &window, FormDialogs::tr("Open forms"), folder,
        FormDialogs::tr("Forms (*.frm *.ctl *.pag *.dob *.FRM *.CTL *.PAG *.DOB);;All files (*)"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return Chosen(dialog);
}

QString AskForPlaceToSave(QWidget& window, const QString& proposed) {
    // The kind of the form, by its extension, first: a control stays a control.
    QStringList filters = {FormDialogs::tr("Forms (*.frm *.FRM)"),
                           FormDialogs::tr("Controls (*.ctl *.CTL)"),
                           FormDialogs::tr("Property pages (*.pag *.PAG)"),
                           FormDialogs::tr("Documents (*.dob *.DOB)")};
    QString extension = QFileInfo(proposed).suffix();
    const qsizetype own = std::max<qsizetype>(Extensions().indexOf(extension.toLower()), 0);
    filters.move(own, 0);
    filters.append(FormDialogs::tr("All files (*)"));
    QString path = QFileDialog::getSaveFileName(&window, FormDialogs::tr("Save the form"), proposed,
                                                filters.join(QStringLiteral(";;")));
    // Forms whose names have no other extension would share a companion.
    if (!path.isEmpty() && !Extensions().contains(QFileInfo(path).suffix().toLower())) {
        extension = extension.isEmpty() ? QStringLiteral("frm") : extension;
        path += u'.' + extension;
        // The dialog asked about the name without this extension.
        if (QFileInfo::exists(path) && !AskWhetherToReplace(window, path)) {
            path.clear();
        }
    }
    return path;
}

SaveAnswer AskWhetherToSave(QWidget& window, const QString& form) {
    QMessageBox box(QMessageBox::Question, FormDialogs::tr("Save changes?"),
                    FormDialogs::tr("Save the changes to %1?").arg(form),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    box.setInformativeText(FormDialogs::tr("Changes that are not saved are lost."));
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

ChangeAnswer AskAboutChange(QWidget& window, const QString& path) {
    QMessageBox box(
        QMessageBox::Warning, FormDialogs::tr("The file was changed"),
        FormDialogs::tr("Another program has changed %1 since it was opened.").arg(path),
        QMessageBox::Cancel, &window);
    box.setInformativeText(FormDialogs::tr(
        "Reload takes the file as it is now; Undo brings your version back. Keep mine "
        "replaces the file with your version."));
    const QPushButton* const reload =
        box.addButton(FormDialogs::tr("&Reload"), QMessageBox::ActionRole);
    const QPushButton* const keep =
        box.addButton(FormDialogs::tr("&Keep mine"), QMessageBox::ActionRole);
    const QPushButton* const show =
        box.addButton(FormDialogs::tr("Show the &difference"), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    const QAbstractButton* const clicked = box.clickedButton();
    return clicked == reload ? ChangeAnswer::Reload
           : clicked == keep ? ChangeAnswer::KeepMine
           : clicked == show ? ChangeAnswer::ShowDifference
                             : ChangeAnswer::Cancel;
}

WorkAnswer AskAboutAbandonedWork(QWidget& window, const QStringList& work) {
    QMessageBox box(
        QMessageBox::Question, FormDialogs::tr("Unsaved work"),
        FormDialogs::tr("lumenform ended before this work was saved:\n%1").arg(work.join(u'\n')),
        QMessageBox::NoButton, &window);
    box.setInformativeText(FormDialogs::tr("Open it to look at it and save it."));
    QPushButton* const open = box.addButton(FormDialogs::tr("&Open"), QMessageBox::AcceptRole);
    const QPushButton* const discard =
        box.addButton(FormDialogs::tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* const later = box.addButton(FormDialogs::tr("&Later"), QMessageBox::RejectRole);
    box.setDefaultButton(open);
    box.setEscapeButton(later);
    box.exec();
    return box.clickedButton() == open      ? WorkAnswer::Open
           : box.clickedButton() == discard ? WorkAnswer::Discard
                                            : WorkAnswer::Later;
}

// No button has the access key of the question before: the same key twice discards nothing.
bool ConfirmsDiscarding(QWidget& window, int count) {
    QMessageBox box(QMessageBox::Warning, FormDialogs::tr("Remove the unsaved work?"),
                    QCoreApplication::translate(
                        "form_dialogs", "Remove %n unsaved work(s) for good?", nullptr, count),
                    QMessageBox::Cancel, &window);
    box.setInformativeText(FormDialogs::tr("It cannot be brought back."));
    const QPushButton* const remove =
        box.addButton(FormDialogs::tr("&Remove"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == remove;
}

bool OffersSaveAs(QWidget& window, const QString& why) {
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(),
                    FormDialogs::tr("The form was not saved."), QMessageBox::Close, &window);
    box.setInformativeText(why);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPushButton* const saveAs =
        box.addButton(FormDialogs::tr("Save &as…"), QMessageBox::AcceptRole);
    box.setDefaultButton(saveAs);
    box.setEscapeButton(QMessageBox::Close);
    box.exec();
    return box.clickedButton() == saveAs;
}

void Warn(QWidget& window, const QString& heading, const QString& why) {
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), heading,
                    QMessageBox::Ok, &window);
    box.setInformativeText(why);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.exec();
}

}  // namespace lumenkit::lumenform
