# SPDX-License-Identifier: MIT
"""Reads an ADIF file with the library of trustedqsl, which is strict about framing, and prints
a line per contact; ends with an error at the first field that it refuses. Exit code 77 when
the library is not installed."""

import ctypes
import re
import struct
import sys

END_OF_FILE = 11
FIELDS = [b"CALL", b"BAND", b"FREQ", b"MODE", b"QSO_DATE", b"TIME_ON", b"SKCC"]
try:
    library = ctypes.CDLL("/usr/lib/trustedqsl/libtqsllib.so")
except OSError:
    sys.exit(77)
keep = []  # what the library was given stays until the end


@ctypes.CFUNCTYPE(ctypes.c_void_p, ctypes.c_size_t)
def allocate(size):
    keep.append(ctypes.create_string_buffer(size))
    return ctypes.addressof(keep[-1])


names = set(re.findall(rb"<(\w+)", open(sys.argv[1], "rb").read())) | {b""}
# A field's name, its type and range, the longest value, and more that is not asked of it here.
definitions = b"".join(
    struct.pack("67sxiIllPP", name, 0, 100, 0, 0, 0, 0) for name in sorted(names, reverse=True))
result, status = ctypes.create_string_buffer(104), ctypes.c_int()  # its name, at byte 80 its data
file, record = ctypes.c_void_p(), {}
library.tqsl_beginADIF(ctypes.byref(file), sys.argv[1].encode())
while True:
    failed = library.tqsl_getADIFField(
        file, result, ctypes.byref(status), definitions, (ctypes.c_char_p * 1)(b""), allocate)
    if status.value == END_OF_FILE:
        break
    if failed or status.value != 0:
        sys.exit(f"field {result.value}: refused, status {status.value}")
    record[result.value] = ctypes.string_at(struct.unpack_from("P", result, 80)[0] or b"")
    if result.value == b"EOR":
        print("|".join(record.get(field, b"").decode() for field in FIELDS))
    if result.value in (b"EOR", b"EOH"):
        record = {}
sys.exit("a record without its end" if record else 0)
