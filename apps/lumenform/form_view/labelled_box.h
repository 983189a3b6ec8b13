#pragma once

#include <QString>
#include <QWidget>

namespace lumenkit::lumenform {

/// Represents a control of an unknown class: its name and class in a dashed frame.
class LabelledBox final : public QWidget {
 public:
    LabelledBox(QString name, QString className);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QString name_;
    QString className_;
};

}  // namespace lumenkit::lumenform
