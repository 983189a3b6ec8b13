#pragma once

#include <QMainWindow>
#include <QSettings>
#include <QStackedWidget>
#include <QString>
#include <memory>

#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/window/form_commands.h"
#include "apps/lumenform/design/window/form_file.h"
#include "apps/lumenform/design/window/place_status.h"
#include "apps/lumenform/design/window/recent_files.h"
#include "apps/lumenform/design/window/run_page.h"
#include "apps/lumenform/design/window/start_page.h"
#include "apps/lumenform/design/window/view_menu.h"
#include "apps/lumenform/design/window/workbench.h"
#include "forms/known_code_pages.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// The designer window. It opens, edits, runs and saves one form at a time.
class DesignWindow final : public QMainWindow {
    Q_OBJECT

 public:
    struct Setup {
        const ClassTable& classes;
        host::Application& application;
        host::Interaction& interaction;         ///< for messages without a listener
        QSettings& settings;                    ///< stored between sessions
        int codePage = forms::guessedCodePage;  ///< of opened forms, unless the user names another
    };

    /// The objects that `setup` refers to must outlive the window.
    explicit DesignWindow(const Setup& setup);
    ~DesignWindow() override;
    DesignWindow(const DesignWindow&) = delete;
    DesignWindow& operator=(const DesignWindow&) = delete;

    /// Opens a form in place of the present one, without asking to save. Throws forms::FormError if
    /// it cannot be read; then nothing changes.
    void Load(const QString& path);
    /// Also names the code page of the form.
    void Load(const QString& path, int codePage);
    /// Reads the file of the form again in this code page. Asks to save changes before.
    void ReadAgain(int codePage);
    void StartNew();
    /// Returns false if the form was not saved. The user then knows why or has cancelled.
    bool Save();
    bool SaveAs();
    /// Saves to this file, which becomes the file of the form.
    bool SaveTo(const QString& path, forms::Replacing replacing = forms::Replacing::Known);
    /// Asks whether to save changes. Returns false if the user cancels.
    bool MayLeave();
    /// Starts or ends a trial run of the form.
    void Run(bool on);

    /// Null if no form is open.
    Workbench* Bench() const { return bench_.get(); }
    /// Null if the form is not running.
    RunPage* Running() const { return run_.get(); }
    StartPage& Start() const { return *start_; }
    FormCommands& Commands() const { return *commands_; }
    const FormFile& File() const { return file_; }

 protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void AddFileMenu();
    void AddRunMenu();
    void AddToolBar();
    void FillRecent();
    void AddCodePages();
    void Show(forms::Document document, const FormFile& file);
    void ShowStart();
    void Follow(Workbench* bench);
    void Open(const QString& path, int codePage);
    void ChooseAndOpen();
    void StartNewUnlessCancelled();
    void Close();
    QString FormName() const;
    void ShowWarnings();
    void UpdateTitle();

    const Setup setup_;
    ControlMessages messages_;
    qt::Context context_;
    RecentFiles recent_;
    FormFile file_;
    QStackedWidget* pages_;
    StartPage* start_;
    FormCommands* commands_;
    ViewMenu* view_;
    PlaceStatus* status_;
    QMenu* recentMenu_ = nullptr;
    QMenu* codePages_ = nullptr;
    QAction* new_ = nullptr;
    QAction* open_ = nullptr;
    QAction* save_ = nullptr;
    QAction* saveAs_ = nullptr;
    QAction* close_ = nullptr;
    QAction* runForm_ = nullptr;
    std::unique_ptr<Workbench> bench_;
    std::unique_ptr<RunPage> run_;
};

}  // namespace lumenkit::lumenform
