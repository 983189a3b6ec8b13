#include "voptlist/voptlist.h"

#include <utility>

#include "frame/persisted_property.h"
#include "frame/raised_flag.h"

namespace lumenkit {

namespace {

namespace persisted {

constexpr PersistedProperty<bool> enabled{u"Enabled", true};
constexpr TextView font = u"Font";  // default: the container's font
constexpr PersistedProperty<std::int16_t> borderStyle{u"BorderStyle", 1};
constexpr PersistedText caption{u"Caption", u"Frame1"};
constexpr PersistedText contents{u"Contents", u"0;Item 0"};
constexpr PersistedProperty<std::int16_t> itemAlignment{u"ItemAlignment", 0};
constexpr PersistedProperty<bool> itemFontBold{u"ItemFontBold", false};
constexpr PersistedProperty<bool> itemFontItalic{u"ItemFontItalic", false};
constexpr PersistedText itemFontName{u"ItemFontName", u"MS Sans Serif"};
constexpr PersistedProperty<float> itemFontSize{u"ItemFontSize", 8.25F};
constexpr PersistedProperty<Color> itemForeColor{u"ItemForeColor", Color::ButtonText};
constexpr PersistedProperty<float> leftMargin{u"LeftMargin", 0};
constexpr PersistedProperty<std::int16_t> listIndex{u"ListIndex", -1};
constexpr PersistedProperty<float> spacing{u"Spacing", 240};
constexpr PersistedProperty<float> topMargin{u"TopMargin", 0};

}  // namespace persisted

host::CaptionDesign FrameDesign() {
    host::CaptionDesign design;
    design.name = u"Frame1";
    design.caption = u"Caption";
    return design;
}

host::OptionButtonDesign ButtonDesign() {
    host::OptionButtonDesign design;
    design.name = u"Option1";
    design.caption = u"Item 0";
    return design;
}

}  // namespace

VOptList::VOptList(const ControlHost& host)
    : surface_(host.surface),
      container_(host.container),
      ambient_(host.ambient),
      screen_(host.screen),
      errors_(host.application, host.interaction),
      module_(errors_, u"VOPTLIST"),
      automation_(voptlistInterface, this),
      Frame1(host.constituents.AddFrame(FrameDesign())),
      Option1(host.constituents.AddOptionButtons(ButtonDesign(), *Frame1, *this)) {}

void VOptList::UserControl_Initialize() {
    ItemCount = 1;
    LoadedCount = 1;
    IgnoreClicks = false;
}

// The only button keeps its caption and its empty value until Contents is assigned or read.
void VOptList::UserControl_InitProperties() {
    Contents = persisted::contents.defaultValue;
    LeftMargin = persisted::leftMargin.defaultValue;
    Spacing = persisted::spacing.defaultValue;
    TopMargin = persisted::topMargin.defaultValue;
    MoveControls();
}

void VOptList::UserControl_ReadProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_ReadProperties", [&] {
        Frame1->SetEnabled(persisted::enabled.Read(bag));
        Frame1->SetCurrentFont(
            host::ToFont(bag.ReadProperty(persisted::font, ambient_.AmbientFont())));
        Frame1->SetBorderStyle(persisted::borderStyle.Read(bag));
        Frame1->SetCaption(persisted::caption.Read(bag));
        Contents = persisted::contents.Read(bag);
        host::OptionButton& model = Option1->Item(0);
        model.SetAlignment(persisted::itemAlignment.Read(bag));
        model.CurrentFont()->SetBold(persisted::itemFontBold.Read(bag));
        model.CurrentFont()->SetItalic(persisted::itemFontItalic.Read(bag));
        model.CurrentFont()->SetName(persisted::itemFontName.Read(bag));
        model.CurrentFont()->SetSize(persisted::itemFontSize.Read(bag));
        model.SetForeColor(persisted::itemForeColor.Read(bag));
        LeftMargin = persisted::leftMargin.Read(bag);
        const std::int16_t savedIndex = persisted::listIndex.Read(bag);
        Spacing = persisted::spacing.Read(bag);
        TopMargin = persisted::topMargin.Read(bag);

        const RaisedFlag ignoring(IgnoreClicks);
        SetupControls();
        CopyProperties();
        MoveControls();
        pLetListIndex(savedIndex);
    });
}

void VOptList::UserControl_WriteProperties(host::PropertyBag& bag) {
    module_.Procedure(u"UserControl_WriteProperties", [&] {
        persisted::enabled.Write(bag, Frame1->Enabled());
        bag.WriteProperty(persisted::font, Frame1->CurrentFont(), ambient_.AmbientFont());
        persisted::borderStyle.Write(bag, Frame1->BorderStyle());
        persisted::caption.Write(bag, Frame1->Caption());
        persisted::contents.Write(bag, Contents);
        const host::OptionButton& model = Option1->Item(0);
        persisted::itemAlignment.Write(bag, model.Alignment());
        persisted::itemFontBold.Write(bag, model.CurrentFont()->Bold());
        persisted::itemFontItalic.Write(bag, model.CurrentFont()->Italic());
        persisted::itemFontName.Write(bag, model.CurrentFont()->Name());
        persisted::itemFontSize.Write(bag, model.CurrentFont()->Size());
        persisted::itemForeColor.Write(bag, model.ForeColor());
        persisted::leftMargin.Write(bag, LeftMargin);
        persisted::listIndex.Write(bag, GetListIndex());
        persisted::spacing.Write(bag, Spacing);
        persisted::topMargin.Write(bag, TopMargin);
    });
}

template <typename Put>
void VOptList::LetOnFrame(ProcedureName procedure, TextView property, Put&& put) {
    module_.Procedure(procedure, [&] {
        put(*Frame1);
        container_.PropertyChanged(property);
    });
}

template <typename Put>
void VOptList::LetOnItems(ProcedureName procedure, TextView property, Put&& put) {
    module_.Procedure(procedure, [&] {
        RefuseAtRunTime(ErrorNumber::SetNotSupportedAtRunTime);
        put(Option1->Item(0));
        container_.PropertyChanged(property);
        CopyProperties();
    });
}

float VOptList::GetDistance(ProcedureName procedure, float distance) const {
    return Get<float>(procedure, [&] {
        RefuseAtRunTime(ErrorNumber::GetNotSupportedAtRunTime);
        return distance;
    });
}

void VOptList::LetDistance(ProcedureName procedure, TextView property, float& distance,
                           float value) {
    module_.Procedure(procedure, [&] {
        RefuseAtRunTime(ErrorNumber::SetNotSupportedAtRunTime);
        distance = value;
        container_.PropertyChanged(property);
        MoveControls();
    });
}

void VOptList::RefuseAtRunTime(ErrorNumber error) const {
    if (ambient_.UserMode()) {
        Raise(error);
    }
}

bool VOptList::pGetEnabled() const {
    return Get<bool>(u"pGetEnabled", [&] { return Frame1->Enabled(); });
}

void VOptList::pLetEnabled(bool enabled) {
    LetOnFrame(u"pLetEnabled", u"Enabled", [&](host::Frame& frame) { frame.SetEnabled(enabled); });
}

host::FontRef VOptList::pGetFont() const {
    return Get<host::FontRef>(u"pGetFont", [&] { return Frame1->CurrentFont(); });
}

void VOptList::pSetFont(host::FontRef font) {
    LetOnFrame(u"pSetFont", u"Font",
               [&](host::Frame& frame) { frame.SetCurrentFont(std::move(font)); });
}

std::int16_t VOptList::pGetBorderStyle() const {
    return Get<std::int16_t>(u"pGetBorderStyle", [&] { return Frame1->BorderStyle(); });
}

void VOptList::pLetBorderStyle(std::int16_t style) {
    LetOnFrame(u"pLetBorderStyle", u"BorderStyle",
               [&](host::Frame& frame) { frame.SetBorderStyle(style); });
}

void VOptList::Refresh() {
    module_.Procedure(u"Refresh", [&] { Frame1->Refresh(); });
}

Text VOptList::pGetCaption() const {
    return Get<Text>(u"pGetCaption", [&] { return Frame1->Caption(); });
}

void VOptList::pLetCaption(TextView caption) {
    LetOnFrame(u"pLetCaption", u"Caption", [&](host::Frame& frame) { frame.SetCaption(caption); });
}

void VOptList::pLetContents(TextView contents) {
    module_.Procedure(u"pLetContents", [&] {
        Contents = contents;
        container_.PropertyChanged(u"Contents");
        if (SetupControls()) {
            CopyProperties();
            MoveControls();
        }
    });
}

std::int16_t VOptList::pGetItemAlignment() const {
    return Get<std::int16_t>(u"pGetItemAlignment", [&] { return Option1->Item(0).Alignment(); });
}

void VOptList::pLetItemAlignment(std::int16_t alignment) {
    LetOnItems(u"pLetItemAlignment", u"ItemAlignment",
               [&](host::OptionButton& model) { model.SetAlignment(alignment); });
}

void VOptList::pLetItemCaption(std::int16_t index, TextView caption) {
    module_.Procedure(u"pLetItemCaption", [&] {
        if (index >= 0 && index < ItemCount) {
            shown_.reset();
            Option1->Item(index).SetCaption(caption);
        }
    });
}

bool VOptList::pGetItemFontBold() const {
    return Get<bool>(u"pGetItemFontBold", [&] { return Option1->Item(0).CurrentFont()->Bold(); });
}

void VOptList::pLetItemFontBold(bool bold) {
    LetOnItems(u"pLetItemFontBold", u"ItemFontBold",
               [&](host::OptionButton& model) { model.CurrentFont()->SetBold(bold); });
}

bool VOptList::pGetItemFontItalic() const {
    return Get<bool>(u"pGetItemFontItalic",
                     [&] { return Option1->Item(0).CurrentFont()->Italic(); });
}

void VOptList::pLetItemFontItalic(bool italic) {
    LetOnItems(u"pLetItemFontItalic", u"ItemFontItalic",
               [&](host::OptionButton& model) { model.CurrentFont()->SetItalic(italic); });
}

Text VOptList::pGetItemFontName() const {
    return Get<Text>(u"pGetItemFontName", [&] { return Option1->Item(0).CurrentFont()->Name(); });
}

void VOptList::pLetItemFontName(TextView name) {
    LetOnItems(u"pLetItemFontName", u"ItemFontName",
               [&](host::OptionButton& model) { model.CurrentFont()->SetName(name); });
}

float VOptList::pGetItemFontSize() const {
    return Get<float>(u"pGetItemFontSize", [&] { return Option1->Item(0).CurrentFont()->Size(); });
}

void VOptList::pLetItemFontSize(float points) {
    LetOnItems(u"pLetItemFontSize", u"ItemFontSize",
               [&](host::OptionButton& model) { model.CurrentFont()->SetSize(points); });
}

Color VOptList::pGetItemForeColor() const {
    return Get<Color>(u"pGetItemForeColor", [&] { return Option1->Item(0).ForeColor(); });
}

void VOptList::pLetItemForeColor(Color color) {
    LetOnItems(u"pLetItemForeColor", u"ItemForeColor",
               [&](host::OptionButton& model) { model.SetForeColor(color); });
}

float VOptList::pGetLeftMargin() const {
    return GetDistance(u"pGetLeftMargin", LeftMargin);
}

void VOptList::pLetLeftMargin(float margin) {
    LetDistance(u"pLetLeftMargin", u"LeftMargin", LeftMargin, margin);
}

float VOptList::pGetSpacing() const {
    return GetDistance(u"pGetSpacing", Spacing);
}

void VOptList::pLetSpacing(float spacing) {
    LetDistance(u"pLetSpacing", u"Spacing", Spacing, spacing);
}

float VOptList::pGetTopMargin() const {
    return GetDistance(u"pGetTopMargin", TopMargin);
}

void VOptList::pLetTopMargin(float margin) {
    LetDistance(u"pLetTopMargin", u"TopMargin", TopMargin, margin);
}

}  // namespace lumenkit
