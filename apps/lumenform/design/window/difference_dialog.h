#pragma once

#include <QString>
#include <QWidget>

#include "forms/document.h"

namespace lumenkit::lumenform {

/// Shows the difference between the file of a form and the document, in lines, until the user
/// closes it. Lines only in the file are marked with a minus sign, lines only in the document with
/// a plus sign. Throws FormError if the file cannot be read.
void ShowDifference(QWidget& window, const forms::Document& document, const QString& path);

/// The text that it shows. Empty if form and companion are the same.
QString DifferenceOnDisk(const forms::Document& document, const QString& path);

}  // namespace lumenkit::lumenform
