"""The pictures of a model by an XML parser of another make.

    picture_test.py PROGRAM MODEL
"""

import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SVG = "{http://www.w3.org/2000/svg}"
ELEMENTS = {"svg", "title", "style", "rect", "g", "path", "text"}


def check(program, model, view, folder):
    file = Path(folder) / f"{view}.svg"
    subprocess.run([program, "picture", model, "-o", file, "--view", view, "--numbers", "nodes", "-q"],
                   check=True)
    root = ElementTree.parse(file).getroot()
    assert root.tag == SVG + "svg" and root.get("version") == "1.1", root.tag
    used = {element.tag.removeprefix(SVG) for element in root.iter()}
    assert used <= ELEMENTS, used
    width, height = (float(root.get(name)) for name in ("width", "height"))
    assert root.get("viewBox") == f"0 0 {root.get('width')} {root.get('height')}"
    assert root.find(SVG + "title").text == Path(model).name
    starts = 0
    for path in root.iter(SVG + "path"):
        for x, y in re.findall(r"M(-?[\d.]+) ?(-?[\d.]+)", path.get("d")):
            assert -10 <= float(x) <= width + 10 and -10 <= float(y) <= height + 10, (view, x, y)
            starts += 1
    assert starts > 3000, (view, starts)  # the model has more than 3000 elements
    numbers = [text for group in root.iter(SVG + "g") if group.get("class") == "beside" for text in group]
    assert len(numbers) > 2000, (view, len(numbers))
    styles = root.find(SVG + "style").text
    for group in root.iter(SVG + "g"):
        name = group.get("class")
        assert name in (None, "caption", "legend", "levels") or f".{name}{{" in styles, name


def main():
    program, model = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        for view in ("iso", "plan", "x", "y"):
            check(program, model, view, folder)


main()
