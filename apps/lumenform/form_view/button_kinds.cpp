#include "apps/lumenform/form_view/button_kinds.h"

#include "apps/lumenform/form_view/command_button.h"
#include "apps/lumenform/form_view/marked_button.h"
#include "apps/lumenform/form_view/shared_properties.h"

namespace lumenkit::lumenform {

namespace {

void SetUpButton(QAbstractButton& button, const BlockReader& reader, const PlainSink& raise) {
    button.setText(CaptionOf(reader));
    QObject::connect(&button, &QAbstractButton::clicked, [raise] { raise(u"Click"); });
}

template <typename Button>
std::unique_ptr<Button> NewMarkedButton(const BlockReader& reader, const PlainSink& raise) {
    MarkedLook look;
    look.isMarkRight = reader.Whole(u"Alignment", 0) == 1;
    if (IsGraphical(reader)) {
        look.push = PushLook::Graphical(reader);
    }
    const bool hasBackground = !look.push;
    auto button = std::make_unique<Button>(std::move(look));
    SetUpButton(*button, reader, raise);
    button->setAutoFillBackground(hasBackground);
    button->setBackgroundRole(QPalette::Window);
    return button;
}

}  // namespace

PlainWidget MakeButton(const BlockReader& reader, const PlainSink& raise) {
    const bool isGraphical = IsGraphical(reader);
    auto button =
        std::make_unique<CommandButton>(isGraphical ? PushLook::Graphical(reader) : PushLook());
    SetUpButton(*button, reader, raise);
    button->SetKeys(
        {.enter = reader.Flag(u"Default", false), .escape = reader.Flag(u"Cancel", false)});
    return {.widget = std::move(button), .hasBackColor = isGraphical};
}

PlainWidget MakeCheckBox(const BlockReader& reader, const PlainSink& raise) {
    auto box = NewMarkedButton<CheckBox>(reader, raise);
    switch (reader.Whole(u"Value", 0)) {
        case 0:
            break;
        case 1:
            box->setChecked(true);
            break;
        default:
            box->setCheckState(Qt::PartiallyChecked);
    }
    return {.widget = std::move(box)};
}

PlainWidget MakeOptionButton(const BlockReader& reader, const PlainSink& raise) {
    auto button = NewMarkedButton<OptionBox>(reader, raise);
    button->setChecked(reader.Flag(u"Value", false));
    return {.widget = std::move(button)};
}

}  // namespace lumenkit::lumenform
