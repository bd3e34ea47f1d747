"""Writes Windows bitmap files (.bmp) at a chosen colour depth: 1, 4 and 8 bits through a
colour table, 24 bits directly. Pixels come as (red, green, blue) tuples, row by row."""

import struct


def nearest(palette, color):
    return min(range(len(palette)),
               key=lambda i: sum((palette[i][k] - color[k]) ** 2 for k in range(3)))


def fitted_palette(pixels, depth, fixed=None):
    """The colour table for an indexed picture: the fixed table if given, else the picture's
    own colours, which must fit in 2 to the power of depth entries."""
    if fixed is not None:
        return list(fixed)
    colors = sorted(set(pixels))
    if len(colors) > 1 << depth:
        raise ValueError("%d colours do not fit in %d bits" % (len(colors), depth))
    return colors


def pack_row(indexes, depth):
    out = bytearray()
    per_byte = 8 // depth
    for start in range(0, len(indexes), per_byte):
        byte = 0
        for k, index in enumerate(indexes[start:start + per_byte]):
            byte |= index << (8 - depth * (k + 1))
        out.append(byte)
    while len(out) % 4:
        out.append(0)
    return bytes(out)


def write_bmp(path, width, height, pixels, depth, palette=None):
    """Saves width by height pixels at depth bits; bottom-up rows, as the format has them."""
    rows = [pixels[y * width:(y + 1) * width] for y in range(height)]
    if depth == 24:
        table = b""
        body = b""
        for row in reversed(rows):
            line = b"".join(bytes((b, g, r)) for (r, g, b) in row)
            body += line + b"\0" * ((4 - len(line) % 4) % 4)
    else:
        colors = fitted_palette(pixels, depth, palette)
        lookup = {}
        for color in set(pixels):
            lookup[color] = colors.index(color) if color in colors else nearest(colors, color)
        colors += [(0, 0, 0)] * ((1 << depth) - len(colors))
        table = b"".join(bytes((b, g, r, 0)) for (r, g, b) in colors)
        body = b"".join(pack_row([lookup[p] for p in row], depth) for row in reversed(rows))
    offset = 14 + 40 + len(table)
    header = struct.pack("<2sIHHI", b"BM", offset + len(body), 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", 40, width, height, 1, depth, 0, len(body), 2835, 2835,
                       0 if depth == 24 else 1 << depth, 0)
    with open(path, "wb") as out:
        out.write(header + info + table + body)
