#pragma once

#include <QString>
#include <QWidget>

namespace lumenkit::form {

/// Stands for a control of a class that is not known: its name and class in a dashed frame.
class LabelledBox final : public QWidget {
 public:
    LabelledBox(QString name, QString className);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QString name_;
    QString className_;
};

}  // namespace lumenkit::form
