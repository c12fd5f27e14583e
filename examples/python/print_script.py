#!/usr/bin/env python3
"""Prints the commands that turn one configuration into another, both given as files of the packed record.

    ./print_script.py running.bin wanted.bin

Where the library is outside the loader's folders:

    LD_LIBRARY_PATH=$(pkg-config --variable=libdir pondiff) ./print_script.py running.bin wanted.bin

The program pondiff reads the files and has to be in the PATH; JSON documents will do as well.
"""

import ctypes
import subprocess
import sys

pondiff = ctypes.CDLL("libpondiff.so.1")
pondiff.initiate_diff_c.argtypes = [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
pondiff.GetDiff_c.argtypes = [ctypes.c_void_p, ctypes.c_void_p]
pondiff.GetDiff_c.restype = ctypes.c_void_p  # and not c_char_p: the text has to be freed

libc = ctypes.CDLL(None)
libc.free.argtypes = [ctypes.c_void_p]
libc.free.restype = None


def read_record(path):
    # The library cannot see how large a buffer is. The program returns a whole record, or reports why there is none.
    packed = subprocess.run(["pondiff", "pack", path, "-o", "-"], stdout=subprocess.PIPE)
    if packed.returncode != 0:
        sys.exit(packed.returncode)
    return ctypes.create_string_buffer(packed.stdout, len(packed.stdout))


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
