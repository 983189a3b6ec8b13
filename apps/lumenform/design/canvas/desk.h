#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>

#include "apps/lumenform/design/canvas/zoom.h"
#include "apps/lumenform/design/canvas/zoomed_view.h"
#include "apps/lumenform/form_view/form_view.h"

namespace lumenkit::lumenform {

/// The colour of the desk, a shade of the window's.
QColor DeskColor(const QPalette& palette);

/// The neutral background of a form in the designer. Draws the title bar and border of the form,
/// and shows the form at a scale.
class Desk final : public QWidget {
 public:
    explicit Desk(QWidget* parent = nullptr);
    ~Desk() override;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Puts the view on the desk. The desk does not own the view: its destructor removes the view
    /// from it.
    void Show(FormView& view);

    /// Shows the view at this scale, in percent.
    void SetPercent(int percent);
    const Zoom& GetZoom() const { return zoom_; }
    /// Returns the largest scale, in percent, at which the desk with the form fits into a size.
    int FittingPercent(QSize room) const;

    /// Keeps `cover`, a child of the desk, at the size of the desk.
    void SetCover(QWidget& cover);

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void PutView();
    int TitleHeight() const;
    QRect ViewRect() const;
    QRect FrameRect() const;
    void Arrange();
    void PaintTitle(QPainter& painter) const;

    QPointer<FormView> view_;
    std::unique_ptr<ZoomedView> zoomed_;  // null at 100 %
    Zoom zoom_;
    QWidget* cover_ = nullptr;
};

}  // namespace lumenkit::lumenform
