#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <list>
#include <memory>

#include "frame/host/constituent.h"
#include "frame/text.h"
#include "runtime/qt/constituents.h"
#include "runtime/qt/font.h"

namespace lumenkit::qt {

/// What the runtime keeps of a constituent, whatever its kind: its widget, and its place in twips
/// as it was set.
class Element {
 public:
    virtual ~Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    const Text& Name() const { return name_; }
    std::int16_t Index() const { return index_; }  ///< in a control array, else -1
    /// Null once somebody destroyed it under us.
    QWidget* Widget() const { return widget_; }
    /// Where constituents lie whose parent this is.
    virtual QWidget& Inside() const { return *widget_; }
    /// The palette has other colours.
    virtual void ApplyColors() {}
    /// From now on the widget notifies nothing: its receiver goes away, or the element itself,
    /// whose widget may be deleted a little later.
    virtual void Disconnect() {}

 protected:
    Element(Constituents& owner, const host::Design& design);

    /// The widget on which one of this design lies. Throws std::logic_error for a parent of another
    /// runtime.
    static QWidget& ParentFor(const Constituents& owner, const host::Design& design);
    /// Takes the widget over, behind its siblings, placed and shown as designed.
    void Adopt(std::unique_ptr<QWidget> widget);
    /// The same for one that is placed and shown by other means.
    void AdoptHidden(std::unique_ptr<QWidget> widget);
    void Release();

    const host::Placement& Where() const { return placement_; }
    void MoveTo(const host::Placement& placement);
    bool IsVisible() const { return visible_; }
    void ShowOrHide(bool visible);
    bool IsEnabled() const { return enabled_; }
    void EnableOrDisable(bool enabled);
    void RepaintNow();
    Constituents& Owner() const { return owner_; }
    const ErrorSink& Errors() const { return owner_.GetContext().errors; }

 private:
    Constituents& owner_;
    Text name_;
    std::int16_t index_;
    host::Placement placement_;
    bool visible_;
    bool enabled_ = true;
    QPointer<QWidget> widget_;
    std::list<Element*>::iterator position_;  // in the owner's list
};

}  // namespace lumenkit::qt
