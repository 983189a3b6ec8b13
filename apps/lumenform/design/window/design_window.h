#pragma once

#include <QMainWindow>
#include <QSettings>
#include <QStackedWidget>
#include <QString>
#include <QTabWidget>
#include <QToolBar>

#include "apps/lumenform/design/look/legible_palette.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/window/file_menu.h"
#include "apps/lumenform/design/window/form_commands.h"
#include "apps/lumenform/design/window/form_tab.h"
#include "apps/lumenform/design/window/place_status.h"
#include "apps/lumenform/design/window/recent_files.h"
#include "apps/lumenform/design/window/start_page.h"
#include "apps/lumenform/design/window/view_menu.h"
#include "forms/known_code_pages.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// The designer window. It opens, edits, runs and saves forms, each in a tab. Without forms it
/// shows the start page.
class DesignWindow final : public QMainWindow {
    Q_OBJECT

 public:
    struct Setup {
        const ClassTable& classes;
        host::Application& application;
        host::Interaction& interaction;  ///< for messages without a listener
        QSettings& settings;             ///< stored between sessions
        QString recovery = {};           ///< a folder for copies of unsaved work; empty for none
        int codePage = forms::guessedCodePage;  ///< of opened forms, unless the user names another
    };

    /// The objects that `setup` refers to must outlive the window.
    explicit DesignWindow(const Setup& setup);
    ~DesignWindow() override;
    DesignWindow(const DesignWindow&) = delete;
    DesignWindow& operator=(const DesignWindow&) = delete;

    /// Opens a form in a new tab, or moves to its tab if it is open. Throws forms::FormError if it
    /// cannot be read; then nothing changes.
    void Load(const QString& path);
    void StartNew();
    /// Asks whether to open the unsaved work that earlier sessions left because they ended
    /// unexpectedly, and does so.
    void OfferAbandonedWork();
    /// Saves the current form. Returns false if it was not saved. The user then knows why or has
    /// cancelled.
    bool Save() const;
    /// Saves the current form to this file, which becomes its file.
    bool SaveTo(const QString& path, forms::Replacing replacing = forms::Replacing::Known) const;
    /// Asks for each form whether to save its changes. Returns false if the user cancels.
    bool MayLeave();
    /// Starts or ends a trial run of the current form.
    void Run(bool on) const;

    /// Null if no form is open.
    FormTab* Current() const;
    /// The workbench of the current form, or null.
    Workbench* Bench() const;
    /// The trial run of the current form, or null.
    RunPage* Running() const;
    QTabWidget& Tabs() const { return *tabs_; }
    StartPage& Start() const { return *start_; }
    FormCommands& Commands() const { return *commands_; }

 protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void ConnectFiles();
    void AddRunMenu();
    void AddHelpMenu();
    void AddToolBar();
    FormTab* TabAt(int index) const;
    FormTab* TabOf(const QString& path) const;
    void Add(forms::Document document, const FormFile& file);
    bool OpenOnItsFile(const RecoveredWork& work, const forms::FormBytes& bytes);
    void OpenAgain(const RecoveredWork& work);
    void Replace(FormTab& tab, forms::Document document);
    FormTab* NewTab(forms::Document document, const FormFile& file);
    void Open(const QString& path);
    void ChooseAndOpen();
    void ReadAgain(int codePage);
    void WriteIn(int codePage);
    void Close(int index);
    void Follow();
    void FollowBench(Workbench* bench);
    void Command(Workbench* bench);
    void Remember(const QString& path);
    void ShowRecent();
    void Tell(const QString& text);
    void ShowTitles();

    const Setup setup_;
    const LegiblePalette palette_;
    ControlMessages messages_;
    qt::Context context_;
    RecentFiles recent_;
    QStackedWidget* pages_;
    StartPage* start_;
    QTabWidget* tabs_;
    FileMenu* files_;
    FormCommands* commands_;
    ViewMenu* view_;
    PlaceStatus* status_;
    QToolBar* bar_ = nullptr;
    QAction* runForm_ = nullptr;
    Workbench* followed_ = nullptr;
    Workbench* commanded_ = nullptr;  // null while the code is shown
};

}  // namespace lumenkit::lumenform
