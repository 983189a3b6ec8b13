#include "apps/lumenform/design/window/zoom_menu.h"

#include <QKeySequence>

#include "apps/lumenform/design/icons/icons.h"

namespace lumenkit::lumenform {

ZoomMenu::ZoomMenu(QWidget* parent)
    : QMenu(tr("&Zoom"), parent),
      larger_(addAction(ThemeIcon(QStringLiteral("zoom-in")), tr("Zoom &in"))),
      smaller_(addAction(ThemeIcon(QStringLiteral("zoom-out")), tr("Zoom &out"))),
      steps_(new QActionGroup(this)) {
    setIcon(ThemeIcon(QStringLiteral("zoom-original")));
    // Ctrl+= is the key with the plus in many layouts.
    larger_->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    smaller_->setShortcut(Qt::CTRL | Qt::Key_Minus);
    connect(larger_, &QAction::triggered, this, [this] { Step(true); });
    connect(smaller_, &QAction::triggered, this, [this] { Step(false); });
    AddSteps();
    addSeparator();
    QAction* const fit = addAction(ThemeIcon(QStringLiteral("zoom-fit-best")), tr("&Fit the form"));
    fit->setToolTip(tr("Show the whole form as large as possible"));
    connect(fit, &QAction::triggered, this, [this] {
        if (canvas_ != nullptr) {
            canvas_->FitZoom();
        }
    });
    Follow(nullptr);
}

void ZoomMenu::AddSteps() {
    addSeparator();
    for (const int percent : Zoom::steps) {
        QAction* const action = addAction(tr("%1 %").arg(percent));
        action->setCheckable(true);
        action->setData(percent);
        steps_->addAction(action);
        if (percent == Zoom::full) {
            action->setShortcut(Qt::CTRL | Qt::Key_0);
        }
        connect(action, &QAction::triggered, this, [this, percent] {
            if (canvas_ != nullptr) {
                canvas_->SetZoom(percent);
                Check(canvas_->GetZoom().percent);
            }
        });
    }
}

void ZoomMenu::Step(bool larger) {
    if (canvas_ != nullptr) {
        canvas_->SetZoom(Zoom::Next(canvas_->GetZoom().percent, larger));
    }
}

void ZoomMenu::Follow(Canvas* canvas) {
    if (canvas_ != nullptr) {
        canvas_->disconnect(this);
    }
    canvas_ = canvas;
    for (QAction* const action : actions()) {
        action->setEnabled(canvas != nullptr);
    }
    if (canvas != nullptr) {
        connect(canvas, &Canvas::ZoomChanged, this, &ZoomMenu::Check);
        Check(canvas->GetZoom().percent);
    }
}

// At a scale that is no step, none is checked.
void ZoomMenu::Check(int percent) {
    steps_->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (QAction* const action : steps_->actions()) {
        action->setChecked(action->data().toInt() == percent);
    }
    steps_->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
    larger_->setEnabled(percent < Zoom::largest);
    smaller_->setEnabled(percent > Zoom::smallest);
}

}  // namespace lumenkit::lumenform
