#pragma once

#include <QPushButton>

namespace lumenkit::lumenform {

/// A button that Enter, Esc or both click, wherever the focus is in the form, unless the control
/// with the focus uses the key.
class CommandButton final : public QPushButton {
 public:
    struct Keys {
        bool enter = false;
        bool escape = false;
    };

    void SetKeys(Keys keys);
    bool IsPressedBy(int key) const;

 protected:
    void focusOutEvent(QFocusEvent* event) override;

 private:
    Keys keys_;
};

}  // namespace lumenkit::lumenform
