#pragma once

#include <QListWidget>

#include "frame/class_table.h"

namespace lumenkit::form {

/// The classes of control that can be put on a form. Choosing one begins drawing it.
class Toolbox final : public QListWidget {
    Q_OBJECT

 public:
    explicit Toolbox(const ClassTable& classes, QWidget* parent = nullptr);

    /// No class is chosen any more.
    void Release();

 Q_SIGNALS:
    /// To be drawn on the form.
    void Chosen(const QString& className);
    /// To be put on the form at once, as by a double click or Enter.
    void PutDown(const QString& className);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void DrawIcons();
};

}  // namespace lumenkit::form
