#pragma once

#include <QPointer>
#include <QTimer>
#include <string>
#include <vector>

#include "tests/apps/lumenform/canvas_user.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/apps/lumenform/outline_user.h"
#include "tests/apps/lumenform/property_user.h"
#include "tests/apps/lumenform/replies.h"
#include "tests/apps/lumenform/toolbox_user.h"

namespace lumenkit::testing {

/// A user of the designer's window, from the first key to the files on the disk. A dialog that
/// nobody answers fails the test instead of blocking it.
class UserSession : public OpenedWindow {
 protected:
    UserSession();

    /// The parts of the window for the current form.
    CanvasUser Canvas() { return {Design(), ActiveBench().GetCanvas()}; }
    PropertyUser Properties() { return PropertyUser(ActiveBench().Properties()); }
    OutlineUser Tree() { return OutlineUser(ActiveBench().GetOutline()); }
    ToolboxUser Tools() { return ToolboxUser(ActiveBench().GetToolbox()); }

    /// Presses a key for the widget that has the keyboard.
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});
    void Save() { Key(Qt::Key_S, Qt::ControlModifier); }
    /// Presses Ctrl+Shift+S and answers the dialogs that follow.
    void SaveAs() { Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); }
    /// Presses the key for closing a form, which is another one on each platform.
    void CloseForm();
    /// Presses Ctrl+O and types the name of a file in the folder.
    void Open(const QString& name);
    /// Writes a form of 400 by 320 pixels with these lines into a file, and opens it.
    void OpenWith(const QString& name, const std::string& inner, const std::string& code = {});
    /// Clicks the middle of a control.
    void Click(TextView control) { Canvas().Click(Canvas().MiddleOf(control)); }
    /// Goes to another program, which does something, and comes back.
    template <typename Deed>
    void Elsewhere(const Deed& deed) {
        Leave();
        deed();
        ComeBack();
    }
    /// Presses the button with this title in a part of the window.
    static void PressIn(const QWidget& part, const QString& title);

    void Write(const QString& name, const std::string& bytes) const;
    /// The bytes of a file; none if there is none.
    std::string Stored(const QString& name) const;
    bool Exists(const QString& name) const { return std::filesystem::exists(File(name)); }
    QStringList Files() const;

    std::string Title() const { return window.windowTitle().toStdString(); }
    std::string Status() const;
    std::vector<std::string> SelectedNames() const;

 private:
    lumenform::Workbench& ActiveBench();
    void Activate();
    void Leave();
    void ComeBack();
    void Watch();

    QWidget other_;  // the window of another program
    QTimer watch_;
    QPointer<QWidget> waiting_;
    int waits_ = 0;
};

/// The lines of a control on a form, in twips.
std::string ControlLines(const std::string& className, const std::string& name, int left, int top,
                         int width, int height, const std::string& more = {});

}  // namespace lumenkit::testing
