#include "runtime/ole/control/persist_bag.h"

#include "runtime/ole/module/identifiers.h"
#include "runtime/ole/values/property_bag.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT PersistBag::GetClassID(CLSID* classId) {
    return Guarded([&] { Checked(classId) = GuidOf(core_.Type().uniqueIdentifier); });
}

HRESULT PersistBag::InitNew() {
    return Guarded([&] { core_.StartNew(); });
}

HRESULT PersistBag::Load(IPropertyBag* bag, IErrorLog* log) {
    return Guarded([&] {
        ContainerBag container(Checked(bag), log);
        core_.Load(container);
    });
}

HRESULT PersistBag::Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) {
    return Guarded([&] {
        ContainerBag container(Checked(bag), nullptr, saveAll != FALSE);
        core_.Save(container);
        container.Deliver();
        if (clearDirty != FALSE) {
            core_.SetDirty(false);
        }
    });
}

}  // namespace lumenkit::ole
