#pragma once

#include <QString>
#include <QtGlobal>

namespace lumenkit::lumenform {

/// Qt ends the program with abort() if it cannot use the display. While this object exists, the
/// program instead says so on the standard error stream, with the reason, and exits with status 2.
/// Other messages of Qt are dropped meanwhile.
class DisplayWatch {
 public:
    /// `instead` tells the user what works without a display.
    explicit DisplayWatch(const char* instead);
    ~DisplayWatch();
    DisplayWatch(const DisplayWatch&) = delete;
    DisplayWatch& operator=(const DisplayWatch&) = delete;

 private:
    // What the message handler needs; Qt passes it no object.
    struct State {
        const char* instead = "";
        QString reason;  // Qt's first warning
    };

    static State& Shared();
    static void Handle(QtMsgType type, const QMessageLogContext& context, const QString& text);

    QtMessageHandler former_;
};

}  // namespace lumenkit::lumenform
