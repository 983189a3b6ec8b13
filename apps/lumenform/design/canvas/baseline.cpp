#include "apps/lumenform/design/canvas/baseline.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

// Returns the first line of text in a widget that is at the top of it or in its middle.
std::optional<int> UpperEdgeOfText(const QWidget& widget) {
    const int middle = (widget.height() - widget.fontMetrics().height()) / 2;
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
        qobject_cast<const QComboBox*>(&widget) != nullptr) {
        return middle;
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
        return label->contentsRect().top();
    }
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr ||
        qobject_cast<const QTextEdit*>(&widget) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(&widget) != nullptr) {
        return widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().top();
    }
    return std::nullopt;
}

}  // namespace

std::optional<float> BaselineOf(const LiveControl& control) {
    const QWidget& widget = control.Widget();
    const auto top = UpperEdgeOfText(widget);
    if (!top) {
        return std::nullopt;
    }
    const double twips = qt::TwipsPerPixel::OfScreens().y;
    return static_cast<float>((*top + widget.fontMetrics().ascent()) * twips);
}

}  // namespace lumenkit::lumenform
