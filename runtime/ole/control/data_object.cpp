#include "runtime/ole/control/data_object.h"

#include <array>

#include "runtime/ole/control/rendering.h"
#include "runtime/ole/values/enumerator.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

namespace {

struct Rendering {
    CLIPFORMAT format;
    DWORD medium;
};

constexpr std::array renderings = {
    Rendering{CF_METAFILEPICT, TYMED_MFPICT},
    Rendering{CF_ENHMETAFILE, TYMED_ENHMF},
    Rendering{CF_DIB, TYMED_HGLOBAL},
};

FORMATETC FormatOf(const Rendering& rendering) {
    return {.cfFormat = rendering.format,
            .ptd = nullptr,
            .dwAspect = DVASPECT_CONTENT,
            .lindex = -1,
            .tymed = rendering.medium};
}

// Throws the error that the platform defines for a `format` that is not available.
const Rendering& RenderingFor(const FORMATETC& format) {
    CheckAspect(format.dwAspect);
    if (format.lindex != -1) {
        throw ComError(DV_E_LINDEX);
    }
    for (const Rendering& rendering : renderings) {
        if (rendering.format == format.cfFormat) {
            if ((rendering.medium & format.tymed) == 0) {
                throw ComError(DV_E_TYMED);
            }
            return rendering;
        }
    }
    throw ComError(DV_E_FORMATETC);
}

using Formats = Enumerator<IEnumFORMATETC, IID_IEnumFORMATETC, FORMATETC, PlainItem<FORMATETC>>;

}  // namespace

HRESULT DataObject::GetData(FORMATETC* format, STGMEDIUM* medium) {
    return Guarded([&] {
        Checked(medium) = {};
        const Rendering& rendering = RenderingFor(Checked(format));
        win32::HostedControl& control = core_.Started();
        const SIZEL& size = core_.GetExtent().Get();
        switch (rendering.medium) {
            case TYMED_MFPICT:
                medium->hMetaFilePict = RenderMetafilePicture(control, size);
                break;
            case TYMED_ENHMF:
                medium->hEnhMetaFile = RenderEnhancedMetafile(control, size);
                break;
            default:
                medium->hGlobal = RenderBitmap(control, control.Size());
                break;
        }
        medium->tymed = rendering.medium;
    });
}

HRESULT DataObject::GetDataHere(FORMATETC* format, STGMEDIUM* medium) {
    return Guarded([&] {
        Checked(format);
        Checked(medium);
        return E_NOTIMPL;
    });
}

HRESULT DataObject::QueryGetData(FORMATETC* format) {
    return Guarded([&] { RenderingFor(Checked(format)); });
}

HRESULT DataObject::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) {
    return Guarded([&] {
        Checked(canonical) = Checked(format);
        canonical->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    });
}

HRESULT DataObject::EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) {
    return Guarded([&] {
        Checked(formats) = nullptr;
        if (direction != DATADIR_GET) {
            return E_NOTIMPL;
        }
        Formats::List list;
        for (const Rendering& rendering : renderings) {
            list.push_back(FormatOf(rendering));
        }
        *formats = Formats::Over(std::move(list)).Detach();
        return S_OK;
    });
}

HRESULT DataObject::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* cookie) {
    return Guarded([&] {
        Checked(cookie) = 0;
        return core_.GetNotices().Data().Advise(this, &Checked(format), flags, &Checked(sink),
                                                cookie);
    });
}

HRESULT DataObject::DUnadvise(DWORD cookie) {
    return Guarded([&] { return core_.GetNotices().Data().Unadvise(cookie); });
}

HRESULT DataObject::EnumDAdvise(IEnumSTATDATA** advises) {
    return Guarded([&] {
        Checked(advises) = nullptr;
        return core_.GetNotices().Data().EnumAdvise(advises);
    });
}

}  // namespace lumenkit::ole
