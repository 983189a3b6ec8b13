#pragma once

#include <QPushButton>
#include <utility>

#include "apps/lumenform/form_view/push_look.h"

namespace lumenkit::lumenform {

/// A button that Enter, Esc or both click, wherever the focus is in the form, unless the control
/// with the focus uses the key.
class CommandButton final : public QPushButton {
 public:
    struct Keys {
        bool enter = false;
        bool escape = false;
    };

    explicit CommandButton(PushLook look) : look_(std::move(look)) {}

    void SetKeys(Keys keys);
    bool IsPressedBy(int key) const;

 protected:
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    PushLook look_;
    Keys keys_;
};

}  // namespace lumenkit::lumenform
