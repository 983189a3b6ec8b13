// What screen readers get to know of the runtime's widgets, where Qt's own description does not
// fit.
#pragma once

#include <QAccessibleWidget>
#include <QList>
#include <QString>

namespace lumenkit::qt {

/// A widget that describes itself to screen readers. Qt asks for the description once.
class SelfDescribing {
 public:
    virtual ~SelfDescribing() = default;
    SelfDescribing(const SelfDescribing&) = delete;
    SelfDescribing& operator=(const SelfDescribing&) = delete;

    /// Returns a new description, which Qt takes over. If it throws, Qt describes the widget
    /// itself, and the error goes to the call that led to the question, or to the ErrorReceiver
    /// around the widget.
    virtual QAccessibleInterface* NewDescription() = 0;

 protected:
    SelfDescribing();
};

/// A widget that knows the order in which its parts, and those of the widgets inside, are read.
class ReadingOrder {
 public:
    virtual ~ReadingOrder() = default;
    virtual void Sort(QList<QWidget*>& parts) const = 0;
};

/// A widget that contains others. Hidden child widgets do not exist for screen readers, and the
/// visible ones come in the order from front to back, unless a widget around them has a
/// ReadingOrder.
class GroupDescription : public QAccessibleWidget {
 public:
    explicit GroupDescription(QWidget& widget, QAccessible::Role role = QAccessible::Client)
        : QAccessibleWidget(&widget, role) {}

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

 private:
    // Returns the widgets inside this one in the order in which they are read.
    QList<QWidget*> Parts() const;
};

}  // namespace lumenkit::qt
