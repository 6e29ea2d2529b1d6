#!/usr/bin/python3
"""Makes the files of examples/lorient anew: terrain, coastline, project, site and link tables, a
town quarter with textures.

Needs openpyxl, xlwt and GDAL's gdaltransform, gdal_translate and ogr2ogr. A second run with the same
versions gives the same bytes.
"""

import json
import random
from dataclasses import dataclass, field
from pathlib import Path

from example_links import write_links
from example_places import COAST, LAND, RURAL, SITES, SUBURBAN, URBAN
from example_tables import (write_csv, write_spreadsheet_xml, write_workbook, write_xls,
                            write_xlsx)
from example_terrain import (GEOGRAPHIC, PROJECTED, elevation_at, elevations, transformed,
                             write_terrain)
from example_town import write_town

TARGET = Path(__file__).resolve().parent / "lorient"
MOST_TRANSMITTERS = 6

# antenna heights in metres above ground and tilts in degrees
HEIGHTS_M = {URBAN: range(24, 39), SUBURBAN: range(25, 36), RURAL: range(35, 51),
             COAST: range(18, 31)}
TILTS_DEG = {URBAN: (3, 8), SUBURBAN: (2, 6), RURAL: (0, 3), COAST: (1, 4)}


@dataclass
class Transmitter:
    identifier: str
    height_m: float
    azimuth_deg: int
    tilt_deg: float


@dataclass
class Site:
    identifier: str
    name: str
    longitude: float
    latitude: float
    x_m: float
    y_m: float
    terrain_m: int
    transmitters: list = field(default_factory=list)


@dataclass
class Layout:
    """Headers of one kind of table."""
    site: list          # headers before the transmitters
    terrain: str
    transmitter: list   # sector, height, azimuth, tilt: put behind "Transmitter-n "


GENERIC = Layout(["Site ID", "Site name", "Longitude", "Latitude"],
                 "Transmitter-1 Terrain Height (m)",
                 ["Sector ID", "height (m)", "Azimuth (°)", "tilt (°)"])
ASSET = Layout(["Site name", "X", "Y"], "Transmitter-1 TERRAIN HEIGHT (m)",
               ["ANT-INDEX", "HEIGHT", "AZIMUTH", "DOWN-TILT"])
ATOLL = Layout(["NAME", "LONGITUDE", "LATITUDE"], "Transmitter-1 Terrain Height (m)",
               ["Transmitter", "Height (m)", "Azimuth (°)", "Mechanical Downtilt (°)"])
# cells of a made-up operator: number of the site -> its networks and bands in MHz
CELLS = {1: (("4G", 800), ("4G", 1800), ("5G", 3500)), 2: (("4G", 800), ("5G", 700)),
         3: (("4G", 800), ("4G", 2600)), 8: (("4G", 800),),
         9: (("4G", 800), ("5G", 700)), 14: (("4G", 800), ("4G", 1800), ("5G", 3500)),
         22: (("4G", 800), ("4G", 1800)), 27: (("4G", 700),)}
MENTUM = Layout(["SITE ID", "Longitude", "Latitude"], "Transmitter-1 Terrain Height (m)",
                ["Antenna ID", "Height (m)", "Azimuth", "Mechanical tilt"])


def make_transmitters(site_identifier, surroundings, count):
    rng = random.Random(site_identifier)
    height = rng.choice(HEIGHTS_M[surroundings])
    first = rng.randrange(0, 120, 10)
    per_level = count if count <= 4 else 3
    result = []
    for n in range(count):
        level, sector = divmod(n, per_level)
        azimuth = 0
        if count > 1:
            azimuth = first + 360 // per_level * sector + rng.choice((-10, 0, 0, 10))
        tilt = rng.randint(*(2 * degrees for degrees in TILTS_DEG[surroundings])) / 2
        result.append(Transmitter(f"{site_identifier}_{n + 1}", height - 3 * level, azimuth % 360,
                                  int(tilt) if tilt == int(tilt) else tilt))
    return result


def make_sites(grid):
    projected = transformed([(lon, lat) for _, lon, lat, _, _ in SITES], GEOGRAPHIC, PROJECTED)
    rng = random.Random(56)
    # a mast hardly ever stands on a round coordinate
    places = [(round(x + rng.uniform(-45, 45), 1), round(y + rng.uniform(-45, 45), 1))
              for x, y in projected]
    geographic = transformed(places, PROJECTED, GEOGRAPHIC)
    sites = []
    for n, (place, (x, y), (lon, lat)) in enumerate(zip(SITES, places, geographic)):
        name, _, _, surroundings, count = place
        identifier = f"056{n + 1:03d}"
        terrain = elevation_at(grid, x, y)
        if not terrain:
            raise SystemExit(f"{name} stands in the water or off the terrain")
        sites.append(Site(identifier, name, round(lon, 6), round(lat, 6), x, y, terrain,
                          make_transmitters(identifier, surroundings, count)))
    return sites


def table(layout, sites, site_cells, most=MOST_TRANSMITTERS):
    """Header and one row per site; site_cells(site) gives the cells before the terrain height."""
    header = layout.site + [layout.terrain]
    for n in range(1, most + 1):
        header += [f"Transmitter-{n} {column}" for column in layout.transmitter]
    rows = [header]
    for site in sites:
        row = site_cells(site) + [site.terrain_m]
        for item in site.transmitters[:most]:
            row += [item.identifier, item.height_m, item.azimuth_deg, item.tilt_deg]
        rows.append(row + [None] * (len(header) - len(row)))
    return rows


def degrees_minutes_seconds(value, positive, negative):
    hundredths = round(abs(value) * 360000)
    minutes, rest = divmod(hundredths, 6000)
    return (f"{minutes // 60}°{minutes % 60:02d}'{rest // 100:02d}.{rest % 100:02d}\""
            + (positive if value >= 0 else negative))


def write_tables(sites):
    generic = table(GENERIC, sites, lambda s: [s.identifier, s.name, s.longitude, s.latitude])
    write_csv(TARGET / "sites.csv", generic)
    write_xlsx(TARGET / "sites.xlsx", generic)
    write_xls(TARGET / "sites.xls", generic)
    write_spreadsheet_xml(TARGET / "sites.xml", generic)

    asset = table(ASSET, sites, lambda s: [s.name, s.x_m, s.y_m])
    write_xlsx(TARGET / "sites_asset.xlsx", [[f"Projection: {PROJECTED}"]] + asset, header_row=2)

    atoll = table(ATOLL, sites, lambda s: [s.name, degrees_minutes_seconds(s.longitude, "E", "W"),
                                           degrees_minutes_seconds(s.latitude, "N", "S")])
    write_csv(TARGET / "sites_atoll.csv", atoll, separator=";", encoding="latin-1",
              line_end="\r\n", decimal_mark=",")

    write_xls(TARGET / "sites_mentum.xls",
              table(MENTUM, sites, lambda s: [s.identifier, s.longitude, s.latitude]))
    write_cells(sites)
    write_workbook(TARGET / "sites_joined.xlsx", {"Sites": site_list(sites),
                                                  "Transmitters": transmitter_list(sites)})
    write_table_with_problems(sites[:12])
    write_misplaced(sites[:24])


def write_cells(sites):
    """A row for each cell, in the manner of a French register. Site 27 sends in all directions."""
    rows = [["Exploitant", "Code site", "Nom du site", "Cellule", "Technologie", "Bande (MHz)",
             "Longitude", "Latitude", "Altitude sol (m)", "Hauteur antenne (m)", "Azimut (°)",
             "Tilt (°)"]]
    for number, networks in CELLS.items():
        site = sites[number - 1]
        for level, (network, band) in enumerate(networks):
            for sector, item in enumerate(site.transmitters[:3], start=1):
                rows.append(["Armor Mobile", site.identifier, site.name,
                             f"{site.identifier}-{network}-{band}-{sector}", network, band,
                             site.longitude, site.latitude, site.terrain_m,
                             item.height_m - 2 * level,
                             None if len(site.transmitters) == 1 else item.azimuth_deg,
                             item.tilt_deg])
    write_csv(TARGET / "sites_cells.csv", rows, separator=";", line_end="\r\n", decimal_mark=",")


def site_list(sites):
    return [["Site ID", "Site name", "Longitude", "Latitude", "Ground height (m)"]] + [
        [s.identifier, s.name, s.longitude, s.latitude, s.terrain_m] for s in sites]


def transmitter_list(sites):
    return [["Transmitter", "Site ID", "Height (m)", "Azimuth (°)", "Mechanical tilt (°)"]] + [
        [item.identifier, site.identifier, item.height_m, item.azimuth_deg, item.tilt_deg]
        for site in sites for item in site.transmitters]


def write_table_with_problems(sites):
    rows = table(GENERIC, sites, lambda s: [s.identifier, s.name, s.longitude, s.latitude], most=3)
    longitude, latitude = rows[0].index("Longitude"), rows[0].index("Latitude")
    rows[4][longitude] = "à vérifier"
    rows[7][latitude] = None
    rows[10][latitude] = round(rows[10][latitude] * 10, 5)  # the decimal mark slipped
    write_csv(TARGET / "sites_with_problems.csv", rows, separator=";", line_end="\r\n",
              decimal_mark=",")


def write_misplaced(sites):
    """Sites of which some are not where they should be, although all coordinates can be read."""
    rows = table(GENERIC, sites, lambda s: [s.identifier, s.name, s.longitude, s.latitude], most=3)
    longitude, latitude = rows[0].index("Longitude"), rows[0].index("Latitude")
    for row in (rows[3], rows[4], rows[8]):
        row[longitude], row[latitude] = row[latitude], row[longitude]
    rows[11][longitude] = -rows[11][longitude]
    rows[14][latitude] = round(rows[14][latitude] / 10, 6)  # the decimal mark slipped
    write_csv(TARGET / "sites_misplaced.csv", rows)


def write_coastline():
    features = [{"type": "Feature", "properties": {"name": name},
                 "geometry": {"type": "Polygon", "coordinates": [ring + ring[:1]]}}
                for name, ring in LAND.items()]
    path = TARGET / "vectors" / "coastline.geojson"
    path.parent.mkdir(parents=True, exist_ok=True)
    collection = {"type": "FeatureCollection", "name": "coastline", "features": features}
    path.write_text(json.dumps(collection, indent=1) + "\n", encoding="utf-8")


def write_project():
    (TARGET / "city.gvw").write_text("""\
Veltaro project
Name : Lorient

DEM Layers
    Layer name : Lorient
    Files : terrain/lorient_dem.tif
    Reference Projection : 2154

Vector layer
    File : vectors/coastline.geojson
    Layer name : coastline

Vector layer
    File : vectors/buildings.shp
    Layer name : buildings
""", encoding="utf-8")


def main():
    TARGET.mkdir(parents=True, exist_ok=True)
    grid = elevations()
    write_terrain(grid, TARGET / "terrain" / "lorient_dem.tif")
    write_coastline()
    write_project()
    sites = make_sites(grid)
    write_tables(sites)
    write_links(sites, TARGET)
    write_town(grid, TARGET)


if __name__ == "__main__":
    main()
