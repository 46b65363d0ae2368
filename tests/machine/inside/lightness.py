"""Prints the lightness of the most frequent colour of a rectangle, 0 to 255: lightness.py PICTURE X Y WIDTH HEIGHT"""

import collections
import sys

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf  # noqa: E402


def main():
    picture = GdkPixbuf.Pixbuf.new_from_file(sys.argv[1])
    left, top, width, height = map(int, sys.argv[2:6])
    pixels, stride, channels = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()
    seen = collections.Counter()
    for y in range(max(0, top), min(picture.get_height(), top + height)):
        for x in range(max(0, left), min(picture.get_width(), left + width)):
            seen[pixels[y * stride + x * channels : y * stride + x * channels + 3]] += 1
    print(sum(seen.most_common(1)[0][0]) // 3)


main()
