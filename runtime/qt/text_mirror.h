// Conversion between the text of a text box and the characters of Qt's document. A line break, CR
// LF, is one character in the document: the break between two blocks. Every other unit is one
// character too. Noncharacters represent the units that have a special meaning in documents, so
// that a document returns the same text that was put into it, also after undo.
#pragma once

#include <QString>
#include <QStringView>

#include "frame/text.h"

namespace lumenkit::qt {

/// Returns the document's characters for `text`, with LF for a line break. A single-line text has
/// no line breaks: CR and LF are ordinary characters there.
QString ToDocument(TextView text, bool multiLine);

/// Returns the text of characters read from a document. If the original text contained a reserved
/// noncharacter, U+FDD0 to U+FDEF, the replacement character is read.
Text FromDocument(QStringView characters);

/// Whether a document may return `read` for the unit `original`.
bool MayBe(char16_t read, char16_t original);

}  // namespace lumenkit::qt
