#pragma once

#include <QAccessible>
#include <QPainter>
#include <QWidget>
#include <functional>

#include "runtime/qt/accessible.h"

namespace lumenkit::lumenform {

/// A widget that a function paints.
class Painted final : public QWidget, public qt::SelfDescribing {
 public:
    using Paint = std::function<void(const QWidget& widget, QPainter& painter)>;

    /// Screen readers get the role.
    Painted(QAccessible::Role role, Paint paint);

    QAccessibleInterface* NewDescription() override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QAccessible::Role role_;
    Paint paint_;
};

}  // namespace lumenkit::lumenform
