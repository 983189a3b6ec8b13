#include "runtime/ole/control/rendering.h"

#include <cstring>
#include <utility>

#include "runtime/ole/values/result.h"
#include "runtime/win32/device.h"

namespace lumenkit::ole {

namespace {

template <typename Handle>
Handle Made(Handle handle) {
    if (handle == nullptr) {
        throw ComError(E_OUTOFMEMORY);
    }
    return handle;
}

// Global memory of the kind that the clipboard uses.
class Memory {
 public:
    explicit Memory(std::size_t size) : handle_(Made(GlobalAlloc(GMEM_MOVEABLE, size))) {}
    ~Memory() {
        if (handle_ != nullptr) {
            GlobalFree(handle_);
        }
    }
    Memory(const Memory&) = delete;
    Memory& operator=(const Memory&) = delete;

    void Put(std::size_t offset, const void* bytes, std::size_t size) {
        std::memcpy(static_cast<char*>(GlobalLock(handle_)) + offset, bytes, size);
        GlobalUnlock(handle_);
    }
    HGLOBAL Detach() { return std::exchange(handle_, nullptr); }

 private:
    HGLOBAL handle_;
};

RECT WholeOf(const SIZEL& size) {
    return {0, 0, size.cx, size.cy};
}

BITMAPINFOHEADER HeaderFor(const SIZE& size) {
    constexpr WORD depth = 24;
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = size.cx;
    header.biHeight = size.cy;
    header.biPlanes = 1;
    header.biBitCount = depth;
    header.biCompression = BI_RGB;
    header.biSizeImage = static_cast<DWORD>((size.cx * 3 + 3) / 4 * 4 * size.cy);
    return header;
}

}  // namespace

void CheckAspect(DWORD aspect) {
    if (aspect != DVASPECT_CONTENT) {
        throw ComError(DV_E_DVASPECT);
    }
}

HGLOBAL RenderMetafilePicture(win32::HostedControl& control, const SIZEL& size) {
    const HDC device = Made(CreateMetaFileW(nullptr));
    SetWindowOrgEx(device, 0, 0, nullptr);
    SetWindowExtEx(device, static_cast<int>(size.cx), static_cast<int>(size.cy), nullptr);
    control.DrawOn(device, WholeOf(size));
    METAFILEPICT picture = {};
    picture.mm = MM_ANISOTROPIC;
    picture.xExt = size.cx;
    picture.yExt = size.cy;
    picture.hMF = Made(CloseMetaFile(device));
    Memory memory(sizeof picture);
    memory.Put(0, &picture, sizeof picture);
    return memory.Detach();
}

HENHMETAFILE RenderEnhancedMetafile(win32::HostedControl& control, const SIZEL& size) {
    const RECT frame = WholeOf(size);
    const HDC device = Made(CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr));
    // In pixels of the reference device, which is the screen.
    const SIZE pixels = control.Size();
    control.DrawOn(device, {0, 0, pixels.cx, pixels.cy});
    return Made(CloseEnhMetaFile(device));
}

HGLOBAL RenderBitmap(win32::HostedControl& control, const SIZE& size) {
    const BITMAPINFOHEADER header = HeaderFor(size);
    const win32::OwnDevice device(Made(CreateCompatibleDC(nullptr)));
    void* pixels = nullptr;
    const win32::OwnBitmap bitmap(
        Made(CreateDIBSection(device.get(), reinterpret_cast<const BITMAPINFO*>(&header),
                              DIB_RGB_COLORS, &pixels, nullptr, 0)));
    const win32::Selection selection(device.get(), bitmap.get());
    control.DrawOn(device.get(), {0, 0, size.cx, size.cy});
    GdiFlush();
    Memory memory(sizeof header + header.biSizeImage);
    memory.Put(0, &header, sizeof header);
    memory.Put(sizeof header, pixels, header.biSizeImage);
    return memory.Detach();
}

}  // namespace lumenkit::ole
