#include "runtime/qt/command_button.h"

#include <QPushButton>

#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

CommandButton::CommandButton(Elements& elements, const host::CaptionDesign& design,
                             host::ClickEvents& events)
    : BasicCaptioned(elements, design, design.caption, design.accessKey) {
    auto button = std::make_unique<QPushButton>(&ParentFor(elements, design));
    button->setAutoDefault(false);
    QObject::connect(button.get(), &QPushButton::clicked, button.get(),
                     [this, &events] { HandleEvent(Errors(), [&events] { events.Click(); }); });
    Adopt(std::move(button));
    ShowFont();
    ShowCaption();
}

QPushButton& CommandButton::Button() const {
    return static_cast<QPushButton&>(*Widget());
}

void CommandButton::Disconnect() {
    if (Widget() != nullptr) {
        QObject::disconnect(&Button(), &QPushButton::clicked, nullptr, nullptr);
    }
}

void CommandButton::ShowCaption() {
    Button().setText(ToQString(MarkedCaption()));
}

}  // namespace lumenkit::qt
