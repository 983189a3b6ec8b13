#include "runtime/qt/interaction.h"

#include <QApplication>
#include <QMessageBox>
#include <QMetaObject>
#include <utility>

#include "runtime/qt/boundary.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

shared::OpenBoxes& Boxes() {
    static shared::OpenBoxes boxes;
    return boxes;
}

void Interaction::Beep() {
    QApplication::beep();
}

void Interaction::MsgBox(TextView message, host::MessageStyle style,
                         std::optional<TextView> title) {
    QMessageBox box(QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(message));
    box.setIcon(style == host::MessageStyle::Critical ? QMessageBox::Critical
                                                      : QMessageBox::NoIcon);
    box.setWindowTitle(title ? ToQString(*title) : QGuiApplication::applicationDisplayName());
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

void DeferringInteraction::Beep() {
    Say([](host::Interaction& interaction) { interaction.Beep(); });
}

void DeferringInteraction::MsgBox(TextView message, host::MessageStyle style,
                                  std::optional<TextView> title) {
    if (!isPainting_()) {
        const shared::OpenBoxes::Scope open(Boxes());
        inner_.MsgBox(message, style, title);
        return;
    }
    Defer([text = Text(message), style,
           caption = title ? std::optional(Text(*title)) : std::nullopt](host::Interaction& inner) {
        inner.MsgBox(text, style, caption ? std::optional<TextView>(*caption) : std::nullopt);
    });
}

void DeferringInteraction::Say(std::function<void(host::Interaction&)> what) {
    if (isPainting_()) {
        Defer(std::move(what));
    } else {
        what(inner_);
    }
}

void DeferringInteraction::Defer(std::function<void(host::Interaction&)> what) {
    deferred_.push_back(std::move(what));
    if (deferred_.size() > 1) {
        return;
    }
    try {
        QMetaObject::invokeMethod(
            &context_, [this] { SayDeferred(); }, Qt::QueuedConnection);
    } catch (...) {
        deferred_.clear();  // otherwise no later request would be posted
        throw;
    }
}

void DeferringInteraction::SayDeferred() {
    // A message box runs an event loop, which may destroy the control and this object.
    host::Interaction& inner = inner_;
    const auto due = std::exchange(deferred_, {});
    const shared::OpenBoxes::Scope open(Boxes());  // until the last box of the painting is closed
    for (const auto& said : due) {
        HandleEvent({}, [&] { said(inner); });
    }
}

}  // namespace lumenkit::qt
