#!/usr/bin/python3
"""Writes small legal files that hurt a table reader, and damaged ones, with a manifest.

    make_hurtful.py FOLDER

FOLDER/manifest.tsv says of each: kind (open or refused), rows, columns, the first header fields,
the first and last site id, and what cannot be read in it, or the reason of the refusal. The files are the same on every run.
A note that starts with "or=word,word:" names reasons that are as good. Needs python3-xlwt.
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
