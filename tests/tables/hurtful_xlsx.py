"""XLSX files that are legal, or nearly, and hurt."""
import io
import os
import re
import zipfile
from xml.sax.saxutils import escape

from hurtful_sites import HEADER, sites, table

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE = "http://schemas.openxmlformats.org/package/2006"
DECLARED = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
STYLES = (
    DECLARED + '<styleSheet xmlns="%s"><fonts count="1"><font/></fonts><fills count="1"><fill>'
    '<patternFill/></fill></fills><borders count="1"><border/></borders><cellStyleXfs count="1">'
    '<xf/></cellStyleXfs><cellXfs count="3"><xf/><xf applyFont="1"/>'
    '<xf numFmtId="14" applyNumberFormat="1"/></cellXfs></styleSheet>' % MAIN
)


def letters(column):
    """Column name of a number from 1: A, Z, AA, XFD."""
    name = ""
    while column:
        column, rest = divmod(column - 1, 26)
        name = chr(65 + rest) + name
    return name


class Strings:
    """The shared string table."""

    def __init__(self):
        self.index = {}

    def cell(self, reference, text):
        at = self.index.setdefault(text, len(self.index))
        return '<c r="%s" t="s"><v>%d</v></c>' % (reference, at)

    def xml(self, attributes="", more=""):
        items = "".join('<si><t xml:space="preserve">%s</t></si>' % escape(t) for t in self.index)
        return DECLARED + '<sst xmlns="%s" %s>%s%s</sst>' % (MAIN, attributes, items, more)


def inline(reference, text):
    return '<c r="%s" t="inlineStr"><is><t>%s</t></is></c>' % (reference, escape(text))


def row_xml(number, values, text):
    """A row. `text` makes text cells, None is no cell, a pair is a cell's (attributes, content)."""
    return '<row r="%d">%s</row>' % (
        number,
        "".join(cell_xml(letters(c) + str(number), v, text) for c, v in enumerate(values, 1)),
    )


def cell_xml(reference, value, text):
    if value is None:
        return ""
    if isinstance(value, str):
        return text(reference, value)
    attributes, content = value if isinstance(value, tuple) else ("", "<v>%r</v>" % value)
    return '<c r="%s" %s>%s</c>' % (reference, attributes, content)


def rows_xml(rows, text, first=1):
    return "".join(row_xml(i, row, text) for i, row in enumerate(rows, first))


def sheet_xml(rows, before="", after=""):
    return DECLARED + '<worksheet xmlns="%s">%s<sheetData>%s</sheetData>%s</worksheet>' % (
        MAIN,
        before,
        rows,
        after,
    )


def workbook_xml(properties="", sheets=(("Sites", ""),)):
    listed = "".join(
        '<sheet name="%s" sheetId="%d" %s r:id="rId%d"/>' % (name, i, state, i)
        for i, (name, state) in enumerate(sheets, 1)
    )
    return DECLARED + '<workbook xmlns="%s" xmlns:r="%s">%s<sheets>%s</sheets></workbook>' % (
        MAIN,
        OFFICE,
        properties,
        listed,
    )


def relations(*pairs):
    listed = "".join(
        '<Relationship Id="rId%d" Type="%s/%s" Target="%s"/>' % (i, OFFICE, kind, target)
        for i, (kind, target) in enumerate(pairs, 1)
    )
    return DECLARED + '<Relationships xmlns="%s/relationships">%s</Relationships>' % (
        PACKAGE,
        listed,
    )


def content_types(workbook="/xl/workbook.xml", sheets=("/xl/worksheets/sheet1.xml",)):
    kind = "application/vnd.openxmlformats-officedocument.spreadsheetml."
    listed = [
        (workbook, "sheet.main+xml"),
        ("/xl/styles.xml", "styles+xml"),
        ("/xl/sharedStrings.xml", "sharedStrings+xml"),
    ] + [(s, "worksheet+xml") for s in sheets]
    overrides = "".join(
        '<Override PartName="%s" ContentType="%s%s"/>' % (p, kind, t) for p, t in listed
    )
    return (
        DECLARED + '<Types xmlns="%s/content-types"><Default Extension="rels" ContentType='
        '"application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="xml" '
        'ContentType="application/xml"/>%s</Types>' % (PACKAGE, overrides)
    )


def parts(sheet, strings=None, workbook=None):
    """The parts of a usual workbook with one sheet, by name."""
    return {
        "[Content_Types].xml": content_types(),
        "_rels/.rels": relations(("officeDocument", "xl/workbook.xml")),
        "xl/workbook.xml": workbook or workbook_xml(),
        "xl/_rels/workbook.xml.rels": relations(
            ("worksheet", "worksheets/sheet1.xml"),
            ("styles", "styles.xml"),
            ("sharedStrings", "sharedStrings.xml"),
        ),
        "xl/styles.xml": STYLES,
        "xl/sharedStrings.xml": strings or Strings().xml(),
        "xl/worksheets/sheet1.xml": sheet,
    }


def info(name, method=zipfile.ZIP_DEFLATED):
    entry = zipfile.ZipInfo(name)
    entry.compress_type = method
    return entry


def package(files, method=zipfile.ZIP_DEFLATED, zip64=False, target=None):
    """Zips parts (text, bytes, or an iterable of bytes) with fixed time stamps."""
    out = target or io.BytesIO()
    with zipfile.ZipFile(out, "w", compresslevel=1) as archive:
        for name, content in files.items():
            with archive.open(info(name, method), "w", force_zip64=zip64) as part:
                if isinstance(content, (str, bytes)):
                    content = [content]
                for piece in content:
                    part.write(piece.encode() if isinstance(piece, str) else piece)
    return out.getvalue() if target is None else None


class Pipe(io.RawIOBase):
    """A sink that cannot seek: zipfile then writes data descriptors behind each entry."""

    def __init__(self):
        super().__init__()
        self.data = bytearray()

    def writable(self):
        return True

    def write(self, piece):
        self.data += piece
        return len(piece)


def plain(rows=None, **options):
    """A usual workbook; the rows default to the 40 sites."""
    strings = Strings()
    body = rows_xml(rows or table(), strings.cell)
    return package(parts(sheet_xml(body), strings.xml(**options)))


def with_sheet(body, before="", after="", strings=None):
    return package(parts(sheet_xml(body, before, after), (strings or Strings()).xml()))


def striped(strings, count):
    """40 sites, then `count` rows that hold nothing but a style; in pieces."""
    yield DECLARED + '<worksheet xmlns="%s"><sheetData>' % MAIN
    yield rows_xml(table(), strings.cell)
    empty = '<row r="%d" s="1" customFormat="1"><c r="A%d" s="1"/></row>'
    for start in range(42, 42 + count, 10000):
        yield "".join(empty % (i, i) for i in range(start, min(start + 10000, 42 + count)))
    yield "</sheetData></worksheet>"


def extents(m):
    strings = Strings()
    body = "".join(striped(strings, 1000000))
    yield "million_styled_rows.xlsx", package(parts(body, strings.xml()))
    m.open("million_styled_rows.xlsx", "a million rows that hold only a style")

    strings = Strings()
    body = rows_xml(table(), strings.cell)
    end = '<row r="1048576">%s</row>' % strings.cell("A1048576", "end")
    yield "stray_last_row.xlsx", with_sheet(body + end, strings=strings)
    m.open(
        "stray_last_row.xlsx", "text in A1048576 is a row without coordinates", rows=41, last="end"
    )

    for name, at, columns, note in (
        ("stray_last_column.xlsx", 5, 6, "text in XFD5 stands under no header"),
        ("stray_last_header.xlsx", 1, 7, "text in XFD1 is a column; G to XFC between have none"),
    ):
        strings = Strings()
        body = rows_xml(table(), strings.cell)
        stray = strings.cell("XFD%d" % at, "remark")
        body = re.sub(
            r'(<row r="%d">.*?)</row>' % at, lambda f: f.group(1) + stray + "</row>", body
        )
        yield name, with_sheet(body, strings=strings)
        m.open(name, note, columns=columns)

    for name, reference in (("dimension_a1.xlsx", "A1"), ("dimension_whole.xlsx", "A1:XFD1048576")):
        strings = Strings()
        yield name, with_sheet(
            rows_xml(table(), strings.cell), '<dimension ref="%s"/>' % reference, strings=strings
        )
        m.open(name, "the dimension lies")

    header = HEADER[:3] + ["C%d" % i for i in range(4, 16385)]
    yield "wide_16384.xlsx", plain(
        [header] + [row[:3] + [i] * 16381 for i, row in enumerate(sites(2))]
    )
    m.open("wide_16384.xlsx", rows=2, columns=16384, header=header, last="S0002")


def spelling(m):
    for name, pattern, by, note in (
        ("no_references.xlsx", r' r="[A-Z]*\d+"', "", "no r on rows and cells"),
        (
            "some_references.xlsx",
            r' r="([B-F]\d+|\d*[13579])"',
            "",
            "r on the first cell of a row only, and on even rows only",
        ),
        (
            "comments.xlsx",
            r"<v>(.)",
            r"<v><!-- <v>7</v> --><?skip me?>\1",
            "comments and instructions inside values",
        ),
        (
            "prefixed.xlsx",
            r"<(/?)(?=\w)|(?<= xmlns)(?==)",
            lambda f: ":x" if f.group() == "" else f.group() + "x:",
            "every element of the sheet has a prefix",
        ),
    ):
        strings = Strings()
        sheet = sheet_xml(rows_xml(table(), strings.cell))
        yield name, package(parts(re.sub(pattern, by, sheet), strings.xml()))
        m.open(name, note)

    yield "inline_strings.xlsx", with_sheet(rows_xml(table(), inline))
    m.open("inline_strings.xlsx", "no shared strings")
    yield "text_numbers.xlsx", plain(
        [[v if isinstance(v, str) else repr(v) for v in r] for r in table()]
    )
    m.open("text_numbers.xlsx", "every number is a text cell")
    yield "scientific.xlsx", plain(
        [HEADER]
        + [
            r[:1] + [('t="n"', "<v>%.1fE-2</v>" % (v * 100)) for v in r[1:3]] + r[3:]
            for r in sites()
        ]
    )
    m.open("scientific.xlsx", 'coordinates written as 201.0E-2, with t="n"')

    strings = Strings()
    sheet = sheet_xml(rows_xml(table(), strings.cell)).replace("UTF-8", "UTF-16")
    yield "utf16_sheet.xlsx", package(parts(sheet.encode("utf-16"), strings.xml()))
    m.open("utf16_sheet.xlsx", "the sheet part is UTF-16, as the packaging rules allow")


def values(m):
    def result(reference, v):
        return cell_xml(
            reference, ('t="str"', '<f>"%s"</f><v>%s</v>' % (escape(v), escape(v))), None
        )

    nothing = [
        ('t="str"', '<f>IF(1,"","")</f><v></v>'),
        ('t="str"', '<f>""</f>'),
        ("", "<f>B1</f>"),
    ]
    yield "formula_strings.xlsx", with_sheet(rows_xml(table() + [nothing] * 500, result))
    m.open("formula_strings.xlsx", "texts are formula results; 500 rows below have empty results")

    rich = "".join(
        '<si><r><rPr><b/></rPr><t>S</t></r><r><t xml:space="preserve">%04d</t></r>'
        '<rPh sb="0" eb="1"><t>wrong</t></rPh><phoneticPr fontId="0"/></si>' % i
        for i in range(1, 41)
    )
    fixed = len(HEADER) + 1  # the header's strings and the sector name come first
    yield "rich_phonetic.xlsx", plain(
        [HEADER] + [[('t="s"', "<v>%d</v>" % (fixed + i))] + r[1:] for i, r in enumerate(sites())],
        more=rich,
    )
    m.open("rich_phonetic.xlsx", "ids are two rich runs; phonetic runs are no text")

    rows = sites()
    rows[0][0] = "\u20ac0001 & <Co>"
    body = rows_xml([HEADER] + rows, inline)
    yield "entities.xlsx", with_sheet(
        body.replace("\u20ac", "&#x20AC;").replace("S0040", "<![CDATA[S0040]]>")
    )
    m.open("entities.xlsx", "character references and CDATA", first="\u20ac0001 & <Co>")

    yield "kept_spaces.xlsx", plain([HEADER] + [r[:3] + ["  A \u00a0"] + r[4:] for r in sites()])
    m.open("kept_spaces.xlsx", "xml:space=preserve around the sector name")

    for name, system, serial in (
        ("dates_1900.xlsx", "", 43890),
        ("dates_1904.xlsx", '<workbookPr date1904="1"/>', 42428),
    ):
        strings = Strings()
        body = rows_xml(
            [HEADER + ["On air"]] + [r + [('s="2"', "<v>%d</v>" % serial)] for r in sites()],
            strings.cell,
        )
        yield name, package(parts(sheet_xml(body), strings.xml(), workbook_xml(system)))
        m.open(name, "every date is 2020-02-29", columns=7)

    rows = [r[:4] + [('t="e"', "<v>#N/A</v>"), r[5], ('t="b"', "<v>1</v>")] for r in sites()]
    rows[2][1] = ('t="e"', "<v>#DIV/0!</v>")
    yield "errors_booleans.xlsx", plain([HEADER + ["Active"]] + rows)
    m.open(
        "errors_booleans.xlsx", "#N/A in every height, #DIV/0! in the longitude of S0003", columns=7
    )


def string_table(m):
    padding = "".join(
        "<si><t>unused text number %07d ................</t></si>" % i for i in range(1000000)
    )
    yield "unused_strings.xlsx", plain(more=padding)
    m.open("unused_strings.xlsx", "a million shared strings that no cell uses")
    for name, counts in (
        ("string_count_low.xlsx", 'count="1" uniqueCount="1"'),
        ("string_count_high.xlsx", 'count="4294967295" uniqueCount="4294967295"'),
    ):
        yield name, plain(attributes=counts)
        m.open(name, "the string table's counts lie")


def packaging(m):
    strings = Strings()
    files = parts(sheet_xml(rows_xml(table(), strings.cell)), strings.xml())
    yield "stored.xlsx", package(files, zipfile.ZIP_STORED)
    m.open("stored.xlsx", "nothing compressed")
    pipe = Pipe()
    package(files, target=pipe)
    yield "data_descriptors.xlsx", bytes(pipe.data)
    m.open("data_descriptors.xlsx", "sizes stand behind each entry, none in its local header")
    pipe = Pipe()
    package(files, zip64=True, target=pipe)
    yield "zip64_descriptors.xlsx", bytes(pipe.data)
    m.open("zip64_descriptors.xlsx", "the same with 64-bit sizes")
    yield "zip64.xlsx", package(files, zip64=True)
    m.open("zip64.xlsx", "local headers with zip64 fields")
    yield "archive_comment.xlsx", commented(package(files))
    m.open("archive_comment.xlsx", "a 60,000 byte archive comment that holds PK signatures")

    moved = dict(files)
    moved["xl/_rels/workbook.xml.rels"] = relations(
        ("worksheet", "/xl/worksheets/sheet1.xml"),
        ("styles", "/xl/styles.xml"),
        ("sharedStrings", "/xl/sharedStrings.xml"),
    )
    moved["_rels/.rels"] = relations(("officeDocument", "/xl/workbook.xml"))
    yield "absolute_targets.xlsx", package(moved)
    m.open("absolute_targets.xlsx", "part names that start with a slash")

    odd = {
        "[Content_Types].xml": content_types("/a b/book.xml", ("/deep/er/s.xml",)),
        "_rels/.rels": relations(("officeDocument", "a%20b/book.xml")),
        "a%20b/book.xml": files["xl/workbook.xml"],
        "a%20b/_rels/book.xml.rels": relations(
            ("worksheet", "../deep/er/s.xml"), ("sharedStrings", "./../deep/strings.xml")
        ),
        "deep/strings.xml": files["xl/sharedStrings.xml"],
        "deep/er/s.xml": files["xl/worksheets/sheet1.xml"],
    }
    odd["[Content_Types].xml"] = (
        odd["[Content_Types].xml"]
        .replace("/xl/sharedStrings.xml", "/deep/strings.xml")
        .replace("/a b/", "/a%20b/")
    )
    yield "odd_part_names.xlsx", package(odd)
    m.open(
        "odd_part_names.xlsx", "workbook, sheet and strings lie elsewhere; targets with ../ and %20"
    )

    yield "strict.xlsx", package({n: strict(t) for n, t in files.items()})
    m.open("strict.xlsx", "strict namespaces throughout")
    yield "blank_flood.xlsx", flood(files)
    m.open(
        "blank_flood.xlsx",
        "debatable: 300 MB of blanks between two rows, 300 kB packed; a limit on "
        "the inflated size may refuse it as malformed",
    )


def strict(text):
    return text.replace(MAIN, "http://purl.oclc.org/ooxml/spreadsheetml/main").replace(
        OFFICE, "http://purl.oclc.org/ooxml/officeDocument/relationships"
    )


def flood(files):
    before, after = files["xl/worksheets/sheet1.xml"].split('<row r="21">')
    changed = dict(files)
    changed["xl/worksheets/sheet1.xml"] = (
        [before] + [" " * 1000000] * 300 + ['<row r="21">' + after]
    )
    return package(changed)


def commented(data):
    """The archive with a long comment; readers look for the end record from the back."""
    comment = (b"PK\x03\x04 PK\x01\x02 not an entry. " * 3000)[:60000]
    assert data[-2:] == b"\0\0"
    return data[:-2] + len(comment).to_bytes(2, "little") + comment


def sheets(m):
    strings = Strings()
    old = sheet_xml(rows_xml(table(5), strings.cell))
    now = sheet_xml(rows_xml(table(), strings.cell))
    files = parts(
        old, strings.xml(), workbook_xml(sheets=(("Old", 'state="hidden"'), ("Sites", "")))
    )
    files["[Content_Types].xml"] = content_types(
        sheets=("/xl/worksheets/sheet1.xml", "/xl/worksheets/sheet2.xml")
    )
    files["xl/worksheets/sheet2.xml"] = now
    files["xl/_rels/workbook.xml.rels"] = relations(
        ("worksheet", "worksheets/sheet1.xml"),
        ("worksheet", "worksheets/sheet2.xml"),
        ("sharedStrings", "sharedStrings.xml"),
    )
    yield "hidden_first.xlsx", package(files)
    m.open("hidden_first.xlsx", "the hidden first sheet has the same header and 5 sites")

    strings = Strings()
    files["xl/workbook.xml"] = workbook_xml(sheets=(("Read me", ""), ("Sites", "")))
    files["xl/worksheets/sheet1.xml"] = sheet_xml(
        rows_xml([["Version", "Author", "Remark"], ["1", "N. N.", "first"]], strings.cell)
    )
    files["xl/worksheets/sheet2.xml"] = sheet_xml(rows_xml(table(), strings.cell))
    files["xl/sharedStrings.xml"] = strings.xml()
    yield "cover_sheet.xlsx", package(files)
    m.open("cover_sheet.xlsx", "a table of another kind comes first")

    for name, above in (("title_rows.xlsx", 6), ("header_row_50.xlsx", 49)):
        titles = [["Radio sites of the region"], ["Exported", "2024-01-31"]] + [[]] * (above - 2)
        yield name, plain(titles + table())
        m.open(name, "header in row %d" % (above + 1))
    yield "repeated_header.xlsx", plain(table()[:21] + [HEADER] + table()[21:])
    m.open("repeated_header.xlsx", "the header again after 20 sites, as printed pages do")


def write(folder, m):
    for group in (extents, spelling, values, string_table, packaging, sheets):
        for name, data in group(m):
            with open(os.path.join(folder, name), "wb") as out:
                out.write(data)
