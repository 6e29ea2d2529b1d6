#!/usr/bin/python3
"""Writes the first rows of a generated CSV table as an XLS file: make_xls.py CSV XLS ROWS"""
import csv
import sys

import xlwt


def cell_value(text, is_text):
    return text if is_text else float(text)


def main(source, target, rows):
    book = xlwt.Workbook(encoding="utf-8")
    sheet = book.add_sheet("Sites")
    with open(source, encoding="utf-8", newline="") as file:
        reader = csv.reader(file)
        header = next(reader)
        is_text = [name.endswith((" ID", " name")) for name in header]
        for column, name in enumerate(header):
            sheet.write(0, column, name)
        for number, row in zip(range(1, rows + 1), reader):
            for column, text in enumerate(row):
                sheet.write(number, column, cell_value(text, is_text[column]))
            if number % 1000 == 0:
                sheet.flush_row_data()
    book.save(target)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2], int(sys.argv[3]))
