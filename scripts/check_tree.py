#!/usr/bin/env python3
"""Checks of the source tree: direction of inclusion, lengths of files."""
import pathlib
import re
import subprocess
import sys

# What a folder may include beside itself; the longest matching folder counts.
MAY_INCLUDE = {
    "store/text": ["store/export.h"],
    "store/numeric": ["store/export.h", "store/text/"],
    "store/select": ["store/export.h", "store/text/"],
    "store/geometry": ["store/export.h", "store/text/", "store/numeric/", "store/record/axis.h",
                       "store/record/element_shape.h"],
    "store/record": ["store/export.h", "store/text/", "store/numeric/", "store/select/",
                     "store/geometry/"],
    "store/table": ["store/export.h", "store/text/", "store/select/"],
    "store/model": ["store/export.h", "store/text/", "store/numeric/", "store/select/",
                    "store/geometry/", "store/record/", "store/table/"],
    "store/calc": ["store/"],
    "include": ["store/", "tarvex/"],
    "frame": ["store/", "tarvex/"],
    "renumber": ["store/", "tarvex/", "frame/"],
    "topology": ["store/", "tarvex/", "frame/", "renumber/"],
    "members": ["store/", "tarvex/", "frame/", "topology/"],
    "loads": ["store/", "tarvex/", "topology/"],
    "workbench": ["store/", "tarvex/"],
}
# Store headers that are the store's own; workbench and tools reach the model through the others.
INTERNAL = {f"store/model/{name}.h" for name in ("child_index", "entity_geometry", "member_topology",
                                                 "model_core", "node_use", "stage_properties",
                                                 "table_ops")}
LONGEST = {".h": 300, ".cpp": 400}
LONGEST_TEST = 700


def folder_of(path):
    fitting = [folder for folder in MAY_INCLUDE if path.startswith(folder + "/")]
    return max(fitting, key=len, default=None)


def faults_of(path):
    text = pathlib.Path(path).read_text(encoding="utf-8")
    lines = text.count("\n")
    in_tests = path.startswith(("tests/", "bench/"))
    limit = LONGEST_TEST if in_tests else LONGEST[pathlib.Path(path).suffix]
    if lines > limit:
        yield f"{path}: {lines} lines, at most {limit}"
    folder = folder_of(path)
    if folder is None:
        return
    for number, line in enumerate(text.splitlines(), 1):
        found = re.match(r'#include "([^"]+)"', line)
        if not found:
            continue
        name = found[1]
        allowed = name.startswith((folder + "/", *MAY_INCLUDE[folder]))
        if not allowed or (name in INTERNAL and folder != "store/model"):
            yield f"{path}:{number}: {folder} may not include {name}"


def main():
    listed = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], capture_output=True, text=True,
                            check=True).stdout.split()
    faults = [fault for path in listed for fault in faults_of(path)]
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
