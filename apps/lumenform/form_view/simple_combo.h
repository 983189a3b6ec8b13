#pragma once

#include <QListWidget>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>

#include "apps/lumenform/form_view/line_edit.h"

namespace lumenkit::lumenform {

/// A combo box whose list is always visible: a box for a text with the items below it.
class SimpleCombo final : public QWidget {
 public:
    SimpleCombo(const QStringList& items, const QString& text);

    LineEdit& Edit() const { return *edit_; }
    QListWidget& List() const { return *list_; }
    /// Sets the listener for choices that the user makes in the list. It is called after the item
    /// is in the box.
    void OnChosen(std::function<void()> listener) { chosen_ = std::move(listener); }

 protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void Arrange();
    void SelectItemOf(const QString& text);
    void Choose(int row);

    LineEdit* edit_;
    QListWidget* list_;
    std::function<void()> chosen_;
};

}  // namespace lumenkit::lumenform
