#include "apps/lumenform/design/window/file_menu.h"

#include <QStyle>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/model/code_page_name.h"
#include "forms/known_code_pages.h"

namespace lumenkit::lumenform {

FileMenu::FileMenu(QWidget* parent) : QMenu(tr("&File"), parent) {
    new_ = Add(QStringLiteral("document-new"), tr("&New"), QKeySequence::New, &FileMenu::NewWanted);
    open_ = Add(QStringLiteral("document-open"), tr("&Open…"), QKeySequence::Open,
                &FileMenu::OpenWanted);
    recent_ = addMenu(ThemeIcon(QStringLiteral("document-open-recent")), tr("Open &recent"));
    codePages_ = addMenu(ThemeIcon(QStringLiteral("character-set")), tr("Read in code &page"));
    encodings_ = addMenu(ThemeIcon(QStringLiteral("document-edit")), tr("&Write in code page"));
    AddCodePages(*codePages_, &FileMenu::CodePageWanted);
    AddCodePages(*encodings_, &FileMenu::EncodingWanted);
    addSeparator();
    save_ = Add(QStringLiteral("document-save"), tr("&Save"), QKeySequence::Save,
                &FileMenu::SaveWanted);
    saveAs_ = Add(QStringLiteral("document-save-as"), tr("Save &as…"),
                  Qt::CTRL | Qt::SHIFT | Qt::Key_S, &FileMenu::SaveAsWanted);
    addSeparator();
    close_ = Add(QStringLiteral("document-close"), tr("&Close the form"), QKeySequence::Close,
                 &FileMenu::CloseWanted);
    Add(QStringLiteral("application-exit"), tr("&Quit"), Qt::CTRL | Qt::Key_Q,
        &FileMenu::QuitWanted);
}

QAction* FileMenu::Add(const QString& icon, const QString& title, const QKeySequence& keys,
                       void (FileMenu::*wanted)()) {
    QAction* const action = addAction(ThemeIcon(icon), title, this, wanted);
    action->setShortcut(keys);
    return action;
}

void FileMenu::AddCodePages(QMenu& menu, void (FileMenu::*wanted)(int)) {
    for (const forms::KnownCodePage& page : forms::KnownCodePages()) {
        const int number = page.number;
        QAction* const action = menu.addAction(tr("%1  %2").arg(number).arg(CodePageTitle(page)),
                                               this, [this, number, wanted] {
                                                   Q_EMIT(this->*wanted)
                                                   (number);
                                               });
        action->setCheckable(true);
        action->setData(number);
    }
}

void FileMenu::ShowRecent(const QStringList& paths) {
    recent_->clear();
    for (const QString& path : paths) {
        QString shown = path;
        recent_->addAction(shown.replace(u'&', QStringLiteral("&&")), this,
                           [this, path] { Q_EMIT RecentWanted(path); });
    }
    recent_->addSeparator();
    recent_->addAction(ThemeIcon(QStringLiteral("edit-clear-history")), tr("&Clear the list"), this,
                       &FileMenu::RecentCleared);
    recent_->setEnabled(!paths.isEmpty());
}

void FileMenu::Show(const State& state) {
    save_->setEnabled(state.canSave);
    saveAs_->setEnabled(state.canSave);
    close_->setEnabled(state.isOpen);
    codePages_->setEnabled(state.canReadAgain);
    encodings_->setEnabled(state.canSave);
    for (const QMenu* const menu : {codePages_, encodings_}) {
        for (QAction* const action : menu->actions()) {
            action->setChecked(state.isOpen && action->data().toInt() == state.codePage);
        }
    }
}

}  // namespace lumenkit::lumenform
