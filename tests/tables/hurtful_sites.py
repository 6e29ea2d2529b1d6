"""The table in all these files: 40 sites, 6 columns."""
import os

HEADER = ["Site ID", "Longitude", "Latitude", "Transmitter-1 Sector ID", "Transmitter-1 Height (m)",
          "Transmitter-1 Azimuth (\u00b0)"]
WIDE_HEADER = HEADER[:3] + ["C%d" % i for i in range(4, 16385)]
COUNT = 40
# Entities that expand to ten thousand million letters.
LAUGHS = "".join('<!ENTITY e%d "%s">' % (i, ("&e%d;" % (i - 1)) * 10 if i else "ha") for i in range(10))


def sites(count=COUNT):
    """Rows as Python values: id, degrees east, degrees north, sector, metres, degrees."""
    return [["S%04d" % i, round(2 + i * 0.01, 2), round(48 + i * 0.01, 2), "A", 20 + i % 30, i * 9 % 360]
            for i in range(1, count + 1)]


def table(count=COUNT):
    return [HEADER] + sites(count)


def with_sectors(sector):
    """The table with sector(i) as the sector name of the i-th site."""
    return [HEADER] + [r[:3] + [sector(i)] + r[4:] for i, r in enumerate(sites())]


class Manifest:
    """Writes files and collects the known contents of each."""

    COLUMNS = ("path", "kind", "rows", "columns", "header", "first_id", "last_id", "reason", "note",
               "problems")

    def __init__(self, folder):
        os.makedirs(folder, exist_ok=True)
        self.folder = folder
        self.lines = [self.COLUMNS]

    def put(self, name, data):
        """Writes a file; makes a folder for None."""
        path = os.path.join(self.folder, name)
        if data is None:
            os.makedirs(path, exist_ok=True)
            return
        with open(path, "wb") as out:
            out.write(data.encode() if isinstance(data, str) else data)

    def open(self, name, data, note="", rows=COUNT, columns=len(HEADER), header=HEADER,
             first="S0001", last="S0040", problems=""):
        """`problems`: the number of cells that cannot be read and the first of them, COUNT|ROW|COLUMN|TEXT."""
        self.put(name, data)
        self.lines.append((name, "open", rows, columns, "|".join(header[:6]), first, last, "", note,
                           problems))

    def refused(self, name, data, reason, note=""):
        self.put(name, data)
        self.lines.append((name, "refused", "", "", "", "", "", reason, note, ""))

    def save(self):
        self.put("manifest.tsv", "".join("\t".join(map(str, line)) + "\n" for line in self.lines))
