# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Runs the tests in this folder. In a network of its own, which has just a loopback that is down, starts that."""

import fcntl
import pathlib
import socket
import struct
import sys
import unittest

GET_FLAGS, SET_FLAGS, IS_UP = 0x8913, 0x8914, 1


def start_loopback():
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        request = struct.pack("16sh14x", b"lo", 0)
        flags = struct.unpack("16sh14x", fcntl.ioctl(any_socket, GET_FLAGS, request))[1]
        if not flags & IS_UP:
            fcntl.ioctl(any_socket, SET_FLAGS, struct.pack("16sh14x", b"lo", flags | IS_UP))


start_loopback()
folder = pathlib.Path(__file__).parent
unittest.main(module=None, argv=[sys.argv[0], "discover", "-v", "-s", str(folder), "-p", "*_test.py", *sys.argv[1:]])
