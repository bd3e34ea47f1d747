#!/usr/bin/env python3
"""Draws the client's own pictures into resources/: the emblem behind the text windows
(Background.png, 175 by 161), the title of the connect dialog (GameTitle.png, 330 by 177)
and the program's icon (AppIcon.png, 32 by 32), and the panel's bitmaps and the gauges' alphabet into
resources/bitmaps/ (see panel_art.py and alphabet.py). Uses the standard library only."""

import math
import os
import struct
import sys
import zlib

from alphabet import save_alphabet
from panel_art import save_panel_bitmaps

# A 5 by 7 capital font for the title, one string of rows per letter.
GLYPHS = {
    "T": ["#####", "..#..", "..#..", "..#..", "..#..", "..#..", "..#.."],
    "H": ["#...#", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"],
    "O": [".###.", "#...#", "#...#", "#...#", "#...#", "#...#", ".###."],
    "R": ["####.", "#...#", "#...#", "####.", "#.#..", "#..#.", "#...#"],
    "N": ["#...#", "##..#", "#.#.#", "#.#.#", "#..##", "#...#", "#...#"],
    "M": ["#...#", "##.##", "#.#.#", "#.#.#", "#...#", "#...#", "#...#"],
    "E": ["#####", "#....", "#....", "####.", "#....", "#....", "#####"],
    "S": [".####", "#....", "#....", ".###.", "....#", "....#", "####."],
    "W": ["#...#", "#...#", "#...#", "#.#.#", "#.#.#", "##.##", "#...#"],
    "A": [".###.", "#...#", "#...#", "#####", "#...#", "#...#", "#...#"],
    "D": ["####.", "#...#", "#...#", "#...#", "#...#", "#...#", "####."],
    " ": [".....", ".....", ".....", ".....", ".....", ".....", "....."],
}


class Image:
    def __init__(self, width, height, color):
        self.width = width
        self.height = height
        self.pixels = [list(color) for _ in range(width * height)]

    def blend(self, x, y, color, alpha=1.0):
        if 0 <= x < self.width and 0 <= y < self.height and alpha > 0:
            p = self.pixels[y * self.width + x]
            a = min(alpha, 1.0)
            for i in range(3):
                p[i] = int(p[i] * (1 - a) + color[i] * a + 0.5)

    def save(self, path):
        rows = b"".join(
            b"\0" + bytes(v for p in self.pixels[y * self.width:(y + 1) * self.width] for v in p)
            for y in range(self.height))

        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as out:
            out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                      chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def mix(a, b, t):
    return tuple(int(a[i] + (b[i] - a[i]) * t) for i in range(3))


def in_shield(x, y, cx, top, w, h):
    """A heater shield: straight sides for the upper half, a curved point below."""
    dx = abs(x - cx)
    if y < top or y > top + h:
        return False
    t = (y - top) / h
    if t < 0.5:
        return dx <= w / 2
    return dx <= (w / 2) * math.cos((t - 0.5) / 0.5 * math.pi / 2)


def draw_shield(img, cx, top, w, h, steel, field):
    for y in range(img.height):
        for x in range(img.width):
            samples = sum(in_shield(x + sx / 3, y + sy / 3, cx, top, w, h)
                          for sx in range(3) for sy in range(3)) / 9
            if samples == 0:
                continue
            inner = sum(in_shield(x + sx / 3, y + sy / 3, cx, top + 4, w - 10, h - 9)
                        for sx in range(3) for sy in range(3)) / 9
            shade = 0.75 + 0.25 * (1 - (y - top) / h)
            rim = mix((0, 0, 0), steel, shade)
            img.blend(x, y, rim, samples)
            if inner:
                light = 0.55 + 0.45 * (1 - abs(x - cx) / (w / 2))
                img.blend(x, y, mix((0, 0, 0), field, light), inner)


def draw_thorn_vine(img, cx, cy, radius, color):
    """A ring of vine with thorns pointing outward, drawn as soft dots."""
    steps = 720
    for i in range(steps):
        a = i / steps * 2 * math.pi
        wobble = 2.0 * math.sin(a * 9)
        r = radius + wobble
        for t in (-1.2, 0, 1.2):
            x = cx + (r + t) * math.cos(a)
            y = cy + (r + t) * math.sin(a)
            img.blend(int(x), int(y), color, 0.55)
    for k in range(18):
        a = k / 18 * 2 * math.pi + 0.1
        base = radius + 2.0 * math.sin(a * 9)
        for s in range(7):
            length = base + s
            spread = (6 - s) / 6 * 1.5
            for t in (-spread, 0, spread):
                x = cx + length * math.cos(a) - t * math.sin(a)
                y = cy + length * math.sin(a) + t * math.cos(a)
                img.blend(int(x), int(y), color, 0.8)


def draw_tower(img, cx, base, width, height, color):
    """A small keep with three merlons and a dark gate, on the shield's field."""
    left = cx - width // 2
    for y in range(base - height, base):
        for x in range(left, left + width):
            img.blend(x, y, color, 0.9)
    for m in range(3):
        mx = left + m * (width - 5) // 2
        for y in range(base - height - 5, base - height):
            for x in range(mx, mx + 5):
                img.blend(x, y, color, 0.9)
    for y in range(base - 12, base):
        for x in range(cx - 4, cx + 4):
            if y > base - 9 or abs(x - cx + 0.5) < 3:
                img.blend(x, y, (20, 24, 30), 1.0)
    for y in range(base - height + 6, base - height + 11):
        img.blend(cx, y, (20, 24, 30), 1.0)


def draw_text(img, text, x, y, scale, color, shadow=None):
    for ch in text:
        glyph = GLYPHS[ch]
        for row, line in enumerate(glyph):
            for col, bit in enumerate(line):
                if bit != "#":
                    continue
                for sy in range(scale):
                    for sx in range(scale):
                        px, py = x + col * scale + sx, y + row * scale + sy
                        if shadow:
                            img.blend(px + 2, py + 2, shadow, 0.8)
                        img.blend(px, py, color, 1.0)
        x += 6 * scale


def background():
    img = Image(175, 161, (0, 0, 0))
    draw_thorn_vine(img, 87, 80, 66, (38, 74, 44))
    draw_shield(img, 87, 26, 84, 106, (150, 156, 166), (44, 62, 98))
    draw_tower(img, 87, 104, 26, 38, (176, 170, 150))
    return img


def game_title():
    img = Image(330, 177, (0, 0, 0))
    for y in range(img.height):
        for x in range(img.width):
            glow = max(0.0, 1 - math.hypot((x - 165) / 200, (y - 70) / 90))
            img.pixels[y * img.width + x] = list(mix((8, 10, 16), (40, 52, 80), glow))
    draw_thorn_vine(img, 165, 70, 52, (46, 90, 54))
    draw_text(img, "THORNMERE", 165 - (9 * 6 * 5 - 5) // 2, 48, 5, (226, 214, 170),
              shadow=(0, 0, 0))
    draw_text(img, "STEWARD", 165 - (7 * 6 * 3 - 3) // 2, 126, 3, (170, 180, 200),
              shadow=(0, 0, 0))
    return img


def app_icon():
    img = Image(32, 32, (95, 95, 95))
    draw_shield(img, 16, 2, 26, 28, (150, 156, 166), (44, 62, 98))
    draw_tower(img, 16, 22, 8, 10, (176, 170, 150))
    return img


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(
        os.path.dirname(os.path.abspath(__file__)), "..", "resources")
    background().save(os.path.join(folder, "Background.png"))
    game_title().save(os.path.join(folder, "GameTitle.png"))
    app_icon().save(os.path.join(folder, "AppIcon.png"))
    bitmaps = os.path.join(folder, "bitmaps")
    os.makedirs(bitmaps, exist_ok=True)
    save_alphabet(os.path.join(bitmaps, "IDB_ALPHABET.bmp"))
    save_panel_bitmaps(bitmaps)


if __name__ == "__main__":
    main()
