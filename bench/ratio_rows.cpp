#include "bench/ratio_rows.h"

#include <cstdio>
#include <string>

namespace lumenkit::bench {

namespace {

std::string Rounded(double number, const char* unit) {
    char image[64];
    std::snprintf(image, sizeof image, number < 100 ? "%.2f%s" : "%.0f%s", number, unit);
    return image;
}

std::string Time(double seconds, const std::string& unit) {
    const double nanoseconds = seconds * 1e9;
    constexpr double large = 10'000;
    return nanoseconds < large ? Rounded(nanoseconds, (" ns/" + unit).c_str())
                               : Rounded(nanoseconds / 1000, (" us/" + unit).c_str());
}

void PrintCells(const std::string& what, const std::string& ours, const std::string& other,
                const std::string& ratio, const std::string& spread, const std::string& aim) {
    std::printf("| %-64s | %18s | %18s | %8s | %15s | %-9s |\n", what.c_str(), ours.c_str(),
                other.c_str(), ratio.c_str(), spread.c_str(), aim.c_str());
    std::fflush(stdout);
}

}  // namespace

void PrintHeading() {
    PrintCells("what", "ours", "peer or bound", "ratio", "spread", "aim");
    PrintCells("---", "--:", "--:", "--:", "--:", "---");
}

void PrintRow(const Comparison& comparison, const Outcome& outcome) {
    PrintCells(comparison.what, Time(outcome.ours, comparison.unit),
               Time(outcome.other, comparison.unit), Rounded(outcome.ratio, "x"),
               Rounded(outcome.low, "") + " to " + Rounded(outcome.high, ""), comparison.aim);
}

}  // namespace lumenkit::bench
