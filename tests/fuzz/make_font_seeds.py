#!/usr/bin/env python3
"""Makes the seeds of fuzz_fonts: make_font_seeds.py FOLDER

An input is a list of fields. Each is a byte that picks it, a length byte and so many data bytes; a length from 0xF0 on
makes a long field by repeating the next 16 bytes, 2,000 bytes for each step above 0xEF.
"""

import pathlib
import sys

FIELDS = ("FNC FNI FNM FNN FNO FNP FND CPC CPI CPD CFC CFI CCP LND RCD XMD LNC FDS "
          "MFC MCC MMC PMC PFC PGP-1 PGP-2 FGD DXD").split()


def field(name, data):
    return bytes([FIELDS.index(name), len(data)]) + data


def long_field(name, pattern, steps):
    return bytes([FIELDS.index(name), 0xEF + steps]) + pattern.ljust(16, b"\0")[:16]


def name(text):
    return text.encode("cp500").ljust(8, b"\x40")


def control(technology, index, names=0, name_length=12):
    """Font Control: the lengths and counts that the fields behind it depend on."""
    data = bytearray(42)
    data[1], data[15], data[16], data[35] = technology, index, 3, name_length
    data[40:42] = names.to_bytes(2, "big")
    return field("FNC", bytes(data))


def code_page(kind):
    return field("CPC", name("SP010000") + bytes([0x80, kind, 0x41, 0x40, 0x80]))


CHARACTER = name("LA010000") + bytes.fromhex("03E802BCFF38FFFF0001FFFEFFFDFFFCFFFB0000")
OUTLINE = name("LA010000") + bytes.fromhex("0000001A")
COMPARED = bytes.fromhex("000100028000000200170003")
GROUP = bytes.fromhex("8102") + name("MAP00001") + b"\x04" + name("DATAMAP1") + b"\x01" + b"\xC1\xC2\xC3"

SEEDS = {
    "raster-font": control(5, 28) + field("FNI", CHARACTER * 3) + field("FNM", bytes(range(24))),
    "outline-font": control(31, 28) + field("FNI", CHARACTER),
    "index-without-control": field("FNI", CHARACTER),
    "index-length-zero": control(5, 0) + field("FNI", CHARACTER),
    "index-length-one": control(5, 1) + long_field("FNI", CHARACTER, 8),
    "index-cut": control(5, 28) + field("FNI", CHARACTER + CHARACTER[:9]),
    "patterns-long": long_field("FNM", bytes(range(16)), 14),
    "names-ascii": control(30, 28, 2) + field("FNN", b"\x02\x03" + OUTLINE * 2 + b"\x02a\x05bcde"),
    "names-cmap": control(30, 28, 1) + field("FNN", b"\x02\x05" + OUTLINE + b"\x02a"),
    "names-in-pieces": control(30, 28, 3) + field("FNN", b"\x02\x03" + OUTLINE) + field("FNN", OUTLINE * 2 + b"\x03ab"),
    "names-length-one": control(30, 28, 65535, 1) + long_field("FNN", b"\x02\x03", 8),
    "names-short": control(30, 28) + long_field("FNN", b"\x02\x03" + b"\x02a" * 7, 10),
    "control-short": field("FNC", bytes(23)) + field("FNN", b"\x02\x03\x02a"),
    "pages": b"".join(code_page(kind) + field("CPI", name("LA010000") + b"\0\x41\xC1\x02" + bytes(range(8)))
                      for kind in (10, 11, 254, 255)),
    "page-tail-cut": code_page(254) + field("CPI", name("LA010000") + b"\0\xC1\xFF"),
    "coded-font": field("CFC", b"\x19\x01") + field("CFI", name("C0H200B0") + name("T1V10500") + bytes(9)),
    "descriptors": field("FND", bytes(80)) + field("FNO", bytes(52)) + field("FNP", bytes(44)) + field("CPD", bytes(44)),
    "conditions": field("CCP", COMPARED + GROUP * 2),
    "conditions-overlapping": long_field("CCP", bytes.fromhex("0001000280000002" "0001" "2000" "C1C1C1C1"), 1),
    "conditions-length-zero": field("CCP", COMPARED[:8] + b"\0\0\0\3" + GROUP),
    "line-descriptors": b"".join(field(kind, bytes([flags]) * 70) for kind in ("LND", "RCD", "XMD")
                                 for flags in (0x00, 0xFF)),
    "copies": field("MCC", bytes(12)) + field("MMC", bytes.fromhex("05FF0EFF9012F280F404FC05D101FFFF")),
    "positions": field("PGP-1", bytes(6)) + field("PGP-2", b"\x01\x0C" + bytes(11) + b"\x00" + bytes(9)),
    "controls": b"".join(field(kind, bytes.fromhex("80000104038101")) for kind in ("MFC", "PMC", "PFC", "LNC", "FDS")),
}


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(exist_ok=True)
    for seed, data in SEEDS.items():
        (folder / seed).write_bytes(data)


main()
