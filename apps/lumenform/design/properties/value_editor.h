#pragma once

#include <QLineEdit>
#include <QWidget>

namespace lumenkit::lumenform {

/// A line edit for a value, with a button "..." if there is a separate editor.
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

 private:
    QLineEdit* line_;
    bool hasMore_;
};

}  // namespace lumenkit::lumenform
