#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <list>
#include <memory>

#include "frame/host/constituent.h"
#include "frame/text.h"
#include "runtime/qt/elements.h"
#include "runtime/qt/font.h"

namespace lumenkit::qt {

/// The state that the runtime keeps for a constituent of any kind: its widget, and its placement in
/// twips as it was set.
class Element {
 public:
    virtual ~Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    /// Null after other code has destroyed the widget.
    QWidget* Widget() const { return widget_; }
    /// The parent widget for constituents inside this one.
    virtual QWidget& Inside() const { return *widget_; }
    /// Called when the area has grown or shrunk.
    void FollowArea();
    /// Called when the colours of the palette changed.
    virtual void ShowColors() {}
    /// Called with the widget of the constituent that is created next.
    virtual void NameNext(QWidget& /*widget*/) {}
    /// Stops the notifications of the widget. Called when their receiver or the element itself is
    /// destroyed; the widget may be deleted a little later.
    virtual void Disconnect() {}

 protected:
    Element(Elements& elements, const host::Design& design);

    /// Returns the parent widget for a constituent with this design. Throws std::logic_error for a
    /// parent of another runtime.
    static QWidget& ParentFor(const Elements& elements, const host::Design& design);
    /// Takes over the widget, puts it behind its siblings, and places and shows it as designed.
    void Adopt(std::unique_ptr<QWidget> widget);
    /// Does the same without placing or showing the widget.
    void AdoptHidden(std::unique_ptr<QWidget> widget);
    void Release();

    const host::Placement& Where() const { return placement_; }
    void MoveTo(const host::Placement& placement);
    bool IsVisible() const { return visible_; }
    void BecomeVisible(bool visible);
    bool IsEnabled() const { return enabled_; }
    void BecomeEnabled(bool enabled);
    void RepaintNow();
    QWidget& Area() const { return elements_.Area(); }
    bool UserMode() const { return elements_.UserMode(); }
    const ErrorSink& Errors() const { return elements_.GetContext().errors; }

 private:
    QRect Geometry() const;

    Elements& elements_;
    Text name_;
    std::int16_t index_;
    host::Placement placement_;
    host::MovingEdges movingEdges_;
    bool visible_;
    bool enabled_ = true;
    QPointer<QWidget> widget_;
    std::list<Element*>::iterator position_;  // in the list of elements_
};

}  // namespace lumenkit::qt
