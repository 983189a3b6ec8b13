#!/usr/bin/env python3
"""Generates forms/code_page_tables.inc: the upper halves of the Windows code pages of one byte.

A byte that a code page does not define is mapped as on Windows: below 0xA0 to the control character
of the same number, above to a private-use character (0xCA of code page 1255: U+05BA). The bytes of
a page therefore map to different units.
"""
import pathlib

PAGES = [874, *range(1250, 1259)]

PRIVATE_USE = {
    874: {0xDB: 0xF8C1, 0xDC: 0xF8C2, 0xDD: 0xF8C3, 0xDE: 0xF8C4, 0xFC: 0xF8C5, 0xFD: 0xF8C6,
          0xFE: 0xF8C7, 0xFF: 0xF8C8},
    1253: {0xAA: 0xF8F9, 0xD2: 0xF8FA, 0xFF: 0xF8FB},
    1255: {0xD9: 0xF88D, 0xDA: 0xF88E, 0xDB: 0xF88F, 0xDC: 0xF890, 0xDD: 0xF891, 0xDE: 0xF892,
           0xDF: 0xF893, 0xFB: 0xF894, 0xFC: 0xF895, 0xFF: 0xF896, 0xCA: 0x05BA},
    1257: {0xA1: 0xF8FC, 0xA5: 0xF8FD},
}


def unit(page, byte):
    try:
        return ord(bytes([byte]).decode(f"cp{page}"))
    except UnicodeDecodeError:
        return byte if byte < 0xA0 else PRIVATE_USE[page][byte]


def main():
    lines = ["// Written by scripts/generate_code_pages.py; do not edit.", "// clang-format off"]
    for page in PAGES:
        units = [unit(page, byte) for byte in range(0x80, 0x100)]
        assert len(set(units)) == 128, page
        lines.append(f"{{{page}, {{")
        for start in range(0, 128, 8):
            lines.append("    " + " ".join(f"0x{u:04X}," for u in units[start:start + 8]))
        lines.append("}},")
    target = pathlib.Path(__file__).parent.parent / "forms" / "code_page_tables.inc"
    target.write_text("\n".join(lines) + "\n")


main()
