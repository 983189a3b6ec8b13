#pragma once

#include <QGroupBox>

namespace lumenkit::qt {

/// A group box with its caption in the upper line of the border.
class FrameWidget final : public QGroupBox {
 public:
    using QGroupBox::QGroupBox;

    /// Without a border the caption is not shown either.
    void SetBordered(bool bordered);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    bool bordered_ = true;
};

}  // namespace lumenkit::qt
