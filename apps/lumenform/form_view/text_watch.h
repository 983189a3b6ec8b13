#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <QString>
#include <cstddef>
#include <functional>
#include <vector>

namespace lumenkit::lumenform {

/// Notices when the text of a box becomes another one. Qt also reports changes that leave the text
/// as it was, such as what an input method composes and drops, or a replacement by the same text.
/// The cost of a change depends on the part of the text that Qt reports as changed.
class TextWatch final : public QObject {
 public:
    /// A child of the box. `changed` is called when a change of the box is complete.
    TextWatch(QPlainTextEdit& box, std::function<void()> changed);

    /// The number of UTF-16 units of the document that were read for comparisons so far.
    std::size_t UnitsRead() const { return unitsRead_; }

 private:
    // A replacement of a part of the text by another text.
    struct Replacement {
        int from;
        QString removed;
        int added;  // length
    };

    void Follow(int from, int removed, int added);
    bool TakeChange();
    QString TextBetween(int from, int to) const;

    QTextDocument& document_;
    QString text_;                           // as it was last
    std::vector<Replacement> replacements_;  // since the last complete change
    std::size_t unitsRead_ = 0;
};

}  // namespace lumenkit::lumenform
