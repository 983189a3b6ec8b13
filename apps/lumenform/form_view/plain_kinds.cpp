#include "apps/lumenform/form_view/plain_kinds.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/button_kinds.h"
#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/label_kind.h"
#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/form_view/likeness/likeness_table.h"
#include "apps/lumenform/form_view/list_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "apps/lumenform/form_view/shapes.h"
#include "apps/lumenform/form_view/shared_properties.h"
#include "apps/lumenform/form_view/text_kinds.h"
#include "forms/controls.h"
#include "runtime/qt/frame_widget.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr WidgetColors windowColors = {Color::WindowText, Color::WindowBackground};

PlainWidget MakeFrame(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto frame = std::make_unique<qt::FrameWidget>();
    frame->setTitle(CaptionOf(reader));
    frame->SetBordered(reader.Whole(u"BorderStyle", 1) != 0);
    frame->setAutoFillBackground(true);
    return {std::move(frame)};
}

PlainWidget MakePictureBox(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto frame = std::make_unique<QFrame>();
    SetBorder(*frame, reader.Whole(u"BorderStyle", 1));
    frame->setAutoFillBackground(true);
    auto inside = std::make_unique<QLabel>();
    inside->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    inside->setPixmap(PictureIn(reader.Record(u"Picture")));
    inside->setMinimumSize(1, 1);  // the box clips the picture
    auto* const layout = new QVBoxLayout(frame.get());
    layout->setContentsMargins(0, 0, 0, 0);
    const int border = frame->frameWidth();
    PlainWidget made{.widget = std::move(frame), .inside = inside.get(), .border = border};
    layout->addWidget(inside.release());
    return made;
}

PlainWidget MakeImage(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto image = std::make_unique<QLabel>();
    image->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    image->setPixmap(PictureIn(reader.Record(u"Picture")));
    image->setScaledContents(reader.Flag(u"Stretch", false));
    SetBorder(*image, reader.Whole(u"BorderStyle", 0));
    return {std::move(image)};
}

template <Qt::Orientation orientation>
PlainWidget MakeScrollBar(const BlockReader& reader, const PlainSink& raise) {
    constexpr std::int32_t largest = 32767;
    const std::int32_t first = reader.Whole(u"Min", 0);
    const std::int32_t last = reader.Whole(u"Max", largest);
    auto bar = std::make_unique<QScrollBar>(orientation);
    bar->setRange(std::min(first, last), std::max(first, last));
    bar->setInvertedAppearance(first > last);
    bar->setSingleStep(std::max(reader.Whole(u"SmallChange", 1), 1));
    bar->setPageStep(std::max(reader.Whole(u"LargeChange", 1), 1));
    bar->setValue(reader.Whole(u"Value", 0));
    bar->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(bar.get(), &QScrollBar::valueChanged, [raise] { raise(u"Change"); });
    return {std::move(bar)};
}

PlainWidget MakeLine(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto line = std::make_unique<LineWidget>(Stroke::Of(reader));
    const int reach = line->Reach();
    return {.widget = std::move(line), .reach = reach};
}

PlainWidget MakeShape(const BlockReader& reader, const PlainSink& /*raise*/) {
    using Form = ShapeWidget::Form;
    constexpr auto forms = static_cast<std::int32_t>(Form::RoundedSquare) + 1;
    auto shape = std::make_unique<ShapeWidget>(static_cast<Form>(reader.Choice(u"Shape", forms, 0)),
                                               Stroke::Of(reader), Filling::Of(reader));
    const int reach = shape->Reach();
    return {.widget = std::move(shape), .reach = reach};
}

PlainWidget MakeBox(const BlockReader& reader, const PlainSink& /*raise*/) {
    return {std::make_unique<LabelledBox>(qt::ToQString(forms::NameInCode(reader.Block())),
                                          qt::ToQString(reader.Block().ClassName()))};
}

constexpr std::array kinds = {
    PlainKind{.className = u"VB.CheckBox", .make = MakeCheckBox},
    PlainKind{.className = u"VB.ComboBox", .make = MakeComboBox, .usual = windowColors},
    PlainKind{.className = u"VB.CommandButton", .make = MakeButton},
    PlainKind{
        .className = u"VB.Frame", .make = MakeFrame, .tab = TabRole::Index, .isContainer = true},
    PlainKind{
        .className = u"VB.HScrollBar", .make = MakeScrollBar<Qt::Horizontal>, .isField = true},
    PlainKind{.className = u"VB.Image", .make = MakeImage, .tab = TabRole::None, .isInBack = true},
    PlainKind{.className = u"VB.Label", .make = MakeLabel, .tab = TabRole::Index, .isInBack = true},
    PlainKind{.className = u"VB.Line", .make = MakeLine, .tab = TabRole::None, .isInBack = true},
    PlainKind{
        .className = u"VB.ListBox", .make = MakeListBox, .usual = windowColors, .isField = true},
    PlainKind{.className = u"VB.OptionButton", .make = MakeOptionButton},
    PlainKind{
        .className = u"VB.PictureBox", .make = MakePictureBox, .isContainer = true, .docks = true},
    PlainKind{.className = u"VB.Shape",
              .make = MakeShape,
              .usual = windowColors,
              .tab = TabRole::None,
              .isInBack = true},
    PlainKind{
        .className = u"VB.TextBox", .make = MakeTextBox, .usual = windowColors, .isField = true},
    PlainKind{.className = u"VB.VScrollBar", .make = MakeScrollBar<Qt::Vertical>, .isField = true},
};
constexpr PlainKind unknown = {.className = {}, .make = MakeBox};
// A component without a saved size is invisible at run time.
constexpr PlainKind unseen = {
    .className = {}, .make = MakeBox, .place = iconPlace, .isSeen = false};

}  // namespace

const PlainKind& PlainKindOf(const forms::Block& block) {
    const auto* const found = std::ranges::find_if(kinds, [&](const PlainKind& kind) {
        return SameText(kind.className, block.ClassName(), Compare::IgnoreCase);
    });
    if (found != kinds.end()) {
        return *found;
    }
    if (const PlainKind* const likeness = LikenessOf(block.ClassName())) {
        return *likeness;
    }
    const bool hasSize =
        block.FindProperty(u"Width") != nullptr || block.FindProperty(u"Height") != nullptr;
    return hasSize ? unknown : unseen;
}

}  // namespace lumenkit::lumenform
