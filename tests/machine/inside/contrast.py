"""Prints the contrast between the most visible pixel of a square and its surroundings, 0 to 255: contrast.py PICTURE X Y SIZE

X and Y are its middle; the surroundings are the most frequent colour of the square. An icon on a background of nearly the same
colour gives a small number.
"""

import collections
import sys

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf  # noqa: E402


def main():
    picture = GdkPixbuf.Pixbuf.new_from_file(sys.argv[1])
    middle_x, middle_y, size = map(int, sys.argv[2:5])
    pixels, stride, channels = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()
    seen = []
    for y in range(max(0, middle_y - size // 2), min(picture.get_height(), middle_y + size // 2)):
        for x in range(max(0, middle_x - size // 2), min(picture.get_width(), middle_x + size // 2)):
            at = y * stride + x * channels
            seen.append(sum(pixels[at : at + 3]) // 3)
    ground = collections.Counter(seen).most_common(1)[0][0]
    print(max(abs(lightness - ground) for lightness in seen))


main()
