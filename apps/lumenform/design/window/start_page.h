#pragma once

#include <QStringList>
#include <QWidget>

class QVBoxLayout;

namespace lumenkit::lumenform {

/// The start screen: the possible actions and the forms that were opened last.
class StartPage final : public QWidget {
    Q_OBJECT

 public:
    explicit StartPage(QWidget* parent = nullptr);

    void ShowRecent(const QStringList& paths);

 Q_SIGNALS:
    void NewWanted();
    void OpenWanted();
    void RecentWanted(const QString& path);

 private:
    void AddHeading();
    void AddChoices();

    QVBoxLayout* column_;
    QWidget* recent_ = nullptr;
};

}  // namespace lumenkit::lumenform
