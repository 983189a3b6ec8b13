#pragma once

#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace lumenkit::lumenform {

/// The row above the property list: a field that filters the list, and a switch that groups it.
class FilterBar final : public QWidget {
    Q_OBJECT

 public:
    explicit FilterBar(QWidget* parent);

    QLineEdit& Field() const { return *field_; }
    QToolButton& Groups() const { return *groups_; }

 Q_SIGNALS:
    /// The field has another text.
    void Filtered(const QString& text);
    void Grouped(bool isGrouped);
    /// The user leaves the field by Enter, Esc or an arrow key. After Esc, the field is empty.
    void Left();

 protected:
    bool eventFilter(QObject* object, QEvent* event) override;

 private:
    bool HandleKey(int key);

    QLineEdit* field_;
    QToolButton* groups_;
};

}  // namespace lumenkit::lumenform
