"""Microwave links between the example sites, in two table layouts and one table with problems."""

import math
from dataclasses import dataclass

from example_tables import write_csv, write_xlsx

METRES_PER_FOOT = 0.3048
METRES_PER_MILE = 1609.344
WGS84_RADIUS_M, WGS84_FLATTENING = 6378137.0, 1 / 298.257223563

# band in GHz: lowest channel and distance of the two directions in MHz
CHANNELS = {6: (5945.2, 252.04), 7.5: (7442.0, 154.0), 11: (10715.0, 530.0), 13: (12765.0, 266.0),
            15: (14515.0, 420.0), 18: (17728.0, 1010.0), 23: (22016.0, 1008.0),
            38: (37072.0, 1260.0)}

# sites by number, antenna heights in metres above ground, band in GHz.
# 29-33 runs through a hill; 43-44 and 28-29 pass closely above one.
LINKS = [
    (1, 32, 2, 30, 23), (1, 33, 8, 30, 38), (1, 34, 9, 30, 23), (1, 30, 4, 30, 23),
    (2, 28, 5, 30, 38), (5, 30, 14, 32, 18), (14, 30, 15, 24, 18), (14, 32, 20, 35, 18),
    (20, 35, 25, 35, 13), (25, 30, 26, 22, 23), (9, 30, 12, 35, 18), (12, 40, 31, 38, 13),
    (13, 40, 30, 42, 7.5), (31, 35, 34, 45, 11), (34, 45, 35, 40, 15), (40, 38, 41, 32, 15),
    (16, 24, 45, 24, 7.5), (20, 45, 44, 40, 6), (43, 25, 44, 20, 6), (28, 24, 29, 25, 13),
    (29, 25, 33, 25, 7.5),
]


@dataclass
class End:
    site: object
    height_m: float
    frequency_mhz: float
    azimuth_deg: float
    tilt_deg: float   # of the beam above the horizon
    dx_m: float       # antenna's place beside the site's
    dy_m: float


@dataclass
class Link:
    name: str
    band_ghz: float
    length_m: float
    ends: list


def ground_way(a, b):
    """Length in metres and azimuth in degrees, good to some centimetres on such hops."""
    middle = math.radians((a.latitude + b.latitude) / 2)
    e2 = WGS84_FLATTENING * (2 - WGS84_FLATTENING)
    w = math.sqrt(1 - e2 * math.sin(middle) ** 2)
    east = math.radians(b.longitude - a.longitude) * math.cos(middle) * WGS84_RADIUS_M / w
    north = math.radians(b.latitude - a.latitude) * WGS84_RADIUS_M * (1 - e2) / w ** 3
    return math.hypot(east, north), math.degrees(math.atan2(east, north)) % 360


def make_links(sites):
    links = []
    for n, (a, height_a, b, height_b, band) in enumerate(LINKS, start=1):
        places = sites[a - 1], sites[b - 1]
        heights = height_a, height_b
        low, spacing = CHANNELS[band]
        ends = []
        for i in (0, 1):
            here, there = places[i], places[1 - i]
            length, azimuth = ground_way(here, there)
            rise = there.terrain_m + heights[1 - i] - here.terrain_m - heights[i]
            tilt = math.degrees(math.atan2(rise, length))
            frequency = low + 28 * (n % 4) + i * spacing
            # on the side of the mast that faces the other end
            dx, dy = (1.2 * f(math.radians(azimuth)) for f in (math.sin, math.cos))
            ends.append(End(here, heights[i], round(frequency, 3), round(azimuth, 1),
                            round(tilt, 2), round(dx, 1) + 0.0, round(dy, 1) + 0.0))
        links.append(Link(f"MW-{n:02d}", band, length, ends))
    return links


def numbered_table(links):
    header = ["Name", "Frequency Band (GHz)", "Path Length (km)"]
    for n in (1, 2):
        header += [f"Call sign {n}", f"Latitude {n}", f"Longitude {n}", f"Antenna height (m) {n}",
                   f"TX1 (MHz) {n}", f"Azimuth (°) {n}", f"Tilt (°) {n}", f"DX ({n}) (m)",
                   f"DY ({n}) (m)"]
    rows = [header]
    for link in links:
        row = [link.name, link.band_ghz, round(link.length_m / 1000, 3)]
        for end in link.ends:
            row += [end.site.identifier, end.site.latitude, end.site.longitude, end.height_m,
                    end.frequency_mhz, end.azimuth_deg, end.tilt_deg, end.dx_m, end.dy_m]
        rows.append(row)
    return rows


def side_by_side_table(links):
    """American units: feet above ground, miles."""
    columns = ["Name", "Longitude", "Latitude", "Height (feet)", "Frequency (GHz)", "Azimuth (°)",
               "Tilt (°)", "DX (feet)", "DY (feet)"]
    rows = [["Name", "Frequency Band (GHz)", "Path Length (miles)"]
            + [f"{end} {column}" for end in ("TX", "RX") for column in columns]]
    for link in links:
        row = [link.name, link.band_ghz, round(link.length_m / METRES_PER_MILE, 3)]
        for end in link.ends:
            row += [end.site.name, end.site.longitude, end.site.latitude,
                    round(end.height_m / METRES_PER_FOOT, 2), round(end.frequency_mhz / 1000, 6),
                    end.azimuth_deg, end.tilt_deg, round(end.dx_m / METRES_PER_FOOT, 2),
                    round(end.dy_m / METRES_PER_FOOT, 2)]
        rows.append(row)
    return rows


def table_with_problems(links):
    rows = numbered_table(links[:8])
    column = {name: i for i, name in enumerate(rows[0])}
    rows[2][column["Latitude 2"]] = "47.7458.88"              # two decimal points
    rows[3][column["Longitude 1"]] = None
    for name in ("Latitude", "Longitude", "DX ({}) (m)", "DY ({}) (m)"):
        first, second = ((name.format(n) if "{}" in name else f"{name} {n}") for n in (1, 2))
        rows[5][column[second]] = rows[5][column[first]]      # both ends at one place
    rows[6][column["Antenna height (m) 2"]] = None
    for n in (1, 2):
        rows[7][column[f"TX1 (MHz) {n}"]] = None
    rows[7][column["Frequency Band (GHz)"]] = "to be licensed"
    rows[8][column["Path Length (km)"]] = 29.77               # a digit too many
    return rows


def write_links(sites, folder):
    links = make_links(sites)
    write_csv(folder / "links.csv", numbered_table(links))
    write_xlsx(folder / "links_miles.xlsx", side_by_side_table(links), sheet="Links")
    write_csv(folder / "links_with_problems.csv", table_with_problems(links), separator=";",
              line_end="\r\n")
