#pragma once

#include <QPointer>
#include <QString>
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
    /// Tells screen readers the name and the limits of the control, for a constituent that has no
    /// caption of its own.
    virtual void Describe(const QString& /*name*/, const QString& /*hint*/) {}
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
    bool IsEnabled() const { return enabled_; }
    // Both move the focus out of an element that cannot be used any more: to its heir, to the next
    // element in the Tab order, or else to the drawing area, which keeps it for the element.
    void BecomeVisible(bool visible);
    void BecomeEnabled(bool enabled);
    /// Returns the element that takes the focus over when this one, which has it, is hidden or
    /// disabled; null if there is none.
    virtual const Element* Heir() const { return nullptr; }
    void RepaintNow();
    QWidget& Area() const { return elements_.Area(); }
    bool UserMode() const { return elements_.UserMode(); }
    const Elements& Siblings() const { return elements_; }
    const ErrorSink& Errors() const { return elements_.GetContext().errors; }

 private:
    template <typename Change>
    void BecomeUsable(bool usable, Change&& change);
    QWidget* FocusAfter() const;
    QWidget* FocusedInside() const;
    QRect Geometry() const;

    Elements& elements_;
    Text name_;
    std::int16_t index_;
    host::Placement placement_;
    host::MovingEdges movingEdges_;
    bool visible_;
    bool enabled_ = true;
    QPointer<QWidget> widget_;
    QPointer<QWidget> lostFocus_;  // the widget inside for which the drawing area keeps the focus
    std::list<Element*>::iterator position_;  // in the list of elements_
};

}  // namespace lumenkit::qt
