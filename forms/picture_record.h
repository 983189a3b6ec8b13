// Pictures in the binary companion.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit::forms {

/// Returns the bytes of the picture, which are those of a picture file. Bytes that follow the
/// picture are ignored. Throws BadRecord for a record that is no picture and for one whose lengths
/// do not fit.
std::string_view ReadPictureRecord(std::string_view record);

/// Returns the record of a picture. Throws BadRecord if its length would need more than 32 bits.
std::string WritePictureRecord(std::string_view picture);

}  // namespace lumenkit::forms
