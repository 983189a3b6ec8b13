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
#include "forms/encoding.h"
#include "frame/host/application.h"
#include "frame/host/interaction.h"
#include "runtime/qt/context.h"

namespace lumenkit::form {

/// The designer: one form at a time, opened, changed, tried out and saved.
class DesignWindow final : public QMainWindow {
    Q_OBJECT

 public:
    struct Setup {
        const ClassTable& classes;
        host::Application& application;
        host::Interaction& interaction;         ///< for what controls say while nobody listens
        QSettings& settings;                    ///< what is remembered from one time to the next
        int codePage = forms::defaultCodePage;  ///< of forms that are opened
    };

    /// All that the setup refers to must outlive the window.
    explicit DesignWindow(const Setup& setup);
    ~DesignWindow() override;
    DesignWindow(const DesignWindow&) = delete;
    DesignWindow& operator=(const DesignWindow&) = delete;

    /// Shows the form in the place of what is shown now, without asking whether that is to be
    /// saved. Throws forms::FormError for what cannot be read; then nothing changes.
    void Load(const QString& path);
    void StartNew();
    /// False when it was not saved: the person knows why or did not want it.
    bool Save();
    bool SaveAs();
    /// Into this file, which is the form's from then on.
    bool SaveTo(const QString& path);
    /// Asks whether changes are to be saved. False when the person wants to stay.
    bool MayLeave();
    /// Tries the form out, or ends that.
    void Run(bool on);

    /// Null when no form is open.
    Workbench* Bench() const { return bench_.get(); }
    /// Null when the form does not run.
    RunPage* Running() const { return run_.get(); }
    StartPage& Start() const { return *start_; }
    FormCommands& Commands() const { return *commands_; }
    QAction& RunAction() const { return *runForm_; }
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
    void Show(forms::Document document, const FormFile& file);
    void ShowStart();
    void Follow(Workbench* bench);
    void Open(const QString& path);
    void ChooseAndOpen();
    void StartNewUnlessCancelled();
    void Close();
    QString FormName() const;
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
    QAction* new_ = nullptr;
    QAction* open_ = nullptr;
    QAction* save_ = nullptr;
    QAction* saveAs_ = nullptr;
    QAction* close_ = nullptr;
    QAction* runForm_ = nullptr;
    std::unique_ptr<Workbench> bench_;
    std::unique_ptr<RunPage> run_;
};

}  // namespace lumenkit::form
