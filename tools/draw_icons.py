#!/usr/bin/env python3
"""Draws the desktop icon of the client, the shield with its keep of AppIcon.png, on a
transparent ground at each size of the hicolor theme, into
packaging/icons/hicolor/<N>x<N>/apps/org.thornmere.Steward.png. Uses the standard library only.

Every pixel is sampled on a 4 by 4 grid in the 32-unit design space of AppIcon.png, so each
size is drawn sharp instead of scaled from another."""

import os
import struct
import sys
import zlib

from draw_bitmaps import in_shield, mix

SIZES = (16, 24, 32, 48, 64, 128, 256)
ICON_NAME = "org.thornmere.Steward"
STEEL = (150, 156, 166)
FIELD = (44, 62, 98)
STONE = (176, 170, 150)
GATE = (20, 24, 30)


def in_keep(x, y):
    """The keep of the small icon: a body, three merlons and a gate, in design units."""
    body = 12 <= x < 20 and 12 <= y < 22
    merlons = 7 <= y < 12 and any(left <= x < left + 2 for left in (12, 15, 18))
    gate = 14.5 <= x < 17.5 and 18 <= y < 22
    return (body or merlons) and not gate, gate


def design_color(x, y):
    """The colour and coverage of one point of the 32-unit design, None outside the shield."""
    if not in_shield(x, y, 16, 2, 26, 28):
        return None
    stone, gate = in_keep(x, y)
    if gate:
        return GATE
    if stone:
        return STONE
    if in_shield(x, y, 16, 4, 22, 25):
        light = 0.55 + 0.45 * (1 - abs(x - 16) / 13)
        return mix((0, 0, 0), FIELD, light)
    return mix((0, 0, 0), STEEL, 0.75 + 0.25 * (1 - (y - 2) / 28))


def draw(size):
    grid = 4
    scale = 32 / size
    rows = []
    for py in range(size):
        row = bytearray(b"\0")
        for px in range(size):
            total = [0, 0, 0]
            covered = 0
            for sy in range(grid):
                for sx in range(grid):
                    color = design_color((px + (sx + 0.5) / grid) * scale,
                                         (py + (sy + 0.5) / grid) * scale)
                    if color:
                        covered += 1
                        for i in range(3):
                            total[i] += color[i]
            if covered:
                row += bytes(t // covered for t in total)
            else:
                row += b"\0\0\0"
            row.append(covered * 255 // (grid * grid))
        rows.append(bytes(row))
    return b"".join(rows)


def save_rgba(path, size, rows):
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                  chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "packaging", "icons")
    for size in SIZES:
        folder = os.path.join(root, "hicolor", f"{size}x{size}", "apps")
        os.makedirs(folder, exist_ok=True)
        save_rgba(os.path.join(folder, ICON_NAME + ".png"), size, draw(size))


if __name__ == "__main__":
    main()
