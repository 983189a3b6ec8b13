#pragma once

#include <QPushButton>

namespace lumenkit::form {

/// A button that Enter, Esc or both press wherever the keyboard is in its form, unless the control
/// that has it uses the key itself.
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

}  // namespace lumenkit::form
