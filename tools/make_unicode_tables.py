#!/usr/bin/env python3
"""Writes src/values/unicodetables.cpp from the Unicode Character Database.

Usage: tools/make_unicode_tables.py [FOLDER]
FOLDER holds CaseFolding.txt and UnicodeData.txt; by default that of Debian's package unicode-data.
"""
import pathlib
import re
import sys

# Its dotted capital and its dotless small i are other letters in Turkish alone.
TURKISH = {0x130: ord("i"), 0x131: ord("i")}
PER_LINE = {"foldings": 3, "printable": 5}


def foldings(folder):
    """Runs of (first, last, step, distance) of simple case folding."""
    folded = dict(TURKISH)
    for line in (folder / "CaseFolding.txt").read_text(encoding="utf-8").splitlines():
        row = re.match(r"([0-9A-F]+); [CS]; ([0-9A-F]+);", line)
        if row:
            folded[int(row[1], 16)] = int(row[2], 16)
    runs = []
    for code in sorted(folded):
        distance = folded[code] - code
        last = runs[-1] if runs else None
        step = code - last[1] if last else 0
        if last and last[3] == distance and step <= 2 and last[2] in (0, step):
            last[1:3] = code, step
        else:
            runs.append([code, code, 0, distance])
    return [(first, last, step or 1, distance) for first, last, step, distance in runs]


def printable(folder):
    """Ranges (first, last) of what is assigned and neither controls anything nor ends a line."""
    ranges = []
    begin = None
    for line in (folder / "UnicodeData.txt").read_text(encoding="ascii").splitlines():
        code, name, category = line.split(";")[:3]
        code = int(code, 16)
        if name.endswith(", First>"):
            begin = code
            continue
        first, begin = code if begin is None else begin, None
        if category in ("Cc", "Cs", "Zl", "Zp"):
            continue
        if ranges and ranges[-1][1] + 1 == first:
            ranges[-1][1] = code
        else:
            ranges.append([first, code])
    return ranges


def rows(entries, perline):
    for at in range(0, len(entries), perline):
        yield "    " + " ".join("{%s}," % ", ".join(e) for e in entries[at:at + perline])


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode")
    version = re.search(r"CaseFolding-([0-9.]+)\.txt", (folder / "CaseFolding.txt").read_text("utf-8"))
    folds = [("0x%X" % a, "0x%X" % b, str(s), str(d)) for a, b, s, d in foldings(folder)]
    known = [("0x%X" % a, "0x%X" % b) for a, b in printable(folder)]
    lines = [
        "// Written by tools/make_unicode_tables.py from Unicode %s." % version[1],
        '#include "values/unicodetables.h"', "", "#include <array>", "", "namespace duskmarch::unicode {", "namespace {", "",
        "// clang-format off",
        "constexpr auto foldingrows = std::to_array<Folding>({",
        *rows(folds, PER_LINE["foldings"]), "});",
        "constexpr auto printablerows = std::to_array<Range>({",
        *rows(known, PER_LINE["printable"]), "});",
        "// clang-format on", "", "}  // namespace", "",
        "constinit const std::span<const Folding> foldings = foldingrows;",
        "constinit const std::span<const Range> printable = printablerows;", "",
        "}  // namespace duskmarch::unicode", ""]
    source = pathlib.Path(__file__).resolve().parent.parent / "src/values/unicodetables.cpp"
    source.write_text("\n".join(lines), encoding="ascii")
    print("%d foldings, %d printable" % (len(folds), len(known)))


if __name__ == "__main__":
    main()
