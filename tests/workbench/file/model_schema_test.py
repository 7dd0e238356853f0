"""Holds docs/model.schema.json against a validator that is not ours.

Usage: model_schema_test.py SCHEMA MODEL... The models must be valid; copies of the first one with one
fault each must not be, and the validator must point at the fault.
"""

import copy
import json
import sys

import jsonschema


def places(validator, model):
    """Where the validator finds faults, as paths of keys and places."""
    return ["/".join(map(str, error.absolute_path)) for error in validator.iter_errors(model)]


def change(*path, value=None, key=None):
    """A function that sets a key, or removes it where there is no value, at a path of a model."""

    def apply(model):
        for step in path:
            model = model[step]
        if value is None:
            del model[key]
        else:
            model[key] = value

    return apply


FAULTS = [
    # what is wrong, how to make it, where the validator has to see it
    ("unknown table", change(key="Nodes", value=[]), ""),
    ("no units", change(key="units"), ""),
    ("no format", change(key="format"), ""),
    ("other format", change(key="format", value="other"), "format"),
    ("later version", change(key="version", value="1.1"), "version"),
    ("other unit", change("units", key="length", value="mm"), "units/length"),
    ("unknown unit", change("units", key="stress", value="Pa"), "units"),
    ("table is no array", change(key="Node", value={}), "Node"),
    ("record is no object", change("Node", key=2, value=7), "Node/2"),
    ("unknown field", change("Node", 2, key="colr", value="#000000"), "Node/2"),
    ("no number", change("Node", 2, key="n"), "Node/2"),
    ("no position", change("Node", 2, key="position"), "Node/2"),
    ("number below 1", change("Node", 2, key="n", value=0), "Node/2/n"),
    ("number above the highest", change("Node", 2, key="n", value=100000001), "Node/2/n"),
    ("number not whole", change("Node", 2, key="n", value=1.5), "Node/2/n"),
    ("number as text", change("Node", 2, key="n", value="1"), "Node/2/n"),
    ("two co-ordinates", change("Node", 2, key="position", value=[0, 0]), "Node/2/position"),
    ("unknown direction", change("Node", 2, key="restraint", value=["W"]), "Node/2/restraint/0"),
    ("repeated direction", change("Node", 2, key="restraint", value=["X", "X"]),
     "Node/2/restraint"),
    ("bad colour", change("Node", 2, key="colour", value="red"), "Node/2/colour"),
    ("no type", change("Elem", 0, key="type"), "Elem/0"),
    ("unknown type", change("Elem", 0, key="type", value=27), "Elem/0/type"),
    ("node not whole", change("Elem", 0, "topology", key=1, value=2.5), "Elem/0/topology/1"),
    ("unknown offset", change("Elem", 0, key="offset", value={"x3": 1}), "Elem/0/offset"),
    ("bad connection", change("Elem", 0, key="connect", value=[None, 1]), "Elem/0/connect/1"),
    ("long position of one end", change("Elem", 0, key="longPosition", value=[0]),
     "Elem/0/longPosition"),
    ("panel without topology", change("LoadPanel", 0, key="topology"), "LoadPanel/0"),
    ("unknown axis type", change("Axis", 0, key="type", value=4), "Axis/0/type"),
    ("one-off is no object", change(key="Spec", value=[]), "Spec"),
    ("unknown tolerance", change(key="Spec", value={"genTol": {"a": 1}}), "Spec/genTol"),
]


def load(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def main(schema_path, *model_paths):
    schema = load(schema_path)
    jsonschema.Draft7Validator.check_schema(schema)
    validator = jsonschema.Draft7Validator(schema)

    failed = []
    for path in model_paths:
        found = places(validator, load(path))
        if found:
            failed.append(f"{path}: refused at {found[:5]}")
    model = load(model_paths[0])
    small = {key: value[:3] if isinstance(value, list) else value for key, value in model.items()}
    for what, apply, place in FAULTS:
        faulty = copy.deepcopy(small)
        apply(faulty)
        found = places(validator, faulty)
        if place not in found:
            failed.append(f"{what}: expected a fault at {place!r}, found {found}")
    for line in failed:
        print(line)
    print(f"{len(FAULTS) + len(model_paths) - len(failed)} passed, {len(failed)} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
