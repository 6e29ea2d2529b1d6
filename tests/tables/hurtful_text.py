"""Delimited text."""
from hurtful_sites import HEADER, WIDE_HEADER, sites, table, with_sectors


def lines(rows, delimiter=";", end="\n"):
    return "".join(delimiter.join(map(str, r)) + end for r in rows)


def encodings(m):
    usual = lines(table(), end="\r\n")
    for name, encoding, mark, note in (
        ("utf8_bom.csv", "utf-8", b"\xef\xbb\xbf", "first field is Site ID without the mark"),
        ("utf16le_bom.csv", "utf-16-le", b"\xff\xfe", ""),
        ("utf16be_bom.csv", "utf-16-be", b"\xfe\xff", ""),
        ("utf16le.csv", "utf-16-le", b"", "no byte order mark"),
        ("utf16be.csv", "utf-16-be", b"", "no byte order mark"),
        ("utf32le.csv", "utf-32-le", b"\xff\xfe\0\0", ""),
        ("utf32be.csv", "utf-32-be", b"", "no byte order mark"),
        ("windows1252.csv", "cp1252", b"", "degree sign as the byte B0"),
    ):
        m.open(name, mark + usual.encode(encoding), note)
    m.open("bom_quoted.csv", b"\xef\xbb\xbf" + usual.replace("Site ID", '"Site ID"').encode(),
           "byte order mark before a quoted header cell")
    m.open("odd_utf16.csv", usual.encode("utf-16") + b"\n", "half a character at the end of UTF-16")

    accents = lines(with_sectors(lambda i: "\u00e9")).encode()
    unreadable = "|bytes that are not valid in the encoding UTF-8 were replaced: "
    m.open("bad_byte.csv", accents.replace(b"S0007;", b"S0007\xe9;"), "one byte of Latin-1 in UTF-8",
           problems="1|8|" + unreadable + "1 in this row")
    m.open("bom_bad_byte.csv", b"\xef\xbb\xbf" + usual.encode().replace(b"S0007;", b"S0007\xe9;"),
           "the mark holds, whatever the bytes are", problems="1|8|" + unreadable + "1 in this row")
    padding = "\n" + "S0001;2.01;48.01;\u00e9;21;9\n" * 3000
    m.open("late_bad_bytes.csv", accents.replace(b"\n", padding.encode(), 1) + b"S\xe2\x82;1;2;\xff;3;4\n",
           "cut and impossible characters behind a megabyte", rows=3041, last="S\ufffd\ufffd",
           problems="1|3042|" + unreadable + "3 in this row")

    header = HEADER[:5] + ["Note"]
    late = [header] + [r[:5] + ["plain words " * 6000] for r in sites()]
    late[40][5] = "caf\u00e9"
    m.open("late_byte.csv", lines(late).encode("cp1252"), "2.8 MB of ASCII, then one byte E9", header=header)
    note = '"%s"' % ("\u20ac\U0001F4E1" * 4000 + '""""')
    m.open("chunk_edges.csv", lines([header] + [r[:5] + [note] for r in sites()], end="\r\n"),
           "3- and 4-byte characters and doubled quotes across every block boundary", header=header)


def delimiters(m):
    for name, delimiter in (("comma.csv", ","), ("semicolon.csv", ";"), ("tab.txt", "\t"),
                            ("tab_text.xls", "\t"), ("pipe.txt", "|")):
        m.open(name, lines(table(), delimiter))
    m.open("decimal_comma.csv", lines(table()).replace(".", ","), "; between cells, , in numbers")
    m.open("sep_line.csv", "sep=|\r\n" + lines(table(), "|", "\r\n"))
    named = with_sectors(lambda i: '"Mill Lane, Ely; CB7 | %d"' % i)
    m.open("delimiters_in_names.csv", lines(named, ","), "quoted cells hold , ; and | in every row")
    loose = with_sectors(lambda i: "Mill Lane, Ely, CB7 %dXX, UK, north, mast, 2nd" % i)
    m.open("commas_in_names.csv", lines(loose), "six bare commas in every row, five semicolons")


def quotes(m):
    usual = lines(table())
    swallowing = usual.replace("S0003", '"S0003').replace("S0009", '"S0009')
    m.open("swallowed_rows.csv", swallowing, "stray quotes in two rows", rows=34,
           problems="1|4|Site ID|a quotation mark opens here and its text includes the rows below, "
                    "6 in number: a quotation mark is missing or superfluous")
    m.open("addresses.csv", lines(with_sectors(lambda i: '"Mill Lane, Ely, CB7\nUK, EU"'), ","),
           "as many commas as make a row up to the line break, but not behind it", problems="0|0||")
    m.open("unclosed_early.csv", usual.replace("S0002", '"S0002'), "the quote in row 3 never closes")
    dms = [[r[0], "%d\u00b0%02d'23.10\"E" % (r[1], i), "%d\u00b0%02d'23.10\"N" % (r[2], i)] + r[3:]
           for i, r in enumerate(sites())]
    for name, text, note in (
        ("quoted_line_breaks.csv", lines(with_sectors(lambda i: '"A\r\nnorth; ""top""\n"')), "3 lines a row"),
        ("bare_quotes_dms.csv", lines([HEADER] + dms), "seconds marks are bare quotes in unquoted cells"),
        ("leading_quote.csv", usual.replace("S0007", 'S"0007').replace(";A;", ';"A" north;'),
         "text behind a closing quote"),
        ("unclosed_last.csv", usual[:-1].replace("S0040;2.4;48.4;A", 'S0040;2.4;48.4;"A'),
         "the quote opened in the last row never closes"),
        ("backslashes.csv", usual.replace(";A;", ';"C:\\";'), "a backslash escapes no closing quote"),
        ("quoted_all.csv", "".join('"' + '";"'.join(map(str, r)) + '"\n' for r in table()), "numbers too"),
    ):
        m.open(name, text, note)


def shapes(m):
    usual = lines(table())
    ends = ("\r\n", "\n", "\r")
    mixed = "".join(lines([r], end=ends[i % 3]) for i, r in enumerate(table()))
    ragged = [r[:3] if i % 2 else r + ["", "stray"] for i, r in enumerate(sites())]
    gaps = ("\n", ";;;;;\n", "   \n", ' ; ;"";;;\n')
    blanks = "".join(line + gaps[i % 4] for i, line in enumerate(usual.splitlines(True)))
    huge = with_sectors(lambda i: "x" * 5000000 if i == 19 else "A")
    for name, text, note in (
        ("cr_only.csv", lines(table(), end="\r"), ""),
        ("mixed_ends.csv", mixed[:-1], "three kinds of line end, none at the end of the file"),
        ("ragged.csv", lines([HEADER] + ragged), "shorter and longer rows; cells beyond are no columns"),
        ("trailing_delimiters.csv", lines([r + [""] * 20 for r in table()]), "behind header and rows"),
        ("blank_lines.csv", "\n\n" + blanks + ";;;;;\n" * 50, "of delimiters and blanks, too"),
        ("trailing_million.csv", usual + ";;;;;\r\n" * 500000, "500,000 lines of delimiters below"),
        ("title_lines.csv", 'Sites of the region\n"Exported; 2024-01-31"\n\n' + usual, ""),
        ("repeated_header.csv", lines(table()[:21] + [HEADER] + table()[21:]), "again after 20 sites"),
        ("nul_padding.csv", usual + "\0" * 4096, "NUL bytes below, as a crashed logger leaves"),
    ):
        m.open(name, text, note)
    sector = "Transmitter-1 Sector ID|"
    for name, text, note, problems in (
        ("cell_5mb.csv", lines(huge), "the sector name of S0020 is 5 MB long",
         "1|21|" + sector + "the text is too long: only its first characters are kept, 32767 in number"),
        ("nul_behind.csv", usual.replace(";A;", ";A\0\0;"), "two NUL bytes behind every sector name", "0|0||"),
        ("nul_inside.csv", usual.replace(";A;", ";A\0B;").replace("S0001", "\0S0\x00001"),
         "NUL bytes in every sector name and in an id",
         "41|2|Site ID|zero bytes inside the text were taken out"),
    ):
        m.open(name, text, note, problems=problems)
    zeros = [["%06d" % (i * 7)] + r[1:] for i, r in enumerate(sites(), 1)]
    m.open("leading_zeros.csv", lines([HEADER] + zeros), "ids keep them", first="000007", last="000280")
    m.open("vertical_tab.csv", lines(table(1)).replace(";A;", ";A\v;"), "a control character in a small file",
           rows=1, last="S0001")
    m.open("wide_16384.csv", lines([WIDE_HEADER] + [r[:3] + [7] * 16381 for r in sites()]),
           columns=16384, header=WIDE_HEADER)


def refusals(m):
    for name, text, reason, note in (
        ("header_only.csv", lines([HEADER]), "empty", "a header and no row"),
        ("header_and_blanks.csv", lines([HEADER]) + ";;;;;\n" * 9, "empty", "and rows without a cell"),
        ("only_delimiters.csv", ";;;;;\n" * 9, "empty", "or=no-header,not-a-table: no cell at all"),
        ("line_ends.csv", "\r\n" * 9, "empty", "or=not-a-table: nothing but line ends"),
        ("only_bom.csv", "\ufeff", "empty", "or=not-a-table: nothing but a byte order mark"),
        ("ids_only.csv", "Site ID\n" + "".join(r[0] + "\n" for r in sites()), "one-column", ""),
        ("headerless.csv", lines(sites()), "no-header", ""),
    ):
        m.refused(name, text, reason, note)


def write(m):
    for group in (encodings, delimiters, quotes, shapes, refusals):
        group(m)
