#pragma once

#include <QFrame>

namespace lumenkit::lumenform {

/// A bar with a message, in a tint of the window's colour that attracts attention.
class Bar : public QFrame {
    Q_OBJECT

 public:
    explicit Bar(QWidget* parent = nullptr);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void Tint();
};

}  // namespace lumenkit::lumenform
