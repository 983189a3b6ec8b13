#include "apps/lumenform/design/window/design_window.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>
#include <memory>
#include <utility>
#include <vector>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/icons/menu_style.h"
#include "apps/lumenform/design/look/fitting.h"
#include "apps/lumenform/design/model/new_form.h"
#include "apps/lumenform/design/window/form_dialogs.h"
#include "apps/lumenform/design/window/form_picture.h"
#include "apps/lumenform/design/window/help_menu.h"
#include "apps/lumenform/design/window/keys_dialog.h"
#include "apps/lumenform/design/window/menu_keys.h"
#include "apps/lumenform/design/window/opened_message.h"
#include "forms/file.h"
#include "forms/form_error.h"

namespace lumenkit::lumenform {

namespace {

constexpr int messageTime = 8000;  // milliseconds
constexpr int iconSide = 22;       // a size for which the icons are drawn

QString GeometryKey() {
    return QStringLiteral("window/geometry");
}

// Works of one minute are told apart.
QString ToTheSecond(const QDateTime& time) {
    return QLocale().toString(time.date(), QLocale::ShortFormat) + u' ' +
           time.time().toString(QStringLiteral("HH:mm:ss"));
}

// Returns the files that are dropped on the window.
QStringList DroppedFiles(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            files.append(url.toLocalFile());
        }
    }
    return files;
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
      tabs_(new QTabWidget),
      files_(new FileMenu(this)),
      commands_(new FormCommands(*this)),
      view_(new ViewMenu(setup.settings, this)),
      status_(new PlaceStatus(files_->EncodingMenu(), view_->GetZoomMenu())) {
    setAcceptDrops(true);
    setCentralWidget(pages_);
    setStatusBar(status_);
    pages_->addWidget(start_);
    pages_->addWidget(tabs_);
    tabs_->setDocumentMode(true);
    tabs_->setMovable(true);
    tabs_->setTabsClosable(true);
    tabs_->setTabBarAutoHide(true);
    connect(tabs_, &QTabWidget::currentChanged, this, [this] {
        Tell({});
        if (Current() != nullptr) {
            Current()->LookAtDisk();
        }
        Follow();
    });
    connect(tabs_, &QTabWidget::tabCloseRequested, this, &DesignWindow::Close);
    ConnectFiles();
    menuBar()->addMenu(files_);
    menuBar()->addMenu(&commands_->EditMenu());
    commands_->AddCodeCommand(view_->CodeAction());
    menuBar()->addMenu(view_);
    menuBar()->addMenu(&commands_->FormatMenu());
    AddRunMenu();
    AddHelpMenu();
    AddToolBar();
    for (const QAction* const action : menuBar()->actions()) {
        MenuStyle::UseFor(*action->menu());
    }
    setWindowIcon(ProgramIcon());
    AddMenuKeys(*this, *menuBar());
    ShowRecent();
    Follow();
    constexpr QSize usual(1240, 780);
    ResizeWithin(*this, usual);
    restoreGeometry(setup.settings.value(GeometryKey()).toByteArray());
}

// Destroys the forms before what they use.
DesignWindow::~DesignWindow() {
    tabs_->disconnect(this);
    FollowBench(nullptr);
    while (tabs_->count() > 0) {
        delete tabs_->widget(0);
    }
}

void DesignWindow::ConnectFiles() {
    connect(start_, &StartPage::NewWanted, this, &DesignWindow::StartNew);
    connect(start_, &StartPage::OpenWanted, this, &DesignWindow::ChooseAndOpen);
    connect(&start_->Recent(), &RecentForms::OpenWanted, this, &DesignWindow::Open);
    connect(&start_->Recent(), &RecentForms::ForgetWanted, this, [this](const QString& path) {
        recent_.Remove(path);
        ShowRecent();
    });
    start_->Recent().SetDraw([this](const QString& path, QSize box, double device) {
        const ControlMessages::Listener silent(messages_);
        return SmallPicture(context_, path, box, device);
    });
    connect(files_, &FileMenu::NewWanted, this, &DesignWindow::StartNew);
    connect(files_, &FileMenu::OpenWanted, this, &DesignWindow::ChooseAndOpen);
    connect(files_, &FileMenu::RecentWanted, this, &DesignWindow::Open);
    connect(files_, &FileMenu::RecentCleared, this, [this] {
        recent_.Clear();
        ShowRecent();
    });
    connect(files_, &FileMenu::CodePageWanted, this, &DesignWindow::ReadAgain);
    connect(files_, &FileMenu::EncodingWanted, this, &DesignWindow::WriteIn);
    connect(files_, &FileMenu::SaveWanted, this, &DesignWindow::Save);
    connect(files_, &FileMenu::SaveAsWanted, this, [this] { Current()->SaveAs(); });
    connect(files_, &FileMenu::CloseWanted, this, [this] { Close(tabs_->currentIndex()); });
    connect(files_, &FileMenu::QuitWanted, this, &QWidget::close);
    connect(view_, &ViewMenu::PartWanted, this, [this](bool next) {
        if (Current() != nullptr) {
            Current()->MoveFocus(next);
        }
    });
    connect(view_, &ViewMenu::CodeWanted, this, [this] { Current()->ShowCode(); });
    connect(view_, &ViewMenu::FormWanted, this, [this] { Current()->ShowForm(); });
}

void DesignWindow::AddRunMenu() {
    QMenu* const menu = menuBar()->addMenu(tr("&Run"));
    runForm_ =
        menu->addAction(ThemeIcon(QStringLiteral("media-playback-start")), tr("&Run the form"));
    runForm_->setCheckable(true);
    runForm_->setShortcut(Qt::Key_F5);
    runForm_->setToolTip(tr("Run the form for a trial, or return to the designer (F5)"));
    connect(runForm_, &QAction::triggered, this, &DesignWindow::Run);
    addAction(runForm_);  // the menu bar is hidden during a trial run
}

void DesignWindow::AddHelpMenu() {
    auto* const help = new HelpMenu(this);
    menuBar()->addMenu(help);
    connect(help, &HelpMenu::KeysWanted, this, [this] {
        QList<QMenu*> menus;
        for (const QAction* const action : menuBar()->actions()) {
            menus.append(action->menu());
        }
        KeysDialog(menus, this).exec();
    });
}

void DesignWindow::AddToolBar() {
    bar_ = addToolBar(tr("Tools"));
    bar_->setObjectName(QStringLiteral("tools"));
    bar_->setMovable(false);
    bar_->setContextMenuPolicy(Qt::PreventContextMenu);
    bar_->setIconSize({iconSide, iconSide});
    bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar_->addActions({&files_->NewAction(), &files_->OpenAction(), &files_->SaveAction()});
    bar_->addSeparator();
    bar_->addActions({&commands_->UndoAction(), &commands_->RedoAction()});
    bar_->addSeparator();
    bar_->addActions({&commands_->CaptionAction(), &commands_->TabOrderAction(), runForm_});
}

// ---- Tabs

FormTab* DesignWindow::TabAt(int index) const {
    return qobject_cast<FormTab*>(tabs_->widget(index));
}

FormTab* DesignWindow::Current() const {
    return qobject_cast<FormTab*>(tabs_->currentWidget());
}

Workbench* DesignWindow::Bench() const {
    return Current() == nullptr ? nullptr : &Current()->Bench();
}

RunPage* DesignWindow::Running() const {
    return Current() == nullptr ? nullptr : Current()->Running();
}

FormTab* DesignWindow::TabOf(const QString& path) const {
    for (int index = 0; index < tabs_->count(); ++index) {
        FormTab* const tab = TabAt(index);
        if (tab->File().HasPath() && IsSameFile(tab->File().Path(), path)) {
            return tab;
        }
    }
    return nullptr;
}

FormTab* DesignWindow::NewTab(forms::Document document, const FormFile& file) {
    const auto isOpenElsewhere = [this](const FormTab& asking, const QString& path) {
        const FormTab* const other = TabOf(path);
        return other != nullptr && other != &asking;
    };
    auto tab = std::make_unique<FormTab>(FormTab::Setup{.context = context_,
                                                        .messages = messages_,
                                                        .refusesName = isOpenElsewhere,
                                                        .recovery = setup_.recovery},
                                         std::move(document), file);
    tab->Bench().Properties().RememberIn(setup_.settings);
    connect(tab.get(), &FormTab::StateChanged, this, &DesignWindow::Follow);
    connect(tab.get(), &FormTab::Told, this, &DesignWindow::Tell);
    connect(tab.get(), &FormTab::Saved, this, &DesignWindow::Remember);
    connect(tab.get(), &FormTab::MenuRequested, this,
            [this](QPoint where) { commands_->EditMenu().popup(where); });
    return tab.release();
}

void DesignWindow::Add(forms::Document document, const FormFile& file) {
    FormTab* const tab = NewTab(std::move(document), file);
    tabs_->setCurrentIndex(tabs_->addTab(tab, tab->Name()));
    Follow();
    tab->TakeFocus();
}

void DesignWindow::Replace(FormTab& tab, forms::Document document) {
    FormTab* const fresh = NewTab(std::move(document), tab.File());
    const int index = tabs_->indexOf(&tab);
    tabs_->insertTab(index, fresh, fresh->Name());
    tabs_->setCurrentIndex(index);
    delete &tab;
    Follow();
    fresh->TakeFocus();
}

void DesignWindow::Close(int index) {
    FormTab* const tab = TabAt(index);
    tabs_->setCurrentIndex(index);
    if (tab == nullptr || !tab->MayLeave()) {
        return;
    }
    tabs_->removeTab(index);  // another form is followed now
    delete tab;
    Follow();
    if (FormTab* const shown = Current()) {
        shown->TakeFocus();
    }
}

// ---- Files

void DesignWindow::Load(const QString& path) {
    if (FormTab* const tab = TabOf(path)) {
        tabs_->setCurrentWidget(tab);
        return;
    }
    Add(forms::Load(PathOf(path), setup_.codePage), FormFile(QFileInfo(path).absoluteFilePath()));
    Remember(path);
    Tell(OpenedMessage(Bench()->GetDesign().Document(), Current()->Name()));
}

void DesignWindow::StartNew() {
    QStringList names;
    for (int index = 0; index < tabs_->count(); ++index) {
        names.append(TabAt(index)->Name().toLower());
    }
    int number = 1;
    while (names.contains(QStringLiteral("form%1.frm").arg(number))) {
        ++number;
    }
    const std::string name = "Form" + std::to_string(number);
    Add(forms::Document::Parse(name + ".frm", NewForm(name, setup_.classes), {}, setup_.codePage),
        FormFile());
}

void DesignWindow::OfferAbandonedWork() {
    const std::vector<RecoveredWork> left = AbandonedWork(setup_.recovery);
    if (left.empty()) {
        return;
    }
    QStringList names;
    for (const RecoveredWork& work : left) {
        names.append(tr("%1, changed %2")
                         .arg(work.path.isEmpty() ? work.name : work.path, ToTheSecond(work.time)));
    }
    WorkAnswer answer{};
    do {
        answer = AskAboutAbandonedWork(*this, names);
    } while (answer == WorkAnswer::Discard &&
             !ConfirmsDiscarding(*this, static_cast<int>(left.size())));
    for (const RecoveredWork& work : left) {
        if (answer == WorkAnswer::Open) {
            OpenAgain(work);
        } else if (answer == WorkAnswer::Discard) {
            work.Remove();
        }
    }
}

// Opens the file of the form with the unsaved work as a change to it. Returns false if it cannot be
// read.
bool DesignWindow::OpenOnItsFile(const RecoveredWork& work, const forms::FormBytes& bytes) {
    QString base;
    try {
        Load(work.path);
        base = BaseOf(Bench()->GetDesign().Document(), work.path);
        Current()->File().AcceptChangesByOthers(Bench()->GetDesign());
        Bench()->GetDesign().Take(tr("Recovered changes"), bytes, work.codePage);
    } catch (const forms::FormError&) {
        return false;
    }
    const bool isDated = work.base.isEmpty();  // by an earlier version of the designer
    if (isDated ? QFileInfo(work.path).lastModified() > work.time : base != work.base) {
        Current()->DoubtFile();
    }
    return true;
}

// Without its file, a form keeps the path, and saving writes the file again. A second version of an
// open form becomes a new one.
void DesignWindow::OpenAgain(const RecoveredWork& work) {
    try {
        const forms::FormBytes bytes = work.Bytes();
        const bool isFree = !work.path.isEmpty() && TabOf(work.path) == nullptr;
        if (!isFree || !OpenOnItsFile(work, bytes)) {
            const auto companion = [&](const std::string&) { return bytes.companion; };
            Add(forms::Document::Parse(work.name.toStdString(), bytes.form, companion,
                                       work.codePage),
                isFree ? FormFile(work.path) : FormFile());
            Bench()->GetDesign().History().resetClean();
        }
        Current()->KeepCopy(work);
        work.Remove();
    } catch (const forms::FormError& error) {
        Warn(*this, tr("%1 cannot be opened.").arg(work.name), QString::fromUtf8(error.what()));
    }
}

void DesignWindow::Open(const QString& path) {
    try {
        Load(path);
    } catch (const forms::FormError& error) {
        Warn(*this, tr("%1 cannot be opened.").arg(QFileInfo(path).fileName()),
             QString::fromUtf8(error.what()));
    }
}

void DesignWindow::ChooseAndOpen() {
    const QString folder = Current() != nullptr && Current()->File().HasPath()
                               ? QFileInfo(Current()->File().Path()).path()
                               : QString();
    for (const QString& path : AskForFormsToOpen(*this, folder)) {
        Open(path);
    }
}

void DesignWindow::ReadAgain(int codePage) {
    FormTab& tab = *Current();
    const QString path = tab.File().Path();
    if (tab.File().HasPath() && tab.MayLeave()) {
        try {
            Replace(tab, forms::Load(PathOf(path), codePage));
            Tell(OpenedMessage(Bench()->GetDesign().Document(), Current()->Name()));
        } catch (const forms::FormError& error) {
            Warn(*this, tr("%1 cannot be opened.").arg(QFileInfo(path).fileName()),
                 QString::fromUtf8(error.what()));
        }
    }
    Follow();  // the menu has checked its item
}

void DesignWindow::WriteIn(int codePage) {
    Workbench& bench = *Bench();
    if (bench.FinishEditing()) {
        bench.Try([&] { bench.GetDesign().WriteIn(codePage); });
    }
    Follow();  // the menu has checked its item
}

bool DesignWindow::Save() const {
    return Current() != nullptr && Current()->Save();
}

bool DesignWindow::SaveTo(const QString& path, forms::Replacing replacing) const {
    return Current() != nullptr && Current()->SaveTo(path, replacing);
}

bool DesignWindow::MayLeave() {
    for (int index = 0; index < tabs_->count(); ++index) {
        if (TabAt(index)->IsChanged() || index == tabs_->currentIndex()) {
            tabs_->setCurrentIndex(index);
            if (!TabAt(index)->MayLeave()) {
                return false;
            }
        }
    }
    return true;
}

void DesignWindow::Remember(const QString& path) {
    recent_.Add(path);
    ShowRecent();
}

void DesignWindow::ShowRecent() {
    const QStringList paths = recent_.Existing();
    files_->ShowRecent(paths);
    start_->ShowRecent(paths);
}

// ---- The current form

void DesignWindow::Run(bool on) const {
    if (Current() != nullptr) {
        Current()->Run(on);
    }
}

// Lets the commands apply to the current form. During a trial run, all keys are for the form: its
// menu bar is the only one, and the keys of hidden menus are not taken.
void DesignWindow::Follow() {
    FormTab* const tab = Current();
    const bool isRunning = tab != nullptr && tab->Running() != nullptr;
    pages_->setCurrentIndex(tab == nullptr ? 0 : 1);
    menuBar()->setVisible(!isRunning);
    bar_->setVisible(!isRunning);
    Workbench* const bench = isRunning ? nullptr : Bench();
    if (bench != followed_) {
        FollowBench(bench);
    }
    const bool isCode = bench != nullptr && tab->ShowsCode();
    Command(isCode ? nullptr : bench);
    view_->SetPage(bench == nullptr ? ViewMenu::Page::None
                   : isCode         ? ViewMenu::Page::Code
                                    : ViewMenu::Page::Form);
    files_->Show({.isOpen = tab != nullptr,
                  .canSave = bench != nullptr,
                  .canReadAgain = bench != nullptr && tab->File().HasPath(),
                  .codePage = tab == nullptr ? 0 : Bench()->GetDesign().Document().FormCodePage()});
    runForm_->setEnabled(tab != nullptr);
    runForm_->setChecked(isRunning);
    ShowTitles();
}

void DesignWindow::FollowBench(Workbench* bench) {
    followed_ = bench;
    Command(nullptr);
    status_->Follow(bench);
    view_->Follow(bench);
}

// The commands for the selection would change what is not seen behind the code.
void DesignWindow::Command(Workbench* bench) {
    if (bench != commanded_) {
        commanded_ = bench;
        commands_->Follow(bench);
    }
}

void DesignWindow::ShowTitles() {
    QHash<QString, int> names;
    for (int index = 0; index < tabs_->count(); ++index) {
        ++names[TabAt(index)->Name()];
    }
    const auto titleOf = [&](const FormTab& form) {
        return names.value(form.Name()) > 1 && form.File().HasPath()
                   ? tr("%1 (%2)").arg(form.Name(), QFileInfo(form.File().Path()).dir().dirName())
                   : form.Name();
    };
    for (int index = 0; index < tabs_->count(); ++index) {
        const FormTab& tab = *TabAt(index);
        QString title = titleOf(tab);
        title.replace(u'&', QStringLiteral("&&"));
        tabs_->setTabText(index, tab.IsChanged() ? title + u'*' : title);
        tabs_->setTabToolTip(index, tab.File().Path());
    }
    const FormTab* const tab = Current();
    setWindowTitle(tab == nullptr ? tr("lumenform")
                   : tab->Running() != nullptr
                       ? tr("%1[*] (running) – lumenform").arg(titleOf(*tab))
                   : tab->ShowsCode() ? tr("%1[*] (code) – lumenform").arg(tab->Name())
                                      : tr("%1[*] – lumenform").arg(titleOf(*tab)));
    setWindowModified(tab != nullptr && tab->IsChanged());
}

void DesignWindow::Tell(const QString& text) {
    if (text.isEmpty()) {
        status_->clearMessage();
    } else {
        status_->showMessage(text, messageTime);
    }
}

// ---- Events

void DesignWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && Current() != nullptr) {
        Current()->LookAtDisk();
    }
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
    if (!DroppedFiles(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void DesignWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    for (const QString& file : DroppedFiles(*event->mimeData())) {
        Open(file);
    }
}

}  // namespace lumenkit::lumenform
