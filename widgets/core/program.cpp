#include "widgets/core/program.h"

#include <utility>

#include <lumenkit/widgets/messages.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/application.h"
#include "runtime/qt/interaction.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::widgets {

namespace {

MessageHandler& Handler() {
    static MessageHandler handler;
    return handler;
}

// Shows the messages of the controls, or passes them to the program's handler.
class ProgramInteraction final : public host::Interaction {
 public:
    void Beep() override { boxes_.Beep(); }
    void MsgBox(TextView message, host::MessageStyle style,
                std::optional<TextView> title) override {
        const MessageHandler handler = Handler();  // it may set another one
        if (!handler) {
            boxes_.MsgBox(message, style, title);
            return;
        }
        handler({.text = qt::ToQString(message),
                 .title = qt::ToQString(title.value_or(TextView())),
                 .isCritical = style == host::MessageStyle::Critical});
    }

 private:
    qt::Interaction boxes_;
};

}  // namespace

MessageHandler setMessageHandler(MessageHandler handler) {
    return std::exchange(Handler(), std::move(handler));
}

const qt::Context& Program() {
    static qt::Application application(lumenkitClasses);
    static ProgramInteraction interaction;
    static const qt::Context program{lumenkitClasses, application, interaction, {}};
    return program;
}

}  // namespace lumenkit::widgets
