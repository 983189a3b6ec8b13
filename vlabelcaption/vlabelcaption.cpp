#include "vlabelcaption/vlabelcaption.h"

#include "frame/checked_integer.h"
#include "frame/numbers.h"
#include "frame/text_positions.h"
#include "vlabelcaption/caption_shortcuts.h"
#include "vlabelcaption/page_layout.h"

namespace lumenkit {

namespace {

// Identifiers of the preview's members.
constexpr std::int32_t captionMember = defaultMember;
constexpr std::int32_t bulletPrefixMember = UserProperty(2);
constexpr std::int32_t bulletIndentMember = UserProperty(3);
constexpr std::int32_t wordWrapMember = UserProperty(4);

constexpr std::int32_t magnifiedUnits = 4;

// Returns the indent to apply; negative when the text is not a valid indent.
double IndentOf(TextView text) {
    constexpr double largestIndent = 9999;
    constexpr double noIndent = -1;
    try {
        const double indent = NumericValue(text).value_or(noIndent);
        return indent > largestIndent ? noIndent : indent;
    } catch (const RuntimeError&) {  // a number out of range
        return noIndent;
    }
}

ObjectRef FontFrom(const Value& value) {
    ObjectRef font = ToObject(value);
    if (!font) {
        Raise(ErrorNumber::ObjectNotSet);
    }
    return font;
}

host::Design DesignOf(TextView name, const page_layout::Part& part,
                      host::Constituent* parent = nullptr) {
    host::Design design;
    design.name = name;
    design.parent = parent;
    design.placement = part.placement;
    design.movingEdges = part.movingEdges;
    return design;
}

host::CaptionDesign CaptionDesignOf(TextView name, const page_layout::Part& part, TextView caption,
                                    char16_t accessKey = 0) {
    host::CaptionDesign design;
    static_cast<host::Design&>(design) = DesignOf(name, part);
    design.caption = caption;
    design.accessKey = accessKey;
    return design;
}

// Adds a label of the magnifier, which is visible only while the caption box has the focus.
std::unique_ptr<host::Label> AddMagnifierLabel(host::Constituents& parts, TextView name,
                                               const page_layout::Part& part, TextView caption,
                                               Color foreColor, Color backColor) {
    host::CaptionDesign design = CaptionDesignOf(name, part, caption);
    design.fontName = u"Courier";
    design.fontSize = page_layout::magnifierFontSize;
    design.useMnemonic = false;
    design.visible = false;
    std::unique_ptr<host::Label> label = parts.AddLabel(design);
    label->SetForeColor(foreColor);
    label->SetBackColor(backColor);
    return label;
}

std::unique_ptr<host::Label> AddSurroundings(host::Constituents& parts, TextView name,
                                             const page_layout::Part& part, TextView caption) {
    return AddMagnifierLabel(parts, name, part, caption, Color::WindowText,
                             Color::WindowBackground);
}

std::unique_ptr<host::Label> AddMiddle(host::Constituents& parts, TextView name,
                                       const page_layout::Part& part, TextView caption) {
    return AddMagnifierLabel(parts, name, part, caption, Color::HighlightText, Color::Highlight);
}

host::TextBoxDesign TextBoxDesignOf(TextView name, const page_layout::Part& part) {
    host::TextBoxDesign design;
    static_cast<host::Design&>(design) = DesignOf(name, part);
    return design;
}

void MoveTo(host::Constituent& constituent, float left, float top) {
    host::Placement place = constituent.Place();
    place.left = left;
    place.top = top;
    constituent.Move(place);
}

float RightEdge(const host::Constituent& constituent) {
    return constituent.Place().left + constituent.Place().width;
}

}  // namespace

VLabelCaption::VLabelCaption(const PageHost& host)
    : site_(host.site),
      selectedControls_(host.selectedControls),
      interaction_(host.interaction),
      automation_(vlabelCaptionInterface, this) {
    // In tab order.
    AddCaption(host.constituents);
    AddMagnifier(host.constituents);
    AddSettings(host.constituents);
    AddPreview(host.constituents);
}

void VLabelCaption::AddCaption(host::Constituents& parts) {
    // OK, Cancel and Apply of the window around the page have O, C and A.
    lblCaption =
        parts.AddLabel(CaptionDesignOf(u"lblCaption", page_layout::lblCaption, u"Caption:", u'T'));
    host::TextBoxDesign caption = TextBoxDesignOf(u"txtCaption", page_layout::txtCaption);
    caption.multiLine = true;
    caption.scrollBars = host::ScrollBars::Vertical;
    txtCaption = parts.AddTextBox(caption, captionEvents_);
    Label1 = parts.AddLabel(CaptionDesignOf(
        u"Label1", page_layout::Label1,
        u" ^S=SelectNext, ^B=Bold, ^N=Normal, ^I=Italic on, ^O=italic Off, ^G=Green, ^L=Linespc"));
    cmdHelp = parts.AddCommandButton(
        CaptionDesignOf(u"cmdHelp", page_layout::cmdHelp, u"Keys Help", u'K'), helpEvents_);
}

void VLabelCaption::AddMagnifier(host::Constituents& parts) {
    labLeft = AddSurroundings(parts, u"labLeft", page_layout::labLeft, u"left");
    labChar = AddMiddle(parts, u"labChar", page_layout::labChar, u"C");
    labSelect = AddMiddle(parts, u"labSelect", page_layout::labSelect, u"select");
    labSelect->SetAutoSize(true);
    labRight = AddSurroundings(parts, u"labRight", page_layout::labRight, u"righ");
}

void VLabelCaption::AddSettings(host::Constituents& parts) {
    lblBulletPrefix = parts.AddLabel(
        CaptionDesignOf(u"lblBulletPrefix", page_layout::lblBulletPrefix, u"Bullet Prefix:", u'P'));
    txtBulletPrefix = parts.AddTextBox(
        TextBoxDesignOf(u"txtBulletPrefix", page_layout::txtBulletPrefix), prefixEvents_);
    lblBulletIndent = parts.AddLabel(
        CaptionDesignOf(u"lblBulletIndent", page_layout::lblBulletIndent, u"Bullet Indent:", u'I'));
    txtBulletIndent = parts.AddTextBox(
        TextBoxDesignOf(u"txtBulletIndent", page_layout::txtBulletIndent), indentEvents_);
    chkWordWrap = parts.AddCheckBox(
        CaptionDesignOf(u"chkWordWrap", page_layout::chkWordWrap, u"Word Wrap", u'W'), wrapEvents_);
}

void VLabelCaption::AddPreview(host::Constituents& parts) {
    Picture1 = parts.AddPictureBox(DesignOf(u"Picture1", page_layout::Picture1));
    const page_layout::Part bar = {{0, 0, page_layout::scrollBarSize, page_layout::scrollBarSize}};
    HScroll1 = parts.AddScrollBar(DesignOf(u"HScroll1", bar, Picture1.get()),
                                  host::Orientation::Horizontal, horizontalEvents_);
    VScroll1 = parts.AddScrollBar(DesignOf(u"VScroll1", bar, Picture1.get()),
                                  host::Orientation::Vertical, verticalEvents_);
    const page_layout::Part preview = {{0, 0, Picture1->ScaleWidth(), Picture1->ScaleHeight()}};
    VLabel1 = parts.AddControl(DesignOf(u"VLabel1", preview, Picture1.get()), u"lumenkit.VLabel");
    FontFrom(VLabel1->Automation().Get(stockFont))->Let(u"Name", Text(u"MS Sans Serif"));
}

void VLabelCaption::PropertyPage_Initialize() {
    // The vertical bar has the full height; the horizontal one ends at its left edge.
    const float innerHeight = Picture1->ScaleHeight();
    const host::Placement vertical = VScroll1->Place();
    VScroll1->Move({Picture1->ScaleWidth() - vertical.width, 0, vertical.width, innerHeight});
    const host::Placement horizontal = HScroll1->Place();
    HScroll1->Move({0, innerHeight - horizontal.height, VScroll1->Place().left, horizontal.height});
    VScroll1->SetLargeChange(RoundToInt16(VisibleHeight()));
    HScroll1->SetLargeChange(RoundToInt16(VisibleWidth()));
    VScroll1->SetSmallChange(RoundToInt16(VisibleHeight() / 5));
    HScroll1->SetSmallChange(RoundToInt16(VisibleWidth() / 15));
    MoveTo(*labChar, RightEdge(*labLeft), labChar->Place().top);
    MoveTo(*labSelect, labChar->Place().left, labSelect->Place().top);
}

void VLabelCaption::PropertyPage_SelectionChanged() {
    const ObjectRef edited = selectedControls_.Item(0);
    txtBulletPrefix->SetText(ToText(edited->Get(u"BulletPrefix")));
    txtBulletIndent->SetText(ToText(edited->Get(u"BulletIndent")));
    const std::int16_t wrap = ToInteger(edited->Get(u"WordWrap"));
    chkWordWrap->SetCheckState(static_cast<std::int16_t>(wrap & 1));
    txtCaption->SetText(ToText(edited->Get(u"Caption")));
    RefreshPreview();
}

void VLabelCaption::PropertyPage_ApplyChanges() {
    const double indent = IndentOf(txtBulletIndent->GetText());
    if (indent < 0) {
        interaction_.Beep();
        interaction_.MsgBox(u"Illegal indent. Must be 0 to 9999", host::MessageStyle::OkOnly,
                            std::nullopt);
        return;
    }
    const ObjectRef edited = selectedControls_.Item(0);
    edited->Let(u"BulletPrefix", Text(txtBulletPrefix->GetText()));
    edited->Let(u"BulletIndent", RoundToInt16(indent));
    // Only the checked state applies word wrap here; the preview also wraps in the greyed state.
    edited->Let(u"WordWrap", chkWordWrap->CheckState() == 1);
    edited->Let(u"Caption", Text(txtCaption->GetText()));
}

// ---- The preview

void VLabelCaption::RefreshPreview() {
    const ObjectRef edited = selectedControls_.Item(0);
    const float width = ToSingle(edited->Call(u"GetProperty", {Text(u"Width")}));
    float height = ToSingle(edited->Call(u"GetProperty", {Text(u"Height")}));
    // The preview is at least as high as its visible area.
    if (height < VisibleHeight()) {
        height = VisibleHeight();
    }
    VLabel1->Automation().Let(captionMember, Text(u"."));  // quick to draw during the setup
    VLabel1->Move({0, 0, width, height});
    CopyAppearance(*edited);
    PreviewBulletIndent();
    PreviewBulletPrefix();
    PreviewWordWrap();
    PreviewCaption();
    SetUpScrollBars(width, height);
}

void VLabelCaption::CopyAppearance(Object& edited) {
    const ObjectRef source = FontFrom(edited.Get(u"Font"));
    const ObjectRef target = FontFrom(VLabel1->Automation().Get(stockFont));
    for (const TextView attribute : {u"Name", u"Size", u"Bold", u"Italic"}) {
        target->Let(attribute, source->Get(attribute));
    }
    VLabel1->Automation().Let(stockBackColor, edited.Get(u"BackColor"));
    VLabel1->Automation().Let(stockForeColor, edited.Get(u"ForeColor"));
}

float VLabelCaption::VisibleWidth() const {
    return VScroll1->Place().left;
}

float VLabelCaption::VisibleHeight() const {
    return HScroll1->Place().top;
}

void VLabelCaption::SetUpScrollBars(float width, float height) {
    const float visibleWidth = VisibleWidth();
    const float visibleHeight = VisibleHeight();
    HScroll1->SetEnabled(false);
    VScroll1->SetEnabled(false);
    HScroll1->SetScrollValue(0);
    VScroll1->SetScrollValue(0);
    // A bar reduces the visible length in the other direction, hence the second comparison.
    if (width > Picture1->ScaleWidth()) {
        HScroll1->SetEnabled(true);
        VScroll1->SetEnabled(height > visibleHeight);
    } else if (height > Picture1->ScaleHeight()) {
        VScroll1->SetEnabled(true);
        HScroll1->SetEnabled(width > visibleWidth);
    }
    if (HScroll1->Enabled()) {
        HScroll1->SetMax(RoundToInt16(width - visibleWidth));
        HScroll1->SetLargeChange(RoundToInt16(visibleWidth));
    }
    if (VScroll1->Enabled()) {
        VScroll1->SetMax(RoundToInt16(height - visibleHeight));
        VScroll1->SetLargeChange(RoundToInt16(visibleHeight));
    }
    HScroll1->SetVisible(HScroll1->Enabled());
    VScroll1->SetVisible(VScroll1->Enabled());
}

void VLabelCaption::HScroll1_Change() {
    if (HScroll1->Visible()) {
        MoveTo(*VLabel1, static_cast<float>(-HScroll1->ScrollValue()), VLabel1->Place().top);
    }
}

void VLabelCaption::VScroll1_Change() {
    if (VScroll1->Visible()) {
        MoveTo(*VLabel1, VLabel1->Place().left, static_cast<float>(-VScroll1->ScrollValue()));
    }
}

void VLabelCaption::PreviewCaption() {
    VLabel1->Automation().Let(captionMember, Text(txtCaption->GetText()));
}

void VLabelCaption::PreviewBulletPrefix() {
    VLabel1->Automation().Let(bulletPrefixMember, Text(txtBulletPrefix->GetText()));
}

void VLabelCaption::PreviewBulletIndent() {
    VLabel1->Automation().Let(bulletIndentMember,
                              RoundToInt16(ParseNumber(txtBulletIndent->GetText())));
}

void VLabelCaption::PreviewWordWrap() {
    VLabel1->Automation().Let(wordWrapMember, chkWordWrap->CheckState() != 0);
}

// ---- Live editing

void VLabelCaption::txtCaption_Change() {
    site_.SetChanged(true);
    PreviewCaption();
}

void VLabelCaption::txtBulletPrefix_Change() {
    site_.SetChanged(true);
    PreviewBulletPrefix();
}

void VLabelCaption::txtBulletIndent_Change() {
    site_.SetChanged(true);
    PreviewBulletIndent();
}

void VLabelCaption::chkWordWrap_Click() {
    site_.SetChanged(true);
    PreviewWordWrap();
}

void VLabelCaption::txtBulletIndent_KeyPress(std::int16_t& KeyAscii) {
    constexpr std::int16_t backspace = 8;
    if (KeyAscii != backspace && (KeyAscii < u'0' || KeyAscii > u'9')) {
        KeyAscii = 0;
    }
}

// ---- The magnifier

void VLabelCaption::ShowSelection() {
    txtCaption->GetSelection(SelStart, SelEnd);
    NoSelection = SelStart == SelEnd;
    const TextView text = txtCaption->GetText();
    labLeft->SetCaption(Right(Left(text, SelStart), magnifiedUnits));
    const host::Label& middle = NoSelection ? *labChar : *labSelect;
    if (NoSelection) {
        labSelect->SetVisible(false);
        labChar->SetCaption(Mid(text, SelStart + 1, 1));
        labChar->SetVisible(true);
    } else {
        labChar->SetVisible(false);
        labSelect->SetCaption(Mid(text, SelStart + 1, SelEnd - SelStart));
        host::Placement place = labSelect->Place();
        place.height = labLeft->Place().height;
        labSelect->Move(place);
        labSelect->SetVisible(true);
    }
    MoveTo(*labRight, RightEdge(middle), labRight->Place().top);
    labRight->SetCaption(Mid(text, NoSelection ? SelStart + 2 : SelEnd + 1, magnifiedUnits));
}

void VLabelCaption::txtCaption_GotFocus() {
    labLeft->SetVisible(true);
    labRight->SetVisible(true);
    ShowSelection();
}

void VLabelCaption::txtCaption_LostFocus() {
    labLeft->SetVisible(false);
    labChar->SetVisible(false);
    labSelect->SetVisible(false);
    labRight->SetVisible(false);
}

void VLabelCaption::txtCaption_KeyUp() {
    ShowSelection();
}

void VLabelCaption::txtCaption_MouseUp() {
    ShowSelection();
}

// ---- Shortcuts

void VLabelCaption::txtCaption_KeyPress(std::int16_t& KeyAscii) {
    ShowSelection();
    if (KeyAscii == selectNextKey) {
        SelectNext();
        return;
    }
    const MarkupKey* key = FindMarkupKey(KeyAscii);
    if (key == nullptr) {
        return;
    }
    if (key->swallowed) {
        KeyAscii = 0;
    }
    if (NoSelection || key->replaces) {
        InsertToken(key->token);
    } else {
        interaction_.Beep();
    }
}

void VLabelCaption::InsertToken(TextView token) {
    // SetText moves the selection, and a handler may update SelStart and NoSelection meanwhile.
    const std::int32_t start = SelStart;
    const std::int32_t end = start + Len(token);
    const bool noSelection = NoSelection;
    const TextView text = txtCaption->GetText();
    Text edited(Left(text, start));
    edited.append(token).append(Mid(text, SelEnd + 1));
    txtCaption->SetText(edited);
    txtCaption->SetSelection(noSelection ? end : start, end);
}

void VLabelCaption::SelectNext() {
    const std::optional<CaptionSelection> next =
        NextSelection(txtCaption->GetText(), NoSelection ? SelStart : SelEnd);
    if (next) {
        txtCaption->SetSelection(next->start, next->end);
    }
}

void VLabelCaption::cmdHelp_Click() {
    interaction_.MsgBox(MarkupKeysHelp(), host::MessageStyle::OkOnly,
                        u"Shortcut Keys (while editing caption)");
}

}  // namespace lumenkit
