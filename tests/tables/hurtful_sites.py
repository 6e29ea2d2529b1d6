"""The table that every hurtful file carries: 40 sites, 6 columns."""

HEADER = [
    "Site ID",
    "Longitude",
    "Latitude",
    "Transmitter-1 Sector ID",
    "Transmitter-1 Height (m)",
    "Transmitter-1 Azimuth (\u00b0)",
]
COUNT = 40


def sites(count=COUNT):
    """Rows as Python values: id, degrees east, degrees north, sector, metres, degrees."""
    return [
        [
            "S%04d" % i,
            round(2 + i * 0.01, 2),
            round(48 + i * 0.01, 2),
            "A",
            20 + i % 30,
            i * 9 % 360,
        ]
        for i in range(1, count + 1)
    ]


def table(count=COUNT):
    return [HEADER] + sites(count)


class Manifest:
    """Collects what each file holds, known because the file was built so."""

    COLUMNS = ("path", "kind", "rows", "columns", "header", "first_id", "last_id", "reason", "note")

    def __init__(self):
        self.lines = []

    def open(
        self,
        path,
        note="",
        rows=COUNT,
        columns=len(HEADER),
        header=None,
        first="S0001",
        last="S0040",
    ):
        shown = "|".join((HEADER if header is None else header)[:6])
        self.lines.append((path, "open", rows, columns, shown, first, last, "", note))

    def refused(self, path, reason, note=""):
        self.lines.append((path, "refused", "", "", "", "", "", reason, note))

    def write(self, path):
        with open(path, "w", encoding="utf-8", newline="\n") as out:
            for line in [self.COLUMNS] + self.lines:
                out.write("\t".join(map(str, line)) + "\n")
