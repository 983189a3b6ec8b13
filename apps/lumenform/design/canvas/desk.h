#pragma once

#include <QPointer>
#include <QWidget>

#include "apps/lumenform/form_view/form_view.h"

namespace lumenkit::form {

/// The neutral ground that a form lies on while it is designed, and the title bar and border that
/// show it as a form.
class Desk final : public QWidget {
 public:
    explicit Desk(QWidget* parent = nullptr);
    ~Desk() override;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Puts the view on the desk, which does not own it: it is given back in the end.
    void Show(FormView& view);

    /// Keeps `cover`, a child of the desk, over all of it.
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

}  // namespace lumenkit::form
