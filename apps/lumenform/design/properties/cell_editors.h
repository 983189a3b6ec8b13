// The editors that the property list opens in its value column.
#pragma once

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

namespace lumenkit::lumenform {

/// Whether the key opens the separate editor of a value: F4 alone, or Alt+Down. With Ctrl or Alt,
/// F4 closes the form or the window.
bool IsMore(const QKeyEvent& key);

/// A combo box in a list, with a frame while it has the keyboard. The mouse wheel scrolls the list,
/// and moving through the entries by keyboard does not pick one.
class ChoiceBox final : public QComboBox {
    Q_OBJECT

 public:
    explicit ChoiceBox(QWidget* parent);

 Q_SIGNALS:
    /// The user has picked an entry from the open list.
    void Picked();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    bool byKeys_ = false;
};

/// A line edit for a value, with a button "..." if there is a separate editor. While the line has
/// the keyboard, there is a frame around both.
class ValueEditor final : public QWidget {
    Q_OBJECT

 public:
    ValueEditor(bool hasMore, QWidget* parent);

    QLineEdit& Line() const { return *line_; }
    bool HasMore() const { return hasMore_; }
    /// Whether the user has edited the text. Always false if the line is read-only.
    bool IsModified() const { return line_->isModified() && !line_->isReadOnly(); }

 Q_SIGNALS:
    void MoreWanted();

 protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

 private:
    QLineEdit* line_;
    bool hasMore_;
};

}  // namespace lumenkit::lumenform
