#include "runtime/ole/control/view_object.h"

#include "runtime/ole/control/rendering.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

// Only the whole control can be drawn.
void CheckIndex(LONG index) {
    if (index != -1 && index != 0) {
        throw ComError(DV_E_LINDEX);
    }
}

RECT RectOf(const RECTL& place) {
    return {place.left, place.top, place.right, place.bottom};
}

RECT Grown(RECT bounds, LONG margin) {
    InflateRect(&bounds, static_cast<int>(margin), static_cast<int>(margin));
    return bounds;
}

bool Overlap(const RECT& left, const RECT& right) {
    RECT common = {};
    return IntersectRect(&common, &left, &right) != FALSE;
}

}  // namespace

HRESULT ViewObject::Draw(DWORD aspect, LONG index, void* /*aspectInfo*/, DVTARGETDEVICE* /*target*/,
                         HDC /*targetDevice*/, HDC device, LPCRECTL place, LPCRECTL /*window*/,
                         Continue /*proceed*/, ULONG_PTR /*context*/) {
    return Guarded([&] {
        CheckAspect(aspect);
        CheckIndex(index);
        if (device == nullptr) {
            return E_INVALIDARG;
        }
        core_.Started().DrawOn(device, RectOf(Checked(place)));
        return S_OK;
    });
}

HRESULT ViewObject::GetColorSet(DWORD aspect, LONG index, void* /*aspectInfo*/,
                                DVTARGETDEVICE* /*target*/, HDC /*targetDevice*/,
                                LOGPALETTE** colors) {
    return Guarded([&] {
        Checked(colors) = nullptr;
        CheckAspect(aspect);
        CheckIndex(index);
        return S_FALSE;
    });
}

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    return Guarded([&] { core_.GetNotices().SetView(aspects, flags, sink); });
}

HRESULT ViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
    return Guarded([&] { core_.GetNotices().GetView(aspects, flags, sink); });
}

HRESULT ViewObject::GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* /*target*/, LPSIZEL size) {
    return Guarded([&] {
        Checked(size) = {};
        CheckAspect(aspect);
        CheckIndex(index);
        *size = core_.GetExtent().Get();
    });
}

HRESULT ViewObject::GetRect(DWORD aspect, LPRECTL place) {
    return Guarded([&] {
        Checked(place) = {};
        CheckAspect(aspect);
        const SIZEL& size = core_.GetExtent().Get();
        *place = {0, 0, size.cx, size.cy};
    });
}

HRESULT ViewObject::GetViewStatus(DWORD* status) {
    return Guarded([&] { Checked(status) = VIEWSTATUS_OPAQUE; });
}

HRESULT ViewObject::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG closeness,
                                  DWORD* hit) {
    return Guarded([&] {
        Checked(hit) = HITRESULT_OUTSIDE;
        CheckAspect(aspect);
        const RECT surroundings = Grown(Checked(bounds), closeness);
        if (PtInRect(bounds, point) != FALSE) {
            *hit = HITRESULT_HIT;
        } else if (PtInRect(&surroundings, point) != FALSE) {
            *hit = HITRESULT_CLOSE;
        }
    });
}

HRESULT ViewObject::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT area, LONG closeness,
                                 DWORD* hit) {
    return Guarded([&] {
        Checked(hit) = HITRESULT_OUTSIDE;
        CheckAspect(aspect);
        if (Overlap(Checked(bounds), Checked(area))) {
            *hit = HITRESULT_HIT;
        } else if (Overlap(Grown(*bounds, closeness), *area)) {
            *hit = HITRESULT_CLOSE;
        }
    });
}

HRESULT ViewObject::GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* /*target*/,
                                     HDC /*targetDevice*/, DVEXTENTINFO* information,
                                     LPSIZEL size) {
    return Guarded([&] {
        Checked(size) = {};
        Checked(information);
        CheckAspect(aspect);
        CheckIndex(index);
        return E_NOTIMPL;  // no size is more natural than another
    });
}

}  // namespace lumenkit::ole
