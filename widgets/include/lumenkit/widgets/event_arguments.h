#pragma once

#include <QtCore/QObject>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

// The arguments of the controls' events. An object lives as long as its signal is delivered: do not
// keep it, and connect directly (within one thread that is the default). What a slot assigns is
// passed on to the control and to the slots that follow.

/// The arguments of mouseDown, mouseMove and mouseUp.
class LUMENKIT_WIDGETS_EXPORT MouseArguments : public QObject {
    Q_OBJECT
    Q_PROPERTY(int button READ button WRITE setButton)
    Q_PROPERTY(int shift READ shift WRITE setShift)
    Q_PROPERTY(double x READ x WRITE setX)
    Q_PROPERTY(double y READ y WRITE setY)

 public:
    MouseArguments(int button, int shift, double x, double y);
    ~MouseArguments() override;

    /// The button that was pressed or released, or the sum of those that are held during a move: 1
    /// left, 2 right, 4 middle.
    int button() const { return button_; }
    void setButton(int button) { button_ = button; }
    /// The sum of the keys that are held: 1 Shift, 2 Ctrl, 4 Alt.
    int shift() const { return shift_; }
    void setShift(int shift) { shift_ = shift; }
    /// The position in twips, from the upper left corner of the control's inside.
    double x() const { return x_; }
    void setX(double x) { x_ = x; }
    double y() const { return y_; }
    void setY(double y) { y_ = y; }

 private:
    Q_DISABLE_COPY_MOVE(MouseArguments)

    int button_;
    int shift_;
    double x_;
    double y_;
};

/// The arguments of keyDown and keyUp.
class LUMENKIT_WIDGETS_EXPORT KeyArguments : public QObject {
    Q_OBJECT
    Q_PROPERTY(int keyCode READ keyCode WRITE setKeyCode)
    Q_PROPERTY(int shift READ shift WRITE setShift)

 public:
    KeyArguments(int keyCode, int shift);
    ~KeyArguments() override;

    /// The code of the key on the keyboard, such as 13 for Enter, 112 for F1 and 65 for A. In
    /// keyDown, 0 cancels the key.
    int keyCode() const { return keyCode_; }
    void setKeyCode(int keyCode) { keyCode_ = keyCode; }
    /// The sum of the keys that are held: 1 Shift, 2 Ctrl, 4 Alt.
    int shift() const { return shift_; }
    void setShift(int shift) { shift_ = shift; }

 private:
    Q_DISABLE_COPY_MOVE(KeyArguments)

    int keyCode_;
    int shift_;
};

/// The argument of keyPress.
class LUMENKIT_WIDGETS_EXPORT KeyPressArguments : public QObject {
    Q_OBJECT
    Q_PROPERTY(int keyAscii READ keyAscii WRITE setKeyAscii)

 public:
    explicit KeyPressArguments(int keyAscii);
    ~KeyPressArguments() override;

    /// The character that was typed. Another one takes its place; 0 cancels it.
    int keyAscii() const { return keyAscii_; }
    void setKeyAscii(int keyAscii) { keyAscii_ = keyAscii; }

 private:
    Q_DISABLE_COPY_MOVE(KeyPressArguments)

    int keyAscii_;
};

/// The argument of validate.
class LUMENKIT_WIDGETS_EXPORT ValidateArguments : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool cancel READ cancel WRITE setCancel)

 public:
    explicit ValidateArguments(bool cancel);
    ~ValidateArguments() override;

    /// Whether the focus stays in the control.
    bool cancel() const { return cancel_; }
    void setCancel(bool cancel) { cancel_ = cancel; }

 private:
    Q_DISABLE_COPY_MOVE(ValidateArguments)

    bool cancel_;
};

}  // namespace lumenkit::widgets
