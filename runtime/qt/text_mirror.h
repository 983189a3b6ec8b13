// How a text box's text lies in Qt's document. A line break, CR LF, is the document's own break
// between two blocks, one character; every other unit is one character too. Those that mean
// something to documents have noncharacters to stand for them, so that a document gives back what
// was put into it, by undoing too.
#pragma once

#include <QString>
#include <QStringView>

#include "frame/text.h"

namespace lumenkit::qt {

/// The document's characters for `text`, with LF for a break. A single line has no breaks: CR and
/// LF are characters there.
QString ToDocument(TextView text, bool multiLine);

/// The text of characters read from a document. Where the text itself had one of the reserved
/// noncharacters, U+FDD0 to U+FDEF, the replacement character is read.
Text FromDocument(QStringView characters);

/// Whether the unit `read` from a document may be what became of `original`.
bool MayBe(char16_t read, char16_t original);

}  // namespace lumenkit::qt
