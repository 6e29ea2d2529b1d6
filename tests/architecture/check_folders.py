#!/usr/bin/env python3
"""Checks the includes of a source tree against the table of folders in its CONTRIBUTING.md.

The last column of a row lists what its folders may use: project folders in backticks, with their names in includes, and
libraries by name. Folders use only folders of rows above their own, so that there is no circle. Prints each breach; the
exit status is 1 if there is one.
"""
import collections
import pathlib
import re
import sys

# The name of a library in the table, and the pattern of its headers.
LIBRARIES = {
    "GDAL": re.compile(r"(gdal|ogr|cpl)[\w.]*\.h"),
    "OpenSceneGraph": re.compile(r"osg\w*/"),
    "Qt": re.compile(r"Q[A-Z]\w*$"),
}
# Headers that only one file may include.
ALONE = {"QMessageBox": "src/wizard/base/Messages.cpp"}

Row = collections.namedtuple("Row", "number uses libraries")


def folder_of_include(name):
    """The folder of a project header, with its name in the table."""
    return name.rpartition("/")[0]


def read_table(path):
    rows = {}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        folders = re.findall(r"`((?:src|plugins)/[\w/]+)`", cells[0])
        if not line.startswith("|") or not folders or len(cells) != 3:
            continue
        uses = set(re.findall(r"`([\w/]+)`", cells[2]))
        libraries = {library for library in LIBRARIES if re.search(rf"\b{library}\b", cells[2])}
        for folder in folders:
            rows[folder.removeprefix("src/")] = Row(number, uses, libraries)
    return rows


def breaches_of_file(root, path, folder, rows):
    row = rows[folder]
    text = pathlib.Path(root, path).read_text(encoding="utf-8")
    for name in re.findall(r'^#\s*include "([^"]+/[^"]+)"', text, re.MULTILINE):
        used = folder_of_include(name)
        if used == folder:
            continue
        if used not in row.uses:
            yield f'{path}: "{name}" is not granted to {folder}'
        elif used not in rows or rows[used].number > row.number:
            yield f'{path}: "{name}" belongs to a folder that does not stand above {folder} in the table'
    for name in re.findall(r"^#\s*include <([^>]+)>", text, re.MULTILINE):
        for library, pattern in LIBRARIES.items():
            if pattern.match(name) and library not in row.libraries:
                yield f"{path}: <{name}> of {library} is not granted to {folder}"
        if name in ALONE and str(path) != ALONE[name]:
            yield f"{path}: <{name}> belongs into {ALONE[name]} alone"


def main(root):
    rows = read_table(pathlib.Path(root, "CONTRIBUTING.md"))
    if not rows:
        return ["CONTRIBUTING.md has no table of folders"]
    found = []
    used = set()
    for top in ("src", "plugins"):
        for file in sorted(pathlib.Path(root, top).rglob("*")):
            if file.suffix not in (".h", ".cpp"):
                continue
            path = file.relative_to(root)
            folder = str(path.parent).removeprefix("src/")
            used.add(folder)
            if folder not in rows:
                found.append(f"{path}: {folder} has no row in the table")
            else:
                found += breaches_of_file(root, path, folder, rows)
    found += [f"the table has a row for {folder}, which holds no code" for folder in rows if folder not in used]
    return found


if __name__ == "__main__":
    result = main(pathlib.Path(sys.argv[1]))
    print("\n".join(result))
    sys.exit(1 if result else 0)
