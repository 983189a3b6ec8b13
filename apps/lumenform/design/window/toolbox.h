#pragma once

#include <QListWidget>

#include "frame/class_table.h"

namespace lumenkit::lumenform {

/// The list of control classes that can be added to a form. Choosing one starts drawing it.
class Toolbox final : public QListWidget {
    Q_OBJECT

 public:
    explicit Toolbox(const ClassTable& classes, QWidget* parent = nullptr);

    /// Clears the choice.
    void Release();

 Q_SIGNALS:
    /// A class was chosen to be drawn on the form.
    void Chosen(const QString& className);
    /// A double click or Enter requests a new control of the class at once.
    void PutDown(const QString& className);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void DrawIcons();
};

}  // namespace lumenkit::lumenform
