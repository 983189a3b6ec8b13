// Golden drawings: text files with a caption, its settings and its display list. The tests compare
// them line by line.
//
//     Bold begins and ends where the commands stand.
//
//     width 3000
//     height 1500
//     font MS Sans Serif 10
//     forecolor 0x80000012
//     wordwrap no
//     bulletindent 0
//     bulletprefix ""
//
//     caption
//     |B:1|bold|B:0| plain
//
//     drawing
//     Cls
//     Print (0, 0) "bold" 10 bold 0x80000012
//     ...
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/label_scene.h"

namespace lumenkit::testing {

struct GoldenDrawing {
    std::string about;  ///< one line that describes the caption
    LabelScene scene;
    std::string drawing;  ///< in the form of ToLines
};

/// All golden drawings, in order of their names.
std::vector<std::filesystem::path> GoldenFiles();

/// Throws std::runtime_error if the file does not have the form above.
GoldenDrawing ReadGolden(const std::filesystem::path& file);

/// Returns the contents of the whole file.
std::string ToText(const GoldenDrawing& golden);

}  // namespace lumenkit::testing
