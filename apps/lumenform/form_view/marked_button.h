// Check boxes and option buttons.
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <optional>
#include <utility>

#include "apps/lumenform/form_view/push_look.h"

namespace lumenkit::lumenform {

struct MarkedLook {
    bool isMarkRight = false;
    std::optional<PushLook> push = {};  ///< the look of a graphical button, which has no mark
};

/// A check box. Its caption is wrapped, and a click anywhere in it counts. A partially checked box
/// shows a greyed mark; a click unchecks it.
class CheckBox final : public QCheckBox {
 public:
    explicit CheckBox(MarkedLook look) : look_(std::move(look)) {}

 protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;

 private:
    MarkedLook look_;
};

/// An option button. Its caption is wrapped, and a click anywhere in it counts.
class OptionBox final : public QRadioButton {
 public:
    explicit OptionBox(MarkedLook look) : look_(std::move(look)) {}

 protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
    void paintEvent(QPaintEvent* event) override;

 private:
    MarkedLook look_;
};

}  // namespace lumenkit::lumenform
