#!/usr/bin/env python3
"""Writes the workbooks of this folder: make_real.py [FOLDER]."""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.dirname(HERE))
from hurtful_xlsx import (BOOK, LINKS, ROOT, STRINGS, STYLES, TYPES, Strings, content_types,  # noqa: E402
                          letters, package, relations, sheet_xml, workbook_xml)

# Id, name, longitude, latitude, ground in metres, sectors as (azimuth, antenna height, tilt, electrical tilt).
SITES = [
    ("NAM01", "Citadelle", 4.85912, 50.45973, 185, [(20, 30, 0, 4), (140, 30, 2, 6), (260, 28, 0, 3)]),
    ("NAM02", "Jambes Gare", 4.87731, 50.45588, 84, [(0, 24.5, 1, 5), (120, 24.5, 0, 5), (240, 24.5, 1, 7)]),
    ("NAM03", "Bouge", 4.89457, 50.47316, 178, [(90, 36, 0, 2), (270, 36, 3, 2)]),
    ("NAM04", "Malonne", 4.79624, 50.43802, 112, [(50, 42, 2, 8), (170, 42, 0, 6), (290, 40, 0, 6)]),
    ("NAM05", "Saint-Servais", 4.84018, 50.47665, 121, [(70, 22, 0, 1)]),
    ("NAM06", "Wépion", 4.86840, 50.41997, 95, [(110, 27, 1, 3), (230, 27, 1, 4), (350, 27, 1, 5)]),
]
# Name, indices of the two sites, antenna heights, frequency in MHz.
PATHS = [
    ("FH-101", 0, 1, 30, 24, 18000),
    ("FH-102", 0, 2, 30, 33, 23000),
    ("FH-103", 1, 4, 24, 21, 38000),
    ("FH-104", 3, 5, 41, 26, 13000),
]


def workbook(sheets):
    """The file of sheets, each (name, rows, ranges of merged cells)."""
    strings = Strings()
    parts = ["xl/worksheets/sheet%d.xml" % i for i in range(1, len(sheets) + 1)]
    files = {TYPES: content_types(sheets=parts), ROOT: relations(("officeDocument", BOOK)),
             BOOK: workbook_xml(*((name, "") for name, _, _ in sheets)),
             LINKS: relations(*(("worksheet", part[3:]) for part in parts), ("styles", "styles.xml"),
                              ("sharedStrings", "sharedStrings.xml")),
             "xl/styles.xml": STYLES}
    for part, (_, rows, merged) in zip(parts, sheets):
        listed = "".join('<mergeCell ref="%s"/>' % range_ for range_ in merged)
        end = "</sheetData>"
        if merged:
            end += '<mergeCells count="%d">%s</mergeCells>' % (len(merged), listed)
        cells = [[("", "") if value == "" else value for value in row] for row in rows]
        files[part] = sheet_xml(cells, strings.cell).replace("</sheetData>", end)
    files[STRINGS] = strings.xml()
    return package(files)


def sectors():
    """Every sector as (index of the site, number from 1, site, azimuth, height, tilt, electrical tilt)."""
    return [(i, n, site, *sector) for i, site in enumerate(SITES) for n, sector in enumerate(site[5], 1)]


def site_sheet(header, key=lambda i, s: s[0]):
    return [header] + [[key(i, s), s[1], s[2], s[3], s[4]] for i, s in enumerate(SITES)]


def joined():
    header = ["Site", "Transmitter", "Antenna", "Azimuth (°)", "Height (m)", "Mechanical Downtilt (°)",
              "Additional Electrical Downtilt (°)"]
    tilted = [[s[0], "%s_%d" % (s[0], n), "AX65-18", a, h, t, e] for _, n, s, a, h, t, e in sectors()
              if s[0] != "NAM05"]
    orphan = ["NAM99", "NAM99_1", "AX65-18", 30, 25, 0, 2]
    yield "book_sites_transmitters.xlsx", [
        ("Sites", site_sheet(["Name", "Comments", "Longitude", "Latitude", "Altitude (m)"]), []),
        ("Transmitters", [header] + tilted + [orphan], [])]
    numbered = [[1001 + i, "S%d" % n, a, h, e] for i, n, _, a, h, _, e in sectors()]
    yield "book_transmitters_sites.xlsx", [
        ("Antennes", [["Code site", "Secteur", "Azimut", "Hauteur antenne (m)", "Tilt électrique"]] + numbered,
         []),
        ("Sites", site_sheet(["Code", "Nom", "Long", "Lat", "Altitude sol"], lambda i, s: str(1001 + i)), [])]


def one_table():
    tall = [[s[0], s[1], str(n), s[2], s[3], a, h, t] for _, n, s, a, h, t, _ in sectors()]
    header = ["Site", "Naam", "Sector", "Lengtegraad", "Breedtegraad", "Azimut", "Hoogte (m)", "Tilt"]
    index = [["Inhoud"], ["Blad", "Omschrijving", "Datum", "Site"],
             ["Sectoren", "sectoren per site", "2024-03-01", "alle"], ["Contact", "", "", ""]]
    yield "book_index_first.xlsx", [("Index", index, []),
                                    ("Sectoren", [["Netwerk Voorbeeld"], [], header] + tall, []),
                                    ("Contact", [["Naam"]], [])]
    catalogue = [["Antenna", "Gain (dBi)", "Beamwidth (°)", "Height (mm)", "Azimuth pattern"]] + [
        ["AX65-%d" % g, g, 65, 1400 + 100 * g, "ax65.txt"] for g in (15, 17, 18)]
    wide = [["Site ID", "Name", "Longitude", "Latitude"]
            + [c % n for n in (1, 2, 3) for c in ("Azimuth %d", "Height %d")]]
    for s in SITES:
        values = [v for a, h, _, _ in s[5] for v in (a, h)]
        wide.append([s[0], s[1], s[2], s[3]] + values + [""] * (6 - len(values)))
    yield "book_third_sheet.xlsx", [("Read me", [["Planning data"], ["Version", "7"]], []),
                                    ("Antennas", catalogue, []), ("Network", wide, [])]
    top = ["Identification", "", "Position", "", "Secteur 1", "", "Secteur 2", "", "Secteur 3", ""]
    low = ["Code", "Nom", "Longitude", "Latitude"] + ["Azimut", "HBA"] * 3
    merged = ["%s1:%s1" % (letters(c), letters(c + 1)) for c in (1, 3, 5, 7, 9)]
    yield "book_merged_headers.xlsx", [("Feuil1", [top, low] + wide[1:], merged)]


def rough_cells():
    header = ["Online Status", "Serial Number", "Cell Name", "PCI", "eNB ID", "Cell ID", "Product Type", "Longitude",
              "Latitude", "Height(m)", "Azimuth"]
    rows = [["Online", "SN%05d" % (410 + 7 * i + n), "%s-%d" % (s[1], n), 30 * i + n, 5200 + i, n, "RRU",
             str(s[2]), str(s[3]), "" if (i, n) == (1, 2) else str(h), "NA" if (i, n) == (4, 1) else a]
            for i, n, s, a, h, _, _ in sectors()]
    yield "book_text_numbers.xlsx", [("Sheet1", [header] + rows, [])]
    rows, merged = [["Site", "Longitude", "Latitude", "Secteur", "Azimut", "HBA (m)"]], []
    for s in SITES:
        first, count = len(rows) + 1, len(s[5])
        if count > 1:
            merged += ["%s%d:%s%d" % (c, first, c, first + count - 1) for c in "ABC"]
        for n, (a, h, _, _) in enumerate(s[5]):
            rows.append(([s[1], s[2], s[3]] if n == 0 else ["", "", ""]) + [chr(65 + n), a, h])
    yield "book_merged_names.xlsx", [("Sites", rows, merged)]


def regions():
    header = ["Site", "Longitude", "Latitude", "Azimut", "HBA (m)"]
    rows = [[s[1], s[2], s[3], a, h] for _, _, s, a, h, _, _ in sectors()]
    cut = sum(len(s[5]) for s in SITES[:3])
    yield "book_regions.xlsx", [("Centre", [header] + rows[:cut], []), ("Est", [header] + rows[cut:], [])]


def links():
    rows = [[name, SITES[a][1], SITES[b][1], ha, hb, f / 1000, 0.6] for name, a, b, ha, hb, f in PATHS]
    header = ["Liaison", "Site A", "Site B", "Hauteur A (m)", "Hauteur B (m)", "Fréquence (GHz)", "Diamètre A (m)"]
    sites = site_sheet(["Code", "Nom", "Longitude", "Latitude", "Altitude (m)"])
    yield "book_links_sites.xlsx", [("Liaisons", [header] + rows, []), ("Sites", sites, [])]


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else HERE
    for group in (joined, one_table, rough_cells, regions, links):
        for name, sheets in group():
            with open(os.path.join(folder, name), "wb") as out:
                out.write(workbook(sheets))


if __name__ == "__main__":
    main()
