#pragma once

#include <cstdint>

#include "frame/host/font.h"
#include "frame/text.h"

namespace lumenkit::host {

/// Place and size in twips, relative to the drawing area of what the constituent lies on.
struct Placement {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    friend bool operator==(const Placement&, const Placement&) = default;
};

/// What every constituent control has. A constituent belongs to the user-interface thread; its
/// methods may raise errors of the runtime. Destroying it takes it off the screen.
class Constituent {
 public:
    virtual ~Constituent() = default;

    virtual Placement Place() const = 0;
    /// Raises 380 for a negative width or height.
    virtual void Move(const Placement& placement) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    /// Repaints at once.
    virtual void Refresh() = 0;
};

/// A constituent that shows text.
class TextConstituent : public Constituent {
 public:
    /// Never nothing. The font is shared: see Font.
    virtual FontRef CurrentFont() const = 0;
    /// Raises 91 for nothing.
    virtual void SetCurrentFont(FontRef font) = 0;
};

/// What is fixed when a constituent is designed. Texts are copied.
struct Design {
    TextView name = {};
    std::int16_t index = -1;        ///< of an element of a control array, else -1
    Constituent* parent = nullptr;  ///< the frame or picture box it lies in; null: the control
    Placement placement = {};
    bool visible = true;
    TextView fontName = u"MS Sans Serif";
    float fontSize = 8.25F;
};

}  // namespace lumenkit::host
