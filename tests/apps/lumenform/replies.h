#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace lumenkit::testing {

/// Answers the dialogs and menus of one action, in the order in which they appear, with keys and
/// mouse. The test fails if one of them does not appear until this object is destroyed.
class Replies {
 public:
    Replies() = default;
    ~Replies();
    Replies(const Replies&) = delete;
    Replies& operator=(const Replies&) = delete;

    /// Presses a button of a question.
    Replies& Press(const QString& button);
    /// Presses Enter in a question, that is its default button.
    Replies& Enter();
    /// Types a file name into a file dialog and presses Enter. Records the filter that is
    /// selected.
    Replies& Name(const QString& name);
    /// Chooses the entry of a menu whose title contains this text.
    Replies& Choose(const QString& title);
    /// Hands over another dialog, and then closes it if it is still open.
    Replies& Look(const std::function<void(QWidget&)>& look);

    /// What the questions have said.
    std::vector<std::string> said;

 private:
    struct Reply {
        std::function<bool(QWidget& shown)> fits;
        std::function<void(QWidget& shown)> give;
    };
    Replies& Add(Reply reply);
    void Wait();
    void Step();

    QObject context_;  // of the timers
    std::vector<Reply> replies_;
    std::size_t next_ = 0;
};

}  // namespace lumenkit::testing
