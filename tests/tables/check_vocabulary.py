#!/usr/bin/env python3
"""Checks the vocabulary of column names (docs/vocabulary.md) for words that contradict each other.

Prints each fault; the exit status is 1 if there is one.
"""
import json
import re
import sys
import unicodedata

# Words with two meanings, between which the values or the other columns of a table decide.
TWO_ROLES = [
    {"siteId", "siteName"},  # "Site" and "Standort" head codes as well as names
    {"siteId", "linkName"},  # "id" and "name" alone belong to whatever a row is
    {"siteName", "linkName"},
    {"siteName", "sectorId"},  # a cell name can be the name of the site
    {"longitude", "length"},  # both are one word in German, Dutch, Polish, Czech, Greek and Hebrew
    {"groundHeight", "antennaHeight"},  # "alt" abbreviates altitude and Spanish "altura"
]
PARTS_IN_LAYOUTS = {axis + part for axis in ("lat", "lon") for part in ("Degrees", "Minutes", "Seconds", "Hemisphere")}


def words_of(text):
    """The words of a text without accents, in small letters."""
    plain = unicodedata.normalize("NFKD", text).casefold()
    plain = "".join(c for c in unicodedata.normalize("NFKD", plain) if unicodedata.category(c) != "Mn")
    return re.findall(r"[^\W\d_]+|\d+", plain)


def together(text):
    return "".join(words_of(text)) or text


def phrases(lists):
    return [phrase for words in lists.values() for phrase in words]


def empty_lists(value, path):
    if isinstance(value, (dict, list)):
        if not value:
            yield f"{path} is empty"
        for key, part in value.items() if isinstance(value, dict) else enumerate(value):
            yield from empty_lists(part, f"{path}/{key}")
    elif isinstance(value, str) and not value.strip():
        yield f"{path} is blank"


def shared_words(sections, are_allowed):
    """Words that stand in two of several sections."""
    found = {}
    for name, lists in sections.items():
        for phrase in phrases(lists):
            found.setdefault(together(phrase), set()).add(name)
    for word, names in found.items():
        if len(names) > 1 and not are_allowed(names):
            yield f'"{word}" stands under {" and ".join(sorted(names))}'


def forbidden_phrases(role, lists, forbidden):
    """Phrases of a role that a word of its own "not" list rules out."""
    words_against = {together(phrase) for phrase in phrases(forbidden)}
    for phrase in phrases(lists):
        words = words_of(phrase)
        runs = {"".join(words[at:at + size]) for at in range(len(words)) for size in (1, 2, 3)}
        for run in runs & words_against:
            yield f'{role}: "{phrase}" holds "{run}", which rules the role out'


def layout_faults(layout, roles):
    name, columns = layout["name"], layout["columns"]
    ends = ("A", "B") if layout["kind"] == "links" else ("",)
    known = {role + end for role in roles for end in (*ends, "")} | {part + end for part in PARTS_IN_LAYOUTS for end in ends}
    yield from (f'{name}: the role "{column}" is not known' for column in columns if column and column not in known)
    yield from (f"{name}: column {key} is tested, but there are {len(columns)} columns"
                for key in layout["tests"] if int(key) >= len(columns))


def faults(vocabulary):
    roles = vocabulary["roles"]
    yield from empty_lists(vocabulary, "")
    yield from shared_words(roles, lambda names: names in TWO_ROLES)
    yield from shared_words({end: vocabulary["ends"][end] for end in "ab"}, lambda names: False)
    yield from shared_words(vocabulary["units"], lambda names: False)
    yield from shared_words(vocabulary["parts"], lambda names: False)
    for language in {language for lists in vocabulary["hemispheres"].values() for language in lists}:
        yield from shared_words({name: {language: lists.get(language, []), "any": lists["any"]}
                                 for name, lists in vocabulary["hemispheres"].items()}, lambda names: False)
    for role, forbidden in vocabulary["not"].items():
        if role in roles:
            yield from forbidden_phrases(role, roles[role], forbidden)
        else:
            yield f'not: the role "{role}" is not known'
    for layout in vocabulary["layouts"]:
        yield from layout_faults(layout, roles)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        found = list(faults(json.load(file)))
    for fault in found:
        print(fault)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
