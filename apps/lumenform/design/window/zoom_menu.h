#pragma once

#include <QActionGroup>
#include <QMenu>
#include <QPointer>

#include "apps/lumenform/design/canvas/canvas.h"

namespace lumenkit::lumenform {

/// The menu for the scale at which a form is designed. Each form has its own.
class ZoomMenu final : public QMenu {
    Q_OBJECT

 public:
    explicit ZoomMenu(QWidget* parent = nullptr);

    /// Applies to this canvas from now on. Null means none.
    void Follow(Canvas* canvas);

 private:
    void AddSteps();
    void Step(bool larger);
    void Check(int percent);

    QPointer<Canvas> canvas_;
    QAction* larger_;
    QAction* smaller_;
    QActionGroup* steps_;
};

}  // namespace lumenkit::lumenform
