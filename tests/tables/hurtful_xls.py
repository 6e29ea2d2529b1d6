"""XLS files: through xlwt, and small BIFF streams in containers written by hand."""
import io
import os
import struct

import xlwt

from hurtful_sites import HEADER, sites, table

FREE, END, FAT = 0xFFFFFFFF, 0xFFFFFFFE, 0xFFFFFFFD


def sectors(data, size):
    return [data[i : i + size].ljust(size, b"\0") for i in range(0, len(data), size)]


def entry(name, kind, start, size, left=FREE, right=FREE, child=FREE):
    text = (name + "\0").encode("utf-16-le")
    return (
        text.ljust(64, b"\0")
        + struct.pack("<HBBIII", len(text), kind, 1, left, right, child)
        + bytes(36)
        + struct.pack("<IQ", start, size)
    )


def container(streams, mini=True):
    """An OLE2 file of up to 109 tables; streams under 4,096 bytes go to the mini stream."""
    blocks, chain = [], []

    def lay(pieces):
        start = len(blocks)
        blocks.extend(pieces)
        chain.extend(list(range(start + 1, start + len(pieces))) + [END])
        return start

    small, small_chain, entries = b"", [], []
    names = sorted(streams, key=lambda n: (len(n), n.upper()))
    for at, name in enumerate(names):
        data = streams[name]
        sibling = at + 2 if at + 1 < len(names) else FREE
        if mini and len(data) < 4096:
            start, pieces = len(small_chain), sectors(data, 64)
            small_chain += list(range(start + 1, start + len(pieces))) + [END]
            small += b"".join(pieces)
        else:
            data = data.ljust(4096, b"\0")
            start = lay(sectors(data, 512))
        entries.append(entry(name, 2, start, len(data), right=sibling))
    mini_start = lay(sectors(small, 512)) if small else END
    root = entry("Root Entry", 5, mini_start, len(small), child=1)
    directory = lay(sectors(root + b"".join(entries), 512))
    table_start = END
    if small:
        table_start = lay(sectors(struct.pack("<%dI" % len(small_chain), *small_chain), 512))
    count = 1
    while count * 128 < len(blocks) + count:
        count += 1
    fat_start = len(blocks)
    chain += [FAT] * count
    chain += [FREE] * (count * 128 - len(chain))
    blocks += sectors(struct.pack("<%dI" % len(chain), *chain), 512)
    difat = list(range(fat_start, fat_start + count)) + [FREE] * (109 - count)
    header = (
        b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1"
        + bytes(16)
        + struct.pack(
            "<HHHHH6xIIIIIIIII",
            0x3E,
            3,
            0xFFFE,
            9,
            6,
            0,
            count,
            directory,
            0,
            4096,
            table_start,
            1 if small else 0,
            END,
            0,
        )
        + struct.pack("<109I", *difat)
    )
    return header + b"".join(blocks)


def record(number, data=b""):
    return struct.pack("<HH", number, len(data)) + data


def rk(value):
    """An RK number: an integer, divided by 100 where that takes it."""
    whole = round(value * 100)
    return struct.pack("<i", (whole << 2) | 3)


def biff5(rows):
    """A BIFF5 workbook stream with one sheet; texts are LABEL cells in Windows-1252."""

    def at(r, c):
        return struct.pack("<HHH", r, c, 0)

    cells = b""
    for r, row in enumerate(rows):
        for c, v in enumerate(row):
            if isinstance(v, str):
                text = v.encode("cp1252")
                cells += record(0x0204, at(r, c) + struct.pack("<H", len(text)) + text)
            elif c % 2:
                cells += record(0x027E, at(r, c) + rk(v))
            else:
                cells += record(0x0203, at(r, c) + struct.pack("<d", v))
    sheet = record(0x0809, struct.pack("<HHHH", 0x0500, 0x10, 0, 0)) + cells + record(0x0A)
    head = record(0x0809, struct.pack("<HHHH", 0x0500, 5, 0, 0)) + record(0x42, b"\xe4\x04")
    name = struct.pack("<BBB", 0, 0, 5) + b"Sites"
    offset = len(head) + 4 + 4 + len(name) + 4
    return head + record(0x85, struct.pack("<I", offset) + name) + record(0x0A) + sheet


def biff8(before=b"", strings=None, unique=None):
    """A BIFF8 workbook stream with a string table; `unique` is the size that it claims."""
    listed = []
    cells = b""
    for r, row in enumerate(table()):
        for c, v in enumerate(row):
            at = struct.pack("<HHH", r, c, 0)
            if isinstance(v, str):
                if v not in listed:
                    listed.append(v)
                cells += record(0x00FD, at + struct.pack("<I", listed.index(v)))
            else:
                cells += record(0x0203, at + struct.pack("<d", v))
    claimed = len(listed) if unique is None else unique
    sst = struct.pack("<II", claimed, claimed)
    for text in listed:
        sst += struct.pack("<HB", len(text), 1) + text.encode("utf-16-le")
    sst = record(0x00FC, sst) if strings is None else strings(listed)
    sheet = record(0x0809, struct.pack("<HHHHII", 0x0600, 0x10, 0, 0, 0, 6)) + cells + record(0x0A)
    head = record(0x0809, struct.pack("<HHHHII", 0x0600, 5, 0, 0, 0, 6)) + before
    name = struct.pack("<BBBB", 0, 0, 5, 0) + b"Sites"
    offset = len(head) + 4 + 4 + len(name) + len(sst) + 4
    return head + record(0x85, struct.pack("<I", offset) + name) + sst + record(0x0A) + sheet


def cut_strings(listed):
    """A string table cut inside every second text, where the width of the rest may change."""
    out, piece, first = b"", struct.pack("<II", len(listed), len(listed)), 0x00FC
    for i, text in enumerate(listed):
        wide = text.encode("utf-16-le")
        if i % 2 == 0 or len(text) < 2:
            piece += struct.pack("<HB", len(text), 1) + wide
            continue
        piece += struct.pack("<HB", len(text), 1) + wide[:2]
        out += record(first, piece)
        first = 0x003C
        narrow = text[1:].encode("latin-1", "ignore").decode("latin-1") == text[1:]
        piece = b"\0" + text[1:].encode("latin-1") if narrow else b"\1" + wide[2:]
    return out + record(first, piece)


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


def files(m):
    yield "styled_rows.xls", written(table(), styled)
    m.open("styled_rows.xls", "30,000 rows of BLANK and MULBLANK cells")
    yield "stray_last_row.xls", written(table(), lambda s: s.write(65535, 255, "end"))
    m.open("stray_last_row.xls", "text in IV65536 stands under no header: no column, no row")

    note = "\u043f\u0440\u0438\u043c\u0435\u0447\u0430\u043d\u0438\u0435 " * 40
    yield "long_strings.xls", written(
        [HEADER + ["Note"]]
        + [r + [note + str(i) if i % 2 else "plain " * 90 + str(i)] for i, r in enumerate(sites())]
    )
    m.open("long_strings.xls", "string table over several CONTINUE records", columns=7)
    yield "formula_results.xls", written(
        table(), lambda s: [s.write(r, 7, xlwt.Formula('IF(1=1;"";"")')) for r in range(41, 341)]
    )
    m.open("formula_results.xls", "300 rows of formulas below, in a column without header")

    five = biff5(table())
    yield "biff5.xls", container({"Book": five})
    m.open("biff5.xls", "BIFF5, degree sign as the byte B0; RK and NUMBER cells")
    yield "biff5_mini_stream.xls", container({"Book": biff5(table(4))})
    m.open(
        "biff5_mini_stream.xls", "the whole workbook lies in the mini stream", rows=4, last="S0004"
    )
    yield "two_books.xls", container({"Book": biff5(table(7)), "Workbook": biff8()})
    m.open("two_books.xls", "BIFF5 and BIFF8 side by side, as for old readers: the newer counts")
    yield "cut_strings.xls", container({"Workbook": biff8(strings=cut_strings)})
    m.open("cut_strings.xls", "texts cut by CONTINUE records, the rest in another width")
    yield "string_count.xls", container({"Workbook": biff8(unique=0x7FFFFFFF)})
    m.open(
        "string_count.xls",
        "debatable: the string table claims two thousand million texts; "
        "refusing it as malformed is as good, allocating is not",
    )

    yield "filepass.xls", container({"Workbook": biff8(record(0x2F, struct.pack("<HHH", 0, 1, 2)))})
    m.refused("filepass.xls", "encrypted", "FILEPASS record")
    yield "encrypted.xlsx", container(
        {
            "EncryptionInfo": b"\4\0\4\0\x40\0\0\0<encryption/>",
            "EncryptedPackage": bytes(range(256)) * 32,
        }
    )
    m.refused("encrypted.xlsx", "encrypted", "an OLE2 container around an encrypted package")
    yield "letter.xls", container({"WordDocument": bytes(5000), "1Table": bytes(5000)})
    m.refused(
        "letter.xls", "not-supported-format", "or=not-a-table: a text document in an OLE2 container"
    )
    yield "biff4.xls", record(0x0409, struct.pack("<HHH", 0, 0x10, 0)) + record(0x0A)
    m.refused(
        "biff4.xls",
        "not-supported-format",
        "or=not-a-table,malformed,empty: BIFF4 without a container",
    )

    whole = container({"Book": five})
    yield "truncated.xls", whole[: len(whole) // 2]
    m.refused(
        "truncated.xls", "malformed", "cut in the middle; allocation table and directory are gone"
    )
    fat = 512 + struct.unpack_from("<I", whole, 76)[0] * 512
    yield "fat_loop.xls", whole[: fat + 12] + struct.pack("<I", 2) + whole[fat + 16 :]
    m.refused("fat_loop.xls", "malformed", "sector 3 of the stream leads back to sector 2")
    yield "fat_outside.xls", whole[: fat + 12] + struct.pack("<I", 0x00FFFFFF) + whole[fat + 16 :]
    m.refused("fat_outside.xls", "malformed", "sector 3 leads beyond the end of the file")
    yield "directory_loop.xls", directory_loop(whole)
    m.refused(
        "directory_loop.xls",
        "malformed",
        "or=not-supported-format,not-a-table: the directory's only "
        "entry is its own sibling and is no workbook",
    )


def directory_loop(whole):
    at = 512 + struct.unpack_from("<I", whole, 48)[0] * 512 + 128
    name = "Pictures\0".encode("utf-16-le").ljust(64, b"\0")
    return (
        whole[:at]
        + name
        + struct.pack("<H", 18)
        + whole[at + 66 : at + 68]
        + struct.pack("<II", 1, 1)
        + whole[at + 76 :]
    )


def write(folder, m):
    for name, data in files(m):
        with open(os.path.join(folder, name), "wb") as out:
            out.write(data)
