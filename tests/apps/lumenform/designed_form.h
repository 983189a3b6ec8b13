#pragma once

#include <QMainWindow>
#include <ostream>
#include <string>
#include <vector>

#include "apps/lumenform/design/canvas/canvas.h"
#include "apps/lumenform/design/model/form_design.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::host {

/// For messages of failed tests.
void PrintTo(const Placement& place, std::ostream* out);

}  // namespace lumenkit::host

namespace lumenkit::testing {

/// A form on the canvas of an active window, and a user with mouse and keyboard. Points and
/// distances are in pixels at 96 per inch, so that a pixel is 15 twips. Points count from the upper
/// left corner of the form's client area. Dragged controls snap to the grid, but not to others.
class DesignedForm {
 public:
    explicit DesignedForm(forms::Document loaded);
    /// Takes only the lines inside the form: see FormWith.
    explicit DesignedForm(const std::string& inner);

    lumenform::LiveControl& Control(TextView name) const;
    host::Placement PlaceOf(TextView name) const { return Control(name).Place(); }
    std::vector<std::string> Selected() const;
    void Select(const std::vector<Text>& names) { design.SelectNamed(names); }
    /// Returns the form as it would be written now.
    std::string Saved() const { return design.Document().Write().form; }
    /// Returns the lines of the form that differ from `before`, without outer blanks; the one line
    /// "(other lines)" if the number of lines differs.
    std::vector<std::string> ChangedSince(const std::string& before) const;

    QPoint MiddleOf(TextView name) const;
    /// Returns the middle of a handle. -1, 0 and 1 are the near edge, the middle and the far edge.
    QPoint HandleOf(TextView name, int across, int down) const;
    QPoint FormHandle(int across, int down) const;

    void Press(QPoint at, Qt::KeyboardModifiers held = {});
    void MoveTo(QPoint at, Qt::KeyboardModifiers held = {});
    void Release(QPoint at, Qt::KeyboardModifiers held = {});
    void Click(QPoint at, Qt::KeyboardModifiers held = {});
    /// Presses at `from`, moves to `from` + `by` in a few steps, and releases.
    void Drag(QPoint from, QPoint by, Qt::KeyboardModifiers held = {});
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});

    /// Returns a point in pixels of the glass.
    QPoint OnGlass(QPoint onForm) const;

    Surface surface;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::Canvas* canvas;
    std::vector<QString> refused;

 private:
    QPoint OnForm(const QWidget& widget, QPoint at) const;
};

}  // namespace lumenkit::testing
