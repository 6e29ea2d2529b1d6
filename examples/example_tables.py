"""Writers of the table formats. A table is a list of rows; a cell is a text, a number or None."""

import csv
import io
import re
import zipfile
from xml.sax.saxutils import escape

import openpyxl
import xlwt

SHEET = "Sites"
FIXED_DATE = (2020, 1, 1, 0, 0, 0)
FIXED_STAMP = "2020-01-01T00:00:00Z"


def cell_text(cell, decimal_mark="."):
    if cell is None:
        return ""
    return cell if isinstance(cell, str) else str(cell).replace(".", decimal_mark)


def write_csv(path, rows, separator=",", encoding="utf-8", line_end="\n", decimal_mark="."):
    text = io.StringIO()
    writer = csv.writer(text, delimiter=separator, lineterminator=line_end)
    writer.writerows([cell_text(cell, decimal_mark) for cell in row] for row in rows)
    path.write_bytes(text.getvalue().encode(encoding))


def write_xlsx(path, rows, header_row=1, sheet=SHEET):
    write_workbook(path, {sheet: rows}, header_row)


def write_workbook(path, sheets, header_row=1):
    """A workbook of several sheets: sheets is {name: rows}."""
    book = openpyxl.Workbook()
    book.remove(book.active)
    for name, rows in sheets.items():
        page = book.create_sheet(name)
        for row in rows:
            page.append(row)
        for cell in page[header_row]:
            cell.font = openpyxl.styles.Font(bold=True)
        page.freeze_panes = page.cell(row=header_row + 1, column=1)
    packed = io.BytesIO()
    book.save(packed)
    path.write_bytes(without_dates(packed.getvalue()))


def without_dates(packed):
    """The same archive with fixed dates, so that a second run gives the same bytes."""
    result = io.BytesIO()
    with zipfile.ZipFile(io.BytesIO(packed)) as source, zipfile.ZipFile(result, "w") as target:
        for name in source.namelist():
            content = source.read(name)
            if name == "docProps/core.xml":
                content = re.sub(rb"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", FIXED_STAMP.encode(), content)
            entry = zipfile.ZipInfo(name, FIXED_DATE)
            entry.compress_type = zipfile.ZIP_DEFLATED
            target.writestr(entry, content)
    return result.getvalue()


def write_xls(path, rows):
    book = xlwt.Workbook(encoding="utf-8")
    sheet = book.add_sheet(SHEET)
    bold = xlwt.easyxf("font: bold on")
    for r, row in enumerate(rows):
        for c, cell in enumerate(row):
            if cell is None:
                continue
            if r == 0:
                sheet.write(r, c, cell, bold)
            else:
                sheet.write(r, c, cell)
    book.save(str(path))


def write_spreadsheet_xml(path, rows):
    """The XML spreadsheet format of 2003. Empty cells are left out: the next tells its column."""
    lines = [
        '<?xml version="1.0" encoding="UTF-8"?>',
        '<?mso-application progid="Excel.Sheet"?>',
        '<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"'
        ' xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">',
        f' <Worksheet ss:Name="{SHEET}">',
        "  <Table>",
    ]
    for row in rows:
        lines.append("   <Row>")
        expected = 0
        for column, cell in enumerate(row):
            if cell is None:
                continue
            index = "" if column == expected else f' ss:Index="{column + 1}"'
            kind = "String" if isinstance(cell, str) else "Number"
            lines.append(f'    <Cell{index}><Data ss:Type="{kind}">{escape(cell_text(cell))}'
                         "</Data></Cell>")
            expected = column + 1
        lines.append("   </Row>")
    lines += ["  </Table>", " </Worksheet>", "</Workbook>", ""]
    path.write_bytes("\n".join(lines).encode("utf-8"))
