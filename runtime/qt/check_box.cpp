#include "runtime/qt/check_box.h"

#include <QCheckBox>
#include <functional>

#include "frame/host/accepted_values.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::qt {

// A check box whose state is set by code only. A click of the user calls `clicked_`.
class CheckBoxWidget final : public QCheckBox {
 public:
    using QCheckBox::QCheckBox;

    std::function<void()> clicked_;

 protected:
    void nextCheckState() override {
        if (clicked_) {
            clicked_();
        }
    }
};

CheckBox::CheckBox(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events)
    : BasicCaptioned(elements, design, design.caption, design.accessKey), events_(events) {
    auto box = std::make_unique<CheckBoxWidget>(&ParentFor(elements, design));
    box->clicked_ = [this] { HandleEvent(Errors(), [this] { Change(state_ == 0 ? 1 : 0); }); };
    Adopt(std::move(box));
    ShowFont();
    ShowCaption();
}

CheckBoxWidget& CheckBox::Box() const {
    return static_cast<CheckBoxWidget&>(*Widget());
}

void CheckBox::Disconnect() {
    if (Widget() != nullptr) {
        Box().clicked_ = nullptr;
    }
}

void CheckBox::ShowCaption() {
    Box().setText(ToQString(MarkedCaption()));
}

void CheckBox::SetCheckState(std::int16_t state) {
    Change(AcceptedNumber<std::int16_t>(state, 0, 2));
}

void CheckBox::Change(std::int16_t state) {
    if (state == state_) {
        return;
    }
    state_ = state;
    constexpr std::int16_t greyed = 2;
    Box().setTristate(state == greyed);
    Box().setCheckState(state == 0        ? Qt::Unchecked
                        : state == greyed ? Qt::PartiallyChecked
                                          : Qt::Checked);
    const Notifying notifying;
    events_.Click();
}

}  // namespace lumenkit::qt
