#include "tests/apps/lumenform/canvas_user.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <stdexcept>

#include "frame/utf8.h"

namespace lumenkit::testing {

namespace {

// Distance of the middle of a handle from the edge of its control, in pixels.
constexpr int aside = 3;

int HandleAt(int near, int length, int side) {
    return side < 0 ? near - 1 - aside : side > 0 ? near + length + aside : near + length / 2;
}

}  // namespace

const QWidget& CanvasUser::WidgetOf(TextView name) const {
    const lumenform::LiveControl* const control = design_->View().Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return control->Widget();
}

QPoint CanvasUser::OnGlass(QPoint onForm) const {
    const lumenform::FormView& view = design_->View();
    return canvas_->GetZoom().ToDesk(QPointF(view.Client().mapTo(&view, onForm))).toPoint();
}

QPoint CanvasUser::OnForm(const QWidget& widget, QPoint at) const {
    return widget.mapTo(&design_->View().Client(), at);
}

QPoint CanvasUser::MiddleOf(TextView name) const {
    const QWidget& widget = WidgetOf(name);
    return OnForm(widget, widget.rect().center());
}

QPoint CanvasUser::HandleOf(TextView name, int across, int down) const {
    const QWidget& widget = WidgetOf(name);
    const QPoint corner = OnForm(widget, QPoint());
    return {HandleAt(corner.x(), widget.width(), across),
            HandleAt(corner.y(), widget.height(), down)};
}

QPoint CanvasUser::FormHandle(int across, int down) const {
    const QSize size = design_->View().Client().size();
    return {HandleAt(0, size.width(), across), HandleAt(0, size.height(), down)};
}

void CanvasUser::Press(QPoint at, Qt::KeyboardModifiers held) {
    QTest::mousePress(&canvas_->GetGlass(), Qt::LeftButton, held, OnGlass(at));
}

void CanvasUser::MoveTo(QPoint at, Qt::KeyboardModifiers held) {
    lumenform::Glass& glass = canvas_->GetGlass();
    const QPoint onGlass = OnGlass(at);
    QMouseEvent event(QEvent::MouseMove, onGlass, glass.mapToGlobal(onGlass), Qt::NoButton,
                      Qt::LeftButton, held);
    QApplication::sendEvent(&glass, &event);
}

void CanvasUser::Release(QPoint at, Qt::KeyboardModifiers held) {
    QTest::mouseRelease(&canvas_->GetGlass(), Qt::LeftButton, held, OnGlass(at));
}

void CanvasUser::Click(QPoint at, Qt::KeyboardModifiers held) {
    Press(at, held);
    Release(at, held);
}

void CanvasUser::Drag(QPoint from, QPoint by, Qt::KeyboardModifiers held) {
    Press(from, held);
    MoveTo(from + by / 2, held);
    MoveTo(from + by, held);
    Release(from + by, held);
}

void CanvasUser::Key(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(&canvas_->GetGlass(), key, held);
}

}  // namespace lumenkit::testing
