#!/usr/bin/env python3
"""Makes the program's code page tables: make_tables.py CODE_PAGES OUT

CODE_PAGES is code_pages.tsv, which tells its own form; OUT is the C++ file that pages.cpp includes. The file is checked
before anything is written: a slip in a table would otherwise only show as a wrong letter to some user.
"""

import dataclasses
import re
import sys

PAGE_COUNT = 81
CHARACTER_COUNT = 844
TYPES = ("EBCDIC", "ASCII", "ANSI", "Unicode")
PAGE_WITHOUT_TABLE = 1200
PAGE_WITHOUT_FULL_STOP = 1257
UNDEFINED = "----"
FULL_STOP = ord(".")
EURO_SIGN = 0x20AC
EURO_NUMBER = 2013
FIRST_FREE_NUMBER = 257  # the Latin-1 set has 1 to 256


class Fault(Exception):
    pass


@dataclasses.dataclass
class Page:
    line: int
    number: int
    symbol: str
    type: str
    name: str
    substitute: int
    table: list = dataclasses.field(default_factory=list)  # code point per byte, None where undefined


def read_header(line, columns):
    if len(columns) != 6:
        raise Fault(f"line {line}: a page has 6 columns")
    _, number, symbol, kind, name, substitute = columns
    return Page(line, int(number), symbol, kind, name, int(substitute))


def read_row(line, columns, page):
    if len(columns) != 17:
        raise Fault(f"line {line}: a row has its first byte and 16 code points")
    if columns[0] != f"{len(page.table):02X}":
        raise Fault(f"line {line}: row {columns[0]} where {len(page.table):02X} is due")
    for field in columns[1:]:
        if field != UNDEFINED and not re.fullmatch("[0-9A-F]{4}", field):
            raise Fault(f"line {line}: {field} isn't a code point of four upper-case digits")
        page.table.append(None if field == UNDEFINED else int(field, 16))


def read_pages(path):
    pages = []
    with open(path, encoding="ascii") as file:
        for line, text in enumerate(file, 1):
            columns = text.rstrip("\n").split("\t")
            try:
                if columns == [""] or text.startswith("#"):
                    continue
                if columns[0] == "page":
                    pages.append(read_header(line, columns))
                elif pages:
                    read_row(line, columns, pages[-1])
                else:
                    raise Fault(f"line {line}: a row before the first page")
            except ValueError as error:
                raise Fault(f"line {line}: {error}") from error
    return pages


def check_table(page):
    defined = [character for character in page.table if character is not None]
    twice = sorted({character for character in defined if defined.count(character) > 1})
    if len(page.table) != 256:
        raise Fault(f"{len(page.table)} bytes in place of 256")
    if twice:
        raise Fault(f"U+{twice[0]:04X} stands twice")
    if any(0xD800 <= character <= 0xDFFF for character in defined):
        raise Fault("half of a surrogate pair")
    full_stop = 0 if page.number == PAGE_WITHOUT_FULL_STOP else page.table.index(FULL_STOP) + 1
    if page.substitute != full_stop:
        raise Fault(f"the substitute value is {page.substitute}, the full stop gives {full_stop}")


def check_page(page):
    if page.symbol != f"{page.number:03}":
        raise Fault(f"the symbol is {page.symbol}")
    if page.type not in TYPES:
        raise Fault(f"unknown type {page.type}")
    if not page.name or '"' in page.name or "\\" in page.name:
        raise Fault("the long name is missing, or can't stand in a C++ text")
    if page.number == PAGE_WITHOUT_TABLE:
        if page.table:
            raise Fault("a table where none is due")
    else:
        check_table(page)


def check_all(pages):
    for page in pages:
        try:
            check_page(page)
        except (Fault, ValueError) as fault:
            raise Fault(f"line {page.line}, page {page.number}: {fault}") from fault
    numbers = [page.number for page in pages]
    if numbers != sorted(set(numbers)):
        raise Fault("the pages don't ascend")
    if len(pages) != PAGE_COUNT:
        raise Fault(f"{len(pages)} pages in place of {PAGE_COUNT}")


def latin_1_in_order():
    """The Latin-1 set by CharacterNumber, from 1: the controls first, then what can be seen."""
    return [*range(0x00, 0x20), 0x7F, *range(0x80, 0xA0), *range(0x20, 0x7F), *range(0xA0, 0x100)]


def number_characters(pages):
    """Code point -> CharacterNumber."""
    used = {character for page in pages for character in page.table} - {None}
    if len(used) != CHARACTER_COUNT:
        raise Fault(f"{len(used)} characters in all in place of {CHARACTER_COUNT}")
    numbers = {character: number for number, character in enumerate(latin_1_in_order(), 1)}
    others = sorted(used - numbers.keys() - {EURO_SIGN})
    numbers.update((character, number) for number, character in enumerate(others, FIRST_FREE_NUMBER))
    numbers[EURO_SIGN] = EURO_NUMBER
    return numbers


def rows_of_16(cells):
    return ["    " + ", ".join(cells[at : at + 16]) + "," for at in range(0, len(cells), 16)]


def lines_of(pages, numbers):
    by_number = sorted((number, character) for character, number in numbers.items() if number != EURO_NUMBER)
    yield "// Made by make_tables.py from code_pages.tsv: not to be edited."
    yield ""
    yield "// Code point by CharacterNumber; the Euro sign isn't in it."
    yield "constexpr char16_t kCharacters[] = {"
    yield from rows_of_16([f"0x{character:04X}" for character in (0xFFFD, *(c for _, c in by_number))])
    yield "};"
    for page in pages:
        if page.table:
            yield ""
            yield f"constexpr CharacterTable kPage{page.number} = {{"
            yield from rows_of_16([f"{numbers.get(character, 0):4}" for character in page.table])
            yield "};"
    yield ""
    yield "constexpr CodePageEntry kEntries[] = {"
    for page in pages:
        table = f"&kPage{page.number}" if page.table else "nullptr"
        texts = f'"{page.symbol}", "{page.type}", "{page.name}"'
        yield f"    {{{page.number}, {page.substitute}, {texts}, {table}}},"
    yield "};"


def main(arguments):
    if len(arguments) != 2:
        sys.exit("make_tables.py CODE_PAGES OUT")
    source, target = arguments
    try:
        pages = read_pages(source)
        check_all(pages)
        text = "\n".join(lines_of(pages, number_characters(pages))) + "\n"
        with open(target, "w", encoding="ascii") as file:
            file.write(text)
    except (Fault, OSError, UnicodeError) as fault:
        sys.exit(f"{source}: {fault}")


if __name__ == "__main__":
    main(sys.argv[1:])
