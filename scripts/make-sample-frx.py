#!/usr/bin/env python3
"""Writes the .frx and .ctx files of the samples: texts, lists and pictures that designer parts name by offset.

The forms name the offsets, so a change here asks for the same change there; run with --offsets to see them.
"""
import pathlib
import struct
import sys

SAMPLES = pathlib.Path(__file__).resolve().parent.parent / "samples"


def items(texts):
    """List and ItemData: count, the longest item (at least 3), then each item with its length."""
    data = [text.encode("cp1252") for text in texts]
    if not data:
        return struct.pack("<H", 0)
    head = struct.pack("<HH", len(data), max(3, max(map(len, data))))
    return head + b"".join(struct.pack("<H", len(item)) + item for item in data)


def pair(rows):
    """The two records of a list with numbers behind its items; the numbers come first."""
    return [items(str(number) for _, number in rows), items(text for text, _ in rows)]


def text(value):
    """The text of a multi-line text box."""
    data = value.encode("cp1252")
    return (bytes([len(data)]) if len(data) < 255 else b"\xff" + struct.pack("<H", len(data))) + data


def long_text(value):
    """A caption that does not fit its line: $"file":offset."""
    data = value.encode("cp1252")
    return struct.pack("<I", len(data)) + data


def picture(data):
    return struct.pack("<I", len(data) + 8) + b"lt\0\0" + struct.pack("<I", len(data)) + data


def palette(colours):
    table = b"".join(struct.pack("<I", colours[letter]) for letter in sorted(colours))
    return table + bytes(4 * (16 - len(colours)))


def dots(rows, letters):
    """Four bits a dot, bottom row first; rows are 16 dots wide and need no padding."""
    pixels = b""
    for row in reversed(rows):
        nibbles = [letters.index(letter) for letter in row]
        pixels += bytes(nibbles[i] << 4 | nibbles[i + 1] for i in range(0, 16, 2))
    return pixels


def info(height, size):
    return struct.pack("<IiiHHIIiiII", 40, 16, height, 1, 4, 0, size, 0, 0, 16, 0)


def bitmap(rows, colours):
    """A 16 by 16 Windows bitmap of rows of colour letters."""
    pixels, table = dots(rows, sorted(colours)), palette(colours)
    start = 14 + 40 + len(table)
    return b"BM" + struct.pack("<IHHI", start + len(pixels), 0, 0, start) + info(16, len(pixels)) + table + pixels


def icon(rows, colours):
    """The same as an icon; "." is transparent."""
    pixels = dots(rows, sorted(colours))
    mask = b"".join(struct.pack(">HH", int("".join("01"[dot == "."] for dot in row), 2), 0) for row in reversed(rows))
    image = info(32, len(pixels) + len(mask)) + palette(dict(colours, **{".": 0})) + pixels + mask
    return struct.pack("<HHHBBBBHHII", 0, 1, 1, 16, 16, 16, 0, 1, 4, len(image), 22) + image


COLOURS = {".": 0xC0C0C0, "#": 0x404040, "o": 0x2473BF, "w": 0xFFFFFF}
CRATE = ["................", "..############..", "..#wwww##wwww#..", "..#wwww##wwww#..", "..############..",
         ".##############.", ".#oooooooooooo#.", ".#o####oo####o#.", ".#o#ww#oo#ww#o#.", ".#o####oo####o#.",
         ".#oooooooooooo#.", ".#oooooooooooo#.", ".#oo########oo#.", ".#oooooooooooo#.", ".##############.",
         "................"]
RACK = [row.replace("o", "w") for row in CRATE]

LABEL_HELP = ("Labels are printed three to a row.\r\nLoad the sheet with the cut corner first.\r\n\r\n"
              "The bar code is Code 39: capital letters, figures, and - . $ / + % and the blank. "
              "Other characters of an article number are left out of the code, but stay in the plain text below it.\r\n"
              "A sheet that was begun is finished from the place set above.")
ABOUT = ("Stockroom keeps count of what lies in which bin, what came and went, and what has to be ordered. "
         "It is a sample project: read it, change it, try your tools on it.")

FILES = {
    "stockroom/mdiMain.frx": [picture(icon(CRATE, COLOURS))],
    "stockroom/frmArticles.frx": pair([("All articles", 0), ("Below minimum", 1), ("Not moved for a year", 2),
                                       ("Without a bin", 3), ("Out of sale", 4)]),
    "stockroom/frmArticle.frx": pair([("piece", 1), ("box", 2), ("metre", 3), ("kilogram", 4), ("litre", 5)])
    + [text("")],
    "stockroom/frmMovements.frx": pair([("Receipt", 1), ("Issue", 2), ("Transfer", 3), ("Correction", 4)]),
    "stockroom/frmImport.frx": pair([("Semicolon ;", 59), ("Comma ,", 44), ("Tabulator", 9)])
    + [text("Number;Name;Unit;Price;Minimum\r\nA-100;Hex bolt M8;1;0,12;500\r\n")],
    "stockroom/frmLabels.frx": [text(LABEL_HELP)] + pair([("70 x 36 mm", 24), ("105 x 37 mm", 16), ("52.5 x 21.2 mm", 56)]),
    "stockroom/frmAbout.frx": [picture(bitmap(CRATE, COLOURS)), long_text(ABOUT)],
    "stockroom/BinMap.ctx": [picture(bitmap(RACK, COLOURS))],
}


def main():
    for name, records in FILES.items():
        if "--offsets" in sys.argv:
            at = 0
            for record in records:
                print(f"{name}:{at:04X}")
                at += len(record)
        (SAMPLES / name).write_bytes(b"".join(records))


if __name__ == "__main__":
    main()
