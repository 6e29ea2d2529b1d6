#!/usr/bin/python3
"""Writes small valid files that are hard to read, and damaged ones, with a manifest.

    make_hurtful.py FOLDER

FOLDER/manifest.tsv lists for each file: kind (open or refused), rows, columns, the first header fields, the first and
last site id, and the problems, or the reason of the refusal. The files are the same on every run. A note that starts
with "or=word,word:" names reasons that are also right. Needs python3-xlwt.
"""
import sys

import hurtful_damaged
import hurtful_text
import hurtful_xls
import hurtful_xlsx
import hurtful_xml
from hurtful_sites import Manifest

if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    manifest = Manifest(sys.argv[1])
    for group in (hurtful_xlsx, hurtful_xls, hurtful_xml, hurtful_text, hurtful_damaged):
        group.write(manifest)
    manifest.save()
