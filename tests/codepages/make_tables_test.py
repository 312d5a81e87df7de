#!/usr/bin/env python3
"""make_tables_test.py DIRECTORY: tests make_tables.py and code_pages.tsv of that directory.

The pages are held against the codecs that come with Python, which were made from other publications: where those agree
with the pages' edition the table must be equal, elsewhere it must differ in just the bytes that are known.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

DIRECTORY = pathlib.Path(sys.argv.pop(1))
SCRIPT = DIRECTORY / "make_tables.py"
DATA = (DIRECTORY / "code_pages.tsv").read_text(encoding="ascii")

# Page, codec, and the bytes on which they differ, with what the page has there.
CODECS = [
    (37, "cp037", ""),
    (273, "cp273", ""),
    (424, "cp424", "78:21D4 8F:---- BC:203E"),
    (437, "cp437", "F9:00B7 FA:2022"),
    (500, "cp500", ""),
    (813, "iso8859_7", "A1:201B A4:---- A5:---- AA:---- AF:2014 B4:00B4"),
    (819, "iso8859_1", ""),
    (850, "cp850", ""),
    (852, "cp852", ""),
    (855, "cp855", "95:0093 EF:00B4 FD:----"),
    (857, "cp857", "EE:2014 F7:02DB FA:02D9"),
    (860, "cp860", "8B:00CE 9F:00D2 A9:00D3 F9:00B7 FA:2022"),
    (862, "cp861", "9F:00D2 A9:---- F9:00B7 FA:2022"),
    (863, "cp863", "8D:00EC ED:2205 F8:2218 F9:00B7 FA:2022"),
    (865, "cp865", "AF:00BB ED:2205 F8:2218 F9:00B7 FA:2022"),
    (869, "cp869", "8B:201B 8E:2014 EF:00B4"),
    (875, "cp875", "6A:---- 74:2207 B4:0390 B8:03B0 CC:03CA CD:03CB DC:---- DD:00B7 E1:---- EC:---- ED:---- "
                   "FC:---- FD:----"),
    (878, "koi8_r", "95:2022"),
    (912, "iso8859_2", ""),
    (913, "iso8859_3", ""),
    (914, "iso8859_4", ""),
    (915, "iso8859_5", ""),
    (916, "iso8859_8", "AF:203E FD:---- FE:----"),
    (920, "iso8859_9", "EA:0119 EC:0117 EF:012B"),
    (1026, "cp1026", "9D:02DB BC:2014"),
    (1051, "hp_roman8", ""),
    (1089, "iso8859_6", ""),
    (1140, "cp1140", ""),
    (1250, "cp1250", "80:----"),
    (1251, "cp1251", "88:----"),
    (1252, "cp1252", "8E:---- 9E:----"),
    (1253, "cp1253", "80:----"),
    (1254, "cp1254", "80:---- EA:0119 EC:0117 EF:012B"),
    (1257, "cp1257", "80:---- 8D:---- 8E:---- 8F:---- 9D:---- 9E:---- B4:---- FF:----"),
    (1275, "mac_roman", "C6:0394 CD:2126 DB:00A4 F6:---- F7:----"),
]


def tables():
    """Page -> its 256 fields."""
    pages = {}
    for line in DATA.splitlines():
        columns = line.split("\t")
        if columns[0] == "page":
            fields = pages.setdefault(int(columns[1]), [])
        elif len(columns) == 17:
            fields.extend(columns[1:])
    return pages


def codec_table(codec):
    characters = [bytes([byte]).decode(codec, errors="replace") for byte in range(256)]
    return ["----" if character == "\ufffd" else f"{ord(character):04X}" for character in characters]


class Tables(unittest.TestCase):
    def test_against_codecs(self):
        pages = tables()
        for page, codec, known in CODECS:
            with self.subTest(page=page):
                pairs = zip(pages[page], codec_table(codec))
                differ = [f"{byte:02X}:{ours}" for byte, (ours, theirs) in enumerate(pairs) if ours != theirs]
                self.assertEqual(" ".join(differ), known)

    def test_page_921_differs_from_iso_8859_13_in_31_bytes(self):
        pairs = zip(tables()[921], codec_table("iso8859_13"))
        self.assertEqual(sum(ours != theirs for ours, theirs in pairs), 31)

    def test_page_1255_has_no_points(self):
        pairs = enumerate(zip(tables()[1255], codec_table("cp1255")))
        differ = {byte for byte, (ours, theirs) in pairs if ours != theirs}
        points = {0x80, 0x88, 0x98, 0xA1, 0xA4, 0xAF, 0xBF, 0xDF} | set(range(0xC0, 0xD9)) - {0xCA}
        self.assertEqual(differ, points)


class Script(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.source = pathlib.Path(scratch.name, "pages.tsv")
        self.target = pathlib.Path(scratch.name, "pages.inc")

    def run_script(self, data):
        self.source.write_text(data, encoding="utf-8")
        command = [sys.executable, SCRIPT, self.source, self.target]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def refused(self, old, new, why):
        """One change, which must be there to be made, is refused, and nothing is written."""
        self.assertIn(old, DATA)
        result = self.run_script(DATA.replace(old, new, 1))
        self.assertNotEqual(result.returncode, 0)
        self.assertIn(why, result.stderr)
        self.assertNotIn("Traceback", result.stderr)
        self.assertFalse(self.target.exists())

    def test_writes_all_tables(self):
        result = self.run_script(DATA)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        text = self.target.read_text(encoding="ascii")
        self.assertEqual(text.count("constexpr CharacterTable kPage"), 80)
        self.assertIn('{37, 76, "037", "EBCDIC", "USA/Canada", &kPage37},', text)
        self.assertIn('{1200, 47, "1200", "Unicode", "UTF-16BE", nullptr},', text)

    def test_wrong_use(self):
        result = subprocess.run([sys.executable, SCRIPT], capture_output=True, text=True, check=False)
        self.assertNotEqual(result.returncode, 0)

    def test_missing_file(self):
        command = [sys.executable, SCRIPT, self.source, self.target]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertNotEqual(result.returncode, 0)
        self.assertNotIn("Traceback", result.stderr)

    def test_character_twice(self):
        self.refused("C0\t007B\t0041\t0042", "C0\t007B\t0041\t0041", "page 37: U+0041 stands twice")

    def test_another_character_in_all(self):
        self.refused("E0\t005C\t00F7", "E0\t2219\t00F7", "845 characters in all")

    def test_row_missing(self):
        rows = DATA.split("\n")
        first = next(i for i, row in enumerate(rows) if row.startswith("F0\t"))
        self.refused(rows[first] + "\n", "", "page 37: 240 bytes in place of 256")

    def test_rows_exchanged(self):
        self.refused("\n10\t", "\n20\t", "row 20 where 10 is due")

    def test_row_too_short(self):
        self.refused("\n00\t0000\t0001", "\n00\t0000", "a row has its first byte and 16 code points")

    def test_row_before_the_first_page(self):
        self.refused("page\t37", "#age\t37", "a row before the first page")

    def test_field_in_wrong_form(self):
        for field in ("00e2", "0E2", "+0E2", "xxxx", ""):
            with self.subTest(field=field):
                self.refused("00A0\t00E2", "00A0\t" + field, f"{field} isn't a code point")

    def test_half_of_a_surrogate_pair(self):
        self.refused("00A0\t00E2", "00A0\tD800", "half of a surrogate pair")

    def test_page_missing(self):
        start, end = DATA.index("page\t273"), DATA.index("page\t274")
        self.refused(DATA[start:end], "", "80 pages in place of 81")

    def test_pages_out_of_order(self):
        self.refused("page\t37\t037", "page\t999\t999", "the pages don't ascend")

    def test_page_number(self):
        self.refused("page\t37\t", "page\tx\t", "invalid literal")

    def test_symbol(self):
        self.refused("page\t37\t037", "page\t37\t37", "the symbol is 37")

    def test_type(self):
        self.refused("037\tEBCDIC", "037\tEBCDC", "unknown type EBCDC")

    def test_name(self):
        self.refused("USA/Canada", 'USA "Canada"', "the long name")

    def test_header_columns(self):
        self.refused("USA/Canada\t76", "USA/Canada", "a page has 6 columns")

    def test_substitute_value(self):
        self.refused("USA/Canada\t76", "USA/Canada\t47", "the substitute value is 47, the full stop gives 76")
        self.refused("Windows Baltic\t0", "Windows Baltic\t47", "the substitute value is 47")

    def test_table_of_the_unicode_page(self):
        row = next(row for row in DATA.split("\n") if row.startswith("00\t"))
        self.refused("UTF-16BE\t47\n", "UTF-16BE\t47\n" + row + "\n", "a table where none is due")

    def test_text_that_is_not_ascii(self):
        self.refused("USA/Canada", "USA/Canadá", "ascii")


if __name__ == "__main__":
    unittest.main()
