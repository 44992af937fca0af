#!/usr/bin/env python3
"""Spoils a capture of capture_scene on purpose, for the tests that a replay
notices: alter_capture.py IN OUT texture|truncate|version

texture   flips one byte of the uploaded texture, found by its contents (the
          scene's image is byte i = (i * 37) ^ (i >> 3))
truncate  cuts the last 100 bytes off
version   claims a format version newer than any reader knows
"""
import struct
import sys


def main(source, target, how):
    data = bytearray(open(source, "rb").read())
    if how == "texture":
        image = bytes(((i * 37) ^ (i >> 3)) & 0xFF for i in range(32 * 16 * 4))
        # Row 5 of the 32-pixel-wide image, from pixel 10: the texture takes
        # pixels 8 to 23 of each row; the red byte of pixel 12 is flipped.
        probe = image[5 * 128 + 40:5 * 128 + 72]
        at = data.find(probe)
        if at < 0:
            sys.exit("the scene's texture is not in %s" % source)
        data[at + 8] ^= 0xFF
    elif how == "truncate":
        del data[-100:]
    elif how == "version":
        data[8:12] = struct.pack("<I", 99)
    else:
        sys.exit("unknown alteration %r" % how)
    open(target, "wb").write(data)


if __name__ == "__main__":
    main(*sys.argv[1:])
