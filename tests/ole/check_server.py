#!/usr/bin/env python3
"""Checks the exports, imports and embedded type libraries of a component server file.

    check_server.py OBJDUMP BITS SERVER TYPE_LIBRARY...

BITS is 32 or 64. The server must contain each TYPE_LIBRARY unchanged. The server is not run.
--self-test OBJDUMP SERVER proves that the check can fail.
"""
import re
import struct
import subprocess
import sys
from pathlib import Path

EXPORTS = ["DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"]
# Libraries of Windows itself. The libraries of a compiler are not allowed.
SYSTEM_LIBRARIES = {
    "advapi32.dll", "comctl32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
    "imm32.dll", "oleacc.dll", "oleaut32.dll", "shell32.dll", "user32.dll", "uxtheme.dll",
}
MACHINES = {32: 0x14C, 64: 0x8664}
SYSTEM_KINDS = {32: 1, 64: 3}  # the system kind in a type library


def headers(data):
    """Returns the machine, time stamp and number of symbols of a portable executable."""
    start = struct.unpack_from("<I", data, 0x3C)[0]
    assert data[start:start + 4] == b"PE\0\0", "no portable executable"
    machine, _, stamp, _, symbols = struct.unpack_from("<HHIII", data, start + 4)
    return machine, stamp, symbols


def imported(dump):
    return sorted({name.lower() for name in re.findall(r"DLL Name: (\S+)", dump)})


def faults(dump, data, bits, libraries):
    exports = re.findall(r"^\s+\[\s*\d+\]\s+([A-Za-z_]\S*)$", dump, re.M)
    if exports != EXPORTS:
        yield f"exports {exports}"
    imports = imported(dump)
    if not imports:
        yield "imports nothing"
    for name in imports:
        if name not in SYSTEM_LIBRARIES:
            yield f"imports {name}"
    machine, stamp, symbols = headers(data)
    if machine != MACHINES[bits]:
        yield f"is for machine {machine:#x}"
    if stamp != 0:
        yield "tells when it was linked"
    if symbols != 0:
        yield "is not stripped"
    for library in libraries:
        content = library.read_bytes()
        if content[:4] != b"MSFT" or content[0x14] & 0xF != SYSTEM_KINDS[bits]:
            yield f"{library.name} is for another system"
        if content not in data:
            yield f"lacks {library.name}"


def dumped(objdump, server):
    return subprocess.run([objdump, "-p", server], check=True, capture_output=True, text=True).stdout


def self_test(objdump, server):
    dump, data = dumped(objdump, server), Path(server).read_bytes()
    bits = next(bits for bits, machine in MACHINES.items() if machine == headers(data)[0])
    start = struct.unpack_from("<I", data, 0x3C)[0]
    stamped = data[:start + 8] + b"\1" + data[start + 9:]
    assert not list(faults(dump, data, bits, []))
    for bad in [(dump.replace("DllCanUnloadNow", "DllCanUnload"), data, bits),
                (dump + "\n\t[   4] DllMain\n", data, bits),
                (dump.replace("KERNEL32.dll", "libstdc++-6.dll"), data, bits),
                (dump, stamped, bits),
                (dump, data, 96 - bits)]:
        assert list(faults(*bad, [])), "a fault that goes unseen"
    assert list(faults(dump, data, bits, [Path(__file__)])), "a missing library goes unseen"
    print("server file: the check tells good from bad")


def main():
    if sys.argv[1] == "--self-test":
        self_test(*sys.argv[2:])
        return 0
    objdump, bits, server, *libraries = sys.argv[1:]
    dump, data = dumped(objdump, server), Path(server).read_bytes()
    print(f"{server}: {len(data)} bytes, imports {' '.join(imported(dump))}")
    found = list(faults(dump, data, int(bits), [Path(library) for library in libraries]))
    for fault in found:
        print(f"{server}: {fault}")
    return 1 if found else 0


sys.exit(main())
