"""Damaged workbooks, and files that are not tables."""
import json
import random
import struct
import zlib

from hurtful_sites import LAUGHS, table
from hurtful_text import lines
from hurtful_xls import SIGNATURE
from hurtful_xlsx import ROOT, SHEET, STRINGS, TYPES, content_types, package, parts, relations

ANY = "or=not-a-table,not-supported-format,no-header,one-column,malformed: "


def directory_entry(data, name):
    """Offset of an entry's record in the central directory."""
    at = data.find(b"PK\x01\x02")
    while data[at + 46 : at + 46 + struct.unpack_from("<H", data, at + 28)[0]] != name.encode():
        at = data.index(b"PK\x01\x02", at + 4)
    return at


def patched(data, at, form, value):
    piece = struct.pack("<" + form, value)
    return data[:at] + piece + data[at + len(piece) :]


def archives(m):
    good = package(parts())
    entry = directory_entry(good, SHEET)
    size = struct.unpack_from("<I", good, entry + 20)[0]
    local = struct.unpack_from("<I", good, entry + 42)[0]
    middle = local + 30 + sum(struct.unpack_from("<HH", good, local + 26)) + size // 2
    rest = size - size // 2
    m.open("huge_sizes.xlsx", patched(good, entry + 24, "I", 0xFFFFFFF0), "claims 4 GB, has 8 kB")
    m.open("workbook.csv", good, "a workbook under the suffix of a text")
    m.open("text.xlsx", lines(table()), "a text under the suffix of a workbook")
    for name, data, reason, note in (
        ("truncated.xlsx", good[: len(good) // 2], "malformed", "no central directory"),
        ("cut_deflate.xlsx", good[:middle] + bytes(rest) + good[middle + rest :],
         "malformed", "the second half of the packed sheet is zero bytes"),
        ("wrong_crc.xlsx", patched(good, entry + 16, "I", 0xDEADBEEF), "malformed", "the sheet inflates"),
        ("outside.xlsx", patched(good, entry + 42, "I", 0x7FFFFFFF), "malformed",
         "the local header lies beyond the end of the file"),
        ("zip_password.xlsx", patched(patched(good, entry + 8, "H", 1), local + 6, "H", 1),
         "encrypted", "or=malformed: the sheet's entry is flagged as encrypted"),
    ):
        m.refused(name, data, reason, note)


def packages(m):
    files = parts()
    unfolding = files[STRINGS].replace("<sst", "<!DOCTYPE sst [%s]><sst" % LAUGHS).replace("S0001", "&e9;")
    letter = {
        TYPES: content_types("word/document.xml").replace("spreadsheetml.sheet", "wordprocessingml.document"),
        ROOT: relations(("officeDocument", "word/document.xml")),
        "word/document.xml": "<document/>",
    }
    binary = {
        TYPES: content_types("xl/workbook.bin").replace(
            "openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
            "ms-excel.sheet.binary.macroEnabled.main"),
        ROOT: relations(("officeDocument", "xl/workbook.bin")),
        "xl/workbook.bin": bytes(64),
    }
    document = {"mimetype": "application/vnd.oasis.opendocument.spreadsheet", "content.xml": "<x/>"}
    for name, content, reason, note in (
        ("missing_sheet.xlsx", {n: t for n, t in files.items() if n != SHEET}, "malformed",
         "or=empty,not-a-table: the workbook names a part that is not there"),
        ("missing_strings.xlsx", {n: t for n, t in files.items() if n != STRINGS}, "malformed",
         "or=empty,no-header,one-column,not-a-table: cells point into a table that is not there"),
        ("cut_sheet_xml.xlsx", {**files, SHEET: files[SHEET][:3000]}, "malformed", "ends within a row"),
        ("doctype.xlsx", {**files, STRINGS: unfolding}, "doctype", "or=malformed: in the string table"),
        ("letter.xlsx", letter, "not-supported-format", "or=not-a-table,malformed: a text document"),
        ("pictures.zip.xlsx", {"a.txt": "x"}, "not-supported-format", "or=not-a-table,malformed: any zip"),
        ("open_document.xlsx", document, "not-supported-format", "OpenDocument under another suffix"),
        ("binary.xlsx", binary, "not-supported-format", "or=malformed,not-a-table: XLSB"),
    ):
        m.refused(name, package(content), reason, note)


def strangers(m):
    noise = random.Random(7).randbytes(20000)
    rows = "<tr><td>" + "</td></tr>\n<tr><td>".join("</td><td>".join(map(str, r)) for r in table())
    bare = "<table>" + rows + "</td></tr></table>"
    page = "<!DOCTYPE html>\n<html><body>" + bare + "</body></html>\n"
    prose = ("Dear all,\n\nThe masts near Ely stand well.\nThe one at Mill Lane, as I said, does not.\n"
             "Please have a look at it next week.\nBring the long ladder; the short one is lost.\n\n"
             "Regards\nN. N.\n")
    objects = json.dumps([dict(zip("abc", r)) for r in table()], indent=1)
    paper = "%PDF-1.4\n1 0 obj <</Type/Catalog>> endobj\ntrailer <</Root 1 0 R>>\n%%EOF\n"
    packed = b"\x1f\x8b\x08\0\0\0\0\0\0\xff" + zlib.compress(lines(table()).encode())[2:-4] + bytes(8)
    sylk = 'ID;PWXL;N;E\r\nC;Y1;X1;K"Site ID"\r\nC;X2;K"X"\r\nE\r\n'
    other = "not-supported-format"
    for name, data, reason, note in (
        ("empty.csv", b"", "empty", "or=not-a-table: no byte"),
        ("empty.xlsx", b"", "empty", "or=not-a-table: no byte"),
        ("noise.csv", noise, "not-a-table", ANY + "random bytes"),
        ("noise.xls", SIGNATURE + noise, "malformed", "random bytes behind a signature"),
        ("noise.xlsx", b"PK\x03\x04" + noise, "malformed", "or=not-a-table,not-supported-format: the same"),
        ("picture.csv", b"\x89PNG\r\n\x1a\n" + noise, "not-a-table", ANY + "a PNG picture"),
        ("prose.txt", prose, "not-a-table", ANY + "a letter"),
        ("page.xls", page, other, "an HTML table under the suffix of a workbook"),
        ("page_bare.xls", "\n\n" + bare, other, "or=not-a-table,one-column: no page around it"),
        ("sites.json.csv", objects, other, ANY + "JSON"),
        ("paper.csv", paper, other, ANY + "PDF"),
        ("packed.csv", packed, other, ANY + "gzip"),
        ("sylk.csv", sylk, other, "SYLK under another suffix"),
        ("folder.csv", None, "cannot-read", "a directory"),
    ):
        m.refused(name, data, reason, note)


def write(m):
    for group in (archives, packages, strangers):
        group(m)
