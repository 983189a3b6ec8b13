#pragma once

#include <QStringList>

#include <lumenkit/widgets/messages.h>

namespace lumenkit::testing {

/// Collects the messages of the controls instead of showing them.
class ToldMessages {
 public:
    ToldMessages()
        : former_(widgets::setMessageHandler(
              [this](const widgets::Message& message) { texts_.append(message.text); })) {}
    ~ToldMessages() { widgets::setMessageHandler(former_); }
    ToldMessages(const ToldMessages&) = delete;
    ToldMessages& operator=(const ToldMessages&) = delete;

    const QStringList& Texts() const { return texts_; }

 private:
    QStringList texts_;
    widgets::MessageHandler former_;
};

}  // namespace lumenkit::testing
