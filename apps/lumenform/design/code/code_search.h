#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>
#include <vector>

namespace lumenkit::lumenform {

/// The line below a text in which its user searches it, without regard to case. Hits are selected
/// in the text; after the last one, the first one is next. Esc closes the line.
class CodeSearch final : public QWidget {
    Q_OBJECT

 public:
    /// The text must outlive the search.
    explicit CodeSearch(QPlainTextEdit& text, QWidget* parent = nullptr);

    /// Shows the line. A selection inside a line becomes the searched text.
    void Open();
    /// Hides the line and moves the keyboard to the text.
    void Close();
    /// Selects the hit after or before the selection. Opens the line if nothing is searched.
    void GoToNext();
    void GoToPrevious();
    /// Searches again, because the text has changed.
    void Update();

    QLineEdit& Field() const { return *field_; }
    /// "2 of 17"
    QString Count() const { return count_->text(); }

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void LayOut();
    void Find();
    void FollowField();
    void Select(std::size_t hit);
    void ShowCount();

    QPlainTextEdit& text_;
    QLineEdit* field_;
    QLabel* count_;
    std::vector<int> hits_;  // positions
    int anchor_ = 0;         // where the search began
};

}  // namespace lumenkit::lumenform
