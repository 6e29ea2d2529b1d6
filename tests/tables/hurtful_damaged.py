"""Damaged workbooks, and things that are no tables."""
import json
import os
import random
import struct
import zlib

from hurtful_sites import table
from hurtful_text import lines
from hurtful_xlsx import (
    Strings,
    content_types,
    package,
    parts,
    plain,
    relations,
    rows_xml,
    sheet_xml,
)

SHEET = "xl/worksheets/sheet1.xml"


def directory_entry(data, name):
    """Offset of an entry's record in the central directory."""
    at = data.find(b"PK\x01\x02")
    while data[at + 46 : at + 46 + struct.unpack_from("<H", data, at + 28)[0]] != name.encode():
        at = data.index(b"PK\x01\x02", at + 4)
    return at


def stream_of(data, name):
    """(offset, size) of an entry's compressed bytes."""
    at = directory_entry(data, name)
    size, local = (
        struct.unpack_from("<I", data, at + 20)[0],
        struct.unpack_from("<I", data, at + 42)[0],
    )
    name_size, extra = struct.unpack_from("<HH", data, local + 26)
    return local + 30 + name_size + extra, size


def patched(data, at, form, *values):
    piece = struct.pack("<" + form, *values)
    return data[:at] + piece + data[at + len(piece) :]


def workbooks(m):
    good = plain()
    at, size = stream_of(good, SHEET)
    entry = directory_entry(good, SHEET)
    yield "truncated.xlsx", good[: len(good) // 2]
    m.refused("truncated.xlsx", "malformed", "cut in the middle; no central directory")
    yield "cut_deflate.xlsx", good[: at + size // 2] + bytes(size - size // 2) + good[at + size :]
    m.refused("cut_deflate.xlsx", "malformed", "the second half of the packed sheet is zero bytes")
    yield "wrong_crc.xlsx", patched(good, entry + 16, "I", 0xDEADBEEF)
    m.refused(
        "wrong_crc.xlsx", "malformed", "debatable: the sheet inflates, its checksum does not match"
    )
    yield "huge_sizes.xlsx", patched(good, entry + 24, "I", 0xFFFFFFF0)
    m.open("huge_sizes.xlsx", "the sheet claims 4 GB inflated and has 8 kB")
    yield "outside.xlsx", patched(good, entry + 42, "I", 0x7FFFFFFF)
    m.refused(
        "outside.xlsx", "malformed", "the sheet's local header lies beyond the end of the file"
    )
    locked = patched(good, entry + 8, "H", 1)
    local = struct.unpack_from("<I", good, entry + 42)[0]
    yield "zip_password.xlsx", patched(locked, local + 6, "H", 1)
    m.refused(
        "zip_password.xlsx", "encrypted", "or=malformed: the sheet's entry is flagged as encrypted"
    )

    strings = Strings()
    files = parts(sheet_xml(rows_xml(table(), strings.cell)), strings.xml())
    laughs = "".join(
        '<!ENTITY e%d "%s">' % (i, ("&e%d;" % (i - 1)) * 10 if i else "ha") for i in range(10)
    )
    for name, part, change, reason, note in (
        (
            "missing_sheet.xlsx",
            SHEET,
            None,
            "malformed",
            "or=empty,not-a-table: the workbook names a part that is not there",
        ),
        (
            "cut_sheet_xml.xlsx",
            SHEET,
            files[SHEET][:3000],
            "malformed",
            "the sheet ends within a row",
        ),
        (
            "doctype.xlsx",
            "xl/sharedStrings.xml",
            files["xl/sharedStrings.xml"]
            .replace("<sst", "<!DOCTYPE sst [%s]><sst" % laughs)
            .replace("S0001", "&e9;"),
            "doctype",
            "or=malformed: unfolding entities in the string table",
        ),
        (
            "missing_strings.xlsx",
            "xl/sharedStrings.xml",
            None,
            "malformed",
            "or=empty,no-header,one-column,not-a-table: cells point into a table that is not there",
        ),
    ):
        changed = {n: t for n, t in files.items() if n != part or change is not None}
        if change is not None:
            changed[part] = change
        yield name, package(changed)
        m.refused(name, reason, note)

    yield "letter.xlsx", package(
        {
            "[Content_Types].xml": content_types("/word/document.xml").replace(
                "spreadsheetml.sheet", "wordprocessingml.document"
            ),
            "_rels/.rels": relations(("officeDocument", "word/document.xml")),
            "word/document.xml": "<document/>",
        }
    )
    m.refused(
        "letter.xlsx", "not-supported-format", "or=not-a-table,malformed: a text document's package"
    )
    yield "pictures.zip.xlsx", package({"a.txt": lines(table())})
    m.refused(
        "pictures.zip.xlsx",
        "not-supported-format",
        "or=not-a-table,malformed: a zip that is no workbook",
    )
    yield "open_document.xlsx", package(
        {"mimetype": "application/vnd.oasis.opendocument.spreadsheet", "content.xml": "<x/>"}
    )
    m.refused("open_document.xlsx", "not-supported-format", "OpenDocument under another suffix")
    yield "binary.xlsx", package(
        {
            "[Content_Types].xml": content_types("/xl/workbook.bin").replace(
                "openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
                "ms-excel.sheet.binary.macroEnabled.main",
            ),
            "_rels/.rels": relations(("officeDocument", "xl/workbook.bin")),
            "xl/workbook.bin": bytes(64),
        }
    )
    m.refused("binary.xlsx", "not-supported-format", "or=malformed,not-a-table: XLSB")
    yield "workbook.csv", good
    m.open("workbook.csv", "a workbook under the suffix of a text")
    yield "text.xlsx", lines(table())
    m.open("text.xlsx", "a text under the suffix of a workbook")


def strangers(m):
    noise = random.Random(7)
    page = "<!DOCTYPE html>\n<html><body><table><tr><td>%s</td></tr></table></body></html>\n"
    rows = "</td></tr>\n<tr><td>".join("</td><td>".join(map(str, r)) for r in table())
    prose = (
        "Dear all,\n\nThe masts near Ely stand well.\nThe one at Mill Lane, as I said, does not.\n"
        "Please have a look at it next week.\nBring the long ladder; the short one is lost.\n\n"
        "Regards\nN. N.\n"
    )
    image = struct.pack(">IIBBBBB", 1, 1, 8, 0, 0, 0, 0)
    chunks = ((b"IHDR", image), (b"IDAT", zlib.compress(b"\0\0")), (b"IEND", b""))
    picture = b"\x89PNG\r\n\x1a\n" + b"".join(
        struct.pack(">I", len(d)) + k + d + struct.pack(">I", zlib.crc32(k + d)) for k, d in chunks
    )
    any_reason = "or=not-a-table,not-supported-format,no-header,one-column,malformed: "
    for name, data, reason, note in (
        ("empty.csv", b"", "empty", "or=not-a-table: no byte"),
        ("empty.xlsx", b"", "empty", "or=not-a-table: no byte"),
        (
            "noise.csv",
            bytes(noise.getrandbits(8) for _ in range(20000)),
            "not-a-table",
            any_reason + "random bytes",
        ),
        (
            "noise.xls",
            b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1" + bytes(noise.getrandbits(8) for _ in range(20000)),
            "malformed",
            "random bytes behind a signature",
        ),
        (
            "noise.xlsx",
            b"PK\x03\x04" + bytes(noise.getrandbits(8) for _ in range(20000)),
            "malformed",
            "or=not-a-table,not-supported-format: random bytes behind a signature",
        ),
        ("picture.csv", picture, "not-a-table", any_reason + "a PNG picture"),
        ("prose.txt", prose, "not-a-table", any_reason + "a letter"),
        (
            "page.xls",
            page % rows,
            "not-supported-format",
            "an HTML table under the suffix of a workbook",
        ),
        (
            "page_bare.xls",
            "\n\n<table><tr><td>" + rows + "</td></tr></table>",
            "not-supported-format",
            "or=not-a-table,one-column: an HTML table without a page around it",
        ),
        (
            "sites.json.csv",
            json.dumps([dict(zip("abc", r)) for r in table()], indent=1),
            "not-supported-format",
            any_reason + "JSON",
        ),
        (
            "paper.csv",
            b"%PDF-1.4\n1 0 obj <</Type/Catalog>> endobj\ntrailer <</Root 1 0 R>>\n%%EOF\n",
            "not-supported-format",
            any_reason + "PDF",
        ),
        (
            "packed.csv",
            b"\x1f\x8b\x08\0\0\0\0\0\0\xff"
            + zlib.compress(lines(table()).encode())[2:-4]
            + bytes(8),
            "not-supported-format",
            any_reason + "gzip",
        ),
        (
            "sylk.csv",
            "ID;PWXL;N;E\r\nC;Y1;X1;K\"Site ID\"\r\nC;X2;K\"X\"\r\nE\r\n",
            "not-supported-format",
            "SYLK under another suffix",
        ),
    ):
        yield name, data
        m.refused(name, reason, note)


def write(folder, m):
    for group in (workbooks, strangers):
        for name, data in group(m):
            with open(os.path.join(folder, name), "wb") as out:
                out.write(data.encode() if isinstance(data, str) else data)
    os.makedirs(os.path.join(folder, "folder.csv"), exist_ok=True)
    m.refused("folder.csv", "cannot-read", "a directory")
