#include "apps/lumenform/form_view/likeness/still.h"

#include <QKeyEvent>
#include <utility>

#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

bool IsTab(const QEvent& event) {
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

// Swallows the input of a widget. Keys go on to the parent widget.
class InputFilter final : public QObject {
 public:
    using QObject::QObject;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::ShortcutOverride:
                if (IsTab(*event)) {
                    return false;
                }
                [[fallthrough]];
            case QEvent::DragEnter:
            case QEvent::InputMethod:
                event->ignore();
                return true;
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::MouseMove:
            case QEvent::Wheel:
            case QEvent::ContextMenu:
            case QEvent::HoverEnter:
            case QEvent::HoverMove:
            case QEvent::HoverLeave:
                event->accept();
                return true;
            default:
                return false;
        }
    }
};

}  // namespace

void KeepStill(QWidget& widget) {
    auto* const filter = new InputFilter(&widget);
    widget.installEventFilter(filter);
    for (QWidget* part : widget.findChildren<QWidget*>()) {
        part->installEventFilter(filter);
    }
}

PlainWidget Likeness(const BlockReader& reader, std::unique_ptr<QWidget> widget) {
    widget->setAccessibleName(qt::ToQString(forms::NameInCode(reader.Block())));
    KeepStill(*widget);
    return {.widget = std::move(widget)};
}

}  // namespace lumenkit::lumenform
