#!/usr/bin/env python3
"""Generates frame/letter_case_table.inc: the simple lower-case mapping of every UTF-16 unit.

Requires the Debian package unicode-data. Run it only to change to a newer Unicode version:
    scripts/generate_case_table.py > frame/letter_case_table.inc
"""
import sys

SOURCE = "/usr/share/unicode/UnicodeData.txt"
PAGE = 256


def lower_deltas():
    deltas = [0] * 0x10000
    with open(SOURCE, encoding="ascii") as data:
        for line in data:
            fields = line.split(";")
            unit, lower = int(fields[0], 16), fields[13]
            if unit < 0x10000 and lower:
                # A difference modulo 65536: every lower-case form is in the same plane.
                deltas[unit] = (int(lower, 16) - unit) & 0xFFFF
    return deltas


def main():
    deltas = lower_deltas()
    pages, index = [], []
    for start in range(0, 0x10000, PAGE):
        page = tuple(deltas[start : start + PAGE])
        if page not in pages:
            pages.append(page)
        index.append(pages.index(page))
    out = sys.stdout
    out.write("// Made by scripts/generate_case_table.py from Unicode's character database; do not edit.\n")
    out.write("// clang-format off\n")
    out.write("constexpr std::array<std::uint8_t, 256> lowerPage = {\n")
    for row in range(0, 256, 32):
        out.write("    " + ",".join(str(i) for i in index[row : row + 32]) + ",\n")
    out.write("};\n")
    out.write(f"constexpr std::array<std::array<std::uint16_t, 256>, {len(pages)}> lowerDelta = {{{{\n")
    for page in pages:
        out.write("    {" + ",".join(str(d) for d in page) + "},\n")
    out.write("}};\n// clang-format on\n")


main()
