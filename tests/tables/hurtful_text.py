"""Delimited text."""
import os

from hurtful_sites import HEADER, sites, table


def lines(rows, delimiter=";", end="\n", comma=False):
    def cell(v):
        text = str(v)
        return text.replace(".", ",") if comma and not isinstance(v, str) else text

    return "".join(delimiter.join(map(cell, r)) + end for r in rows)


def encodings(m):
    usual = lines(table(), end="\r\n")
    for name, encoding, mark, note in (
        ("utf8_bom.csv", "utf-8", b"\xef\xbb\xbf", "first field is Site ID without the mark"),
        ("utf16le_bom.csv", "utf-16-le", b"\xff\xfe", ""),
        ("utf16be_bom.csv", "utf-16-be", b"\xfe\xff", ""),
        ("utf16le.csv", "utf-16-le", b"", "no byte order mark"),
        ("utf16be.csv", "utf-16-be", b"", "no byte order mark"),
        ("utf32le.csv", "utf-32-le", b"\xff\xfe\0\0", ""),
        ("utf32be.csv", "utf-32-be", b"", ""),
        ("windows1252.csv", "cp1252", b"", "degree sign as the byte B0"),
    ):
        yield name, mark + usual.encode(encoding)
        m.open(name, note)
    yield "bom_quoted.csv", b"\xef\xbb\xbf" + usual.replace("Site ID", '"Site ID"').encode()
    m.open("bom_quoted.csv", "byte order mark before a quoted header cell")

    note = "plain words "
    late = [HEADER[:5] + ["Note"]] + [r[:5] + [note * 6000] for r in sites()]
    late[40][5] = "caf\u00e9"
    yield "late_byte.csv", lines(late).encode("cp1252")
    m.open(
        "late_byte.csv",
        "2.8 MB of ASCII, then one byte E9: the whole file is Windows-1252",
        header=late[0],
    )
    wide = [r[:5] + ["\u20ac\U0001F4E1" * 4000 + '""""'] for r in sites()]
    text = lines([HEADER[:5] + ["Note"]] + [r[:5] + ['"%s"' % r[5]] for r in wide], end="\r\n")
    yield "chunk_edges.csv", text.encode()
    m.open(
        "chunk_edges.csv",
        "3- and 4-byte characters and doubled quotes across every block boundary",
        header=HEADER[:5] + ["Note"],
    )
    yield "odd_utf16.csv", usual.encode("utf-16") + b"\n"
    m.open(
        "odd_utf16.csv",
        "debatable: half a character at the end of UTF-16; a row with U+FFFD is the other answer",
    )


def delimiters(m):
    for name, delimiter in (
        ("comma.csv", ","),
        ("semicolon.csv", ";"),
        ("tab.txt", "\t"),
        ("tab_text.xls", "\t"),
        ("pipe.txt", "|"),
    ):
        yield name, lines(table(), delimiter)
        m.open(name, "tab text with the suffix of a workbook" if name.endswith("xls") else "")
    yield "decimal_comma.csv", lines(table(), comma=True)
    m.open("decimal_comma.csv", "; between cells, , in numbers; Height and coordinates hold commas")
    yield "sep_line.csv", "sep=|\r\n" + lines(table(), "|", "\r\n")
    m.open("sep_line.csv", "sep= line")
    named = [
        [r[0], r[1], r[2], "Mill Lane, Ely; CB7 | %d" % i] + r[4:] for i, r in enumerate(sites())
    ]
    yield "delimiters_in_names.csv", lines(
        [HEADER] + [r[:3] + ['"%s"' % r[3]] + r[4:] for r in named], ","
    )
    m.open("delimiters_in_names.csv", "quoted cells hold , ; and | in every row")
    loose = [
        r[:3] + ["Mill Lane, Ely, CB7 %dXX, UK, north, mast, 2nd" % i] + r[4:]
        for i, r in enumerate(sites())
    ]
    yield "commas_in_names.csv", lines([HEADER] + loose)
    m.open("commas_in_names.csv", "six bare commas in every row, five semicolons")


def quotes(m):
    text = lines([HEADER] + [r[:3] + ['"A\r\nnorth; ""top""\n"'] + r[4:] for r in sites()])
    yield "quoted_line_breaks.csv", text
    m.open("quoted_line_breaks.csv", "three lines a row; quotes and delimiters inside")
    dms = [
        [r[0], "%d\u00b0%02d'23.10\"E" % (r[1], i), "%d\u00b0%02d'23.10\"N" % (r[2], i)] + r[3:]
        for i, r in enumerate(sites())
    ]
    yield "bare_quotes_dms.csv", lines([HEADER] + dms)
    m.open("bare_quotes_dms.csv", "seconds marks are bare quotes in unquoted cells")
    yield "leading_quote.csv", lines(table()).replace("S0007", 'S"0007').replace(
        ";A;", ';"A" north;'
    )
    m.open("leading_quote.csv", "text behind a closing quote")
    yield "unclosed_last.csv", lines(table())[:-1].replace("S0040;2.4;48.4;A", 'S0040;2.4;48.4;"A')
    m.open("unclosed_last.csv", "the quote opened in the last row never closes")
    yield "backslashes.csv", lines(table()).replace(";A;", ';"C:\\";')
    m.open("backslashes.csv", "a backslash before the closing quote escapes nothing")
    yield "quoted_all.csv", "".join('"' + '";"'.join(map(str, r)) + '"\n' for r in table())
    m.open("quoted_all.csv", "every cell quoted, the numbers too")


def shapes(m):
    for name, end in (("cr_only.csv", "\r"), ("crlf.csv", "\r\n"), ("lf.csv", "\n")):
        yield name, lines(table(), end=end)
        m.open(name)
    mixed = "".join(lines([r], end=("\r\n", "\n", "\r")[i % 3]) for i, r in enumerate(table()))
    yield "mixed_ends.csv", mixed[:-1]
    m.open("mixed_ends.csv", "three kinds of line end, none at the end of the file")
    yield "ragged.csv", lines(
        [HEADER] + [r[:3] if i % 2 else r + ["", "stray"] for i, r in enumerate(sites())]
    )
    m.open("ragged.csv", "rows shorter and longer than the header; cells beyond it are no columns")
    yield "trailing_delimiters.csv", lines([r + [""] * 20 for r in table()])
    m.open("trailing_delimiters.csv", "20 delimiters behind header and rows")
    body = lines(table()).splitlines(True)
    gaps = ("\n", ";;;;;\n", "   \n", ' ; ;"";;;\n')
    yield "blank_lines.csv", "\n\n" + "".join(
        l + gaps[i % 4] for i, l in enumerate(body)
    ) + ";;;;;\n" * 50
    m.open("blank_lines.csv", "blank lines, lines of delimiters and of blanks between the rows")
    yield "trailing_million.csv", lines(table()) + ";;;;;\r\n" * 500000
    m.open("trailing_million.csv", "500,000 lines of delimiters below the table")
    titles = 'Sites of the region\n"Exported; 2024-01-31"\n\n'
    yield "title_lines.csv", titles + lines(table())
    m.open("title_lines.csv", "two title lines and a blank one")
    yield "repeated_header.csv", lines(table()[:21] + [HEADER] + table()[21:])
    m.open("repeated_header.csv", "the header again after 20 sites")
    zeros = [["%06d" % (i * 7)] + r[1:] for i, r in enumerate(sites(), 1)]
    yield "leading_zeros.csv", lines([HEADER] + zeros)
    m.open("leading_zeros.csv", "ids keep their zeros", first="000007", last="000280")

    big = [HEADER] + sites()
    big[20][3] = "x" * 5000000
    yield "cell_5mb.csv", lines(big)
    m.open("cell_5mb.csv", "the sector name of S0020 is 5 MB long")
    yield "nul_in_cell.csv", lines(table()).replace(";A;", ";A\0\0;")
    m.open(
        "nul_in_cell.csv",
        "debatable: two NUL bytes in every sector name; not-a-table is the other answer",
    )
    yield "nul_padding.csv", lines(table()).encode() + bytes(4096)
    m.open(
        "nul_padding.csv", "debatable: 4,096 NUL bytes below the table, as a crashed logger leaves"
    )
    header = HEADER[:3] + ["C%d" % i for i in range(4, 16385)]
    yield "wide_16384.csv", lines([header] + [r[:3] + [7] * 16381 for r in sites()])
    m.open("wide_16384.csv", columns=16384, header=header)
    header = header + ["C%d" % i for i in range(16385, 20001)]
    yield "wide_20000.csv", lines([header] + [r[:3] + [7] * 19997 for r in sites(3)])
    m.open(
        "wide_20000.csv",
        "debatable: more columns than a spreadsheet has",
        rows=3,
        columns=20000,
        header=header,
        last="S0003",
    )


def refusals(m):
    for name, text, reason, note in (
        ("header_only.csv", lines([HEADER]), "empty", "a header and no row"),
        (
            "header_and_blanks.csv",
            lines([HEADER]) + ";;;;;\n" * 9,
            "empty",
            "and rows without a cell",
        ),
        ("only_delimiters.csv", ";;;;;\n" * 9, "empty", "or=no-header,not-a-table: no cell at all"),
        ("line_ends.csv", "\r\n" * 9, "empty", "or=not-a-table: nothing but line ends"),
        ("only_bom.csv", "\ufeff", "empty", "or=not-a-table: nothing but a byte order mark"),
        ("ids_only.csv", "Site ID\n" + "".join(r[0] + "\n" for r in sites()), "one-column", ""),
        ("headerless.csv", lines(sites()), "no-header", ""),
    ):
        yield name, text
        m.refused(name, reason, note)


def write(folder, m):
    for group in (encodings, delimiters, quotes, shapes, refusals):
        for name, data in group(m):
            with open(os.path.join(folder, name), "wb") as out:
                out.write(data.encode() if isinstance(data, str) else data)
