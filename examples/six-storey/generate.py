"""Writes the model of a six-storey reinforced-concrete building as a model file.

    python3 generate.py > six-storey.json
    python3 generate.py --check six-storey.json

Elements are made with their corner points as topology, members with points
and words. Points become node numbers at the very end, so whatever meets at a
point shares its node. Each element is the mesh of one member.
"""

import json
import re
import sys
from collections import namedtuple
from itertools import pairwise
from pathlib import Path

# Published (see README): heights of the tower, plan sizes, number of storeys.
BASEMENTS = 2                       # storeys below ground, published
TOWER_HEIGHTS = [4] + 5 * [3]       # m, published
LENGTH = 30                         # m, plan length of tower and basement, published
BASEMENT_Y = (0, 21)                # m, width 21 published
TOWER_Y = (3.5, 17.5)               # m, width 14 published, place over the basement chosen

# Kinds of members and what 2D ones become, by their numbers in model files.
T_BEAM, T_COLUMN, T_SLAB, T_WALL, T_SOLID = 1, 2, 4, 5, 13
QUADRATIC, LOAD_PANELS = 1, 3
DIAPHRAGM = 53                      # type of a rigid constraint that keeps a floor in shape
LOAD_PANEL = 10                     # type of a 2D property that only takes loads to its edges

# Chosen: everything below.
BASEMENT_HEIGHT = 3                 # m
CANOPY_HEIGHT = 3                   # m, plant canopy above the roof
RAFT_DEPTH = 0.8                    # m
SILL, HEAD = 1.05, 2.1              # m above the floor, of windows and doors
COLUMN_X = [0, 6, 12, 18, 24, 30]   # m, column lines
COLUMN_Y = [3.5, 8.5, 12.5, 17.5]   # m
MESH_X = list(range(0, LENGTH + 1, 2))                         # m
MESH_Y = [0, 1.75, 3.5, 5.25, 6.75, 8.5, 10, 11, 12.5, 14.25, 15.75, 17.5, 19.25, 21]  # m
CORE_X, CORE_Y = (12, 18), (8.5, 12.5)                         # m
CANOPY_X, CANOPY_Y = (10, 20), (6.75, 14.25)                   # m
COLUMN_SIDE, BEAM_WIDTH = 0.5, 0.3                             # m
BEAM_DEPTH, TRIMMER_DEPTH = 0.5, 0.4                           # m
SLAB, PODIUM_SLAB = 0.18, 0.25                                 # m, thickness
CORE_WALL, BASEMENT_WALL, CANOPY_SLAB = 0.25, 0.3, 0.15        # m, thickness
POST_SIDE = 0.3                     # m
YOUNGS_MODULUS = round(22e9 * 3.8 ** 0.3) // 1000 * 1000       # N/m2, of concrete with a mean strength of 38 N/mm2
PODIUM_DROP = -0.1                  # m, the slab round the tower lies lower for the paving

TOWER_BASE = BASEMENTS              # level 0 of the building, counted from the raft up
ROOF = BASEMENTS + len(TOWER_HEIGHTS)

# Loads, N, m and K; values of EN 1991-1-1 and -1-3 where the README says so.
FINISHES, PARTITIONS, OFFICES, ROOF_ACCESS, SNOW = 1500, 2000, 3000, 400, 640
WIND, SUCTION, WARMING = 800, 400, 15
ARCHIVE, IMPACT, IMPACT_HEIGHT = 7500, 50000, 0.5
HIT_COLUMN = 7                      # element of the south-west column of the tower that stands on the ground
CHILLER, PLANT, PARAPET = 20000, 2500, 3000
# Ordinates of the elastic spectrum of EN 1998-1, 3.2.2.2 (type 1, ground B: S 1.2, TB 0.15, TC 0.5, TD 2 s).
GROUND_ACCELERATION = 0.25 * 9.80665                           # m/s2
SOIL_FACTOR, T_B, T_C, T_D = 1.2, 0.15, 0.5, 2
LONG_TERM = 3                       # the modulus is divided by this for lasting loads (creep)
GRADE = {"type": 2, "grade": 1}     # concrete, number 1 of its table

# Numbers of load cases, tasks and cases; the analysis case of a load case has its number.
DEAD, FINISHED, IMPOSED, IMPOSED_ROOF, WIND_X, WIND_Y, SNOWED, WARMED = range(1, 9)
ODD_FLOORS, EVEN_FLOORS, ARCHIVES, WIND_BACK_X, WIND_BACK_Y, HIT, TORSION_X, TORSION_Y = range(13, 21)
STATIC, MODAL, RESPONSE, P_DELTA = 1, 2, 3, 4
RESPONSE_X, RESPONSE_Y = 11, 12
SHAKEN = 9                          # source of the earthquake

# A group is the tens of the kind and the level that the storey reaches up to.
COLUMN, BEAM, FLOOR, WALL, RAFT, FACADE, CANOPY = 10, 20, 30, 40, 50, 60, 70
P_COLUMN, P_BEAM, P_TRIMMER, P_POST = 1, 2, 3, 4
P_SLAB, P_PODIUM, P_CANOPY, P_WALL, P_BASEMENT_WALL, P_RAFT, P_FACADE = 11, 12, 13, 21, 22, 31, 41
FIRST = {"columns": 1, "beams": 1001, "slabs": 2001, "walls": 4001, "raft": 5001, "facade": 6001}

Wall = namedtuple("Wall", "along line start end bottom top openings")
# An opening is (start, end, sill, head, first storey, storey after the last).
WINDOW_Y = [(10, 11, 0, HEAD, 2, 3), (10, 11, SILL, HEAD, 3, ROOF)]
WINDOW_X = [(14, 16, 0, HEAD, 0, 2), (14, 16, SILL, HEAD, 2, ROOF)]
WALLS = [
    Wall("x", 0, 0, LENGTH, 0, BASEMENTS, []), Wall("x", 21, 0, LENGTH, 0, BASEMENTS, []),
    Wall("y", 0, *BASEMENT_Y, 0, BASEMENTS, []), Wall("y", LENGTH, *BASEMENT_Y, 0, BASEMENTS, []),
    Wall("y", 0, *CORE_Y, BASEMENTS, ROOF, WINDOW_Y), Wall("y", LENGTH, *CORE_Y, BASEMENTS, ROOF, WINDOW_Y),
    Wall("x", 3.5, *CORE_X, 0, ROOF, WINDOW_X), Wall("x", 17.5, *CORE_X, 0, ROOF, WINDOW_X),
    Wall("x", 8.5, *CORE_X, 0, ROOF, [(14, 16, 0, HEAD, 0, ROOF)]), Wall("x", 12.5, *CORE_X, 0, ROOF, []),
    Wall("y", 12, *CORE_Y, 0, ROOF, []), Wall("y", 18, *CORE_Y, 0, ROOF, [(10, 11, 0, HEAD, 0, ROOF)]),
]
# Stair and lift shaft by the lower left corner of the cell: None is a hole,
# a number the corner (counted round from the lower left) that is cut off.
SHAFTS = {(12, 8.5): 3, (12, 10): None, (12, 11): 0, (16, 11): None}

HEIGHTS = BASEMENTS * [BASEMENT_HEIGHT] + TOWER_HEIGHTS
LEVELS = [sum(HEIGHTS[:i]) - BASEMENTS * BASEMENT_HEIGHT for i in range(len(HEIGHTS) + 1)]


def clean(value):
    value = round(value, 6)
    return int(value) if value == int(value) else value


def point(x, y, z):
    return clean(x), clean(y), clean(z)


def within(lines, start, end):
    return [v for v in lines if start <= v <= end]


def heights_of(storey):
    """The mesh lines of a storey: floor, sill, head, a line more in the high storey, ceiling."""
    floor, height = LEVELS[storey], HEIGHTS[storey]
    middle = [(HEAD + height) / 2] if height > 3 else []
    return [floor + h for h in [0, SILL, HEAD, *middle, height]]


def element(kind, group, prop, points, **more):
    return {"type": kind, "group": group, "property": prop, "topology": points, **more}


def member(kind, topology, children, **more):
    """A member with its group and property from its elements; points of its topology stand between words."""
    first = children[0]
    made = {"type": kind, "group": first["group"], "property": first["property"], "topology": topology, **more}
    return made | {"elements": children}


def line_member(kind, elements):
    """A straight member of elements that follow each other; each knows which part of it it is."""
    ends = [e["topology"] for e in elements]
    start, end = ends[0][0], ends[-1][1]
    whole = distance(start, end)
    for e, (a, b) in zip(elements, ends):
        e["longPosition"] = [clean(distance(start, a) / whole), clean(distance(start, b) / whole)]
    more = {"offset": elements[0]["offset"]} if "offset" in elements[0] else {}
    releases = [elements[0].get("connect", [None, None])[0], elements[-1].get("connect", [None, None])[1]]
    if any(releases):
        more["endRelease"] = [r or {} for r in releases]
    return member(kind, [start, end], elements, **more)


def distance(a, b):
    return sum((q - p) ** 2 for p, q in zip(a, b)) ** 0.5


def columns():
    """Elements and members of the columns, a member a storey, and of the posts."""
    made, members = [], []
    for x in COLUMN_X:
        for y in COLUMN_Y:
            if x in CORE_X and y in CORE_Y:
                continue    # the corners of the core walls carry there
            for storey in range(ROOF):
                group = COLUMN + storey + 1
                parts = [element(2, group, P_COLUMN, [point(x, y, low), point(x, y, high)])
                         for low, high in pairwise(heights_of(storey))]
                made += parts
                members.append(line_member(T_COLUMN, parts))
    top = LEVELS[ROOF]
    for x in CORE_X:
        for y in CORE_Y:
            made.append(element(2, CANOPY, P_POST, [point(x, y, top), point(x, y, top + CANOPY_HEIGHT)]))
            members.append(line_member(T_COLUMN, made[-1:]))
    return made, members


def on_line(along, line, lines):
    return [(v, line) if along == "x" else (line, v) for v in lines]


def walls():
    """Elements and members of the walls, a member a storey with its openings."""
    made, members = [], []
    for wall in WALLS:
        mesh = within(MESH_X if wall.along == "x" else MESH_Y, wall.start, wall.end)
        for storey in range(wall.bottom, wall.top):
            prop = P_BASEMENT_WALL if wall.top == BASEMENTS else P_WALL
            parts = []
            for low, high in pairwise(heights_of(storey)):
                for a, b in pairwise(mesh):
                    if not is_open(wall, storey, a, low - LEVELS[storey]):
                        parts.append(element(5, WALL + storey + 1, prop, wall_ring(wall, a, b, low, high)))
            made += parts
            members.append(member(T_WALL, wall_outline(wall, storey), parts))
    return made, members


def wall_ring(wall, a, b, low, high):
    pa, pb = on_line(wall.along, wall.line, (a, b))
    return [point(*pa, low), point(*pb, low), point(*pb, high), point(*pa, high)]


def openings_of(wall, storey):
    return [o[:4] for o in wall.openings if o[4] <= storey < o[5]]


def wall_outline(wall, storey):
    """The ring of a wall in a storey: doors are cut out of its foot, windows are holes."""
    floor = LEVELS[storey]
    foot = []
    holes = []
    for start, end, sill, head in openings_of(wall, storey):
        ring = wall_ring(wall, start, end, floor + sill, floor + head)
        if sill == 0:
            foot += [ring[0], ring[3], ring[2], ring[1]]
        else:
            holes += ["hole(", *ring, ")"]
    ring = wall_ring(wall, wall.start, wall.end, floor, LEVELS[storey + 1])
    return ring[:1] + foot + ring[1:] + holes


def is_open(wall, storey, along, above_floor):
    return any(start <= along < end and sill <= round(above_floor, 6) < head
               for start, end, sill, head in openings_of(wall, storey))


def flush(depth, slab, drop):
    """The z offset of a beam whose top is flush with the top of the slab."""
    return clean(drop + (slab - depth) / 2)


def beam(level, prop, depth, a, b, pinned):
    """A beam element from a towards +X or +Y; pinned are the plan points where its end turns freely."""
    podium = level == TOWER_BASE and not TOWER_Y[0] <= (a[1] + b[1]) / 2 <= TOWER_Y[1]
    offset = {"z": flush(depth, PODIUM_SLAB, PODIUM_DROP) if podium else flush(depth, SLAB, 0)}
    out = edge_side(a, b) * clean((COLUMN_SIDE - BEAM_WIDTH) / 2) if level > TOWER_BASE else 0
    if out:
        offset = {"y": out, **offset}
    more = {"offset": offset}
    if a in pinned or b in pinned:
        more["connect"] = [{"release": ["YY", "ZZ"]} if p in pinned else None for p in (a, b)]
    return element(2, BEAM + level, prop, [point(*a, LEVELS[level]), point(*b, LEVELS[level])], **more)


def edge_side(a, b):
    """1 where outside is to the left of a beam on the edge of the tower, -1 where it is to the right."""
    if a[1] == b[1] and a[1] in TOWER_Y:
        return 1 if a[1] == TOWER_Y[1] else -1
    if a[0] == b[0] and a[0] in (0, LENGTH):
        return 1 if a[0] == 0 else -1
    return 0


def bays(elements):
    """Beams that follow each other on a line between two crossings of column lines."""
    run = []
    for e in elements:
        a, b = e["topology"]
        if run and (run[-1]["topology"][1] != a or (a[0] in COLUMN_X and a[1] in (*COLUMN_Y, *BASEMENT_Y))):
            yield run
            run = []
        run.append(e)
    if run:
        yield run


def beams(wall_elements):
    """Beams on the column lines, but not where a wall carries the slab, and their members, one a bay."""
    carried = {frozenset(e) for w in wall_elements for e in pairwise(w["topology"] + w["topology"][:1])}
    made, members = [], []
    for level in range(1, ROOF + 1):
        side = BASEMENT_Y if level <= TOWER_BASE else TOWER_Y
        bearing = {(x, y) for x in COLUMN_X for y in BASEMENT_Y}    # on top of the outer basement wall
        lines = [on_line("x", y, MESH_X) for y in COLUMN_Y]
        lines += [on_line("y", x, within(MESH_Y, *side)) for x in COLUMN_X]
        for line in lines:
            parts = [beam(level, P_BEAM, BEAM_DEPTH, a, b, bearing) for a, b in pairwise(line)
                     if frozenset((point(*a, LEVELS[level]), point(*b, LEVELS[level]))) not in carried]
            made += parts
            members += [line_member(T_BEAM, bay) for bay in bays(parts)]
        if level < ROOF:
            trimmers = [on_line("y", 14, within(MESH_Y, *CORE_Y)), on_line("x", 11, within(MESH_X, 14, 18))]
            for line in trimmers:
                ends = {line[0], line[-1]}
                parts = [beam(level, P_TRIMMER, TRIMMER_DEPTH, a, b, ends) for a, b in pairwise(line)]
                made += parts
                members.append(line_member(T_BEAM, parts))
    return made, members


def first_along_x(ring):
    """The ring begun where its edge points most nearly along +X."""
    def cosine(i):
        a, b = ring[i], ring[(i + 1) % len(ring)]
        return (b[0] - a[0]) / sum((q - p) ** 2 for p, q in zip(a, b)) ** 0.5
    start = max(range(len(ring)), key=cosine)
    return ring[start:] + ring[:start]


def cells(xs, ys, z, special):
    """Corner rings, seen from above counter-clockwise, of the cells of a field."""
    for y, y1 in pairwise(ys):
        for x, x1 in pairwise(xs):
            ring = [point(x, y, z), point(x1, y, z), point(x1, y1, z), point(x, y1, z)]
            cut = special.get((x, y), -1)
            if cut is not None:
                yield first_along_x([p for i, p in enumerate(ring) if i != cut])


def rectangle(xs, ys, z):
    return [point(xs[0], ys[0], z), point(xs[-1], ys[0], z), point(xs[-1], ys[-1], z), point(xs[0], ys[-1], z)]


def slabs():
    """Elements and members of the floors: one a level, and at ground one more on each side of the tower."""
    made, members = [], []
    for level in range(1, ROOF + 1):
        side = BASEMENT_Y if level <= TOWER_BASE else TOWER_Y
        shafts = SHAFTS if level < ROOF else {}
        strips = [side] if level != TOWER_BASE else [(side[0], TOWER_Y[0]), TOWER_Y, (TOWER_Y[1], side[1])]
        parts = {strip: [] for strip in strips}
        for ring in cells(MESH_X, within(MESH_Y, *side), LEVELS[level], shafts):
            middle = sum(p[1] for p in ring) / len(ring)
            strip = next(s for s in strips if s[0] < middle < s[1])
            kind = {4: 5, 3: 7}[len(ring)]
            if level == TOWER_BASE and strip != TOWER_Y:
                made.append(element(kind, FLOOR + level, P_PODIUM, ring, offset={"z": PODIUM_DROP}))
            else:
                made.append(element(kind, FLOOR + level, P_SLAB, ring))
            parts[strip].append(made[-1])
        for strip, elements in parts.items():
            z = LEVELS[level]
            holes = shaft_holes(z) if shafts and strip[0] <= CORE_Y[0] < strip[1] else []
            more = {"offset": elements[0]["offset"]} if "offset" in elements[0] else {}
            members.append(member(T_SLAB, rectangle(COLUMN_X, strip, z) + holes, elements, **more))
    return made, members


def shaft_holes(z):
    """Rings round what SHAFTS leaves out: the stair with its two cut corners, and the lift."""
    stair = [point(12, 8.5, z), point(14, 10, z), point(14, 11, z), point(12, 12.5, z)]
    return ["hole(", *stair, ")", "hole(", *rectangle((16, 18), (11, 12.5), z), ")"]


def canopy():
    """A plate on four posts with all edges free, so that it can be quadratic beside linear floors."""
    xs, ys = within(MESH_X, *CANOPY_X), within(MESH_Y, *CANOPY_Y)
    corners = {(xs[0], ys[0]): 0, (xs[-2], ys[0]): 1, (xs[-2], ys[-2]): 2, (xs[0], ys[-2]): 3}
    made = []
    for ring in cells(xs, ys, LEVELS[ROOF] + CANOPY_HEIGHT, corners):
        sides = pairwise(ring + ring[:1])
        middles = [point(*((p + q) / 2 for p, q in zip(a, b))) for a, b in sides]
        made.append(element({4: 6, 3: 8}[len(ring)], CANOPY, P_CANOPY, ring + middles))
    z = LEVELS[ROOF] + CANOPY_HEIGHT
    outline = [point(x, y, z) for x, y in [(xs[1], ys[0]), (xs[-2], ys[0]), (xs[-1], ys[1]), (xs[-1], ys[-2]),
                                           (xs[-2], ys[-1]), (xs[1], ys[-1]), (xs[0], ys[-2]), (xs[0], ys[1])]]
    return made, [member(T_SLAB, outline, made, analysisOrder=QUADRATIC)]


def raft():
    made = []
    for ring in cells(MESH_X, MESH_Y, LEVELS[0], {}):
        below = [point(x, y, z - RAFT_DEPTH) for x, y, z in ring]
        made.append(element(12, RAFT, P_RAFT, below + ring))
    foot = rectangle(MESH_X, MESH_Y, LEVELS[0] - RAFT_DEPTH)
    top = rectangle(MESH_X, MESH_Y, LEVELS[0])
    sides = [p for pair in zip(foot + foot[:1], top + top[:1]) for p in pair]
    strips = sides + [";", foot[0], foot[3], foot[1], foot[2], ";", top[0], top[1], top[3], top[2]]
    return made, [member(T_SOLID, strips, made)]


def facade():
    """A panel a bay and storey, outward; glazing of the lowest storey is held at every node round it."""
    runs = [("South", "x", TOWER_Y[0], COLUMN_X), ("East", "y", LENGTH, COLUMN_Y),
            ("North", "x", TOWER_Y[1], COLUMN_X[::-1]), ("West", "y", 0, COLUMN_Y[::-1])]
    made = []
    for storey in range(TOWER_BASE, ROOF):
        for name, along, line, columns_on_it in runs:
            for bay, (a, b) in enumerate(pairwise(columns_on_it), 1):
                if any((w.along, w.line, w.start, w.end) == (along, line, min(a, b), max(a, b)) for w in WALLS):
                    continue
                mesh = within(MESH_X if along == "x" else MESH_Y, min(a, b), max(a, b))[:: 1 if a < b else -1]
                zs = heights_of(storey)
                if storey > TOWER_BASE:
                    mesh, zs = [a, b], [zs[0], zs[-1]]
                plan = on_line(along, line, mesh)
                ring = [point(*p, zs[0]) for p in plan] + [point(*plan[-1], z) for z in zs[1:]]
                ring += [point(*p, zs[-1]) for p in plan[-2::-1]] + [point(*plan[0], z) for z in zs[-2:0:-1]]
                made.append({"name": f"{name} bay {bay} storey {storey - TOWER_BASE + 1}",
                             "group": FACADE + storey + 1, "property": P_FACADE, "topology": ring})
    panels = [member(T_WALL, p["topology"], [p], name=p["name"], analysisOrder=LOAD_PANELS) for p in made]
    return made, panels


def turned_beam(e):
    """The same beam from the other end: local y points the other way, local z still up."""
    e["topology"].reverse()
    e["longPosition"].reverse()
    if "y" in e["offset"]:
        e["offset"]["y"] = -e["offset"]["y"]
    if "connect" in e:
        e["connect"].reverse()


def corners_and_middles(e):
    count = {5: 4, 6: 4, 7: 3, 8: 3}[e["type"]]
    return e["topology"][:count], e["topology"][count:]


def turned_face(e):
    """The same face seen from behind, from the same first corner."""
    corners, middles = corners_and_middles(e)
    e["topology"] = corners[:1] + corners[:0:-1] + middles[::-1]
    if "offset" in e:
        e["offset"] = {"z": -e["offset"]["z"]}


def started_later(e):
    corners, middles = corners_and_middles(e)
    e["topology"] = corners[1:] + corners[:1] + middles[1:] + middles[:1]


def disturb(elements, step, change):
    for e in elements[step - 1::step]:
        change(e)


def by(word, *numbers):
    return " ".join(f"{word}{n}" for n in numbers)


def saved_lists(number):
    """Kinds by property, storeys by group, facades and supports by the plane that they stand in."""
    west_south, east_north = ((x, y, LEVELS[TOWER_BASE]) for x, y in ((0, TOWER_Y[0]), (LENGTH, TOWER_Y[1])))
    corner = {"West": f"X{number[west_south]}", "South": f"Y{number[west_south]}",
              "East": f"X{number[east_north]}", "North": f"Y{number[east_north]}"}
    texts = {"Columns": by("PB", P_COLUMN), "Beams": by("PB", P_BEAM, P_TRIMMER), "Posts": by("PB", P_POST),
             "Frame": '"Columns" "Beams" "Posts"', "Slabs": by("PA", P_SLAB, P_PODIUM, P_CANOPY),
             "Walls": by("PA", P_WALL, P_BASEMENT_WALL), "Raft": by("PV", P_RAFT), "Facade": by("PA", P_FACADE)}
    texts |= {f"{side} facade": f'"Facade" and {word}' for side, word in corner.items()}
    for level in range(1, ROOF + 1):
        kinds = [COLUMN, BEAM, FLOOR, WALL] + [FACADE] * (level > TOWER_BASE)
        name = f"Storey {level - TOWER_BASE}" if level > TOWER_BASE else f"Basement {TOWER_BASE + 1 - level}"
        texts[name] = by("G", *(kind + level for kind in kinds))
    texts["Canopy"] = by("G", CANOPY)
    tower = [f'"Storey {i}"' for i in range(1, ROOF - TOWER_BASE + 1)]
    texts["Tower"] = " ".join([*tower, '"Canopy"'])
    texts["Basement"] = 'all not ("Tower" "Raft")'
    lists = [{"name": name, "kind": 2, "text": text} for name, text in texts.items()]
    lists.append({"name": "Supports", "kind": 1, "text": "Z1"})
    return [{"n": n} | record for n, record in enumerate(lists, 1)]


def storeys():
    """A grid plane a floor level, from the upper basement floor to the roof."""
    names = {TOWER_BASE - 1: "Basement", TOWER_BASE: "Ground", ROOF: "Roof"}
    return [{"n": i, "name": names.get(i, f"Floor {i - TOWER_BASE}")}
            | ({"elevation": clean(LEVELS[i])} if LEVELS[i] else {}) | {"storey": True} for i in range(1, ROOF + 1)]


def rectangle_section(n, name, depth, width):
    component = {"description": f"rectangle {depth} {width}", "materialAnalysis": 1, "materialDesign": GRADE}
    return {"n": n, "name": name, "components": [component]}


def properties():
    """The material, and the properties that elements name; the description of a section tells depth and width."""
    concrete = {"n": 1, "name": "Concrete", "youngsModulus": YOUNGS_MODULUS, "poissonsRatio": 0.2, "density": 2500,
                "thermalExpansion": 1e-5}
    sections = [rectangle_section(P_COLUMN, "Column", COLUMN_SIDE, COLUMN_SIDE),
                rectangle_section(P_BEAM, "Beam", BEAM_DEPTH, BEAM_WIDTH),
                rectangle_section(P_TRIMMER, "Trimmer", TRIMMER_DEPTH, BEAM_WIDTH),
                rectangle_section(P_POST, "Post", POST_SIDE, POST_SIDE)]
    plates = [(P_SLAB, "Slab", SLAB), (P_PODIUM, "Podium slab", PODIUM_SLAB), (P_CANOPY, "Canopy", CANOPY_SLAB),
              (P_WALL, "Wall", CORE_WALL), (P_BASEMENT_WALL, "Basement wall", BASEMENT_WALL)]
    made_of = {"materialAnalysis": 1, "materialDesign": GRADE}
    prop_2d = [{"n": n, "name": name} | made_of | {"thickness": t} for n, name, t in plates]
    prop_2d.append({"n": P_FACADE, "name": "Facade", "type": LOAD_PANEL})
    prop_3d = [{"n": P_RAFT, "name": "Raft"} | made_of]
    crept = concrete | {"n": 2, "name": "Concrete, crept", "youngsModulus": YOUNGS_MODULUS / LONG_TERM}
    elastic = {k: v for k, v in concrete.items() if k not in ("n", "name")}
    grades = [{"n": 1, "name": "C30/37", "elastic": elastic, "cylinderStrength": 30e6, "cubeStrength": 37e6,
               "tensileStrength": 2.9e6, "crushingStrain": 0.0035}]
    bars = [{"n": 1, "name": "B500B", "yieldStrength": 500e6, "ultimateStrength": 540e6, "ultimateStrain": 0.05}]
    return {"MatConcrete": whole_numbers(grades), "MatRebar": whole_numbers(bars), "MatAnal": [concrete, crept],
            "Section": sections, "Prop2D": prop_2d, "Prop3D": prop_3d}


def whole_numbers(records):
    return [{k: int(v) if isinstance(v, float) and v == int(v) else v for k, v in r.items()} for r in records]


def combinations():
    """Factors of EN 1990, 6.10 and 6.12b, with the psi factors of offices, snow below 1000 m and wind."""
    lasting = f"1.35A{DEAD} + 1.35A{FINISHED}"
    texts = [("Floors, snow with them", f"{lasting} + 1.5A{IMPOSED} + 0.75A{SNOWED}"),
             ("Wind, floors with it", f"{lasting} + (1.5A{WIND_X} or 1.5A{WIND_Y}) + 1.05A{IMPOSED}"),
             ("Earthquake", f"A{DEAD} + A{FINISHED} + 0.3A{IMPOSED} + (1 or -1)A{RESPONSE_X} + (0.3 or -0.3)A{RESPONSE_Y}"),
             ("All", "C1 to C3")]
    return [{"n": n, "name": name, "description": text} for n, (name, text) in enumerate(texts, 1)]


def lists_by(word):
    """Selects entities by a list text."""
    return {"text": word}


def face_load(case, word, value, **more):
    return {"loadCase": case, "loadedEntities": lists_by(word)} | more | {"value": [value, 0, 0, 0]}


def corners(x, y):
    return [[x[0], y[0]], [x[1], y[0]], [x[1], y[1]], [x[0], y[1]]]


def load_cases():
    """What each load case is: type of action, source and category."""
    offices, with_offices, shaken = {"category": 2}, {"source": IMPOSED}, {"source": SHAKEN}
    titles = [(DEAD, "Self weight", 11, {}), (FINISHED, "Finishes and partitions", 19, {}),
              (IMPOSED, "Offices", 31, offices), (IMPOSED_ROOF, "Access to the roof", 32, with_offices | {"category": 8}),
              (WIND_X, "Wind +x", 33, {}), (WIND_Y, "Wind +y", 33, {}), (SNOWED, "Snow", 34, {}),
              (WARMED, "Summer", 36, {}), (ODD_FLOORS, "Offices, odd floors", 31, offices),
              (EVEN_FLOORS, "Offices, even floors", 31, offices),
              (ARCHIVES, "Archive", 31, with_offices | {"category": 5}), (WIND_BACK_X, "Wind -x", 33, {}),
              (WIND_BACK_Y, "Wind -y", 33, {}), (HIT, "Impact of a car", 41, {}),
              (TORSION_X, "Accidental torsion x", 53, shaken | {"direction": 1}),
              (TORSION_Y, "Accidental torsion y", 53, shaken | {"direction": 2})]
    return [{"n": n, "name": name, "type": kind} | ({"source": n} if n > 1 else {}) | more
            for n, name, kind, more in titles]


def loads():
    """Uniform loads along z unless a direction is said; the roof surface takes what stands on it anywhere."""
    floors = by("G", *(FLOOR + level for level in range(1, ROOF)))
    roof = f"G{FLOOR + ROOF}"
    covered = f"{roof} PA{P_CANOPY}"
    faces = [face_load(FINISHED, '"Slabs"', -FINISHES), face_load(IMPOSED, floors, -OFFICES),
             face_load(IMPOSED_ROOF, roof, -ROOF_ACCESS), face_load(SNOWED, covered, -SNOW),
             face_load(WIND_X, '"West facade"', WIND, direction=1),
             face_load(WIND_X, '"East facade"', SUCTION, direction=1),
             face_load(WIND_Y, '"South facade"', WIND, direction=2),
             face_load(WIND_Y, '"North facade"', SUCTION, direction=2),
             face_load(ODD_FLOORS, by("G", *(FLOOR + level for level in range(1, ROOF, 2))), -OFFICES),
             face_load(EVEN_FLOORS, by("G", *(FLOOR + level for level in range(2, ROOF, 2))), -OFFICES),
             face_load(ARCHIVES, by("G", FLOOR + 1), -ARCHIVE),
             face_load(WIND_BACK_X, '"East facade"', -WIND, direction=1),
             face_load(WIND_BACK_X, '"West facade"', -SUCTION, direction=1),
             face_load(WIND_BACK_Y, '"North facade"', -WIND, direction=2),
             face_load(WIND_BACK_Y, '"South facade"', -SUCTION, direction=2)]
    on_roof = {"loadCase": FINISHED, "surface": 1}
    parapet = corners((0, LENGTH), TOWER_Y)
    parapet += parapet[:1]
    return {
        "BeamLoad": [{"loadCase": FINISHED, "loadedEntities": lists_by(f'"Beams" not G{BEAM + ROOF}'),
                      "value": [-PARTITIONS, 0]},
                     {"loadCase": HIT, "loadedEntities": lists_by(str(HIT_COLUMN)), "type": 1, "direction": 1,
                      "pos": [IMPACT_HEIGHT, 0], "value": [IMPACT, 0]}],
        "BeamThermalLoad": [{"loadCase": WARMED, "loadedEntities": lists_by('"Frame"'),
                             "value": [WARMING, 0]}],
        "FaceLoad": faces,
        "FaceThermalLoad": [{"loadCase": WARMED, "loadedEntities": lists_by('"Slabs"'),
                             "value": [WARMING] + 7 * [0]}],
        "GridPointLoad": [on_roof | {"gridCoor": [14, 10.5], "value": -CHILLER}],
        "GridLineLoad": [on_roof | {"line": 3, "polygon": parapet, "value": [-PARAPET, -PARAPET]}],
        "GridAreaLoad": [on_roof | {"area": 3, "polygon": corners(CANOPY_X, CANOPY_Y), "value": -PLANT}],
        "GravityLoad": [{"loadCase": DEAD, "loadedEntities": lists_by("all")}]}


def constraints(number):
    """Floors that keep their shape in plan, and the earth behind two basement walls once it is filled in."""
    rigids = []
    for storey in storeys():
        core = number[point(CORE_X[0], CORE_Y[0], storey.get("elevation", 0))]
        rigids.append({"name": storey["name"], "type": DIAPHRAGM, "primaryNode": core,
                       "constrainedNodes": f"Z{core} not {core}"})
    south, north = (number[point(0, y, LEVELS[0])] for y in BASEMENT_Y)
    earth = {"name": "Earth", "nodes": f"Y{south} Y{north}", "restraint": ["Y"], "stage": "2 3"}
    return {"GenRest": [earth], "Rigid": rigids}


def stages():
    """The basement, the tower on it, and the building in use, when its concrete has crept."""
    built = [("Basement", '"Basement" "Raft"'), ("Tower", "all"), ("Use", "all")]
    table = [{"n": n, "name": name, "stageElem": word} for n, (name, word) in enumerate(built, 1)]
    return {"AnalStage": table, "AnalStageMat": [{"n": 1, "stage": 3, "elemOriginalMat": 1, "elemStageMat": 2}]}


def spectrum():
    def ordinate(period):
        plateau = GROUND_ACCELERATION * SOIL_FACTOR * 2.5
        return plateau * min(1, T_C / period) * min(1, T_D / period)
    start = [0, round(GROUND_ACCELERATION * SOIL_FACTOR, 6)]
    periods = [T_B, T_C, 0.75, 1, 1.5, T_D, 3, 4]
    return [{"n": 1, "name": "EN 1998-1 type 1, ground B", "points": [start] + [[t, round(ordinate(t), 6)]
                                                                               for t in periods]}]


def tasks():
    """Statics of the load cases, modes with the masses of lasting loads, their response, and P-delta."""
    cases = [{"n": title["n"], "name": title["name"], "description": f"L{title['n']}", "task": STATIC}
             for title in load_cases()]
    cases += [{"n": n, "name": f"Earthquake {axis}", "task": RESPONSE, "modeDirection": d}
              for n, axis, d in ((RESPONSE_X, "x", 1), (RESPONSE_Y, "y", 2))]
    lasting = f"L{DEAD} + L{FINISHED} + 0.3L{IMPOSED}"
    task = [{"n": STATIC, "class": "CZssTask", "name": "Statics", "stage": 2,
             "cases": [title["n"] for title in load_cases()]},
            {"n": MODAL, "class": "CZssTask", "name": "Modes", "solution": 2, "stage": 2, "additionalMass": True,
             "massCase": f"L{FINISHED} + 0.3L{IMPOSED}", "modalParameters": {"numModes": 12}},
            {"n": RESPONSE, "class": "CZdSpecTask", "name": "Response", "cases": [RESPONSE_X, RESPONSE_Y],
             "task": MODAL, "source": SHAKEN, "spectrum": [1, 1, 0]},
            {"n": P_DELTA, "class": "CZssTask", "name": "Second order", "solution": 4, "stage": 3, "pDelta": lasting,
             "pDeltaEffects": True}]
    return {"AnalysisTask": task, "AnalysisCase": sorted(cases, key=lambda c: c["n"]), "CombinationCase": combinations()}


MEMBER_FIELDS = ["name", "type", "group", "property", "topology", "offset", "endRelease", "analysisOrder", "children"]


def member_records(members, number, element_number):
    """Members as a file has them, numbered in their order; their elements learn whose they are."""
    records = []
    for n, made in enumerate(members, 1):
        children = made.pop("elements")
        for e in children:
            e["parentMember"] = {"member": n}
        made["topology"] = " ".join(str(number.get(item, item)) for item in made["topology"])
        made["children"] = [[0, element_number[id(e)]] for e in children]
        records.append({"n": n} | {k: made[k] for k in MEMBER_FIELDS if k in made and (k, made[k]) != ("property", 0)})
    return records


def model():
    wall_elements, wall_members = walls()
    canopy_elements, canopy_members = canopy()
    made = {"columns": columns(), "beams": beams(wall_elements), "slabs": slabs(),
            "walls": (wall_elements, wall_members), "raft": raft(), "facade": facade()}
    blocks = {name: elements for name, (elements, _) in made.items()}
    members = [m for _, block in made.values() for m in block] + canopy_members
    blocks["slabs"] += canopy_elements
    disturb(blocks["beams"], 5, turned_beam)
    disturb(blocks["slabs"], 5, turned_face)
    disturb(blocks["slabs"], 7, started_later)
    disturb(blocks["walls"], 5, turned_face)
    points = {p for block in blocks.values() for e in block for p in e["topology"]}
    number = {p: n for n, p in enumerate(sorted(points, key=lambda p: (p[2], p[1], p[0])), 1)}
    base = clean(LEVELS[0] - RAFT_DEPTH)
    nodes = [{"n": n, "position": p} | ({"restraint": ["X", "Y", "Z"]} if p[2] == base else {})
             for p, n in number.items()]
    element_number = {id(e): n for name, block in blocks.items() for n, e in enumerate(block, FIRST[name])}
    member_table = member_records(members, number, element_number)
    elements = []
    for block in blocks.values():
        for e in block:
            fields = {k: v for k, v in e.items() if (k, v) not in (("property", 0), ("longPosition", [0, 1]))}
            elements.append({"n": element_number[id(e)]} | fields | {"topology": [number[p] for p in e["topology"]]})
    panels = [e for e in elements if "type" not in e]
    axis = {"n": 1, "name": "Grid", "origin": [0, TOWER_Y[0], 0]}
    roof = {"n": 1, "name": "Roof", "plane": ROOF, "elements": f"G{FLOOR + ROOF}", "elementType": 2}
    return {"Node": nodes, "Elem": [e for e in elements if "type" in e], "LoadPanel": panels, "Member": member_table,
            "Axis": [axis], "GridPlane": storeys(), "GridSurface": [roof],
            "List": saved_lists(number)} | properties() | {"ResSpectrum": spectrum()} | loads() | constraints(
                number) | {"LoadCaseTitle": load_cases()} | stages() | tasks()


def shortest(whole):
    """A whole number as model files have it: with an exponent where that is shorter."""
    digits = whole[0].rstrip("0")
    mantissa = f"{digits[0]}.{digits[1:]}" if len(digits) > 1 else digits
    short = f"{mantissa}e+{len(whole[0]) - 1:02}"
    return min(whole[0], short, key=len)


def text():
    units = {"length": "m", "force": "N", "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"}
    head = {"format": "tarvex-model", "version": "1.0", "generator": "six-storey example", "units": units}
    entries = [f"  {json.dumps(k)}: {json.dumps(v)}" for k, v in head.items()]
    for name, records in model().items():
        lines = ",\n".join("    " + re.sub(r"\b\d{6,}\b", shortest, json.dumps(r)) for r in records)
        entries.append(f'  "{name}": [\n{lines}\n  ]')
    return "{\n" + ",\n".join(entries) + "\n}\n"


def main(arguments):
    if not arguments:
        sys.stdout.write(text())
        return 0
    if len(arguments) != 2 or arguments[0] != "--check":
        print("usage: generate.py [--check FILE]", file=sys.stderr)
        return 2
    if Path(arguments[1]).read_bytes() != text().encode():
        print(f"{arguments[1]} is not what generate.py makes", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
