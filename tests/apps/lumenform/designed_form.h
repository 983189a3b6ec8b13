#pragma once

#include <QMainWindow>
#include <ostream>
#include <string>
#include <vector>

#include "apps/lumenform/design/canvas/canvas.h"
#include "apps/lumenform/design/model/form_design.h"
#include "tests/apps/lumenform/canvas_user.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::host {

/// For messages of failed tests.
void PrintTo(const Placement& place, std::ostream* out);

}  // namespace lumenkit::host

namespace lumenkit::testing {

/// A form on the canvas of an active window, and its user. Dragged controls snap to the grid, but
/// not to others.
class DesignedForm : public CanvasUser {
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

    Surface surface;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::Canvas* canvas;
    std::vector<QString> refused;
};

}  // namespace lumenkit::testing
