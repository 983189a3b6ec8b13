#!/usr/bin/env python3
"""Draws the toolbox bitmaps of the component server (server/toolbox, 16 x 15 pixels, 16 colours).

Designers show the colour of the bottom left pixel as transparent. --check writes nothing and fails
if a stored file differs.
"""
import struct
import sys
from pathlib import Path

# The 16 standard colours of Windows, and the letters of the colours used below.
PALETTE = [
    (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128),
    (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255),
    (255, 0, 255), (0, 255, 255), (255, 255, 255)]
COLORS = {"#": 0, "r": 1, "g": 2, "b": 4, ".": 7, "d": 8, "R": 9, "w": 15}

ICONS = {
    # Text in several styles, and a bullet.
    "vlabel": """
................
...##...........
...##...rrrrrrr.
..####..........
..#..#..bbbbbb..
..####..........
.##..##.ggggggg.
.##..##.........
................
..##............
.####..########.
.####...........
..##...######...
................
................
""",
    # Lines of text that end at two limits.
    "vmemo": """
................
.dddddddddddddd.
.dwwwwwwwwwRwww.
.dw#######wRwww.
.dwwwwwwwwwRwww.
.dw########Rwww.
.dwwwwwwwwwRwww.
.dw#####wwwRwww.
.dwwwwwwwwwRwww.
.dw######wwRwww.
.dwwwwwwwwwRwww.
.dRRRRRRRRRRwww.
.dwwwwwwwwwwwww.
.dwwwwwwwwwwwww.
................
""",
    # A frame with two buttons, the first chosen.
    "voptlist": """
.dddddddddddddd.
.d............d.
.d..###.......d.
.d.#www#......d.
.d.#w#w#.bbbb.d.
.d.#www#......d.
.d..###.......d.
.d............d.
.d..###.......d.
.d.#www#......d.
.d.#www#.bbb..d.
.d.#www#......d.
.d..###.......d.
.dddddddddddddd.
................
""",
}


def bitmap(picture):
    rows = picture.split()
    assert len(rows) == 15 and all(len(row) == 16 for row in rows), picture
    pixels = b"".join(
        bytes(COLORS[row[x]] << 4 | COLORS[row[x + 1]] for x in range(0, 16, 2))
        for row in reversed(rows))
    palette = b"".join(bytes((blue, green, red, 0)) for red, green, blue in PALETTE)
    info = struct.pack("<IiiHHIIiiII", 40, 16, 15, 1, 4, 0, len(pixels), 0, 0, 16, 16)
    offset = 14 + len(info) + len(palette)
    header = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    return header + info + palette + pixels


def main():
    folder = Path(__file__).resolve().parent.parent / "server" / "toolbox"
    drawn = {folder / f"{name}.bmp": bitmap(picture) for name, picture in ICONS.items()}
    if sys.argv[1:] == ["--check"]:
        different = [file.name for file, data in drawn.items()
                     if not file.exists() or file.read_bytes() != data]
        print("toolbox bitmaps:", f"draw anew {different}" if different else "as drawn")
        return 1 if different else 0
    for file, data in drawn.items():
        file.write_bytes(data)
    return 0


sys.exit(main())
