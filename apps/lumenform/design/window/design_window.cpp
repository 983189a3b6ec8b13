#include "apps/lumenform/design/window/design_window.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QStyle>
#include <QToolBar>

#include "apps/lumenform/design/model/new_form.h"
#include "apps/lumenform/design/window/form_dialogs.h"
#include "forms/file.h"
#include "forms/form_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int messageTime = 8000;  // milliseconds

QString GeometryKey() {
    return QStringLiteral("window/geometry");
}

// Returns the file that is dropped on the window, or an empty text for other data.
QString DroppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

DesignWindow::DesignWindow(const Setup& setup)
    : setup_(setup),
      messages_(setup.interaction),
      context_{
          .classes = setup.classes, .application = setup.application, .interaction = messages_},
      recent_(setup.settings),
      pages_(new QStackedWidget),
      start_(new StartPage),
      commands_(new FormCommands(*this)),
      view_(new ViewMenu(setup.settings, this)),
      status_(new PlaceStatus) {
    setAcceptDrops(true);
    setCentralWidget(pages_);
    setStatusBar(status_);
    pages_->addWidget(start_);
    connect(start_, &StartPage::NewWanted, this, &DesignWindow::StartNewUnlessCancelled);
    connect(start_, &StartPage::OpenWanted, this, &DesignWindow::ChooseAndOpen);
    connect(start_, &StartPage::RecentWanted, this,
            [this](const QString& path) { Open(path, setup_.codePage); });
    AddFileMenu();
    menuBar()->addMenu(&commands_->EditMenu());
    menuBar()->addMenu(view_);
    menuBar()->addMenu(&commands_->FormatMenu());
    AddRunMenu();
    AddToolBar();
    ShowStart();
    constexpr QSize usual(1240, 780);
    resize(usual.boundedTo(screen()->availableSize()));
    restoreGeometry(setup.settings.value(GeometryKey()).toByteArray());
}

DesignWindow::~DesignWindow() {
    Follow(nullptr);
}

void DesignWindow::AddFileMenu() {
    QMenu* const menu = menuBar()->addMenu(tr("&File"));
    const auto icon = [this](QStyle::StandardPixmap pixmap) {
        return style()->standardIcon(pixmap);
    };
    new_ = menu->addAction(icon(QStyle::SP_FileIcon), tr("&New"), this,
                           &DesignWindow::StartNewUnlessCancelled);
    new_->setShortcut(QKeySequence::New);
    open_ = menu->addAction(icon(QStyle::SP_DialogOpenButton), tr("&Open…"), this,
                            &DesignWindow::ChooseAndOpen);
    open_->setShortcut(QKeySequence::Open);
    recentMenu_ = menu->addMenu(tr("Open &recent"));
    codePages_ = menu->addMenu(tr("Read in code &page"));
    AddCodePages();
    menu->addSeparator();
    save_ =
        menu->addAction(icon(QStyle::SP_DialogSaveButton), tr("&Save"), this, &DesignWindow::Save);
    save_->setShortcut(QKeySequence::Save);
    saveAs_ = menu->addAction(tr("Save &as…"), this, &DesignWindow::SaveAs);
    saveAs_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    menu->addSeparator();
    close_ = menu->addAction(tr("&Close the form"), this, &DesignWindow::Close);
    close_->setShortcut(QKeySequence::Close);
    QAction* const quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    FillRecent();
}

void DesignWindow::FillRecent() {
    recentMenu_->clear();
    const QStringList paths = recent_.Existing();
    for (const QString& path : paths) {
        QString shown = path;
        recentMenu_->addAction(shown.replace(u'&', QStringLiteral("&&")), this,
                               [this, path] { Open(path, setup_.codePage); });
    }
    recentMenu_->addSeparator();
    recentMenu_->addAction(tr("&Clear the list"), this, [this] {
        recent_.Clear();
        FillRecent();
    });
    recentMenu_->setEnabled(!paths.isEmpty());
    start_->ShowRecent(paths);
}

void DesignWindow::AddCodePages() {
    for (const forms::KnownCodePage& page : forms::KnownCodePages()) {
        const int number = page.number;
        QAction* const action =
            codePages_->addAction(tr("%1  %2").arg(number).arg(QString::fromLatin1(page.title)),
                                  this, [this, number] { ReadAgain(number); });
        action->setCheckable(true);
        action->setData(number);
    }
}

void DesignWindow::AddRunMenu() {
    QMenu* const menu = menuBar()->addMenu(tr("&Run"));
    runForm_ = menu->addAction(tr("&Run the form"));
    runForm_->setCheckable(true);
    runForm_->setShortcut(Qt::Key_F5);
    runForm_->setToolTip(tr("Run the form for a trial, or return to the designer (F5)"));
    connect(runForm_, &QAction::triggered, this, &DesignWindow::Run);
}

void DesignWindow::AddToolBar() {
    QToolBar* const bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({new_, open_, save_});
    bar->addSeparator();
    commands_->UndoAction().setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    commands_->RedoAction().setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    bar->addActions({&commands_->UndoAction(), &commands_->RedoAction()});
    bar->addSeparator();
    bar->addActions({&commands_->CaptionAction(), &commands_->TabOrderAction(), runForm_});
}

void DesignWindow::Show(forms::Document document, const FormFile& file) {
    auto bench = std::make_unique<Workbench>(context_, messages_, std::move(document));
    bench->Properties().RememberIn(setup_.settings);
    Run(false);
    Follow(nullptr);
    bench_ = std::move(bench);
    file_ = file;
    pages_->addWidget(bench_.get());
    pages_->setCurrentWidget(bench_.get());
    FormDesign& design = bench_->GetDesign();
    connect(&design.History(), &QUndoStack::cleanChanged, this, &DesignWindow::UpdateTitle);
    connect(&design, &FormDesign::Edited, this, &DesignWindow::UpdateTitle);
    connect(bench_.get(), &Workbench::Refused, this,
            [this](const QString& why) { status_->showMessage(why, messageTime); });
    connect(&bench_->GetCanvas(), &Canvas::MenuRequested, this,
            [this](QPoint where) { commands_->EditMenu().popup(where); });
    Follow(bench_.get());
    bench_->GetCanvas().GetGlass().setFocus();
}

void DesignWindow::ShowStart() {
    Run(false);
    Follow(nullptr);
    bench_.reset();
    file_ = {};
    pages_->setCurrentWidget(start_);
    UpdateTitle();
}

void DesignWindow::Follow(Workbench* bench) {
    commands_->Follow(bench);
    status_->Follow(bench);
    view_->Follow(bench == nullptr ? nullptr : &bench->GetCanvas());
    UpdateTitle();
}

void DesignWindow::Load(const QString& path) {
    Load(path, setup_.codePage);
}

void DesignWindow::Load(const QString& path, int codePage) {
    Show(forms::Load(PathOf(path), codePage), FormFile(path));
    recent_.Add(path);
    FillRecent();
    ShowWarnings();
}

void DesignWindow::ReadAgain(int codePage) {
    if (file_.HasPath()) {
        Open(file_.Path(), codePage);
    }
    UpdateTitle();  // the menu has checked its item
}

// Shows the guessed code page or the first warning of the form until the next message.
void DesignWindow::ShowWarnings() {
    const forms::Document& document = bench_->GetDesign().Document();
    std::vector<forms::Warning> warnings = document.Warnings();
    if (const std::optional<forms::CodePageGuess>& guess = document.Guess()) {
        const QString hint = tr("; File > Read in code page changes this");
        warnings.insert(warnings.begin(), {guess->place, TextOf(*guess) + hint.toStdString()});
    }
    if (warnings.empty()) {
        status_->clearMessage();
        return;
    }
    const forms::Warning& first = warnings.front();
    const QString text = tr("%1:%2:%3: %4")
                             .arg(FormName())
                             .arg(first.place.line)
                             .arg(first.place.column)
                             .arg(QString::fromStdString(first.text));
    const auto others = static_cast<int>(warnings.size()) - 1;
    status_->showMessage(
        others == 0 ? text
                    : tr("%1 (and %2 more; \"lumenkit check\" lists them)").arg(text).arg(others));
}

void DesignWindow::StartNew() {
    const std::string name = "Form1";
    Show(forms::Document::Parse(name + ".frm", NewForm(name, setup_.classes), {}, setup_.codePage),
         FormFile());
}

void DesignWindow::Open(const QString& path, int codePage) {
    if (!MayLeave()) {
        return;
    }
    try {
        Load(path, codePage);
    } catch (const forms::FormError& error) {
        Warn(*this, tr("%1 cannot be opened.").arg(QFileInfo(path).fileName()),
             QString::fromUtf8(error.what()));
    }
}

void DesignWindow::ChooseAndOpen() {
    const QString folder = file_.HasPath() ? QFileInfo(file_.Path()).path() : QString();
    if (const QString path = AskForFormToOpen(*this, folder); !path.isEmpty()) {
        Open(path, setup_.codePage);
    }
}

void DesignWindow::StartNewUnlessCancelled() {
    if (MayLeave()) {
        StartNew();
    }
}

void DesignWindow::Close() {
    if (MayLeave()) {
        ShowStart();
    }
}

bool DesignWindow::Save() {
    if (bench_ == nullptr || !bench_->FinishEditing()) {
        return false;
    }
    if (!file_.HasPath()) {
        return SaveAs();
    }
    if (!file_.WasChangedByOthers(bench_->GetDesign())) {
        return SaveTo(file_.Path());
    }
    return AskWhetherToOverwrite(*this, file_.Path()) &&
           SaveTo(file_.Path(), forms::Replacing::Confirmed);
}

bool DesignWindow::SaveAs() {
    if (bench_ == nullptr || !bench_->FinishEditing()) {
        return false;
    }
    const QString proposed = file_.HasPath() ? file_.Path() : FormName();
    const QString path = AskForPlaceToSave(*this, proposed);
    if (path == file_.Path() && !path.isEmpty()) {
        return Save();  // asks again if another program has changed the file
    }
    // The dialog has asked about a file that is there already.
    return !path.isEmpty() && SaveTo(path, QFileInfo::exists(path) ? forms::Replacing::Confirmed
                                                                   : forms::Replacing::Known);
}

bool DesignWindow::SaveTo(const QString& path, forms::Replacing replacing) {
    try {
        file_.SaveAs(bench_->GetDesign(), path, replacing);
    } catch (const forms::FormError& error) {
        Warn(*this, tr("The form was not saved."), QString::fromUtf8(error.what()));
        return false;
    }
    recent_.Add(path);
    FillRecent();
    UpdateTitle();
    status_->showMessage(tr("Saved %1").arg(path), messageTime);
    return true;
}

bool DesignWindow::MayLeave() {
    if (bench_ != nullptr && !bench_->FinishEditing()) {
        return false;
    }
    if (bench_ == nullptr || bench_->GetDesign().History().isClean()) {
        return true;
    }
    switch (AskWhetherToSave(*this, FormName())) {
        case SaveAnswer::Save:
            return Save();
        case SaveAnswer::Discard:
            return true;
        case SaveAnswer::Cancel:
            break;
    }
    return false;
}

void DesignWindow::Run(bool on) {
    if (on && run_ == nullptr && bench_ != nullptr && bench_->FinishEditing()) {
        bench_->Try(
            [this] { run_ = std::make_unique<RunPage>(context_, bench_->GetDesign().Document()); });
        if (run_ != nullptr) {
            connect(
                run_.get(), &RunPage::BackWanted, this, [this] { Run(false); },
                Qt::QueuedConnection);
            pages_->addWidget(run_.get());
            pages_->setCurrentWidget(run_.get());
            Follow(nullptr);
            run_->View().FocusFirst();
        }
    } else if (!on && run_ != nullptr) {
        run_.reset();
        pages_->setCurrentWidget(bench_.get());
        Follow(bench_.get());
        bench_->GetCanvas().GetGlass().setFocus();
    }
    UpdateTitle();
}

QString DesignWindow::FormName() const {
    return file_.HasPath() ? QFileInfo(file_.Path()).fileName()
                           : qt::ToQString(bench_->GetDesign().Document().Root().Name()) +
                                 QStringLiteral(".frm");
}

void DesignWindow::UpdateTitle() {
    const bool isOpen = bench_ != nullptr;
    const bool isDesign = isOpen && run_ == nullptr;
    setWindowTitle(!isOpen           ? tr("lumenform")
                   : run_ != nullptr ? tr("%1[*] (running) – lumenform").arg(FormName())
                                     : tr("%1[*] – lumenform").arg(FormName()));
    setWindowModified(isOpen && !bench_->GetDesign().History().isClean());
    save_->setEnabled(isDesign);
    saveAs_->setEnabled(isDesign);
    close_->setEnabled(isOpen);
    codePages_->setEnabled(isDesign && file_.HasPath());
    for (QAction* const action : codePages_->actions()) {
        action->setChecked(isOpen &&
                           action->data().toInt() == bench_->GetDesign().Document().FormCodePage());
    }
    runForm_->setEnabled(isOpen);
    runForm_->setChecked(run_ != nullptr);
}

void DesignWindow::closeEvent(QCloseEvent* event) {
    if (MayLeave()) {
        setup_.settings.setValue(GeometryKey(), saveGeometry());
        event->accept();
    } else {
        event->ignore();
    }
}

void DesignWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void DesignWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Open(DroppedFile(*event->mimeData()), setup_.codePage);
}

}  // namespace lumenkit::lumenform
