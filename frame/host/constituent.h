#pragma once

#include <cstdint>

#include "frame/host/font.h"
#include "frame/text.h"

namespace lumenkit::host {

/// Position and size in twips, relative to the drawing area of the constituent's parent.
struct Placement {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    friend bool operator==(const Placement&, const Placement&) = default;
};

/// The edges of a constituent that move with the right and the bottom edge of a page that a
/// container shows larger than it is designed. Placements are those of the designed size.
struct MovingEdges {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;
};

/// The common interface of all constituent controls. Use a constituent only on the user-interface
/// thread. Its methods may raise errors of the runtime. Destroying it removes it from the screen.
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
    /// Returns the font, never null. The font is shared: see Font.
    virtual FontRef CurrentFont() const = 0;
    /// Raises 91 when `font` is null.
    virtual void SetCurrentFont(FontRef font) = 0;
};

/// The design-time settings of a constituent. Texts are copied.
struct Design {
    TextView name = {};
    std::int16_t index = -1;  ///< index in a control array; -1 for a constituent that is not in one
    Constituent* parent = nullptr;  ///< the frame or picture box around it; null: the control
    Placement placement = {};
    bool visible = true;
    TextView fontName = u"MS Sans Serif";
    float fontSize = 8.25F;
    MovingEdges movingEdges = {};  ///< only for constituents directly on a page
};

}  // namespace lumenkit::host
