#include "apps/lumenform/form_view/plain_kinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "apps/lumenform/form_view/command_button.h"
#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/form_view/likeness/likeness_table.h"
#include "apps/lumenform/form_view/line_edit.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "apps/lumenform/form_view/shapes.h"
#include "forms/controls.h"
#include "runtime/qt/frame_widget.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr WidgetColors windowColors = {Color::WindowText, Color::WindowBackground};

QString Caption(const BlockReader& reader) {
    return qt::ToQString(reader.String(u"Caption"));
}

Qt::Alignment AlignmentOf(const BlockReader& reader) {
    switch (reader.Whole(u"Alignment", 0)) {
        case 1:
            return Qt::AlignRight;
        case 2:
            return Qt::AlignHCenter;
        default:
            return Qt::AlignLeft;
    }
}

void SetBorder(QFrame& frame, std::int32_t style) {
    frame.setFrameStyle(style == 0 ? int{QFrame::NoFrame}
                                   : int{QFrame::StyledPanel} | int{QFrame::Sunken});
}

PlainWidget MakeLabel(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto label = std::make_unique<QLabel>();
    label->setTextFormat(Qt::PlainText);
    label->setText(Caption(reader));
    label->setAlignment(AlignmentOf(reader) | Qt::AlignTop);
    label->setWordWrap(!reader.Flag(u"AutoSize", false) || reader.Flag(u"WordWrap", false));
    label->setAutoFillBackground(reader.Whole(u"BackStyle", 1) == 1);
    SetBorder(*label, reader.Whole(u"BorderStyle", 0));
    return {std::move(label)};
}

PlainWidget MakeMultiLine(const BlockReader& reader, const PlainSink& raise) {
    enum ScrollBars : std::int32_t { Horizontal = 1, Vertical = 2 };
    auto box = std::make_unique<QPlainTextEdit>(qt::ToQString(reader.String(u"Text")));
    const std::int32_t bars = reader.Whole(u"ScrollBars", 0);
    const auto policy = [&](ScrollBars bar) {
        return (bars & bar) != 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
    };
    box->setHorizontalScrollBarPolicy(policy(Horizontal));
    box->setVerticalScrollBarPolicy(policy(Vertical));
    box->setLineWrapMode((bars & Horizontal) != 0 ? QPlainTextEdit::NoWrap
                                                  : QPlainTextEdit::WidgetWidth);
    box->setReadOnly(reader.Flag(u"Locked", false));
    box->setTabChangesFocus(true);
    SetBorder(*box, reader.Whole(u"BorderStyle", 1));
    // Qt also reports what an input method composes and drops.
    QObject::connect(box.get(), &QPlainTextEdit::textChanged,
                     [raise, edit = box.get(), text = box->toPlainText()]() mutable {
                         if (QString now = edit->toPlainText(); now != text) {
                             text = std::move(now);
                             raise(u"Change");
                         }
                     });
    return {std::move(box)};
}

PlainWidget MakeTextBox(const BlockReader& reader, const PlainSink& raise) {
    if (reader.Flag(u"MultiLine", false)) {
        return MakeMultiLine(reader, raise);
    }
    auto box = std::make_unique<LineEdit>(qt::ToQString(reader.String(u"Text")));
    box->setAlignment(AlignmentOf(reader) | Qt::AlignVCenter);
    box->setReadOnly(reader.Flag(u"Locked", false));
    box->setFrame(reader.Whole(u"BorderStyle", 1) != 0);
    if (const std::int32_t length = reader.Whole(u"MaxLength", 0); length > 0) {
        box->setMaxLength(length);
    }
    if (!reader.String(u"PasswordChar").empty()) {
        box->setEchoMode(QLineEdit::Password);
    }
    QObject::connect(box.get(), &QLineEdit::textChanged, [raise] { raise(u"Change"); });
    return {std::move(box)};
}

template <typename Button>
std::unique_ptr<Button> NewButton(const BlockReader& reader, const PlainSink& raise) {
    auto button = std::make_unique<Button>();
    button->setText(Caption(reader));
    QObject::connect(button.get(), &QAbstractButton::clicked, [raise] { raise(u"Click"); });
    return button;
}

PlainWidget MakeButton(const BlockReader& reader, const PlainSink& raise) {
    auto button = NewButton<CommandButton>(reader, raise);
    button->SetKeys(
        {.enter = reader.Flag(u"Default", false), .escape = reader.Flag(u"Cancel", false)});
    if (const QPixmap picture = PictureIn(reader.Record(u"Picture")); !picture.isNull()) {
        button->setIcon(picture);
        button->setIconSize(picture.size());
    }
    return {std::move(button)};
}

template <typename Button>
std::unique_ptr<Button> NewMarkedButton(const BlockReader& reader, const PlainSink& raise) {
    auto button = NewButton<Button>(reader, raise);
    button->setAutoFillBackground(true);
    button->setBackgroundRole(QPalette::Window);
    if (reader.Whole(u"Alignment", 0) == 1) {
        button->setLayoutDirection(Qt::RightToLeft);
    }
    return button;
}

PlainWidget MakeCheckBox(const BlockReader& reader, const PlainSink& raise) {
    auto box = NewMarkedButton<QCheckBox>(reader, raise);
    switch (reader.Whole(u"Value", 0)) {
        case 0:
            break;
        case 1:
            box->setChecked(true);
            break;
        default:
            box->setCheckState(Qt::PartiallyChecked);
            box->setTristate(false);
    }
    return {std::move(box)};
}

PlainWidget MakeOptionButton(const BlockReader& reader, const PlainSink& raise) {
    auto button = NewMarkedButton<QRadioButton>(reader, raise);
    button->setChecked(reader.Flag(u"Value", false));
    return {std::move(button)};
}

PlainWidget MakeFrame(const BlockReader& reader, const PlainSink& /*raise*/) {
    auto frame = std::make_unique<qt::FrameWidget>();
    frame->setTitle(Caption(reader));
    frame->SetBordered(reader.Whole(u"BorderStyle", 1) != 0);
    frame->setAutoFillBackground(true);
    return {std::move(frame)};
}

QStringList Items(const BlockReader& reader) {
    QStringList items;
    for (const Text& item : ItemsOf(reader.Record(u"List"), reader.Document().FormCodePage())) {
        items.append(qt::ToQString(item));
    }
    return items;
}

PlainWidget MakeListBox(const BlockReader& reader, const PlainSink& raise) {
    auto list = std::make_unique<QListWidget>();
    list->addItems(Items(reader));
    QObject::connect(list.get(), &QListWidget::itemSelectionChanged, [raise] { raise(u"Click"); });
    return {std::move(list)};
}

PlainWidget MakeComboBox(const BlockReader& reader, const PlainSink& raise) {
    constexpr std::int32_t dropDownList = 2;
    auto box = std::make_unique<QComboBox>();
    box->addItems(Items(reader));
    if (reader.Whole(u"Style", 0) != dropDownList) {
        box->setEditable(true);
        box->setEditText(qt::ToQString(reader.String(u"Text")));
        QObject::connect(box.get(), &QComboBox::editTextChanged, [raise] { raise(u"Change"); });
    }
    QObject::connect(box.get(), &QComboBox::activated, [raise] { raise(u"Click"); });
    return {std::move(box)};
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
