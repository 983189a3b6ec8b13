#pragma once

#include <QLineEdit>
#include <QWidget>

namespace lumenkit::form {

/// A line to type a value into and, where there is more to it, a button "..." beside it.
class ValueEditor final : public QWidget {
    Q_OBJECT

 public:
    ValueEditor(bool hasMore, QWidget* parent);

    QLineEdit& Line() const { return *line_; }
    bool HasMore() const { return hasMore_; }
    /// What was typed since; always false for a line that is only read.
    bool IsModified() const { return line_->isModified() && !line_->isReadOnly(); }

 Q_SIGNALS:
    void MoreWanted();

 private:
    QLineEdit* line_;
    bool hasMore_;
};

}  // namespace lumenkit::form
