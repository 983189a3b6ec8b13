#pragma once

#include <QString>
#include <QWidget>

namespace lumenkit::lumenform {

/// Represents a control of an unknown class: its name and class in a dashed frame. They are written
/// beside the controls that it contains. If these leave no room for a line, only the tool tip and
/// screen readers have the text.
class LabelledBox final : public QWidget {
 public:
    LabelledBox(QString name, QString className);

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void childEvent(QChildEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    QRect Room() const;

    QString name_;
    QString className_;
};

}  // namespace lumenkit::lumenform
