"""XLSX files that are valid, or almost, and hard to read."""
import io
import re
import zipfile
from xml.sax.saxutils import escape

from hurtful_sites import HEADER, WIDE_HEADER, sites, table, with_sectors

MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
PACKAGE = "http://schemas.openxmlformats.org/package/2006"
DECLARED = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
TYPES, ROOT, BOOK = "[Content_Types].xml", "_rels/.rels", "xl/workbook.xml"
LINKS, STRINGS = "xl/_rels/workbook.xml.rels", "xl/sharedStrings.xml"
SHEET, SHEET_2 = "xl/worksheets/sheet1.xml", "xl/worksheets/sheet2.xml"
STYLES = (
    DECLARED + '<styleSheet xmlns="%s"><fonts count="1"><font/></fonts><fills count="1"><fill>'
    '<patternFill/></fill></fills><borders count="1"><border/></borders><cellStyleXfs count="1">'
    '<xf/></cellStyleXfs><cellXfs count="3"><xf/><xf applyFont="1"/>'
    '<xf numFmtId="14" applyNumberFormat="1"/></cellXfs></styleSheet>' % MAIN)


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


def formula(reference, text):
    return '<c r="%s" t="str"><f>"%s"</f><v>%s</v></c>' % (reference, escape(text), escape(text))


def cell_xml(reference, value, text):
    """A cell. `text` makes text cells; a pair is a cell's (attributes, content)."""
    if isinstance(value, str):
        return text(reference, value)
    attributes, content = value if isinstance(value, tuple) else ("", "<v>%r</v>" % value)
    return '<c r="%s" %s>%s</c>' % (reference, attributes, content)


def sheet_xml(rows, text):
    body = ""
    for i, row in enumerate(rows, 1):
        cells = [cell_xml(letters(c) + str(i), v, text) for c, v in enumerate(row, 1)]
        body += '<row r="%d">%s</row>' % (i, "".join(cells))
    return DECLARED + '<worksheet xmlns="%s"><sheetData>%s</sheetData></worksheet>' % (MAIN, body)


def workbook_xml(*sheets):
    listed = "".join('<sheet name="%s" sheetId="%d" %s r:id="rId%d"/>' % (name, i, state, i)
                     for i, (name, state) in enumerate(sheets, 1))
    return DECLARED + '<workbook xmlns="%s" xmlns:r="%s"><sheets>%s</sheets></workbook>' % (
        MAIN, OFFICE, listed)


def relations(*pairs):
    listed = "".join('<Relationship Id="rId%d" Type="%s/%s" Target="%s"/>' % (i, OFFICE, kind, target)
                     for i, (kind, target) in enumerate(pairs, 1))
    return DECLARED + '<Relationships xmlns="%s/relationships">%s</Relationships>' % (PACKAGE, listed)


def content_types(workbook=BOOK, sheets=(SHEET,), strings=STRINGS):
    listed = [(workbook, "sheet.main"), ("xl/styles.xml", "styles"), (strings, "sharedStrings")]
    overrides = "".join(
        '<Override PartName="/%s" ContentType='
        '"application/vnd.openxmlformats-officedocument.spreadsheetml.%s+xml"/>' % pair
        for pair in listed + [(s, "worksheet") for s in sheets])
    return (DECLARED + '<Types xmlns="%s/content-types"><Default Extension="rels" ContentType='
            '"application/vnd.openxmlformats-package.relationships+xml"/><Default Extension="xml" '
            'ContentType="application/xml"/>%s</Types>' % (PACKAGE, overrides))


def parts(rows=None, text=None, **options):
    """The parts of a common workbook with one sheet, by name; the default rows are the 40 sites."""
    strings = Strings()
    sheet = sheet_xml(rows or table(), text or strings.cell)
    return {
        TYPES: content_types(),
        ROOT: relations(("officeDocument", BOOK)),
        BOOK: workbook_xml(("Sites", "")),
        LINKS: relations(("worksheet", "worksheets/sheet1.xml"), ("styles", "styles.xml"),
                         ("sharedStrings", "sharedStrings.xml")),
        "xl/styles.xml": STYLES,
        STRINGS: strings.xml(**options),
        SHEET: sheet,
    }


def package(files, method=zipfile.ZIP_DEFLATED, zip64=False, out=None):
    """Zips parts (text, bytes or a list of texts) with fixed time stamps."""
    out = out or io.BytesIO()
    with zipfile.ZipFile(out, "w", compresslevel=1) as archive:
        for name, content in files.items():
            info = zipfile.ZipInfo(name)
            info.compress_type = method
            with archive.open(info, "w", force_zip64=zip64) as part:
                for piece in content if isinstance(content, list) else [content]:
                    part.write(piece.encode() if isinstance(piece, str) else piece)
    return out.getvalue()


class Pipe(io.BytesIO):
    """An output that cannot seek; zipfile then writes a data descriptor after each entry."""

    def seek(self, *_):
        raise io.UnsupportedOperation


def plain(rows=None, text=None, **options):
    return package(parts(rows, text, **options))


def inserted(before, xml):
    """A common workbook with additional XML in its sheet."""
    files = parts()
    files[SHEET] = files[SHEET].replace(before, xml + before, 1)
    return package(files)


def extents(m):
    empty = "".join('<row r="%d" s="1" customFormat="1"><c r="A%d" s="1"/></row>' % (i, i)
                    for i in range(42, 1000042))
    last = '<row r="1048576">%s</row>' % inline("A1048576", "end")
    for name, before, xml, note, facts in (
        ("million_styled_rows.xlsx", "</sheetData>", empty, "a million rows with only a style", {}),
        ("stray_last_row.xlsx", "</sheetData>", last, "a row without coordinates",
         {"rows": 41, "last": "end"}),
        ("stray_last_column.xlsx", '</row><row r="6">', inline("XFD5", "remark"), "under no header", {}),
        ("stray_last_header.xlsx", '</row><row r="2">', inline("XFD1", "remark"),
         "text in XFD1 is a column; G to XFC between have none", {"columns": 7}),
        ("dimension_a1.xlsx", "<sheetData>", '<dimension ref="A1"/>', "the dimension lies", {}),
        ("dimension_whole.xlsx", "<sheetData>", '<dimension ref="A1:XFD1048576"/>', "it lies", {}),
    ):
        m.open(name, inserted(before, xml), note, **facts)
    m.open("wide_16384.xlsx", plain([WIDE_HEADER] + [r[:3] + [7] * 16381 for r in sites(2)]),
           rows=2, columns=16384, header=WIDE_HEADER, last="S0002")


def spelling(m):
    for name, pattern, by, note in (
        ("no_references.xlsx", r' r="[A-Z]*\d+"', "", "no r on rows and cells"),
        ("some_references.xlsx", r' r="([B-F]\d+|\d*[13579])"', "", "on first cells and on even rows only"),
        ("comments.xlsx", r"<v>(.)", r"<v><!-- <v>7</v> --><?skip me?>\1", "inside values"),
        ("prefixed.xlsx", r"<(/?)(?=\w)|(?<= xmlns)(?==)",
         lambda f: f.group() + "x:" if f.group() else ":x", "every element of the sheet has a prefix"),
    ):
        files = parts()
        files[SHEET] = re.sub(pattern, by, files[SHEET])
        m.open(name, package(files), note)
    files = parts()
    files[SHEET] = files[SHEET].replace("UTF-8", "UTF-16").encode("utf-16")
    m.open("utf16_sheet.xlsx", package(files), "as the packaging rules allow")
    m.open("inline_strings.xlsx", plain(text=inline), "no shared strings")
    texts = [[v if isinstance(v, str) else repr(v) for v in r] for r in table()]
    m.open("text_numbers.xlsx", plain(texts), "every number is a text cell")


def values(m):
    nothing = [('t="str"', '<f>IF(1,"","")</f><v></v>'), ('t="str"', '<f>""</f>'), ("", "<f>B1</f>")]
    m.open("formula_strings.xlsx", plain(table() + [nothing] * 500, formula),
           "texts are formula results; 500 rows below have empty results")

    rich = "".join('<si><r><rPr><b/></rPr><t>S</t></r><r><t xml:space="preserve">%04d</t></r>'
                   '<rPh sb="0" eb="1"><t>wrong</t></rPh><phoneticPr fontId="0"/></si>' % i
                   for i in range(1, 41))
    fixed = len(HEADER) + 1  # the strings of the header and the sector name are first
    rows = [[('t="s"', "<v>%d</v>" % (fixed + i))] + r[1:] for i, r in enumerate(sites())]
    m.open("rich_phonetic.xlsx", plain([HEADER] + rows, more=rich), "two runs; phonetic runs are no text")

    files = parts(text=inline)
    files[SHEET] = files[SHEET].replace("S0001", "&#x20AC;1 &amp; &lt;Co>")
    files[SHEET] = files[SHEET].replace("S0040", "<![CDATA[S0040]]>")
    m.open("entities.xlsx", package(files), "character references and CDATA", first="\u20ac1 & <Co>")

    for name, system, serial in (("dates_1900.xlsx", "", 43890),
                                 ("dates_1904.xlsx", '<workbookPr date1904="1"/>', 42428)):
        day = ('s="2"', "<v>%d</v>" % serial)
        files = parts([HEADER + ["On air"]] + [r + [day] for r in sites()])
        files[BOOK] = files[BOOK].replace("<sheets>", system + "<sheets>")
        m.open(name, package(files), "every date is 2020-02-29", columns=7)

    rows = [r[:4] + [('t="e"', "<v>#N/A</v>"), r[5], ('t="b"', "<v>1</v>")] for r in sites()]
    rows[2][1] = ('t="e"', "<v>#DIV/0!</v>")
    m.open("errors_booleans.xlsx", plain([HEADER + ["Active"]] + rows), columns=7)

    rows = sites()
    for i, number in enumerate(("-1", "18446744073709551616", "4711", "", "1e0")):
        rows[i + 4][0] = ('t="s"', "<v>%s</v>" % number)
    m.open("string_numbers.xlsx", plain([HEADER] + rows), "ids refer to texts that cannot be; one is empty",
           problems='4|6|Site ID|the text of the cell is lost: the workbook has no text number "-1"')

    text = "long words " * 100000
    long = [text] * 3000  # a header of 3 GB in a small file
    m.open("long_names.xlsx", plain([HEADER + long] + [r + [text] * 4 for r in sites()]),
           "3,000 columns are called by one text of a megabyte", columns=3006,
           problems="3160|1|%s|the text is too long: only its first characters are kept, 256 in number"
           % text[:256])
    m.open("long_string.xlsx", plain(with_sectors(lambda i: "x" * 50000000 if i == 20 else "A")),
           "a text of 50 MB",
           problems="1|22|Transmitter-1 Sector ID|the text is too long: only its first characters are kept, "
                    "32767 in number")

    padding = "".join("<si><t>unused text number %07d ................</t></si>" % i for i in range(1000000))
    m.open("unused_strings.xlsx", plain(more=padding), "a million shared strings that no cell uses")
    for name, count in (("string_count_low.xlsx", 1), ("string_count_high.xlsx", 4294967295)):
        m.open(name, plain(attributes='count="%d" uniqueCount="%d"' % (count, count)), "the counts lie")


def packaging(m):
    files = parts()
    usual = package(files)
    comment = (b"PK\x03\x04 PK\x01\x02 not an entry. " * 3000)[:60000]
    before, after = files[SHEET].split('<row r="21">')
    flooded = {**files, SHEET: [before] + [" " * 1000000] * 300 + ['<row r="21">', after]}
    odd = {
        TYPES: content_types("a%20b/book.xml", ("deep/er/s.xml",), "deep/strings.xml"),
        ROOT: relations(("officeDocument", "a%20b/book.xml")),
        "a%20b/book.xml": files[BOOK],
        "a%20b/_rels/book.xml.rels": relations(
            ("worksheet", "./../deep/er/s.xml"), ("sharedStrings", "/deep/strings.xml")),
        "deep/strings.xml": files[STRINGS],
        "deep/er/s.xml": files[SHEET],
    }
    strict = "http://purl.oclc.org/ooxml/"
    strict = {n: t.replace(MAIN, strict + "spreadsheetml/main").replace(
        OFFICE, strict + "officeDocument/relationships") for n, t in files.items()}
    for name, data, note in (
        ("stored.xlsx", package(files, zipfile.ZIP_STORED), "nothing compressed"),
        ("data_descriptors.xlsx", package(files, out=Pipe()), "sizes stand behind each entry only"),
        ("zip64_descriptors.xlsx", package(files, zip64=True, out=Pipe()), "the same with 64-bit sizes"),
        ("zip64.xlsx", package(files, zip64=True), "local headers with zip64 fields"),
        ("archive_comment.xlsx", usual[:-2] + len(comment).to_bytes(2, "little") + comment,
         "a 60,000 byte archive comment that holds PK signatures"),
        ("odd_part_names.xlsx", package(odd), "parts lie elsewhere; absolute targets, ../ and %20"),
        ("strict.xlsx", package(strict), "strict namespaces throughout"),
        ("blank_flood.xlsx", package(flooded), "300 MB of blanks between two rows, 300 kB packed"),
    ):
        m.open(name, data, note)


def second_sheet(first, *listed):
    """A workbook with the sites in its second sheet."""
    strings = Strings()
    files = parts()
    files[SHEET], files[SHEET_2] = (sheet_xml(rows, strings.cell) for rows in (first, table()))
    files[STRINGS] = strings.xml()
    files[TYPES] = content_types(sheets=(SHEET, SHEET_2))
    files[BOOK] = workbook_xml(*listed)
    files[LINKS] = relations(("worksheet", "worksheets/sheet1.xml"), ("worksheet", "worksheets/sheet2.xml"),
                             ("sharedStrings", "sharedStrings.xml"))
    return package(files)


def sheets(m):
    m.open("hidden_first.xlsx", second_sheet(table(5), ("Old", 'state="hidden"'), ("Sites", "")),
           "the hidden first sheet has the same header and 5 sites")
    cover = [["Version", "Author", "Remark"], ["1", "N. N.", "first"]]
    m.open("cover_sheet.xlsx", second_sheet(cover, ("Read me", ""), ("Sites", "")),
           "a table of another kind comes first")
    for name, above in (("title_rows.xlsx", 6), ("header_row_50.xlsx", 49)):
        titles = [["Radio sites of the region"], ["Exported", "2024-01-31"]] + [[]] * (above - 2)
        m.open(name, plain(titles + table()), "header in row %d" % (above + 1))


def write(m):
    for group in (extents, spelling, values, packaging, sheets):
        group(m)
