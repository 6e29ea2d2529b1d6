"""A made-up town quarter on the terrain: building footprints with heights, and predictions of
coverage at several heights above ground as images for roofs, walls and storeys.
"""

import json
import math
import random
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

from example_terrain import PROJECTED, elevation_at

CENTRE_X_M, CENTRE_Y_M = 221900.0, 6758250.0
BLOCKS_ACROSS, BLOCKS_UP = 7, 6
BLOCK_M, STREET_M = 88.0, 16.0
TURN_DEG = 17.0  # of the streets against the grid
STOREY_M = 3.0
FIXED_DATE = "2024-01-01"  # that the attribute table states; keeps the bytes the same

PIXEL_M = 5.0
# levels of the legend: at least dBm, colour
CLASSES = [(-70, (215, 48, 39)), (-80, (252, 141, 89)), (-88, (254, 224, 139)),
           (-96, (145, 207, 96)), (-104, (69, 117, 180)), (-999, (120, 120, 130))]

LEAST_DBM, NO_LEVEL = -107, -9999  # of the raster of levels: weakest level that counts, no data


@dataclass
class Antenna:
    x_m: float
    y_m: float
    height_m: float
    power_dbm: float


ANTENNAS = {"4G": [Antenna(-150, 120, 32, -30), Antenna(260, -170, 27, -32)],
            "5G": [Antenna(-150, 120, 32, -38), Antenna(260, -170, 27, -40),
                   Antenna(30, -20, 24, -40)]}


def placed(points):
    turn = math.radians(TURN_DEG)
    return [[round(CENTRE_X_M + x * math.cos(turn) - y * math.sin(turn), 2),
             round(CENTRE_Y_M + x * math.sin(turn) + y * math.cos(turn), 2)] for x, y in points]


def ring(points):
    return placed(points + points[:1])


def rectangle(x, y, width, depth):
    return [(x, y), (x, y + depth), (x + width, y + depth), (x + width, y)]


def shift(part, x, y):
    return [[(px + x, py + y) for px, py in points] for points in part]


def row_of_houses(rng, x, y):
    """Two rows of narrow houses, back to back."""
    houses = []
    for row, depth in ((y, 11.0), (y + BLOCK_M - 11.0, 11.0)):
        at = x
        while at < x + BLOCK_M - 7:
            width = min(rng.uniform(9, 15), x + BLOCK_M - at)
            setback = rng.choice((0, 0, 0, 1.5))
            if rng.random() < 0.93:
                houses.append(([[rectangle(at, row + (setback if row == y else -setback),
                                           width, depth)]], rng.choice((2, 2, 2, 3))))
            at += width
    return houses


def perimeter_block(rng, x, y):
    """One building around a courtyard, and a small one inside."""
    outer, depth = rectangle(x + 4, y + 4, BLOCK_M - 8, BLOCK_M - 8), rng.uniform(12, 15)
    inner = rectangle(x + 4 + depth, y + 4 + depth, BLOCK_M - 8 - 2 * depth,
                      BLOCK_M - 8 - 2 * depth)
    yard = rectangle(x + BLOCK_M / 2 - 7, y + BLOCK_M / 2 - 6, 14, 12)
    return [([[outer, inner[::-1]]], rng.choice((4, 5, 6))), ([[yard]], 1)]


def slabs(rng, x, y):
    """Long blocks of flats; two of them are one building."""
    storeys = rng.choice((5, 7, 10))
    low = [[rectangle(x + 6, y + 8, 60, 12)], [rectangle(x + 20, y + 62, 60, 12)]]
    return [(low, storeys), ([[rectangle(x + 10, y + 36, 62, 11)]], storeys - 1)]


def tower(rng, x, y):
    corners = 8
    outline = [(x + 44 + 14 * math.cos(2 * math.pi * -n / corners),
                y + 44 + 14 * math.sin(2 * math.pi * -n / corners)) for n in range(corners)]
    hall = [(x + 62, y + 4), (x + 62, y + 30), (x + 74, y + 30), (x + 74, y + 16), (x + 86, y + 16),
            (x + 86, y + 4)]
    return [([[outline]], rng.randint(12, 17)), ([[hall]], 2)]


def church(_rng, x, y):
    return [([[[(x + 20, y + 34), (x + 20, y + 54), (x + 38, y + 54), (x + 38, y + 64),
                (x + 50, y + 64), (x + 50, y + 54), (x + 72, y + 54), (x + 78, y + 44),
                (x + 72, y + 34), (x + 50, y + 34), (x + 50, y + 24), (x + 38, y + 24),
                (x + 38, y + 34)]]], 5), ([[rectangle(x + 10, y + 38, 10, 10)]], 11)]


def make_buildings(grid):
    """[n] pairs of GeoJSON coordinates of a multipolygon and storeys."""
    rng = random.Random(5656)
    buildings = []
    for column in range(BLOCKS_ACROSS):
        for row in range(BLOCKS_UP):
            x = (column - BLOCKS_ACROSS / 2) * (BLOCK_M + STREET_M) + STREET_M / 2
            y = (row - BLOCKS_UP / 2) * (BLOCK_M + STREET_M) + STREET_M / 2
            if (column, row) == (2, 3):
                continue  # a square
            kind = church if (column, row) == (3, 3) else rng.choices(
                (row_of_houses, perimeter_block, slabs, tower), (6, 3, 2, 1))[0]
            for parts, storeys in kind(rng, x, y):
                buildings.append(([[ring(points) for points in part] for part in parts], storeys))
    for parts, _ in buildings:
        x, y = parts[0][0][0]
        if not elevation_at(grid, x, y):
            raise SystemExit("a building stands in the water or off the terrain")
    return buildings


def write_buildings(buildings, path):
    rng = random.Random(7)
    features = []
    for n, (parts, storeys) in enumerate(buildings):
        height = round(storeys * STOREY_M + rng.uniform(0.5, 3.5), 1)
        features.append({
            "type": "Feature",
            "properties": {"ID": n + 1, "USAGE": "flats" if storeys > 3 else "houses",
                           "HEIGHT": height, "STOREYS": storeys},
            "geometry": {"type": "MultiPolygon", "coordinates": parts}})
    collection = {"type": "FeatureCollection", "features": features}
    with tempfile.TemporaryDirectory() as folder:
        text = Path(folder) / "buildings.json"
        text.write_text(json.dumps(collection), encoding="utf-8")
        for old in path.parent.glob(path.stem + ".*"):
            old.unlink()
        subprocess.run(["ogr2ogr", "-f", "ESRI Shapefile", "-a_srs", PROJECTED,
                        "-lco", f"DBF_DATE_LAST_UPDATE={FIXED_DATE}", "-lco", "ENCODING=UTF-8",
                        str(path), str(text)], check=True)


def signal_dbm(antennas, x_m, y_m, height_m):
    """Free air above, more and more clutter below the roofs; streets as faint ripples."""
    best = -200.0
    for antenna in antennas:
        distance = math.hypot(x_m - antenna.x_m, y_m - antenna.y_m, height_m - antenna.height_m)
        clutter = 14 * math.exp(-height_m / 9) * min(1, distance / 150)
        ripple = 3 * math.sin(x_m / 17) * math.cos(y_m / 19) * math.exp(-height_m / 15)
        best = max(best, antenna.power_dbm - 22 * math.log10(max(distance, 10)) - clutter + ripple)
    return best


def colour_of(dbm):
    return next(colour for least, colour in CLASSES if dbm >= least)


def image_size():
    """Columns, which are as many as rows, and the metres from the town's centre to an edge."""
    half = (BLOCKS_ACROSS * (BLOCK_M + STREET_M)) / 2 + 60
    return int(2 * half / PIXEL_M), half


def pixel_centre(row, column, half):
    """Metres from the town's centre; the first row is in the north."""
    return -half + (column + 0.5) * PIXEL_M, half - (row + 0.5) * PIXEL_M


def pixels(antennas, height_m):
    """Columns, rows, north first, and the colours."""
    count, half = image_size()
    colours = bytearray()
    for row in range(count):
        for column in range(count):
            x, y = pixel_centre(row, column, half)
            colours += bytes(colour_of(signal_dbm(antennas, x, y, height_m)))
    return count, half, bytes(colours)


def write_image(path, antennas, height_m, *, is_page=False):
    count, half, colours = pixels(antennas, height_m)
    path.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        bitmap = Path(folder) / "image.ppm"
        bitmap.write_bytes(b"P6\n%d %d\n255\n" % (count, count) + colours)
        corners = (CENTRE_X_M - half, CENTRE_Y_M + half, CENTRE_X_M - half + count * PIXEL_M,
                   CENTRE_Y_M + half - count * PIXEL_M)
        command = ["gdal_translate", "-q", "-of", "GTiff", "-a_srs", PROJECTED, "-a_ullr",
                   *map(str, corners), "-co", "COMPRESS=DEFLATE", "-co", "INTERLEAVE=PIXEL"]
        if is_page:
            command += ["-mo", f"HEIGHT={height_m}"]
            if path.exists():
                command += ["-co", "APPEND_SUBDATASET=YES"]
        subprocess.run([*command, str(bitmap), str(path)], check=True)


def write_levels(path, antennas, height_m):
    """The prediction as whole dBm in one band; what is too weak to be used has no value."""
    count, half = image_size()
    rows = []
    for row in range(count):
        levels = [signal_dbm(antennas, *pixel_centre(row, column, half), height_m)
                  for column in range(count)]
        rows.append(" ".join(str(round(dbm) if dbm >= LEAST_DBM else NO_LEVEL) for dbm in levels))
    header = (f"ncols {count}\nnrows {count}\nxllcorner {CENTRE_X_M - half}\n"
              f"yllcorner {CENTRE_Y_M + half - count * PIXEL_M}\ncellsize {PIXEL_M}\n"
              f"NODATA_value {NO_LEVEL}\n")
    path.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        text = Path(folder) / "levels.asc"
        text.write_text(header + "\n".join(rows) + "\n", encoding="ascii")
        subprocess.run(["gdal_translate", "-q", "-ot", "Int16", "-a_srs", PROJECTED,
                        "-co", "COMPRESS=DEFLATE", "-co", "PREDICTOR=2", str(text), str(path)],
                       check=True)


def write_textures(target):
    """One set of images for each way in which a tool may lay them out, and a file of four."""
    for height in (1.5, 6, 12, 24):
        write_image(target / "same_folder" / f"coverage_{height:g}m.tif", ANTENNAS["5G"], height)
    for network, antennas in ANTENNAS.items():
        for height in (1.5, 12):
            write_image(target / "folder_per_network" / network / f"coverage {height:g} m.tif",
                        antennas, height)
    for operator, share in (("Armor Mobile", 3), ("Blavet Telecom", 2)):
        for network, antennas in ANTENNAS.items():
            write_image(target / "folders_per_operator" / operator / network / "coverage(12m).tif",
                        antennas[:share - 1], 12)
    several = target / "storeys.tif"
    several.unlink(missing_ok=True)
    for height in (1.5, 4.5, 7.5, 10.5):
        write_image(several, ANTENNAS["4G"], height, is_page=True)


def write_town(grid, target):
    write_buildings(make_buildings(grid), target / "vectors" / "buildings.shp")
    write_textures(target / "textures")
    write_levels(target / "coverage" / "signal_level_dBm.tif", ANTENNAS["5G"], 1.5)
