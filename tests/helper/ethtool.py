#!/usr/bin/python3
"""A stand-in for machines without ethtool. It knows what the helper calls: ethtool -k DEVICE, ethtool -K DEVICE FEATURE on|off."""

import array
import fcntl
import socket
import struct
import sys

SIOCETHTOOL, ETH_SS_FEATURES = 0x8946, 4
GSTRINGS, GSSET_INFO, GFEATURES, SFEATURES = 0x1B, 0x37, 0x3A, 0x3B


def ask(device, request):
    data = array.array("B", request)
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, SIOCETHTOOL, struct.pack("16sQ16x", device.encode(), data.buffer_info()[0]))
    return data.tobytes()


def feature_names(device):
    number = struct.unpack_from("I", ask(device, struct.pack("IIQI", GSSET_INFO, 0, 1 << ETH_SS_FEATURES, 0)), 16)[0]
    text = ask(device, struct.pack("III", GSTRINGS, ETH_SS_FEATURES, number) + bytes(32 * number))[12:]
    return [text[i * 32 : (i + 1) * 32].split(b"\0")[0].decode() for i in range(number)]


def main():
    verb, device, *change = sys.argv[1:]
    names = feature_names(device)
    blocks = (len(names) + 31) // 32
    if verb == "-K":
        name, wanted = change
        place, bit = divmod(names.index(name), 32)
        words = [0] * 2 * blocks
        words[2 * place] = 1 << bit
        words[2 * place + 1] = (wanted == "on") << bit
        ask(device, struct.pack(f"II{2 * blocks}I", SFEATURES, blocks, *words))
        return
    words = struct.unpack_from(f"{4 * blocks}I", ask(device, struct.pack("II", GFEATURES, blocks) + bytes(16 * blocks)), 8)
    print(f"Features for {device}:")
    for i, name in enumerate(names):
        if name:
            print(f"{name}: {'on' if words[4 * (i // 32) + 2] >> i % 32 & 1 else 'off'}")


main()
