#pragma once

#include <QLabel>
#include <QStatusBar>

#include "apps/lumenform/design/window/workbench.h"

namespace lumenkit::form {

/// The line below a form under work: where the mouse is, what is selected and where it is, in
/// twips.
class PlaceStatus final : public QStatusBar {
    Q_OBJECT

 public:
    explicit PlaceStatus(QWidget* parent = nullptr);

    /// Null: there is nothing to tell.
    void Follow(Workbench* workbench);

 private:
    void ShowSelection();

    Workbench* workbench_ = nullptr;
    QLabel* pointer_;
    QLabel* selection_;
};

}  // namespace lumenkit::form
