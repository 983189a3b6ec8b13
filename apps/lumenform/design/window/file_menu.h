#pragma once

#include <QMenu>
#include <QString>
#include <QStringList>

namespace lumenkit::lumenform {

/// The menu with the commands for files. It only emits what the user wants.
class FileMenu final : public QMenu {
    Q_OBJECT

 public:
    explicit FileMenu(QWidget* parent = nullptr);

    QAction& NewAction() const { return *new_; }
    QAction& OpenAction() const { return *open_; }
    QAction& SaveAction() const { return *save_; }
    /// The code pages in which the form can be written.
    QMenu& EncodingMenu() const { return *encodings_; }

    void ShowRecent(const QStringList& paths);

    /// The form to which the commands apply.
    struct State {
        bool isOpen = false;
        bool canSave = false;
        bool canReadAgain = false;
        int codePage = 0;
    };
    void Show(const State& state);

 Q_SIGNALS:
    void NewWanted();
    void OpenWanted();
    void RecentWanted(const QString& path);
    void RecentCleared();
    /// Requests to read the file of the form again in this code page.
    void CodePageWanted(int number);
    /// Requests to write the form in this code page from now on.
    void EncodingWanted(int number);
    void SaveWanted();
    void SaveAsWanted();
    void CloseWanted();
    void QuitWanted();

 private:
    QAction* Add(const QString& icon, const QString& title, const QKeySequence& keys,
                 void (FileMenu::*wanted)());
    void AddCodePages(QMenu& menu, void (FileMenu::*wanted)(int));

    QAction* new_ = nullptr;
    QAction* open_ = nullptr;
    QMenu* recent_ = nullptr;
    QMenu* codePages_ = nullptr;
    QMenu* encodings_ = nullptr;
    QAction* save_ = nullptr;
    QAction* saveAs_ = nullptr;
    QAction* close_ = nullptr;
};

}  // namespace lumenkit::lumenform
