"""Prints the places where two pictures differ within some rows, as JSON: changed.py A.png B.png TOP BOTTOM

Each place as [left, top, right, bottom], from left to right; columns less than five pixels apart belong together.
"""

import json
import sys

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf  # noqa: E402


def rows(path, top, bottom):
    picture = GdkPixbuf.Pixbuf.new_from_file(path)
    pixels, stride, channels = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()
    return [
        [pixels[y * stride + x * channels : y * stride + x * channels + 3] for x in range(picture.get_width())]
        for y in range(top, min(bottom, picture.get_height()))
    ]


def main():
    top, bottom = int(sys.argv[3]), int(sys.argv[4])
    one, two = (rows(path, top, bottom) for path in sys.argv[1:3])
    places = []
    for x in range(len(one[0])):
        changed = [top + y for y in range(len(one)) if one[y][x] != two[y][x]]
        if not changed:
            continue
        if places and x - places[-1][2] < 5:
            left, above, _, below = places[-1]
            places[-1] = [left, min(above, changed[0]), x, max(below, changed[-1])]
        else:
            places.append([x, changed[0], x, changed[-1]])
    print(json.dumps(places))


main()
