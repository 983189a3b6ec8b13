#include "runtime/ole/objects/connection_points.h"

#include "runtime/ole/values/enumerator.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

HRESULT ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) {
    using Points = Enumerator<IEnumConnectionPoints, IID_IEnumConnectionPoints, IConnectionPoint*,
                              InterfaceItem<IConnectionPoint>>;
    return Guarded([&] {
        Checked(points) = nullptr;
        *points = Points::Over({&events_, &properties_}).Detach();
    });
}

HRESULT ConnectionPoints::FindConnectionPoint(REFIID interfaceId, IConnectionPoint** point) {
    return Guarded([&] {
        Checked(point) = nullptr;
        for (ConnectionPoint* own : {&events_, &properties_}) {
            if (interfaceId == own->InterfaceId()) {
                *point = own;
                own->AddRef();
                return S_OK;
            }
        }
        return CONNECT_E_NOCONNECTION;
    });
}

}  // namespace lumenkit::ole
