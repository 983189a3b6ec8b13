#include "tests/support/qt_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

namespace lumenkit::testing {

namespace {

struct Stroke {
    int key;
    Qt::KeyboardModifiers held;
};

Stroke StrokeFor(char16_t unit) {
    const auto between = [&](char16_t first, char16_t last) {
        return unit >= first && unit <= last;
    };
    switch (unit) {
        case u'\r':
            return {Qt::Key_Return, {}};
        case u'\b':
            return {Qt::Key_Backspace, {}};
        case u'\t':
            return {Qt::Key_Tab, {}};
        default:
            break;
    }
    if (between(u'a', u'z')) {
        return {Qt::Key_A + unit - u'a', {}};
    }
    if (between(1, 26)) {
        return {Qt::Key_A + unit - 1, Qt::ControlModifier};
    }
    return {between(u' ', u'~') ? int{unit} : int{Qt::Key_unknown}, {}};
}

}  // namespace

void TypeKeys(QWidget& widget, TextView text) {
    const QPointer<QWidget> typed(&widget);
    for (std::size_t index = 0; index < text.size() && typed != nullptr; ++index) {
        const Stroke stroke = StrokeFor(text[index]);
        const QString entered = QChar(text[index]);
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            if (typed != nullptr) {
                QKeyEvent event(type, stroke.key, stroke.held, entered);
                QApplication::sendEvent(typed, &event);
            }
        }
    }
}

void TurnWheel(QWidget& widget, QPoint turned, Qt::KeyboardModifiers held) {
    const QPointF place(5, 5);
    QWheelEvent wheel(place, widget.mapToGlobal(place), {}, turned, {}, held, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);  // Qt passes on only events of the window system
    qApp->notify(&widget, &wheel);
}

}  // namespace lumenkit::testing
