#pragma once

#include <QMainWindow>
#include <string>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/outline/outline.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/lumenform/outline_user.h"

namespace lumenkit::testing {

/// A form in the designer, with its outline in an active window.
class OutlinedForm : public OutlineUser {
 public:
    explicit OutlinedForm(forms::Document document);
    /// Takes only the lines inside the form: see FormWith.
    explicit OutlinedForm(const std::string& inner) : OutlinedForm(FormWith(inner)) {}

    std::vector<std::string> Selected() const;
    /// Returns the form as it would be written now.
    std::string Saved() const { return design.Document().Write().form; }

    Surface surface;
    lumenform::FormDesign design;
    QMainWindow window;
    lumenform::Outline* outline;
    std::vector<std::string> refused;
};

}  // namespace lumenkit::testing
