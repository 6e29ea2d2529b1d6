"""XLS files: some made with xlwt, others with small BIFF streams in containers of this module."""
import io
import struct

import xlwt

from hurtful_sites import COUNT, HEADER, sites, table

SIGNATURE = b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1"
FREE, END, FAT = 0xFFFFFFFF, 0xFFFFFFFE, 0xFFFFFFFD


def sectors(data, size=512):
    return [data[i : i + size].ljust(size, b"\0") for i in range(0, len(data), size)]


def numbers(values):
    return struct.pack("<%dI" % len(values), *values)


def entry(name, kind, start, size, right=FREE, child=FREE):
    text = (name + "\0").encode("utf-16-le")
    links = struct.pack("<HBBIII", len(text), kind, 1, FREE, right, child)
    return text.ljust(64, b"\0") + links + bytes(36) + struct.pack("<IQ", start, size)


def lay(blocks, chain, pieces):
    """Adds sectors and their chain; returns the number of the first."""
    start = len(blocks)
    blocks += pieces
    chain += [*range(start + 1, start + len(pieces)), END]
    return start


def container(streams):
    """An OLE2 file; streams of less than 4,096 bytes are in the mini stream."""
    blocks, chain, mini, mini_chain, entries = [], [], [], [], b""
    names = sorted(streams, key=lambda n: (len(n), n.upper()))
    for sibling, name in enumerate(names, 2):
        data = streams[name]
        if len(data) < 4096:
            start = lay(mini, mini_chain, sectors(data, 64))
        else:
            start = lay(blocks, chain, sectors(data))
        entries += entry(name, 2, start, len(data), sibling if sibling <= len(names) else FREE)
    mini_start = lay(blocks, chain, sectors(b"".join(mini))) if mini else END
    root = entry("Root Entry", 5, mini_start, len(mini) * 64, child=1)
    directory = lay(blocks, chain, sectors(root + entries))
    mini_table = lay(blocks, chain, sectors(numbers(mini_chain))) if mini else END
    count = 1
    while count * 128 < len(blocks) + count:
        count += 1
    places = [*range(len(blocks), len(blocks) + count)] + [FREE] * (109 - count)
    chain += [FAT] * count
    chain += [FREE] * (count * 128 - len(chain))
    header = SIGNATURE + bytes(16) + struct.pack("<HHHHH6x", 0x3E, 3, 0xFFFE, 9, 6)
    header += numbers([0, count, directory, 0, 4096, mini_table, 1 if mini else 0, END, 0] + places)
    return header + b"".join(blocks) + numbers(chain)


def record(number, data=b""):
    return struct.pack("<HH", number, len(data)) + data


def stream(version, before, after, cells):
    """A workbook stream with one sheet; `before` and `after` are records around the one that names the sheet."""
    new = version == 0x0600

    def begin(kind):
        more = struct.pack("<II", 0, 6) if new else b""
        return record(0x0809, struct.pack("<HHHH", version, kind, 0, 0) + more)

    head = begin(5) + before
    name = bytes((0, 0, 5)) + b"\0" * new + b"Sites"
    offset = len(head) + 4 + 4 + len(name) + len(after) + 4
    listed = record(0x85, struct.pack("<I", offset) + name)
    return head + listed + after + record(0x0A) + begin(0x10) + cells + record(0x0A)


def biff5(rows):
    """BIFF5: texts are LABEL cells in Windows-1252, numbers RK or NUMBER cells."""
    cells = b""
    for r, row in enumerate(rows):
        for c, v in enumerate(row):
            at = struct.pack("<HHH", r, c, 0)
            if isinstance(v, str):
                cells += record(0x0204, at + struct.pack("<H", len(v)) + v.encode("cp1252"))
            elif c % 2:  # an integer with the mark to divide it by 100
                cells += record(0x027E, at + struct.pack("<i", (round(v * 100) << 2) | 3))
            else:
                cells += record(0x0203, at + struct.pack("<d", v))
    return stream(0x0500, record(0x42, b"\xe4\x04"), b"", cells)


def whole_strings(texts, claimed=None):
    """A string table; `claimed` is the size in its header."""
    count = claimed or len(texts)
    listed = b"".join(struct.pack("<HB", len(t), 1) + t.encode("utf-16-le") for t in texts)
    return record(0x00FC, struct.pack("<II", count, count) + listed)


def cut_strings(texts):
    """A string table cut inside every second text; the rest of the text changes its width."""
    out, piece, number = b"", struct.pack("<II", len(texts), len(texts)), 0x00FC
    for i, text in enumerate(texts):
        wide = text.encode("utf-16-le")
        piece += struct.pack("<HB", len(text), 1)
        if i % 2 == 0 or len(text) < 2:
            piece += wide
            continue
        out += record(number, piece + wide[:2])
        number, piece = 0x003C, b"\0" + text[1:].encode("latin-1")
    return out + record(number, piece)


def parted_strings(texts):
    """A string table with empty records after every text and in the middle of every second one."""
    nothing, out = record(0x003C), record(0x00FC, struct.pack("<II", len(texts), len(texts)))
    for i, text in enumerate(texts):
        wide = struct.pack("<HB", len(text), 1) + text.encode("utf-16-le")
        cut = 5 if i % 2 and len(text) > 1 else len(wide)
        out += record(0x003C, wide[:cut]) + nothing + nothing
        out += record(0x003C, b"\1" + wide[cut:]) if cut < len(wide) else b""
    return out


def formula_cells(number):
    """The table as results of formulas, in the version of BIFF with this record number."""
    cells = b""
    for r, row in enumerate(table()):
        for c, v in enumerate(row):
            is_text = isinstance(v, str)
            result = b"\0\0\0\0\0\0\xff\xff" if is_text else struct.pack("<d", v)
            cells += record(number, struct.pack("<HHH", r, c, 0) + result + bytes(8))
            if is_text:
                cells += record(0x0207, struct.pack("<HB", len(v), 1) + v.encode("utf-16-le"))
    return stream(0x0600, b"", b"", cells)


def biff8(before=b"", strings=whole_strings, place=lambda r: r):
    """A BIFF8 workbook stream with the table; `place` gives the number of a row."""
    texts, cells = [], b""
    for r, row in zip(map(place, range(COUNT + 1)), table()):
        for c, v in enumerate(row):
            at = struct.pack("<HHH", r, c, 0)
            if not isinstance(v, str):
                cells += record(0x0203, at + struct.pack("<d", v))
                continue
            if v not in texts:
                texts.append(v)
            cells += record(0x00FD, at + struct.pack("<I", texts.index(v)))
    return stream(0x0600, before, strings(texts), cells)


def written(rows, extra=None):
    book = xlwt.Workbook()
    sheet = book.add_sheet("Sites")
    for r, row in enumerate(rows):
        for c, v in enumerate(row):
            sheet.write(r, c, v)
    if extra:
        extra(sheet)
    out = io.BytesIO()
    book.save(out)
    return out.getvalue()


def styled(sheet):
    style = xlwt.easyxf("font: bold on")
    for r in range(41, 30041):
        if r % 2:
            sheet.row(r).set_cell_mulblanks(0, 5, style)
        else:
            sheet.row(r).set_cell_blank(0, style)


def formulas(sheet):
    for r in range(41, 341):
        sheet.write(r, 7, xlwt.Formula('IF(1=1;"";"")'))


def legal(m):
    m.open("styled_rows.xls", written(table(), styled), "30,000 rows of BLANK and MULBLANK cells")
    m.open("stray_last_row.xls", written(table(), lambda s: s.write(65535, 255, "end")),
           "text in IV65536 stands under no header: no column, no row")
    m.open("formula_results.xls", written(table(), formulas), "300 rows below, in a column without header")
    notes = ("plain " * 90, "\u043f\u0440\u0438\u043c\u0435\u0447\u0430\u043d\u0438\u0435 " * 40)
    rows = [r + [notes[i % 2] + str(i)] for i, r in enumerate(sites())]
    m.open("long_strings.xls", written([HEADER + ["Note"]] + rows), "several CONTINUE records", columns=7)
    m.open("biff5.xls", container({"Book": biff5(table())}), "degree sign as the byte B0")
    m.open("biff5_mini_stream.xls", container({"Book": biff5(table(4))}), "all in the mini stream",
           rows=4, last="S0004")
    m.open("two_books.xls", container({"Book": biff5(table(7)), "Workbook": biff8()}), "the newer counts")
    m.open("cut_strings.xls", container({"Workbook": biff8(strings=cut_strings)}),
           "texts cut by CONTINUE records, the rest in another width")
    for version, number in (("biff3", 0x0206), ("biff4", 0x0406)):
        m.open(version + "_formulas.xls", container({"Workbook": formula_cells(number)}),
               "every cell is a formula with the record number of an older version")
    m.open("rows_back.xls", container({"Workbook": biff8(place=lambda r: r if r < 20 else r - 10)}),
           "row 21 and those below say that they are row 11 and those below")
    m.open("parted_strings.xls", container({"Workbook": biff8(strings=parted_strings)}),
           "empty CONTINUE records between and inside the texts", problems="0|0||")
    m.open("lost_strings.xls", container({"Workbook": biff8(strings=lambda texts: whole_strings(texts[:30]))}),
           "the string table ends before the id of S0024", last="2.4",
           problems='17|25|Site ID|the text of the cell is lost: the workbook has no text number "30"')
    claiming = biff8(strings=lambda texts: whole_strings(texts, 0x7FFFFFFF))
    m.open("string_count.xls", container({"Workbook": claiming}), "claims two thousand million texts")


def refused(m):
    whole = container({"Book": biff5(table())})
    fat = 512 + struct.unpack_from("<I", whole, 76)[0] * 512
    directory = 512 + struct.unpack_from("<I", whole, 48)[0] * 512
    renamed = container({"Pictures": biff5(table())})
    siblings = directory + 128 + 68
    package = {"EncryptionInfo": b"\4\0\4\0\x40\0\0\0<encryption/>",
               "EncryptedPackage": bytes(range(256)) * 32}
    biff4 = record(0x0409, struct.pack("<HHH", 0, 0x10, 0)) + record(0x0A)
    for name, data, reason, note in (
        ("filepass.xls", container({"Workbook": biff8(record(0x2F, bytes((0, 0, 1, 0, 2, 0))))}),
         "encrypted", "FILEPASS record"),
        ("encrypted.xlsx", container(package), "encrypted", "OLE2 around an encrypted package"),
        ("letter.xls", container({"WordDocument": bytes(5000), "1Table": bytes(5000)}),
         "not-supported-format", "or=not-a-table: a text document in an OLE2 container"),
        ("biff4.xls", biff4, "not-supported-format", "or=not-a-table,malformed,empty: without a container"),
        ("truncated.xls", whole[: len(whole) // 2], "malformed", "allocation table and directory are gone"),
        ("fat_loop.xls", whole[: fat + 12] + numbers([2]) + whole[fat + 16 :],
         "malformed", "sector 3 of the stream leads back to sector 2"),
        ("fat_outside.xls", whole[: fat + 12] + numbers([0x00FFFFFF]) + whole[fat + 16 :],
         "malformed", "sector 3 leads beyond the end of the file"),
        ("directory_loop.xls", renamed[:siblings] + numbers([1, 1]) + renamed[siblings + 8 :], "malformed",
         "or=not-supported-format,not-a-table: the only entry is its own sibling and is no workbook"),
    ):
        m.refused(name, data, reason, note)


def write(m):
    legal(m)
    refused(m)
