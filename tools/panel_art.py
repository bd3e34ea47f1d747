"""The status panel's pictures: the compass with its three panels, the tool buttons, the small
weapon and shield icons, the body figure with its overlays and the two list icons with masks.
Every shape is drawn here from simple geometry; nothing is copied from anywhere."""

import math
import os

from bitmap_files import write_bmp

PANEL_GREY = (95, 95, 95)
# Marker colours that the client recolours when it loads a numbered picture.
MARK_GREY = (0, 255, 255)
MARK_LIGHT = (255, 0, 255)
MARK_LIGHT_DARK = (128, 0, 128)
DARK = (32, 32, 32)
GREEN = (150, 227, 129)
YELLOW = (242, 244, 102)

# The 16 colours of every 4-bit picture, the markers among them.
PALETTE_16 = [(0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), MARK_LIGHT_DARK,
              (0, 128, 128), (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0),
              (255, 255, 0), (0, 0, 255), MARK_LIGHT, MARK_GREY, (255, 255, 255)]


class Picture:
    def __init__(self, width, height, color):
        self.width, self.height = width, height
        self.pixels = [color] * (width * height)

    def put(self, x, y, color):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.pixels[y * self.width + x] = color

    def get(self, x, y):
        return self.pixels[y * self.width + x]

    def fill(self, inside, color, box=None):
        x0, y0, w, h = box or (0, 0, self.width, self.height)
        for y in range(y0, y0 + h):
            for x in range(x0, x0 + w):
                if inside(x - x0, y - y0):
                    self.put(x, y, color)

    def rect(self, x, y, w, h, color):
        self.fill(lambda _x, _y: True, color, (x, y, w, h))

    def line(self, x0, y0, x1, y1, color, thick=1):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        for s in range(steps + 1):
            x = round(x0 + (x1 - x0) * s / steps)
            y = round(y0 + (y1 - y0) * s / steps)
            for t in range(thick):
                self.put(x + t, y, color)

    def save(self, path, depth):
        write_bmp(path, self.width, self.height, self.pixels, depth,
                  PALETTE_16 if depth == 4 else None)


# Compass: each zone's shape as a test on a point of the zone's rectangle.
def arrow(direction, w, h):
    """A solid arrowhead filling a w by h box and pointing to direction (dx, dy)."""
    dx, dy = direction

    def inside(x, y):
        u = (x + 0.5) / w * 2 - 1
        v = (y + 0.5) / h * 2 - 1
        along = u * dx + v * dy
        across = abs(u * dy - v * dx)
        if dx and dy:
            along, across = (u * dx + v * dy) / 1.4, abs(u * dy - v * dx) / 1.4
        return along <= 0.9 and across <= (0.9 - along) / 1.9
    return inside


def ring(w, h):
    return lambda x, y: 0.45 <= math.hypot((x + 0.5) / w * 2 - 1, (y + 0.5) / h * 2 - 1) <= 1.0


ZONES = [((32, 3, 15, 13), arrow((0, -1), 15, 13)), ((47, 5, 9, 9), arrow((1, -1), 9, 9)),
         ((45, 14, 13, 15), arrow((1, 0), 13, 15)), ((47, 29, 9, 9), arrow((1, 1), 9, 9)),
         ((32, 27, 15, 13), arrow((0, 1), 15, 13)), ((23, 29, 9, 9), arrow((-1, 1), 9, 9)),
         ((21, 14, 13, 15), arrow((-1, 0), 13, 15)), ((23, 5, 9, 9), arrow((-1, -1), 9, 9)),
         ((6, 17, 9, 9), ring(9, 9)), ((3, 3, 15, 13), arrow((0, -1), 15, 13)),
         ((3, 27, 15, 13), arrow((0, 1), 15, 13))]


def outline(pic, box, inside, color):
    x0, y0, w, h = box
    for y in range(h):
        for x in range(w):
            if not inside(x, y):
                continue
            edge = any(not (0 <= x + a < w and 0 <= y + b < h) or not inside(x + a, y + b)
                       for a, b in ((1, 0), (-1, 0), (0, 1), (0, -1)))
            if edge:
                pic.put(x0 + x, y0 + y, color)


def compass():
    pic = Picture(186, 43, PANEL_GREY)
    for panel, fill in enumerate((None, GREEN, YELLOW)):
        left = panel * 62
        for y in range(43):
            pic.put(left + 19, y, (80, 80, 80))
        for a in range(0, 360, 3):
            pic.put(left + 39 + round(3 * math.cos(math.radians(a))),
                    21 + round(3 * math.sin(math.radians(a))), DARK)
        for (x, y, w, h), inside in ZONES:
            if fill:
                pic.fill(inside, fill, (left + x, y, w, h))
            outline(pic, (left + x, y, w, h), inside, DARK)
    return pic


# Tool buttons: two 26 by 26 faces, at rest and held down.
def bevel(pic, left, pressed):
    light, shade = ((60, 60, 60), (210, 210, 210)) if pressed else ((225, 225, 225), (40, 40, 40))
    pic.rect(left, 0, 26, 26, (150, 146, 138))
    pic.line(left, 0, left + 25, 0, light)
    pic.line(left, 0, left, 25, light)
    pic.line(left, 25, left + 25, 25, shade)
    pic.line(left + 25, 0, left + 25, 25, shade)


def sword(pic, x, y, size):
    """A blade from the lower left to the upper right with a cross guard and a pommel."""
    steel, hilt = (230, 232, 240), (120, 72, 30)
    pic.line(x + size // 4, y + size - size // 4, x + size - 1, y, steel, 2)
    g = size // 3
    pic.line(x + g - 2, y + size - g - 2, x + g + 2, y + size - g + 2, (200, 170, 60), 2)
    pic.line(x, y + size - 1, x + g - 2, y + size - g + 1, hilt, 2)


def shield(pic, x, y, size, field):
    cx = x + size / 2

    def inside(px, py):
        t = py / size
        half = size / 2 * (1 if t < 0.5 else math.cos((t - 0.5) * math.pi))
        return abs(px + x - cx + 0.5) <= half
    pic.fill(inside, (200, 200, 210), (x, y, size, size))
    pic.fill(lambda px, py: inside(px, py) and px not in (0, size - 1) and py > 1 and
             inside(px - 1, py + 2) and inside(px + 1, py + 2), field, (x, y, size, size))


def cross_out(pic, x, y, size):
    pic.line(x, y, x + size - 1, y + size - 1, (200, 30, 30), 2)


def tool_button(draw_thing, crossed):
    pic = Picture(52, 26, PANEL_GREY)
    for face in (0, 1):
        left = face * 26
        bevel(pic, left, face == 1)
        draw_thing(pic, left + 5 + face, 5 + face, 16)
        if crossed:
            cross_out(pic, left + 4 + face, 4 + face, 18)
    return pic


def small_icon(draw_thing):
    """Left half the thing held, right half the thing put away, in greys."""
    pic = Picture(28, 14, PANEL_GREY)
    draw_thing(pic, 1, 1, 12)
    for y in range(14):
        for x in range(14):
            r, g, b = pic.get(x, y)
            if (r, g, b) != PANEL_GREY:
                pic.put(14 + x, y, (70, 70, 70) if (r + g + b) // 3 < 150 else (120, 120, 120))
    return pic


# Body figure: 46 by 38 pictures on the marker grey.
def person(pic, head, body, arms, legs, color=(235, 220, 190)):
    hx, hy = head
    pic.fill(lambda x, y: math.hypot(x - 2.5, y - 2.5) <= 2.8, color, (hx - 2, hy - 2, 6, 6))
    for (x0, y0, x1, y1) in [body] + arms + legs:
        pic.line(x0, y0, x1, y1, color, 2)


def figure(kind):
    pic = Picture(46, 38, MARK_GREY)
    if kind == "standing":
        person(pic, (22, 3), (22, 9, 22, 22), [(22, 12, 16, 19), (22, 12, 28, 19)],
               [(22, 22, 17, 35), (22, 22, 27, 35)])
    elif kind == "sitting":
        pic.rect(26, 24, 14, 3, (120, 80, 40))
        person(pic, (22, 9), (22, 15, 24, 26), [(23, 17, 17, 23)],
               [(24, 26, 14, 26), (14, 26, 14, 35)])
    elif kind == "kneeling":
        person(pic, (22, 7), (22, 13, 22, 25), [(22, 16, 17, 22), (22, 16, 28, 20)],
               [(22, 25, 14, 26), (22, 25, 27, 35), (14, 26, 14, 35)])
    elif kind == "lying":
        person(pic, (6, 28), (11, 31, 26, 31), [(14, 31, 18, 27)],
               [(26, 31, 40, 29), (26, 31, 40, 34)])
    else:
        pic.rect(0, 33, 46, 5, (40, 130, 40))
        for x in range(0, 46, 3):
            pic.put(x, 32, (60, 160, 50))
        pic.fill(lambda x, y: y >= 6 or math.hypot(x - 8.5, y - 8) <= 8.6, MARK_LIGHT,
                 (14, 6, 18, 27))
        outline(pic, (14, 6, 18, 27),
                lambda x, y: y >= 6 or math.hypot(x - 8.5, y - 8) <= 8.6, MARK_LIGHT_DARK)
        for i, ch in enumerate("RIP"):
            for row, bits in enumerate(RIP_LETTERS[ch]):
                for col, bit in enumerate(bits):
                    if bit == "#":
                        pic.put(16 + i * 5 + col, 15 + row, (0, 0, 0))
    return pic


RIP_LETTERS = {"R": ["###", "#.#", "##.", "#.#", "#.#"], "I": [".#.", ".#.", ".#.", ".#.", ".#."],
               "P": ["###", "#.#", "###", "#..", "#.."]}


def star():
    pic = Picture(7, 7, MARK_GREY)
    for (x0, y0, x1, y1) in ((3, 0, 3, 6), (0, 3, 6, 3), (1, 1, 5, 5), (1, 5, 5, 1)):
        pic.line(x0, y0, x1, y1, (0, 128, 128) if x0 == 1 else (255, 255, 255))
    pic.put(3, 3, (255, 255, 255))
    return pic


def drop():
    pic = Picture(5, 9, MARK_GREY)
    pic.fill(lambda x, y: (y >= 4 and math.hypot(x - 2, y - 6) <= 2.5) or
             (y < 4 and abs(x - 2) <= y / 2), (255, 0, 0))
    return pic


def cloud():
    pic = Picture(26, 17, MARK_GREY)
    for cx, cy, r in ((7, 10, 6), (13, 7, 6.5), (19, 10, 6), (13, 12, 5)):
        pic.fill(lambda x, y, cx=cx, cy=cy, r=r: math.hypot(x - cx, y - cy) <= r,
                 (128, 128, 128))
    return pic


def net():
    pic = Picture(32, 17, MARK_GREY)
    for k in range(-16, 32, 5):
        pic.line(k, 0, k + 16, 16, (255, 255, 255))
        pic.line(k + 16, 0, k, 16, (255, 255, 255))
    return pic


# List icons of the highlight dialogs, each with a mask: black where the picture is. Silver
# inside a black outline, so that they show on a dark list and on a light one.
ICON_FILL = (192, 192, 192)


def speaker(pic):
    pic.rect(2, 6, 4, 5, ICON_FILL)
    pic.fill(lambda x, y: abs(y - 7.5) <= x + 2, ICON_FILL, (6, 3, 5, 10))
    for r in (3, 5):
        for a in range(-50, 51, 10):
            pic.put(11 + round(r * math.cos(math.radians(a))),
                    8 + round(r * math.sin(math.radians(a))), ICON_FILL)


def pointer(pic):
    pic.fill(lambda x, y: abs(y - 7.5) <= (x + 1) * 0.6, ICON_FILL, (3, 2, 10, 12))
    pic.rect(3, 6, 4, 4, ICON_FILL)


def icon_outline(pic, background):
    drawn = [(x, y) for y in range(pic.height) for x in range(pic.width)
             if pic.get(x, y) != background]
    for x, y in drawn:
        for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1)):
            if (0 <= x + dx < pic.width and 0 <= y + dy < pic.height
                    and pic.get(x + dx, y + dy) == background):
                pic.put(x + dx, y + dy, (0, 0, 0))


def list_icon(draw):
    white = (255, 255, 255)
    pic = Picture(16, 16, white)
    draw(pic)
    icon_outline(pic, white)
    mask = Picture(16, 16, white)
    mask.pixels = [white if p == white else (0, 0, 0) for p in pic.pixels]
    return pic, mask


def save_panel_bitmaps(folder):
    def save(name, pic, depth):
        pic.save(os.path.join(folder, name + ".bmp"), depth)

    save("IDB_COMPASS", compass(), 24)
    save("IDB_SWORD", tool_button(sword, False), 8)
    save("IDB_NOSWORD", tool_button(sword, True), 8)
    save("IDB_SHIELD", tool_button(lambda p, x, y, s: shield(p, x, y, s, (40, 60, 150)), False), 8)
    save("IDB_NOSHIELD",
         tool_button(lambda p, x, y, s: shield(p, x, y, s, (40, 60, 150)), True), 8)
    save("IDB_SMALL_SWORD", small_icon(sword), 24)
    save("IDB_SMALL_SHIELD", small_icon(lambda p, x, y, s: shield(p, x, y, s, (60, 90, 200))), 24)
    for number, kind in ((118, "kneeling"), (120, "grave"), (122, "lying"), (123, "standing"),
                         (124, "sitting")):
        save(str(number), figure(kind), 4)
    save("117", star(), 4)
    save("119", drop(), 4)
    save("121", cloud(), 4)
    save("125", net(), 4)
    for name, draw in (("SOUND", speaker), ("CHOOSER", pointer)):
        picture, mask = list_icon(draw)
        save("IDB_" + name, picture, 4)
        save("IDM_" + name, mask, 4)
