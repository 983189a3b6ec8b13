// Draws the caption of every golden file again and writes the result to the file, for review.
#include <cstdio>
#include <exception>
#include <fstream>

#include "tests/golden/golden_drawing.h"
#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

void WriteGolden() {
    for (const std::filesystem::path& file : GoldenFiles()) {
        PlacedLabel label;
        label.Placed().StartNew();
        GoldenDrawing golden = ReadGolden(file);
        golden.drawing = ToLines(Draw(label, golden.scene));
        std::ofstream(file) << ToText(golden);
    }
}

}  // namespace

}  // namespace lumenkit::testing

int main() {
    try {
        lumenkit::testing::WriteGolden();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
