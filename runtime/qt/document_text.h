#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "frame/text.h"

class QTextCursor;
class QTextDocument;

namespace lumenkit::qt {

/// The text of a text box, which is in a Qt document and nowhere else. A line break, CR LF, is one
/// character in the document: the break between two blocks. Every other unit is one character too:
/// - A unit that has a special meaning in documents is represented by a noncharacter.
/// - A noncharacter of the text (U+FDD0 to U+FDEF) is represented by the replacement character,
///   whose format holds the unit.
/// So a document returns the same text that was put into it, also after undo.
///
/// Positions are in UTF-16 units of the text; CR LF counts as two.
class DocumentText {
 public:
    /// A single-line text has no line breaks: CR and LF are ordinary characters there.
    DocumentText(QTextDocument& document, bool multiLine)
        : document_(document), multiLine_(multiLine) {}

    /// Returns a view that is valid until the text changes.
    TextView Units() const;
    std::int32_t Length() const;
    /// A number that grows with each change of the text.
    int Version() const { return version_; }

    int ToDocumentPosition(std::int32_t unit) const;
    std::int32_t ToUnit(int documentPosition) const;

    /// Replaces the selection of the cursor.
    void Insert(QTextCursor& cursor, TextView text) const;
    /// Returns the document's characters for `text`. Where the document needs a format too, it is
    /// the replacement character.
    QString ToCharacters(TextView text) const;

    /// Ensures that Follow allocates no memory for a change to a text of `length` units.
    void Reserve(std::size_t length);
    /// Must be called for each change of the document, with the range of the new characters.
    void Follow(int from, int added);

 private:
    template <typename Take>
    void Read(int from, int to, Take&& take) const;

    QTextDocument& document_;
    bool multiLine_;
    int version_ = 0;
    mutable std::optional<Text> units_;  // the text once more, made when it is asked for
};

}  // namespace lumenkit::qt
