#!/usr/bin/env python3
"""Draws the library's icon, a water drop, into src/shell/kvtcore.ico
(32x32 and 16x16, 32-bit colour with alpha). Run again after a change."""
import math
import struct
import sys


def drop(size):
    """BGRA rows, bottom row first, of a blue drop with a light highlight."""
    rows = []
    for y in range(size - 1, -1, -1):
        row = bytearray()
        for x in range(size):
            u = (x + 0.5) / size - 0.5
            v = (y + 0.5) / size
            # A circle at the bottom drawn up into a point at the top.
            cy, r = 0.62, 0.33
            d = math.hypot(u, v - cy)
            inside = d <= r or (v < cy and abs(u) <= r * (v - 0.05) / (cy - 0.05) and v >= 0.05)
            if not inside:
                row += bytes((0, 0, 0, 0))
                continue
            shade = max(0.0, min(1.0, 1.0 - d / (r * 1.6)))
            b, g, rr = int(160 + 95 * shade), int(70 + 110 * shade), int(20 + 60 * shade)
            if math.hypot(u + 0.11, v - 0.58) < 0.07:
                b, g, rr = 255, 245, 235
            row += bytes((b, g, rr, 255))
        rows.append(bytes(row))
    return rows


def image(size):
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = b"".join(drop(size))
    mask_row = ((size + 31) // 32) * 4
    return header + pixels + bytes(mask_row * size)


def main(out):
    sizes = (32, 16)
    images = [image(s) for s in sizes]
    data = struct.pack("<HHH", 0, 1, len(sizes))
    offset = 6 + 16 * len(sizes)
    for s, img in zip(sizes, images):
        data += struct.pack("<BBBBHHII", s, s, 0, 0, 1, 32, len(img), offset)
        offset += len(img)
    with open(out, "wb") as f:
        f.write(data + b"".join(images))


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "src/shell/kvtcore.ico")
