#pragma once

#include <QStringList>
#include <QWidget>

#include "apps/lumenform/design/window/recent_forms.h"

class QLabel;
class QVBoxLayout;

namespace lumenkit::lumenform {

/// The start screen: the possible actions and the forms that were opened last.
class StartPage final : public QWidget {
    Q_OBJECT

 public:
    explicit StartPage(QWidget* parent = nullptr);

    void ShowRecent(const QStringList& paths);
    RecentForms& Recent() const { return *recent_; }

 Q_SIGNALS:
    void NewWanted();
    void OpenWanted();

 private:
    void AddHeading(QVBoxLayout& column);
    void AddChoices(QVBoxLayout& column);

    RecentForms* recent_;
    QLabel* recentHeading_;
};

}  // namespace lumenkit::lumenform
