#pragma once

#include <QStackedWidget>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "apps/lumenform/design/code/code_page.h"
#include "apps/lumenform/design/code/lost_names.h"
#include "apps/lumenform/design/code/mention_bar.h"
#include "apps/lumenform/design/properties/control_messages.h"
#include "apps/lumenform/design/recovery/recovery_store.h"
#include "apps/lumenform/design/window/changed_bar.h"
#include "apps/lumenform/design/window/form_file.h"
#include "apps/lumenform/design/window/run_page.h"
#include "apps/lumenform/design/window/workbench.h"
#include "forms/document.h"
#include "frame/text.h"
#include "runtime/qt/context.h"

namespace lumenkit::lumenform {

/// One open form: its workbench, its code, its file and its trial run.
class FormTab final : public QWidget {
    Q_OBJECT

 public:
    struct Setup {
        const qt::Context& context;
        ControlMessages& messages;  ///< the interaction of the context
        /// Saving under a name for which this returns true, such as that of a form in another tab,
        /// fails with a message.
        std::function<bool(const FormTab& tab, const QString& path)> refusesName;
        QString recovery;  ///< the store of copies of unsaved work; empty for none
    };

    /// Throws FormError as FormDesign does. The objects that `setup` refers to must outlive the
    /// tab.
    FormTab(const Setup& setup, forms::Document document, FormFile file = {},
            QWidget* parent = nullptr);
    ~FormTab() override;
    FormTab(const FormTab&) = delete;
    FormTab& operator=(const FormTab&) = delete;

    Workbench& Bench() const { return *bench_; }
    /// Null if the form is not running.
    RunPage* Running() const { return run_.get(); }
    const FormFile& File() const { return file_; }
    /// The file name without the folder. A new form has the name that would be proposed for it.
    QString Name() const;
    /// Whether there are unsaved changes.
    bool IsChanged() const;

    /// Returns false if the form was not saved. The user then knows why or has cancelled.
    bool Save();
    bool SaveAs();
    /// Saves to this file, which becomes the file of the form.
    bool SaveTo(const QString& path, forms::Replacing replacing = forms::Replacing::Known);
    /// Asks whether to save changes. Returns false if the user cancels.
    bool MayLeave();
    /// Starts or ends a trial run of the form.
    void Run(bool on);
    /// Shows the code instead of the form, at the first procedure about the selection. A value that
    /// is being edited and is rejected keeps the form.
    void ShowCode();
    void ShowForm();
    bool ShowsCode() const { return pages_->currentWidget() == code_; }
    CodePage& Code() const { return *code_; }
    MentionBar& Mentions() const { return *mentions_; }
    /// Moves the keyboard to the form or its code.
    void TakeFocus();
    /// Moves the keyboard to the next or former part: a bar, or a part of the form's or the code's
    /// page.
    void MoveFocus(bool next);
    /// Keeps a copy of unsaved work now, and not only after a moment.
    void KeepCopy();
    /// Keeps a copy of recovered work with its time.
    void KeepCopy(const RecoveredWork& work);
    /// Asks what to do if another program has changed the file: shows a line above the form.
    void LookAtDisk();
    /// Asks what to do about a file that is newer than this version of the form.
    void DoubtFile();
    ChangedBar& Bar() const { return *bar_; }

 Q_SIGNALS:
    /// The name, the unsaved changes, the page or the trial run changed.
    void StateChanged();
    /// An action was done or failed, in a sentence for the status bar. Empty if former sentences
    /// are out of date.
    void Told(const QString& text);
    void Saved(const QString& path);
    /// Requests the menu of the selection at this place of the screen.
    void MenuRequested(QPoint where);

 private:
    void Reload();
    void KeepMine();
    bool IsFileInDoubt() const;
    // A part of the page, and the widget in it that takes the keyboard first.
    struct Part {
        QWidget* area;
        QWidget* stop;
    };
    std::vector<Part> Parts() const;
    void Compare();
    void FollowChanges();
    void BeginRun();
    void FollowLostNames();
    void OpenCode(const std::vector<Text>& names);

    const Setup setup_;
    FormFile file_;
    RecoveryCopy copy_;
    QTimer* keeping_;
    ChangedBar* bar_;
    QStackedWidget* pages_;
    MentionBar* mentions_;
    std::unique_ptr<Workbench> bench_;
    std::unique_ptr<LostNames> lost_;
    CodePage* code_;
    std::unique_ptr<RunPage> run_;
    bool isOlderThanFile_ = false;
};

}  // namespace lumenkit::lumenform
