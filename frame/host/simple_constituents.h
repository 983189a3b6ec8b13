// Constituents with little behaviour.
#pragma once

#include <cstdint>

#include "frame/automation/value.h"
#include "frame/color.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::host {

struct CaptionDesign : Design {
    TextView caption = {};
    /// The letter of the caption that is its mnemonic: it is underlined, and with Alt it leads to
    /// the constituent. Every `&` is then an ordinary character. 0: `&` marks the mnemonic, and
    /// `&&` is an ampersand.
    char16_t accessKey = 0;
    /// False for a label that shows any text as it stands, in one line: every `&` is an ordinary
    /// character, and CR, LF and tab are drawn as visible signs. Other kinds ignore it.
    bool useMnemonic = true;
};

/// A frame with a caption that contains other constituents.
class Frame : public TextConstituent {
 public:
    virtual Text Caption() const = 0;
    virtual void SetCaption(TextView caption) = 0;
    /// 0 none, 1 fixed single. Raises 380 for other values.
    virtual std::int16_t BorderStyle() const = 0;
    virtual void SetBorderStyle(std::int16_t style) = 0;
};

/// Shows text; a caption that is wider than the label continues on further lines, unless the label
/// was designed without a mnemonic.
class Label : public TextConstituent {
 public:
    virtual Text Caption() const = 0;
    /// If AutoSize is on, the label takes the caption's size before the call returns.
    virtual void SetCaption(TextView caption) = 0;
    virtual bool AutoSize() const = 0;
    virtual void SetAutoSize(bool autoSize) = 0;
    virtual Color ForeColor() const = 0;
    virtual void SetForeColor(Color color) = 0;
    virtual Color BackColor() const = 0;
    virtual void SetBackColor(Color color) = 0;
};

class ClickEvents {
 public:
    virtual ~ClickEvents() = default;

    virtual void Click() {}
};

/// A check box. Its value is 0 (not checked), 1 (checked) or 2 (greyed).
class CheckBox : public TextConstituent {
 public:
    virtual Text Caption() const = 0;
    virtual void SetCaption(TextView caption) = 0;
    virtual std::int16_t CheckState() const = 0;
    /// A change of the value notifies Click before the call returns. Raises 380 for other values.
    virtual void SetCheckState(std::int16_t state) = 0;
};

class CommandButton : public TextConstituent {
 public:
    virtual Text Caption() const = 0;
    virtual void SetCaption(TextView caption) = 0;
};

/// A bordered box that clips the constituents in it.
class PictureBox : public Constituent {
 public:
    /// Size of the area inside the border, in twips.
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
};

class ScrollBarEvents {
 public:
    virtual ~ScrollBarEvents() = default;

    virtual void Change() {}
};

enum class Orientation { Horizontal, Vertical };

/// A scroll bar over the whole numbers from 0 to Max.
class ScrollBar : public Constituent {
 public:
    virtual std::int16_t ScrollValue() const = 0;
    /// A change of the value notifies Change before the call returns. Raises 380 outside 0 to Max.
    virtual void SetScrollValue(std::int16_t value) = 0;
    virtual std::int16_t Max() const = 0;
    /// Lowers a greater ScrollValue to `max` (and notifies Change). Raises 380 when `max` is
    /// negative.
    virtual void SetMax(std::int16_t max) = 0;
    /// Steps of a click beside the thumb and on an arrow. Setting raises 380 for a step below 1.
    virtual std::int16_t LargeChange() const = 0;
    virtual void SetLargeChange(std::int16_t step) = 0;
    virtual std::int16_t SmallChange() const = 0;
    virtual void SetSmallChange(std::int16_t step) = 0;
};

/// Another control of the project inside this one, used only through its interface.
class EmbeddedControl : public Constituent {
 public:
    /// Returns the late-bound interface of the control, never null; valid as long as the
    /// constituent.
    virtual Object& Automation() = 0;
};

}  // namespace lumenkit::host
