# SPDX-License-Identifier: MIT
"""Reads an ADIF file with the library of trustedqsl, which is strict about framing, and prints
a line per contact; ends with an error at the first field that it refuses. Exit code 77 when
the library is not installed."""

import ctypes
import sys

SUCCESS, END_OF_FILE = 0, 11
FIELDS = ["CALL", "BAND", "FREQ", "MODE", "QSO_DATE", "TIME_ON", "SKCC"]
# Every field that the file may hold, and no other.
KNOWN = FIELDS + [
    "ADIF_VER", "PROGRAMID", "PROGRAMVERSION", "CREATED_TIMESTAMP", "EOH", "RST_SENT", "RST_RCVD",
    "NAME", "STATE", "DXCC", "NOTES", "STATION_CALLSIGN", "OPERATOR", "MY_STATE", "MY_DXCC",
    "APP_VANTREL_DUPE", "APP_VANTREL_K3Y", "EOR",
]


class Result(ctypes.Structure):
    _fields_ = [
        ("name", ctypes.c_char * 65), ("size", ctypes.c_char * 11), ("type", ctypes.c_char * 2),
        ("data", ctypes.c_char_p), ("index", ctypes.c_uint), ("user", ctypes.c_void_p),
    ]


class Definition(ctypes.Structure):
    _fields_ = [
        ("name", ctypes.c_char * 65), ("type", ctypes.c_char * 2), ("range", ctypes.c_int),
        ("longest", ctypes.c_uint), ("least", ctypes.c_long), ("most", ctypes.c_long),
        ("values", ctypes.c_void_p), ("user", ctypes.c_void_p),
    ]


def load_library():
    for name in ("libtqsllib.so", "libtqsllib.so.2", "/usr/lib/trustedqsl/libtqsllib.so"):
        try:
            return ctypes.CDLL(name)
        except OSError:
            pass
    sys.exit(77)


def main():
    library = load_library()
    keep = []  # what the library was given stays until the end

    @ctypes.CFUNCTYPE(ctypes.c_void_p, ctypes.c_size_t)
    def allocate(size):
        keep.append(ctypes.create_string_buffer(size))
        return ctypes.addressof(keep[-1])

    names = [name.encode() for name in KNOWN] + [b""]
    definitions = (Definition * len(names))(*[Definition(name=name, longest=100) for name in names])
    types = (ctypes.c_char_p * 1)(b"")
    file = ctypes.c_void_p()
    if library.tqsl_beginADIF(ctypes.byref(file), sys.argv[1].encode()) != 0:
        sys.exit("not opened")
    record = {}
    while True:
        field, status = Result(), ctypes.c_int()
        failed = library.tqsl_getADIFField(
            file, ctypes.byref(field), ctypes.byref(status), definitions, types, allocate)
        if status.value == END_OF_FILE:
            break
        name = field.name.decode("latin-1")
        if failed or status.value != SUCCESS:
            sys.exit(f"field {name}: refused, status {status.value}")
        if name == "EOH":
            record = {}
        elif name == "EOR":
            print("|".join(record.get(field, "") for field in FIELDS))
            record = {}
        else:
            record[name] = (field.data or b"").decode("latin-1")
    if record:
        sys.exit("a record without its end")


main()
