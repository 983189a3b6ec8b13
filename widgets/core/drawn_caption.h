#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "frame/host/interaction.h"
#include "frame/module.h"
#include "frame/module_errors.h"
#include "vlabel/caption_renderer.h"
#include "widgets/core/caption_surface.h"

namespace lumenkit::widgets {

/// Keeps the first error of a drawing instead of showing it.
class KeptError final : public host::Interaction {
 public:
    void Beep() override {}
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;
    const QString& First() const { return first_; }

 private:
    QString first_;
};

/// A caption that is laid out at one width and one scale.
class DrawnCaption {
 public:
    /// Lines wrap at `width` pixels. If it is negative, there is no border. `scale` is the number
    /// of device pixels for each pixel.
    DrawnCaption(CaptionSettings settings, std::shared_ptr<qt::Font> font, Color color, qreal width,
                 double scale);
    ~DrawnCaption() = default;
    DrawnCaption(const DrawnCaption&) = delete;
    DrawnCaption& operator=(const DrawnCaption&) = delete;

    qreal Width() const { return width_; }
    double Scale() const { return scale_; }
    /// What the caption takes, in pixels.
    QSizeF Size() const;
    const std::vector<CaptionSurface::Run>& Runs() const { return surface_.Runs(); }
    /// The report of the first error, or an empty text.
    const QString& Error() const { return error_.First(); }
    /// Draws the part of the caption that touches `visible`, in pixels.
    void DrawOn(QPainter& painter, const QRectF& visible) { surface_.DrawOn(painter, visible); }

 private:
    qreal width_;
    double scale_;
    CaptionSettings settings_;
    KeptError error_;
    ModuleErrors errors_;
    Module module_;
    CaptionSurface surface_;
    CaptionRenderer renderer_;
};

}  // namespace lumenkit::widgets
