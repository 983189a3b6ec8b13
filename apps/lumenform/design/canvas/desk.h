#pragma once

#include <QPointer>
#include <QWidget>

#include "apps/lumenform/form_view/form_view.h"

namespace lumenkit::lumenform {

/// The colour of the desk, a shade of the window's.
QColor DeskColor(const QPalette& palette);

/// The neutral background of a form in the designer. Draws the title bar and border of the form.
class Desk final : public QWidget {
 public:
    explicit Desk(QWidget* parent = nullptr);
    ~Desk() override;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Puts the view on the desk. The desk does not own the view: its destructor removes the view
    /// from it.
    void Show(FormView& view);

    /// Keeps `cover`, a child of the desk, at the size of the desk.
    void SetCover(QWidget& cover);

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    int TitleHeight() const;
    QRect FrameRect() const;
    void Arrange();
    void PaintTitle(QPainter& painter) const;

    QPointer<FormView> view_;
    QWidget* cover_ = nullptr;
};

}  // namespace lumenkit::lumenform
