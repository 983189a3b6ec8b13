#pragma once

#include <QAbstractButton>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionButton>

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// Whether the block's Style makes it a graphical button, which has pictures and its own colour.
bool IsGraphical(const BlockReader& reader);

/// The look of a push button with a wrapped caption. A graphical button can have a picture above
/// its caption and its own background, which is the colour of the role Window.
class PushLook {
 public:
    /// A button without pictures in the colours of the system.
    PushLook() = default;
    /// A graphical button, from Picture, DownPicture, DisabledPicture and the colours.
    static PushLook Graphical(const BlockReader& reader);

    /// Draws the button in the state of `option`. A checked button looks pressed, and a greyed one
    /// disabled as well.
    void Draw(QPainter& painter, const QAbstractButton& button, QStyleOptionButton option) const;

 private:
    void DrawFace(QPainter& painter, const QAbstractButton& button,
                  const QStyleOptionButton& option) const;
    void DrawContents(QPainter& painter, const QAbstractButton& button,
                      const QStyleOptionButton& option) const;
    QPalette TextPalette(const QPalette& palette) const;
    QPixmap PictureFor(bool isEnabled, bool isPressed) const;

    QPixmap picture_;
    QPixmap downPicture_;
    QPixmap disabledPicture_;
    bool hasColor_ = false;
    bool hasTextColor_ = false;
};

}  // namespace lumenkit::lumenform
