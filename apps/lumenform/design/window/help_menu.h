#pragma once

#include <QMenu>

namespace lumenkit::lumenform {

/// The Help menu: keys and mouse gestures, and facts about the program.
class HelpMenu final : public QMenu {
    Q_OBJECT

 public:
    explicit HelpMenu(QWidget* parent);

 Q_SIGNALS:
    void KeysWanted();

 private:
    void ShowAbout();
};

}  // namespace lumenkit::lumenform
