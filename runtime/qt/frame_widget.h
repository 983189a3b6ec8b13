#pragma once

#include <QGroupBox>

#include "runtime/qt/accessible.h"

namespace lumenkit::qt {

/// A group box with its caption in the upper line of the border. Screen readers name it by the
/// caption if that is shown, otherwise by its accessible name.
class FrameWidget final : public QGroupBox, public SelfDescribing {
 public:
    using QGroupBox::QGroupBox;

    /// Without a border the caption is not shown either.
    void SetBordered(bool bordered);
    /// Returns the caption without the mark of its mnemonic. Empty without a border.
    QString ShownCaption() const;

    QAccessibleInterface* NewDescription() override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    bool bordered_ = true;
};

}  // namespace lumenkit::qt
