#pragma once

#include <QAbstractScrollArea>
#include <QPoint>
#include <QTimer>

namespace lumenkit::lumenform {

/// Scrolls an area again and again while a drag rests at its edge or beyond it. The farther the
/// pointer is, the faster it scrolls.
class EdgeScroll final : public QObject {
 public:
    /// The area must outlive this object.
    explicit EdgeScroll(QAbstractScrollArea& area);

    /// Called when the pointer has moved during a drag, in pixels of the viewport.
    void Follow(QPoint pointer);
    /// Called at the end of the drag.
    void Stop() { timer_.stop(); }

    /// Returns the pixels by which to scroll at once, in one direction, while the pointer is at
    /// `place` of a viewport of this length.
    static int StepAt(int place, int length);

 private:
    QPoint Step() const;
    void Scroll() const;

    QAbstractScrollArea& area_;
    QTimer timer_;
    QPoint pointer_;
};

}  // namespace lumenkit::lumenform
