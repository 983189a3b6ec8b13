#pragma once

#include "runtime/ole/control/active_object.h"
#include "runtime/ole/control/control_core.h"
#include "runtime/ole/control/data_object.h"
#include "runtime/ole/control/in_place_object.h"
#include "runtime/ole/control/ole_control.h"
#include "runtime/ole/control/ole_object.h"
#include "runtime/ole/control/page_list.h"
#include "runtime/ole/control/persist_bag.h"
#include "runtime/ole/control/persist_storage.h"
#include "runtime/ole/control/persist_stream.h"
#include "runtime/ole/control/property_browsing.h"
#include "runtime/ole/control/quick_activate.h"
#include "runtime/ole/control/view_object.h"
#include "runtime/ole/objects/class_info.h"
#include "runtime/ole/objects/dual_interface.h"
#include "runtime/ole/objects/error_support.h"
#include "runtime/ole/objects/object_safety.h"
#include "runtime/ole/objects/object_with_site.h"
#include "runtime/ole/objects/root.h"
#include "runtime/ole/objects/runnable_object.h"

namespace lumenkit::ole {

/// A control as COM clients see it: all its interfaces around one core.
class ControlObject final : public Root, private DualTarget {
 public:
    ControlObject(Component& component, const ClassDescriptor& type, IUnknown* outer);

 private:
    IUnknown* Find(REFIID interfaceId) noexcept override;
    void Released() noexcept override { core_.Abandon(); }

    const InterfaceTable& Table() const override { return *core_.Type().interfaceTable; }
    Object& Members() override { return core_.Started().Automation(); }
    ComPtr<ITypeInfo> Description() override;

    // The core passes these two to the container, so they are constructed before the core.
    DataObject data_;
    ActiveObject active_;
    ControlCore core_;
    DualInterface dual_;
    OleObject oleObject_{core_};
    OleControl oleControl_{core_};
    InPlaceObject inPlaceObject_{core_};
    ViewObject view_{core_};
    PersistStream stream_{core_};
    PersistStorage storage_{core_};
    PersistBag bag_{core_};
    ClassInfo classInfo_;
    PageList pages_{core_};
    PropertyBrowsing browsing_{core_};
    QuickActivation quick_{core_};
    ObjectSafety safety_;
    ErrorSupport errors_;
    ObjectWithSite withSite_;
    RunnableObject runnable_;
};

}  // namespace lumenkit::ole
