#pragma once

#include <functional>

#include <QtCore/QString>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

/// A message that a control shows to the user, such as the report of an error.
struct Message {
    QString text;
    QString title;            ///< empty: the name of the application
    bool isCritical = false;  ///< the report of an error
};

/// Receives the messages of all controls of the program.
using MessageHandler = std::function<void(const Message& message)>;

/// Sets the function that receives the messages of the controls, on the thread of the user
/// interface, and returns the former one. An empty function shows message boxes, as at the start of
/// the program. The handler must not destroy the control that sends the message.
LUMENKIT_WIDGETS_EXPORT MessageHandler setMessageHandler(MessageHandler handler);

}  // namespace lumenkit::widgets
