#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "runtime/qt/accessible.h"

namespace lumenkit::lumenform {

/// Shows a user control as a picture. It is drawn when the picture is first seen, and again when
/// its size or the palette has changed.
class UserControlPicture final : public QWidget, public qt::SelfDescribing {
 public:
    using Draw = std::function<QPixmap(QSize size)>;

    UserControlPicture(const QString& name, Draw draw);

    QAccessibleInterface* NewDescription() override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    Draw draw_;
    QPixmap picture_;
};

}  // namespace lumenkit::lumenform
