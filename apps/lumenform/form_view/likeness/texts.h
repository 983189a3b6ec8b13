// Likenesses that show a text: boxes, drop-down boxes and pages.
#pragma once

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// A text box of several lines with the words of a rich text.
PlainWidget MakeRichText(const BlockReader& reader, const PlainSink& raise);
/// A text box with the text, or else with the mask as the user sees it.
PlainWidget MakeMaskedBox(const BlockReader& reader, const PlainSink& raise);
/// A box with a date or a time, in the format of the file.
PlainWidget MakeDateBox(const BlockReader& reader, const PlainSink& raise);
/// A drop-down box with its text.
PlainWidget MakeDropDown(const BlockReader& reader, const PlainSink& raise);
/// A drop-down box with the sign of a drive.
PlainWidget MakeDriveBox(const BlockReader& reader, const PlainSink& raise);
/// An empty page in a sunken frame.
PlainWidget MakePage(const BlockReader& reader, const PlainSink& raise);
/// A page with the class of the document in it.
PlainWidget MakeDocumentPage(const BlockReader& reader, const PlainSink& raise);

}  // namespace lumenkit::lumenform
