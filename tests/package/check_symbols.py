#!/usr/bin/env python3
"""Compares what a shared library exports with what it should, and shows every difference.

    check_symbols.py LIBRARY --list FILE       one demangled name a line; lines that begin with # are remarks
    check_symbols.py LIBRARY --header FILE     the functions that a C header declares
    --print                                    prints what the library exports, to make a list from

Exits with 1 if they differ.
"""

import argparse
import re
import subprocess
import sys


def printed(command, given=None):
    return subprocess.run(command, input=given, check=True, capture_output=True, text=True).stdout


def exported(library):
    if library.endswith(".dll"):
        table = printed(["objdump", "-p", library]).partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
        names = printed(["c++filt"], "\n".join(re.findall(r"^\s+\[\s*\d+\] (?:\S+\s+\S+ )?(\S+)$", table, flags=re.M)))
        names = names.replace("unsigned long long", "unsigned long").splitlines()  # what a size is there
    else:
        # A line is "address kind name". Sanitizers and the linker add names of their own, with an underscore.
        output = printed(["nm", "-DC", "--defined-only", library])
        names = [line.split(" ", 2)[2] for line in output.splitlines()]
    return {name for name in names if not name.startswith("_")}


def listed(path):
    with open(path, encoding="utf-8") as lines:
        return {line.strip() for line in lines if line.strip() and not line.startswith("#")}


def declared(path):
    with open(path, encoding="utf-8") as header:
        text = re.sub(r"/\*.*?\*/", "", header.read(), flags=re.DOTALL)
    text = re.sub(r"^\s*#.*?(?<!\\)$", "", text, flags=re.DOTALL | re.MULTILINE)
    return set(re.findall(r"^CHARTDRAW_API\s[^;(]*?(\w+)\s*\(", text, flags=re.MULTILINE))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("library")
    parser.add_argument("--list")
    parser.add_argument("--header")
    parser.add_argument("--print", action="store_true")
    options = parser.parse_args()

    actual = exported(options.library)
    if options.print:
        print("\n".join(sorted(actual)))
        return 0
    expected = listed(options.list) if options.list else declared(options.header)
    if options.library.endswith(".dll"):
        expected = {name for name in expected if not name.startswith("typeinfo name for ")}  # each keeps its own
    if not expected:
        print("Nothing is expected: the list or the header could not be understood.")
        return 1
    missing = sorted(expected - actual)
    extra = sorted(actual - expected)
    for name in extra:
        print(f"+ {name}    is exported, but should not be")
    for name in missing:
        print(f"- {name}    is not exported")
    print(f"{len(expected)} expected, {len(actual)} exported, {len(extra)} too many, {len(missing)} missing")
    return 1 if extra or missing else 0


if __name__ == "__main__":
    sys.exit(main())
