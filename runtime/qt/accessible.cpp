#include "runtime/qt/accessible.h"

#include <QWidget>
#include <algorithm>

#include "runtime/qt/boundary.h"

namespace lumenkit::qt {

namespace {

ErrorSink SinkFor(const QObject* object) {
    for (; object != nullptr; object = object->parent()) {
        if (const auto* const receiver = dynamic_cast<const ErrorReceiver*>(object)) {
            return receiver->Errors();
        }
    }
    return {};
}

// Qt calls this function, so no exception may leave it.
QAccessibleInterface* DescriptionOf(const QString& /*key*/, QObject* object) {
    auto* const widget = dynamic_cast<SelfDescribing*>(object);
    QAccessibleInterface* made = nullptr;
    if (widget != nullptr) {
        HandleEvent(SinkFor(object), [&] { made = widget->NewDescription(); });
    }
    return made;
}

}  // namespace

SelfDescribing::SelfDescribing() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&DescriptionOf);
        return true;
    }();
    static_cast<void>(isInstalled);
}

// The last child widget is in front.
QList<QWidget*> GroupDescription::Parts() const {
    QList<QWidget*> parts = widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    std::ranges::reverse(parts);
    parts.removeIf([](const QWidget* part) { return part->isHidden() || part->isWindow(); });
    for (const QWidget* around = widget(); around != nullptr; around = around->parentWidget()) {
        if (const auto* const order = dynamic_cast<const ReadingOrder*>(around)) {
            order->Sort(parts);
            break;
        }
    }
    return parts;
}

int GroupDescription::childCount() const {
    return static_cast<int>(Parts().size());
}

QAccessibleInterface* GroupDescription::child(int index) const {
    QWidget* const part = Parts().value(index);
    return part == nullptr ? nullptr : QAccessible::queryAccessibleInterface(part);
}

int GroupDescription::indexOfChild(const QAccessibleInterface* child) const {
    return child == nullptr
               ? -1
               : static_cast<int>(Parts().indexOf(qobject_cast<QWidget*>(child->object())));
}

}  // namespace lumenkit::qt
