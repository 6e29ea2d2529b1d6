"""A made-up terrain around Lorient: sea and estuaries at 0, hills that rise away from the water."""

import math
import random
import subprocess
import tempfile
from pathlib import Path

from example_places import ESTUARIES, LAND

PROJECTED = "EPSG:2154"
GEOGRAPHIC = "EPSG:4326"

CELL_M = 100
WEST_M, SOUTH_M = 209000, 6742000
COLUMNS, ROWS = 300, 290
# amplitude in metres, distance between the points of the noise lattice in metres
HILLS = [(16.0, 4300.0), (8.0, 1700.0), (2.5, 600.0)]


def transformed(points, source, target):
    """[n] pairs from one coordinate system to the other."""
    text = "".join(f"{x!r} {y!r}\n" for x, y in points)
    result = subprocess.run(["gdaltransform", "-s_srs", source, "-t_srs", target, "-output_xy"],
                            input=text, capture_output=True, text=True, check=True)
    return [tuple(map(float, line.split())) for line in result.stdout.splitlines()]


def inside(ring, x, y):
    hit = False
    for (x1, y1), (x2, y2) in zip(ring, ring[1:] + ring[:1]):
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
            hit = not hit
    return hit


def near_line(line, half_width, x, y):
    for (x1, y1), (x2, y2) in zip(line, line[1:]):
        dx, dy = x2 - x1, y2 - y1
        t = max(0.0, min(1.0, ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy)))
        if math.hypot(x - x1 - t * dx, y - y1 - t * dy) < half_width:
            return True
    return False


def cell_centre(column, row):
    return WEST_M + (column + 0.5) * CELL_M, SOUTH_M + (ROWS - row - 0.5) * CELL_M


def land_mask():
    """[rows][columns], north first."""
    lands = [transformed(ring, GEOGRAPHIC, PROJECTED) for ring in LAND.values()]
    waters = [(half_width, transformed(line, GEOGRAPHIC, PROJECTED))
              for half_width, line in ESTUARIES.values()]

    def is_land(x, y):
        return (any(inside(ring, x, y) for ring in lands)
                and not any(near_line(line, half_width, x, y) for half_width, line in waters))

    return [[is_land(*cell_centre(column, row)) for column in range(COLUMNS)]
            for row in range(ROWS)]


def distance_to_water(land):
    """[rows][columns] metres, by two sweeps over the neighbours already known."""
    far = 1e9
    distance = [[far if cell else 0.0 for cell in row] for row in land]
    straight, diagonal = CELL_M, CELL_M * math.sqrt(2)
    before = [(-1, -1, diagonal), (-1, 0, straight), (-1, 1, diagonal), (0, -1, straight)]
    for sign, rows, columns in ((1, range(ROWS), range(COLUMNS)),
                                (-1, range(ROWS - 1, -1, -1), range(COLUMNS - 1, -1, -1))):
        for row in rows:
            for column in columns:
                for down, right, step in before:
                    r, c = row + sign * down, column + sign * right
                    if 0 <= r < ROWS and 0 <= c < COLUMNS:
                        distance[row][column] = min(distance[row][column], distance[r][c] + step)
    return distance


def lattice_noise(seed, spacing):
    """A smooth function of x and y in metres with values from -1 to 1."""
    rng = random.Random(seed)
    width = int(COLUMNS * CELL_M / spacing) + 3
    height = int(ROWS * CELL_M / spacing) + 3
    values = [[rng.uniform(-1, 1) for _ in range(width)] for _ in range(height)]

    def noise(x, y):
        u, v = (x - WEST_M) / spacing, (y - SOUTH_M) / spacing
        column, row = int(u), int(v)
        u, v = u - column, v - row
        u, v = u * u * (3 - 2 * u), v * v * (3 - 2 * v)
        low = values[row][column] * (1 - u) + values[row][column + 1] * u
        high = values[row + 1][column] * (1 - u) + values[row + 1][column + 1] * u
        return low * (1 - v) + high * v

    return noise


def elevations():
    """[rows][columns] whole metres, north first; 0 is water, land is at least 2."""
    land = land_mask()
    distance = distance_to_water(land)
    hills = [(amplitude, lattice_noise(56000 + n, spacing))
             for n, (amplitude, spacing) in enumerate(HILLS)]

    def height(column, row):
        if not land[row][column]:
            return 0
        x, y = cell_centre(column, row)
        shore = distance[row][column]
        slope = 24 * (1 - math.exp(-shore / 900)) + 55 * (1 - math.exp(-shore / 7000))
        rolling = sum(amplitude * noise(x, y) for amplitude, noise in hills)
        return max(2, round(slope + rolling * (1 - math.exp(-shore / 1200))))

    return [[height(column, row) for column in range(COLUMNS)] for row in range(ROWS)]


def elevation_at(grid, x, y):
    """None outside the grid."""
    column, row = int((x - WEST_M) // CELL_M), ROWS - 1 - int((y - SOUTH_M) // CELL_M)
    return grid[row][column] if 0 <= row < ROWS and 0 <= column < COLUMNS else None


def write_terrain(grid, path):
    header = (f"ncols {COLUMNS}\nnrows {ROWS}\nxllcorner {WEST_M}\nyllcorner {SOUTH_M}\n"
              f"cellsize {CELL_M}\n")
    rows = "".join(" ".join(map(str, row)) + "\n" for row in grid)
    path.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        text = Path(folder) / "terrain.asc"
        text.write_text(header + rows, encoding="ascii")
        subprocess.run(["gdal_translate", "-q", "-ot", "Int16", "-a_srs", PROJECTED,
                        "-co", "COMPRESS=DEFLATE", "-co", "PREDICTOR=2", str(text), str(path)],
                       check=True)
