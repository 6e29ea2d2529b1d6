#!/usr/bin/python3
"""Writes small legal files that hurt a table reader, and damaged ones, with a manifest.

    make_hurtful.py FOLDER

FOLDER/manifest.tsv says of each: kind (open or refused), rows, columns, the first header fields,
the first and last site id, or the reason of the refusal. The files are the same on every run.
A note that starts with "or=word,word:" names reasons that are as good; "debatable" means that
either kind is.
Needs python3-xlwt.
"""
import os
import sys

import hurtful_damaged
import hurtful_text
import hurtful_xls
import hurtful_xlsx
import hurtful_xml
from hurtful_sites import Manifest


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = sys.argv[1]
    os.makedirs(folder, exist_ok=True)
    manifest = Manifest()
    for group in (hurtful_xlsx, hurtful_xls, hurtful_xml, hurtful_text, hurtful_damaged):
        group.write(folder, manifest)
    manifest.write(os.path.join(folder, "manifest.tsv"))


if __name__ == "__main__":
    main()
