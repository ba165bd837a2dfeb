#!/usr/bin/env python3
"""Writes the recording implementation of every operation that the surface header declares.

generate.py SURFACE_HEADER OUTPUT: so the recorder follows the header, and cannot miss an operation.
"""
import re
import sys


def declarations(header):
    """(result, name, [(type, argument name)]) of each operation, in the header's order."""
    text = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    for result, name, arguments in re.findall(r"^CHARTDRAW_API\s+([^();]*?)\s*(\w+)\(([^)]*)\);", text, flags=re.M):
        split = [re.fullmatch(r"(.+?)(\w+)", " ".join(part.split())) for part in arguments.split(",")]
        yield result, name, [(match[1].strip(), match[2]) for match in split]


ARRAYS = ("const double*", "const int*", "const char* const*")


def body(result, name, arguments):
    shown, outs, at = [], [], 0
    while at < len(arguments):
        kind, argument = arguments[at]
        if kind in ARRAYS:  # an array and its count are one argument of the log
            shown.append(f"recorder::array({argument}, {arguments[at + 1][1]})")
            at += 1
        elif kind in ("const char**", "const double**", "int*"):
            outs.append(argument)
        elif re.fullmatch(r"[A-Z]\w+\*", kind):
            shown.append(f'recorder::handle("{kind[:-1]}", {argument})')
        else:
            shown.append(f"recorder::text({argument})")
        at += 1

    call = ", ".join(argument for _, argument in arguments)
    first = arguments[0][1] if re.fullmatch(r"[A-Z]\w+\*", arguments[0][0]) else "nullptr"
    yield f"    const recorder::Call call(\"{name}\", {{{', '.join(shown)}}});"
    yield f"    static const auto real = recorder::real<decltype(&{name})>(\"{name}\");"
    if name.endswith("_destroy"):
        yield f"    recorder::forget({first});"
    yield "    if (!real) {"
    for out in outs:
        yield f"        if ({out})"
        yield f"            *{out} = {{}};"
    yield "        return;" if result == "void" else "        return {};"
    yield "    }"
    if result == "void":
        yield f"    real({call});"
    elif result.endswith("*") and not result.startswith("const"):
        yield f"    return recorder::given(\"{result[:-1]}\", real({call}), {first});"
    else:
        yield f"    return real({call});"


def main(header, output):
    with open(header, encoding="utf-8") as file:
        operations = list(declarations(file.read()))
    lines = ['#include <chartdraw/surface.h>', '#include "tests/recorder/recorder_core.h"', ""]
    lines.append(f"const int recorder::operationCount = {len(operations)};")
    lines.append('extern "C" {')
    for result, name, arguments in operations:
        signature = ", ".join(f"{kind} {argument}" for kind, argument in arguments)
        lines += [f"{result} {name}({signature}) {{", *body(result, name, arguments), "}"]
    # What was compiled to call a library calls through these there; else they would come with the library.
    lines += ["#ifdef _WIN32", *(f"decltype(&{name}) __imp_{name} = {name};" for _, name, _ in operations), "#endif", "}"]
    with open(output, "w", encoding="utf-8") as file:
        file.write("\n".join(lines) + "\n")


main(*sys.argv[1:])
