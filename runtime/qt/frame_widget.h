#pragma once

#include <QGroupBox>

namespace lumenkit::qt {

/// A group box as classic forms draw it: the caption stands in the border's upper line.
class FrameWidget final : public QGroupBox {
 public:
    using QGroupBox::QGroupBox;

    /// Without a border the caption is not seen either.
    void SetBordered(bool bordered);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    bool bordered_ = true;
};

}  // namespace lumenkit::qt
