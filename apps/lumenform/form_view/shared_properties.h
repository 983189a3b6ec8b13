// Reads properties that several classes have in common.
#pragma once

#include <QFrame>
#include <QString>
#include <QStringList>
#include <cstdint>

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// Returns the caption. A line break is one character.
QString CaptionOf(const BlockReader& reader);

/// Returns the side for Alignment: left, right or centre.
Qt::Alignment AlignmentOf(const BlockReader& reader);

/// Returns the items of a list box or combo box.
QStringList ListOf(const BlockReader& reader);

/// Gives the frame a border unless `style`, its BorderStyle, is 0.
void SetBorder(QFrame& frame, std::int32_t style);

}  // namespace lumenkit::lumenform
