#pragma once

#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include "apps/lumenform/design/window/workbench.h"

namespace lumenkit::lumenform {

/// The status bar of the designer: the position of the mouse, the selection and its place, in
/// twips, the zoom and the code page of the form. A message that has no room beside them is shown
/// in part, and as a whole in the tool tip.
class PlaceStatus final : public QStatusBar {
    Q_OBJECT

 public:
    /// `encodings` opens at the code page, and `zooms` at the zoom. Both must outlive the status
    /// bar.
    PlaceStatus(QMenu& encodings, QMenu& zooms, QWidget* parent = nullptr);

    /// Shows the state of this workbench. Null clears the status bar.
    void Follow(Workbench* workbench);

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    QRect MessageRect() const;
    QString ShownMessage() const;
    void ShowSelection();
    void ShowCodePage();
    void ShowZoom();

    Workbench* workbench_ = nullptr;
    QLabel* pointer_;
    QLabel* selection_;
    QToolButton* zoom_;
    QToolButton* codePage_;
};

}  // namespace lumenkit::lumenform
