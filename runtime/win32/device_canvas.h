#pragma once

#include <vector>

#include "runtime/win32/canvas.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/thread_shared.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Maps the pixels of a control to a device. A control of `size` pixels fills `place`, which is in
/// logical units of the device and may run upwards.
struct Mapping {
    RECT place = {};
    SIZE size = {};

    /// Returns a one-to-one mapping with the upper left corner at the origin of the device.
    static Mapping Plain(SIZE size);

    int X(int pixel) const;
    int Y(int pixel) const;
    RECT Of(const RECT& box) const;
    bool IsPlain() const;
};

/// Draws on a device with vector operations, so that a metafile contains texts and shapes and a
/// printer draws them at its own resolution. Restores the state of the device at the end.
class DeviceCanvas final : public Canvas {
 public:
    /// The canvas is the part `area` of the mapped pixels. Nothing is drawn outside it.
    DeviceCanvas(HDC device, const Mapping& mapping, const RECT& area);
    ~DeviceCanvas() override;
    DeviceCanvas(const DeviceCanvas&) = delete;
    DeviceCanvas& operator=(const DeviceCanvas&) = delete;

    void Clear(Color paper) override;
    void Print(const TextRun& run) override;
    void Fill(const RECT& box, Color color) override;
    void FillFigure(Figure figure, const RECT& box, Color color) override;
    void BeginClip(const RECT& box) override;
    void EndClip() override;

 private:
    RECT Mapped(RECT box) const;
    void FillMapped(const RECT& box, Color color);
    void Use(HFONT font);
    void PrintScaled(const TextRun& run, POINT at);
    ScreenFontRef Scaled(const ScreenFont& font) const;

    HDC device_;
    Mapping mapping_;
    RECT area_;
    bool isPlain_;
    HFONT font_ = nullptr;
    COLORREF ink_ = CLR_INVALID;
    int backgroundMode_ = 0;
    ThreadShared<FontCache> cache_;
    std::vector<int> advances_;
    Text drawn_;
};

}  // namespace lumenkit::win32
