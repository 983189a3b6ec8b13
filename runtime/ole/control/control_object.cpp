#include "runtime/ole/control/control_object.h"

#include <array>

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/module/type_library.h"

namespace lumenkit::ole {

ControlObject::ControlObject(Component& component, const ClassDescriptor& type, IUnknown* outer)
    : Root(component, outer),
      data_(Controlling(), *this, core_),
      active_(Controlling(), *this, core_),
      core_(component, type, Controlling(), *this, {.data = data_, .active = active_}),
      dual_(*this, Controlling(), *this),
      classInfo_(Controlling(), type),
      safety_(Controlling()),
      errors_(Controlling(), GuidOf(type.interfaceTable->uniqueIdentifier)),
      withSite_(Controlling()),
      runnable_(Controlling(), type) {}

IUnknown* ControlObject::Find(REFIID interfaceId) noexcept {
    struct Offered {
        const IID& id;
        IUnknown* face;
    };
    const IID own = GuidOf(core_.Type().interfaceTable->uniqueIdentifier);
    const std::array offered = {
        Offered{IID_IDispatch, dual_.AsDispatch()},
        Offered{own, dual_.AsDispatch()},
        Offered{IID_IOleObject, &oleObject_},
        Offered{IID_IOleControl, &oleControl_},
        Offered{IID_IOleWindow, &inPlaceObject_},
        Offered{IID_IOleInPlaceObject, &inPlaceObject_},
        Offered{IID_IOleInPlaceActiveObject, &active_},
        Offered{IID_IViewObject, &view_},
        Offered{IID_IViewObject2, &view_},
        Offered{IID_IViewObjectEx, &view_},
        Offered{IID_IDataObject, &data_},
        Offered{IID_IPersist, &stream_},
        Offered{IID_IPersistStream, &stream_},
        Offered{IID_IPersistStreamInit, &stream_},
        Offered{IID_IPersistStorage, &storage_},
        Offered{IID_IPersistPropertyBag, &bag_},
        Offered{IID_IConnectionPointContainer, &core_.Points()},
        Offered{IID_IProvideClassInfo, &classInfo_},
        Offered{IID_IProvideClassInfo2, &classInfo_},
        Offered{IID_ISpecifyPropertyPages, &pages_},
        Offered{IID_IPerPropertyBrowsing, &browsing_},
        Offered{IID_IQuickActivate, &quick_},
        Offered{IID_IObjectSafety, &safety_},
        Offered{IID_ISupportErrorInfo, &errors_},
        Offered{IID_IObjectWithSite, &withSite_},
        Offered{IID_IRunnableObject, &runnable_},
    };
    for (const Offered& each : offered) {
        if (each.id == interfaceId) {
            return each.face;
        }
    }
    return nullptr;
}

ComPtr<ITypeInfo> ControlObject::Description() {
    return DescriptionOf(Table().uniqueIdentifier);
}

}  // namespace lumenkit::ole
