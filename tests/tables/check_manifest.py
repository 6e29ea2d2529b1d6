#!/usr/bin/python3
"""Reads tables with other people's readers and compares with the manifest.

data/manifest.tsv was judged by hand, file by file; this script shows that openpyxl, xlrd, lxml and
Python's csv module see the same rows, columns and header. It knows nothing of the driver.
A note that starts with "or=word,word:" names reasons that are as good as the one in the column.

    check_manifest.py [FOLDER]

FOLDER holds the files (default: data/corpus); a manifest.tsv inside, as make_hurtful.py writes it,
goes before data/manifest.tsv.

Exit status 1 when a line disagrees. Lines whose note starts with "debatable" are reported apart.
Needs python3-openpyxl, python3-xlrd and python3-lxml.
"""
import csv
import io
import json
import os
import re
import sys
import warnings
import zipfile

import openpyxl
import xlrd
from lxml import etree

HERE = os.path.dirname(os.path.abspath(__file__))
SITE_WORD = re.compile(
    r"(?i)(^|[^a-z])(site|name|id|x|y|lon\w*|lat\w*|azimuth|height|tilt|"
    r"transmitter|sector|antenna)([^a-z]|$)"
)
LOOKS_TYPED = re.compile(
    r"(?i)^[-+]?[\d., ]*\d[\d., ]*(e[-+]?\d+)?%?$|^(true|false|wahr|falsch)$|"
    r"^#[A-Z/0]+[!?]?$|^\d+[-/.]\d+[-/.]\d+.*$|^[-+]?(inf|nan)$"
)
SS = "{urn:schemas-microsoft-com:office:spreadsheet}"


class Refused(Exception):
    """args[0] is the reason word."""


def typed(value):
    """True for a number, date, boolean or error: nothing that a header holds."""
    return not isinstance(value, str) or bool(LOOKS_TYPED.match(value.strip()))


def decoded(data):
    for mark, codec in (
        (b"\xff\xfe\0\0", "utf-32"),
        (b"\0\0\xfe\xff", "utf-32"),
        (b"\xff\xfe", "utf-16"),
        (b"\xfe\xff", "utf-16"),
        (b"\xef\xbb\xbf", "utf-8-sig"),
    ):
        if data.startswith(mark):
            return data.decode(codec, "replace")
    head = data[:8]
    if head[1:4] == b"\0\0\0":
        return data.decode("utf-32-le")
    if head[:3] == b"\0\0\0":
        return data.decode("utf-32-be")
    if data.count(b"\0") * 3 > len(data):
        odd = data[0::2].count(0) < data[1::2].count(0)
        return data.decode("utf-16-le" if odd else "utf-16-be")
    try:
        return data.decode("utf-8")
    except UnicodeDecodeError:
        return data.decode("cp1252", "replace")


def text_rows(text):
    """The rows under the delimiter that splits most lines into the same number of cells."""
    given = re.match(r"sep=(.)\r?\n", text)
    if given:
        text = text[given.end() :]
    best = (0, 0, [])
    for delimiter in given.group(1) if given else ",;\t|":
        rows = list(csv.reader(io.StringIO(text, newline=""), delimiter=delimiter))
        widths = [len(row) for row in rows if any(row)]
        usual = max(set(widths), key=widths.count) if widths else 0
        if usual > 1 and sum(w > 1 for w in widths) * 2 >= len(widths):
            best = max(best, (widths.count(usual) / len(widths), usual, rows), key=lambda b: b[:2])
    if not best[2]:
        raise Refused("one-column" if text.strip("\ufeff \t\r\n;,|") else "empty")
    return best[2]


def xlsx_sheets(path):
    data = open(path, "rb").read()
    with zipfile.ZipFile(io.BytesIO(data)) as archive:
        if any(
            b"purl.oclc.org" in archive.read(n) for n in archive.namelist() if n.endswith(".xml")
        ):
            data = transitional(archive)
    book = openpyxl.load_workbook(io.BytesIO(data), data_only=True)
    for sheet in book.worksheets:
        grid = [
            [
                None if c.value is None else Typed(c.value) if c.data_type == "e" else c.value
                for c in row
            ]
            for row in sheet.iter_rows()
        ]
        yield sheet.sheet_state == "visible", grid


class Typed:
    """An error cell: a value, no text."""

    def __init__(self, value):
        self.value = value


def transitional(archive):
    """The same package with the namespaces that openpyxl knows."""
    out = io.BytesIO()
    with zipfile.ZipFile(out, "w") as copy:
        for name in archive.namelist():
            part = archive.read(name)
            for strict, usual in (
                (
                    b"http://purl.oclc.org/ooxml/spreadsheetml/main",
                    b"http://schemas.openxmlformats.org/spreadsheetml/2006/main",
                ),
                (
                    b"http://purl.oclc.org/ooxml/officeDocument/relationships",
                    b"http://schemas.openxmlformats.org/officeDocument/2006/relationships",
                ),
                (
                    b"http://purl.oclc.org/ooxml/drawingml/main",
                    b"http://schemas.openxmlformats.org/drawingml/2006/main",
                ),
            ):
                part = part.replace(strict, usual)
            copy.writestr(name, part)
    return out.getvalue()


def xls_sheets(path):
    data = open(path, "rb").read()
    if "EncryptedPackage".encode("utf-16-le") in data:
        raise Refused("encrypted")
    try:
        book = xlrd.open_workbook(path, logfile=io.StringIO())
    except xlrd.XLRDError as error:
        other = "Can't find workbook" in str(error) and len(data) % 512 == 0
        raise Refused(
            "encrypted"
            if "encrypted" in str(error)
            else "not-supported-format"
            if other
            else "malformed"
        )
    for sheet in book.sheets():
        yield sheet.visibility == 0, [
            [
                None if c.ctype in (0, 6) else c.value if c.ctype == 1 else Typed(c.value)
                for c in sheet.row(r)
            ]
            for r in range(sheet.nrows)
        ]


def xml_sheets(data):
    parser = etree.XMLParser(resolve_entities=False, no_network=True)
    if b"<!DOCTYPE Workbook" in data:
        raise Refused("doctype")
    try:
        root = etree.fromstring(data.lstrip(), parser)
    except etree.XMLSyntaxError:
        raise Refused("malformed")
    if root.getroottree().docinfo.doctype:
        raise Refused("doctype")
    if root.tag != SS + "Workbook":
        raise Refused("not-supported-format")
    for sheet in root.iter(SS + "Worksheet"):
        shown = sheet.findtext(".//{urn:schemas-microsoft-com:office:excel}Visible", "Visible")
        yield shown == "Visible", xml_grid(sheet)


def xml_grid(sheet):
    cells, r = {}, 0
    for row in sheet.findall(SS + "Table/" + SS + "Row"):
        r = int(row.get(SS + "Index") or r + 1)
        c = 0
        for cell in row.findall(SS + "Cell"):
            c = int(cell.get(SS + "Index") or c + 1)
            data = cell.find(SS + "Data")
            if data is not None:
                text = "".join(data.itertext())
                cells[r, c] = text if data.get(SS + "Type") == "String" else Typed(text)
            c += int(cell.get(SS + "MergeAcross") or 0)
        r += int(row.get(SS + "Span") or 0)
    width = max((c for _, c in cells), default=0)
    return [
        [cells.get((i, j)) for j in range(1, width + 1)]
        for i in range(1, max((r for r, _ in cells), default=0) + 1)
    ]


def holds(value):
    return value is not None and not (isinstance(value, str) and not value.strip())


def words(row):
    """How many different site words a row holds; #NAME? is an error and two y are one word."""
    found = [SITE_WORD.search(v) for v in row if isinstance(v, str) and not typed(v)]
    return len({hit.group(2).lower() for hit in found if hit})


def header_row(grid):
    """Number of the header row from 0, or a refusal."""
    top = grid[:50]
    if not any(any(map(holds, row)) for row in grid):
        raise Refused("empty")
    if max(sum(map(holds, row)) for row in grid) < 2:
        raise Refused("one-column")
    best = max(range(len(top)), key=lambda i: (words(top[i]), -i))
    if words(top[best]) >= 2:
        return best
    for i, row in enumerate(top):
        if sum(map(holds, row)) >= 2:
            if any(typed(v) for v in row if holds(v)):
                raise Refused("no-header")
            return i
    raise Refused("no-header")


def measured(grid):
    """(rows, columns, header, first and last value of the first column) of the table in a grid."""
    at = header_row(grid)
    header, body = grid[at], grid[at + 1 :]
    named = [j for j, v in enumerate(header) if holds(v)]
    columns = [
        j
        for j in range(named[0], named[-1] + 1)
        if j in named or any(j < len(row) and holds(row[j]) for row in body)
    ]
    rows = [
        row
        for row in body
        if any(j < len(row) and holds(row[j]) for j in columns)
        and [v for v in row if holds(v)] != [v for v in header if holds(v)]
    ]
    if not rows:
        raise Refused("empty")
    return (
        len(rows),
        len(columns),
        [header[j] or "" for j in columns],
        str(rows[0][columns[0]]),
        str(rows[-1][columns[0]]),
    )


def best_sheet(sheets):
    """The visible sheet with the most site words, else the first with a header, else why not."""
    found, refusals = [], []
    for visible, grid in sheets:
        try:
            table = measured(grid)
        except Refused as refusal:
            refusals.append(refusal)
        else:
            found.append(
                (visible, words(table[2]) if words(table[2]) > 1 else 0, -len(found), table)
            )
    if found:
        return max(found, key=lambda f: f[:3])[3]
    raise next((r for r in refusals if r.args[0] != "empty"), Refused("empty"))


def read(path):
    data = open(path, "rb").read()
    if not data:
        raise Refused("empty")
    if data.startswith(b"PK"):
        if "mimetype" in zipfile.ZipFile(path).namelist():
            raise Refused("not-supported-format")
        return best_sheet(xlsx_sheets(path))
    if data[:2] == b"\t\4" or data.startswith(b"\xd0\xcf\x11\xe0"):
        return best_sheet(xls_sheets(path))
    text = decoded(data)
    if re.match(r"\s*<(!DOCTYPE )?html", text):
        raise Refused("not-supported-format")
    if re.match(r"\s*<(\?xml|Workbook)", text):
        return best_sheet(xml_sheets(data))
    if text.startswith("ID;P"):
        raise Refused("not-supported-format")
    try:
        json.loads(text)
        raise Refused("not-supported-format" if text.lstrip()[0] in "[{" else "not-a-table")
    except ValueError:
        return measured(text_rows(text))


def found_in(path, fields):
    """What the readers say, as the manifest would."""
    try:
        rows, columns, header, first, last = read(path)
    except Refused as refusal:
        got = {"verdict": "refused", "reason": refusal.args[0]}
    except Exception as error:  # each library has its own for a damaged file
        got = {"verdict": "refused", "reason": "malformed", "error": repr(error)}
    else:
        shown = "|".join(re.sub(r"\r\n?|\n", r"\\n", h) for h in header[:6])
        got = {
            "verdict": "open",
            "rows": str(rows),
            "columns": str(columns),
            "header": shown,
            "first_id": first,
            "last_id": last,
        }
    got["kind"] = got["verdict"]
    return {k: got.get(k, "") for k in fields}


def agrees(wanted, got):
    also = re.match(r"or=([\w,-]+):", wanted["note"])
    reasons = [wanted["reason"]] + (also.group(1).split(",") if also else [])
    return got["reason"] in reasons and all(wanted[k] == got[k] for k in got if k != "reason")


def main():
    warnings.simplefilter("ignore")
    csv.field_size_limit(1 << 30)
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "data", "corpus")
    listed = os.path.join(folder, "manifest.tsv")
    wrong = 0
    with open(
        listed if os.path.exists(listed) else os.path.join(HERE, "data", "manifest.tsv"),
        encoding="utf-8",
    ) as manifest:
        reader = csv.DictReader(manifest, delimiter="\t", quoting=csv.QUOTE_NONE)
        fields = [f for f in reader.fieldnames if f not in ("path", "note")]
        for line in reader:
            path = os.path.join(folder, line["path"])
            if not os.path.exists(path):
                print("absent     ", line["path"])
                continue
            got = found_in(path, fields)
            if not agrees(line, got):
                apart = "debatable" in line["note"]
                wrong += not apart
                print(
                    "debatable  " if apart else "DISAGREES  ",
                    line["path"],
                    [line[f] for f in fields],
                    list(got.values()),
                )
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
