#include "vmemo/vmemo.h"

#include <algorithm>
#include <string>
#include <utility>

#include "frame/checked_integer.h"
#include "frame/persisted_property.h"
#include "frame/raised_flag.h"
#include "frame/runtime_error.h"
#include "vmemo/spoken_limits.h"

namespace lumenkit {

namespace {

// Names and default values are part of the file format; do not change them. FontName and FontSize
// are written for programs that inspect saved forms. They are not read, because Font contains both.
namespace persisted {

constexpr PersistedProperty<Color> foreColor{u"ForeColor", Color::WindowText};
constexpr PersistedProperty<bool> enabled{u"Enabled", true};
constexpr TextView font = u"Font";  // default: the container's font
constexpr PersistedText fontName{u"FontName", u""};
constexpr PersistedProperty<float> fontSize{u"FontSize", 0};
constexpr PersistedProperty<bool> locked{u"Locked", false};
constexpr PersistedProperty<std::int32_t> maxLength{u"MaxLength", 0};
constexpr PersistedProperty<host::MousePointer> mousePointer{u"MousePointer",
                                                             host::MousePointer::Default};
constexpr PersistedText text{u"Text", u""};
constexpr PersistedProperty<std::int16_t> maxCharsPerLine{u"MaxCharsPerLine", 0};
constexpr PersistedProperty<std::int16_t> maxLines{u"MaxLines", 0};
constexpr PersistedProperty<std::int32_t> scrollBars{u"ScrollBars", 0};

}  // namespace persisted

// Identifiers of the font object's members.
constexpr std::int32_t fontName = 0;
constexpr std::int32_t fontSize = 2;

constexpr std::int16_t enterKey = 13;

// With this Tag, MaxLength returns the window handle.
constexpr TextView handleTag = u"Return hWnd via ML";

std::unique_ptr<host::TextBox> AddBox(host::Constituents& constituents, std::int16_t index,
                                      host::TextBoxEvents& events) {
    host::TextBoxDesign design;
    design.name = u"Text1";
    design.index = index;
    design.placement = {.width = 2400, .height = 1200};
    design.visible = index == 0;
    design.fontName = u"Courier";
    design.fontSize = 9.75F;
    design.multiLine = true;
    design.scrollBars = static_cast<host::ScrollBars>(index);
    design.text = u"VMemo\r\n";
    return constituents.AddTextBox(design, events);
}

double Divide(double dividend, double divisor) {
    if (divisor == 0.0) {
        Raise(ErrorNumber::DivisionByZero);
    }
    return dividend / divisor;
}

}  // namespace

VMemo::VMemo(const ControlHost& host)
    : host_(host),
      errors_(host.application, host.interaction),
      module_(errors_, u"VMEMO"),
      automation_(vmemoInterface, this),
      boxEvents_{BoxEvents(*this, 0), BoxEvents(*this, 1), BoxEvents(*this, 2),
                 BoxEvents(*this, 3)} {
    for (std::int16_t index = 0; index < boxCount; ++index) {
        const auto element = static_cast<std::size_t>(index);
        boxes_[element] = AddBox(host.constituents, index, boxEvents_[element]);
    }
}

// The engine uses a negative limit as 0.
Text VMemo::SpokenHint() const {
    return SpokenLimits(
        {std::max<std::int16_t>(m_MaxCharsPerLine, 0), std::max<std::int16_t>(m_MaxLines, 0)});
}

// ---- The boxes

host::TextBox& VMemo::Text1(std::int32_t index) const {
    if (index < 0 || index >= boxCount) {
        Raise(ErrorNumber::NoSuchArrayElement);
    }
    return *boxes_[static_cast<std::size_t>(index)];
}

template <typename Act>
void VMemo::ForBoxes(std::int16_t first, Act&& act) {
    for (m_BoxIndex = first; m_BoxIndex < boxCount; ++m_BoxIndex) {
        act(Text1(m_BoxIndex));
    }
}

// Reads a property of the active box.
template <typename Result, typename Read>
Result VMemo::Get(ProcedureName procedure, Read&& read) const {
    return module_.Function<Result>(procedure, [&](Result& result) { result = read(ActiveBox()); });
}

// Assigns a property of all boxes.
template <typename Put>
void VMemo::Let(ProcedureName procedure, TextView property, Put&& put) {
    module_.Procedure(procedure, [&] {
        ForBoxes(0, put);
        host_.container.PropertyChanged(property);
    });
}

// ---- Restrictions

// Restricts `text` to the limits. In apply mode, `text` is the content of box `index` after an
// edit, and the box is corrected. The result of a refused edit contains no usable text.
Restriction VMemo::ApplyRestrictions(std::int16_t index, TextView text, RestrictionMode mode) {
    return module_.Function<Restriction>(u"ApplyRestrictions", [&](Restriction& result) {
        m_MaxCharsPerLine = std::max<std::int16_t>(m_MaxCharsPerLine, 0);
        m_MaxLines = std::max<std::int16_t>(m_MaxLines, 0);
        if (m_MaxCharsPerLine == 0 && m_MaxLines == 0) {
            return;
        }
        result = Restrict(text, {m_MaxCharsPerLine, m_MaxLines}, mode);
        if (mode == RestrictionMode::Plain || result.Fits()) {
            m_AcceptedText = result.Of(text);
        } else {
            WriteBack(Text1(index), result);
        }
    });
}

void VMemo::WriteBack(host::TextBox& box, const Restriction& restriction) {
    {
        const RaisedFlag updating(m_Updating);
        if (restriction.refused) {
            box.SetText(m_AcceptedText);
        } else {
            box.SetText(restriction.cut);
            m_AcceptedText = restriction.cut;
            if (m_LastKeyCode == enterKey) {
                m_KeyDownSelStart = (Int32(m_KeyDownSelStart) + Int32(1)).Value();
            }
        }
    }
    box.SetSelLength(0);
    box.SetSelStart(m_KeyDownSelStart);
}

// ---- Properties of the boxes

Color VMemo::pGetForeColor() const {
    return Get<Color>(u"pGetForeColor", [](host::TextBox& box) { return box.ForeColor(); });
}

void VMemo::pLetForeColor(Color color) {
    Let(u"pLetForeColor", u"ForeColor", [&](host::TextBox& box) { box.SetForeColor(color); });
}

bool VMemo::pGetEnabled() const {
    return Get<bool>(u"pGetEnabled", [](host::TextBox& box) { return box.Enabled(); });
}

void VMemo::pLetEnabled(bool enabled) {
    Let(u"pLetEnabled", u"Enabled", [&](host::TextBox& box) { box.SetEnabled(enabled); });
}

host::FontRef VMemo::pGetFont() const {
    return Get<host::FontRef>(u"pGetFont", [](host::TextBox& box) { return box.CurrentFont(); });
}

void VMemo::pSetFont(host::FontRef font) {
    Let(u"pSetFont", u"Font", [&](host::TextBox& box) { box.SetCurrentFont(font); });
}

Text VMemo::pGetFontName() const {
    return Get<Text>(u"pGetFontName", [](host::TextBox& box) { return box.CurrentFont()->Name(); });
}

void VMemo::pLetFontName(TextView name) {
    Let(u"pLetFontName", u"FontName",
        [&](host::TextBox& box) { box.CurrentFont()->Let(fontName, Text(name)); });
}

float VMemo::pGetFontSize() const {
    return Get<float>(u"pGetFontSize",
                      [](host::TextBox& box) { return box.CurrentFont()->Size(); });
}

void VMemo::pLetFontSize(float points) {
    Let(u"pLetFontSize", u"FontSize",
        [&](host::TextBox& box) { box.CurrentFont()->Let(fontSize, points); });
}

bool VMemo::pGetLocked() const {
    return Get<bool>(u"pGetLocked", [](host::TextBox& box) { return box.Locked(); });
}

void VMemo::pLetLocked(bool locked) {
    Let(u"pLetLocked", u"Locked", [&](host::TextBox& box) { box.SetLocked(locked); });
}

std::int32_t VMemo::pGetMaxLength() const {
    return Get<std::int32_t>(u"pGetMaxLength", [&](host::TextBox& box) {
        const bool asHandle = ToText(host_.extender.Get(u"Tag")) == handleTag;
        return asHandle ? box.WindowHandle() : box.MaxLength();
    });
}

void VMemo::pLetMaxLength(std::int32_t length) {
    Let(u"pLetMaxLength", u"MaxLength", [&](host::TextBox& box) { box.SetMaxLength(length); });
}

host::MousePointer VMemo::pGetMousePointer() const {
    return Get<host::MousePointer>(u"pGetMousePointer",
                                   [](host::TextBox& box) { return box.Pointer(); });
}

void VMemo::pLetMousePointer(host::MousePointer pointer) {
    Let(u"pLetMousePointer", u"MousePointer", [&](host::TextBox& box) { box.SetPointer(pointer); });
}

host::ScrollBars VMemo::pGetScrollBars() const {
    return static_cast<host::ScrollBars>(m_ScrollBars);
}

void VMemo::pLetScrollBars(host::ScrollBars scrollBars) {
    module_.Procedure(u"pLetScrollBars", [&] {
        const auto n = static_cast<std::int32_t>(scrollBars);
        if (n != m_ScrollBars) {
            // Changing the text of the hidden box runs the restrictions, as an edit does.
            Text1(n).SetText(ActiveBox().GetText());
            Text1(n).SetVisible(true);
            ActiveBox().SetVisible(false);
        }
        m_ScrollBars = n;
        host_.container.PropertyChanged(u"ScrollBars");
    });
}

Text VMemo::pGetText() const {
    return Get<Text>(u"pGetText", [](host::TextBox& box) { return Text(box.GetText()); });
}

void VMemo::pLetText(TextView text) {
    module_.Procedure(u"pLetText", [&] {
        const Restriction restriction = ApplyRestrictions(0, text, RestrictionMode::Plain);
        const RaisedFlag updating(m_Updating);
        if (host_.container.CanPropertyChange(u"Text")) {
            ForBoxes(0, [&](host::TextBox& box) { box.SetText(restriction.Of(text)); });
            host_.container.PropertyChanged(u"Text");
        }
    });
}

// ---- Properties of the control itself

void VMemo::pLetMaxCharsPerLine(std::int16_t count) {
    m_MaxCharsPerLine = count;
    host_.container.PropertyChanged(u"MaxCharsPerLine");
}

void VMemo::pLetMaxLines(std::int16_t count) {
    m_MaxLines = count;
    host_.container.PropertyChanged(u"MaxLines");
}

void VMemo::pLetPageWidth(float width) {
    module_.Procedure(u"pLetPageWidth", [&] {
        host_.surface.SetCurrentFont(ActiveBox().CurrentFont());
        const double letter = host_.surface.TextWidth(u"A");
        pLetMaxCharsPerLine(RoundToInt16(Divide(width, letter)));
    });
}

// ---- Methods

void VMemo::Refresh() {
    module_.Procedure(u"Refresh", [&] { ActiveBox().Refresh(); });
}

void VMemo::TestMessage() {
    module_.Procedure(u"TestMessage", [] { Divide(1.0, 0.0); });
}

// ---- Called by the container

void VMemo::UserControl_InitProperties() {
    m_MaxCharsPerLine = persisted::maxCharsPerLine.defaultValue;
    m_MaxLines = persisted::maxLines.defaultValue;
    m_ScrollBars = persisted::scrollBars.defaultValue;
}

// Reads the saved text unchanged, whatever the limits are. It does not become the accepted text.
void VMemo::UserControl_ReadProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_ReadProperties", [&] {
        {
            const RaisedFlag updating(m_Updating);
            host::TextBox& box = Text1(0);
            box.SetForeColor(persisted::foreColor.Read(bag));
            box.SetEnabled(persisted::enabled.Read(bag));
            box.SetCurrentFont(
                host::ToFont(bag.ReadProperty(persisted::font, host_.ambient.AmbientFont())));
            box.SetLocked(persisted::locked.Read(bag));
            box.SetMaxLength(persisted::maxLength.Read(bag));
            box.SetPointer(persisted::mousePointer.Read(bag));
            box.SetText(persisted::text.Read(bag));
            m_MaxCharsPerLine = persisted::maxCharsPerLine.Read(bag);
            m_MaxLines = persisted::maxLines.Read(bag);
            m_ScrollBars = persisted::scrollBars.Read(bag);
            CopyProperties();
        }
        if (m_ScrollBars != 0) {
            ActiveBox().SetVisible(true);
            Text1(0).SetVisible(false);
        }
    });
}

void VMemo::CopyProperties() {
    module_.Procedure(u"CopyProperties", [&] {
        const host::TextBox& source = Text1(0);
        ForBoxes(1, [&](host::TextBox& box) {
            box.SetForeColor(source.ForeColor());
            box.SetEnabled(source.Enabled());
            box.SetCurrentFont(source.CurrentFont());
            box.SetLocked(source.Locked());
            box.SetMaxLength(source.MaxLength());
            box.SetPointer(source.Pointer());
            box.SetText(source.GetText());
        });
    });
}

void VMemo::UserControl_WriteProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_WriteProperties", [&] {
        host::TextBox& box = ActiveBox();
        persisted::foreColor.Write(bag, box.ForeColor());
        persisted::enabled.Write(bag, box.Enabled());
        bag.WriteProperty(persisted::font, box.CurrentFont(), host_.ambient.AmbientFont());
        persisted::fontName.Write(bag, box.CurrentFont()->Name());
        persisted::fontSize.Write(bag, box.CurrentFont()->Size());
        persisted::locked.Write(bag, box.Locked());
        persisted::maxLength.Write(bag, box.MaxLength());
        persisted::mousePointer.Write(bag, box.Pointer());
        persisted::text.Write(bag, Text(box.GetText()));
        persisted::maxCharsPerLine.Write(bag, m_MaxCharsPerLine);
        persisted::maxLines.Write(bag, m_MaxLines);
        persisted::scrollBars.Write(bag, m_ScrollBars);
    });
}

void VMemo::UserControl_Resize() {
    module_.Procedure(u"UserControl_Resize", [&] {
        ForBoxes(0, [&](host::TextBox& box) {
            box.Move({.width = host_.surface.ScaleWidth(), .height = host_.surface.ScaleHeight()});
        });
    });
}

}  // namespace lumenkit
