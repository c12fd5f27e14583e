#!/usr/bin/env python3
"""Prints the commands that turn one configuration into another, both given as files of the packed record.

    ./print_script.py running.bin wanted.bin

Where the library is outside the loader's folders:

    LD_LIBRARY_PATH=$(pkg-config --variable=libdir pondiff) ./print_script.py running.bin wanted.bin
"""

import ctypes
import sys

RECORD_SIZE = 1821429

pondiff = ctypes.CDLL("libpondiff.so.1")
pondiff.initiate_diff_c.argtypes = [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
pondiff.GetDiff_c.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
pondiff.GetDiff_c.restype = ctypes.c_void_p  # and not c_char_p: the text has to be freed

libc = ctypes.CDLL(None)
libc.free.argtypes = [ctypes.c_void_p]
libc.free.restype = None


def read_record(path):
    with open(path, "rb") as file:
        content = file.read()
    if len(content) != RECORD_SIZE:
        sys.exit(f"{path}: not a record of {RECORD_SIZE} bytes")
    return ctypes.create_string_buffer(content, RECORD_SIZE)


def script(running, wanted):
    if pondiff.initiate_diff_c(running, wanted, 0, 0) != 0:
        raise MemoryError
    try:
        text = pondiff.GetDiff_c(running, wanted)
        if not text:
            raise MemoryError
        try:
            return ctypes.string_at(text)
        finally:
            libc.free(text)
    finally:
        pondiff.finalize_diff_c()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(f"usage: {sys.argv[0]} RUNNING WANTED")
    sys.stdout.buffer.write(script(read_record(sys.argv[1]), read_record(sys.argv[2])))
