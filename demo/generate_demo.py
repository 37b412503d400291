#!/usr/bin/env python3
"""Writes the bundled demo data for the Vistrel station.

    python3 demo/generate_demo.py [OUTPUT_DIR]

OUTPUT_DIR defaults to the folder this file lives in. Two files are written:

    Vistrel/Total_Inventory.txt                       the stock of a mission
    Application Data/Vistrel/Vistrel-Options.txt      the station's options

The random seed is fixed, so every run writes the same bytes.
"""

import os
import random
import sys

SEED = 20240611
PAIR_COUNT = 400
GAP_COUNT = 9

COMMENTS = [
    "Tortoise frame",
    "Black plastic",
    "Brown plastic",
    "Clear frame",
    "Red frame",
    "Blue frame",
    "Purple frame",
    "Rimless",
    "Half rim",
    "Wire frame",
    "Scratch L",
    "Scratch R",
    "Small chip R",
    "Loose hinge",
    "Bent temple L",
    "Metal, gold",
    "Metal, silver",
    "Metal, gunmetal",
    "Plastic, two-tone",
    "Large frame, heavy",
    "Round lenses",
    "Cat-eye, pink",
    "Photochromic",
    "Aviator style",
    "Sport frame",
    "Flexible hinges",
]

READING_POWERS = [1.00 + 0.25 * i for i in range(11)]  # 1.00 .. 3.50


def quarter(value):
    """Rounds to the nearest quarter dioptre."""
    return round(value * 4.0) / 4.0


def clamp(value, low, high):
    return max(low, min(high, value))


def fmt(value, rng=None):
    """A plain decimal. Most values carry two decimals ("-1.25", "0.00");
    now and then one that is exact with fewer decimals is written short
    ("2.5", "-1"), as hand-edited files sometimes are."""
    text = "%.2f" % value
    if text == "-0.00":
        text = "0.00"
    if rng is not None and value != 0 and rng.random() < 0.04:
        if text.endswith("0"):
            text = text[:-1]
            if text.endswith(".0"):
                text = text[:-2]
    return text


def quoted(text):
    if '"' in text:
        raise ValueError("a quoted field cannot hold a double quote: %r" % text)
    return '"%s"' % text


def draw_sphere(rng):
    """Sphere of the first eye of a pair, in quarter dioptres."""
    kind = rng.random()
    if kind < 0.55:      # mild and moderate myopia
        value = rng.gauss(-1.75, 0.9)
        return clamp(quarter(value), -3.75, -0.25)
    if kind < 0.65:      # strong myopia
        return quarter(rng.uniform(-6.0, -3.75)) if rng.random() < 0.85 \
            else quarter(rng.uniform(-9.0, -6.25))
    if kind < 0.90:      # hyperopia
        return clamp(quarter(rng.gauss(1.5, 0.8)), 0.25, 3.5)
    if kind < 0.95:      # strong hyperopia
        return quarter(rng.uniform(3.75, 6.0))
    return 0.0           # plano with cylinder only, or sunglasses


def draw_cylinder(rng):
    kind = rng.random()
    if kind < 0.35:
        return 0.0
    if kind < 0.95:
        return -quarter(clamp(rng.expovariate(1.6), 0.25, 2.0))
    return -quarter(rng.uniform(2.25, 3.0))


def draw_axis(rng):
    """Mostly with or against the rule, some oblique."""
    kind = rng.random()
    if kind < 0.5:
        axis = int(round(rng.gauss(180, 12)))
    elif kind < 0.8:
        axis = int(round(rng.gauss(90, 12)))
    else:
        axis = rng.randint(1, 179)
    axis %= 180
    return 180 if axis == 0 else axis


def mirror_axis(axis, rng):
    """The fellow eye's axis: roughly the mirror image."""
    other = 180 - axis + int(round(rng.gauss(0, 6)))
    other %= 180
    return 180 if other == 0 else other


def draw_pd(rng):
    kind = rng.random()
    if kind < 0.45:
        return rng.choice(["S", "M", "M", "M", "L", "L"])
    if kind < 0.9:
        return str(int(clamp(round(rng.gauss(63, 3)), 54, 72)))
    return "M"


def make_pair(rng):
    """One pair of glasses as a dict of its values."""
    pair = {}
    sun = rng.random() < 0.07
    reader = (not sun) and rng.random() < 0.06
    multifocal = (not sun) and (not reader) and rng.random() < 0.17
    progressive = multifocal and rng.random() < 0.45
    bifocal = multifocal and not progressive

    if reader:
        # Ready-made readers: the same plus sphere both sides, no cylinder.
        power = quarter(rng.uniform(1.0, 3.5))
        eyes = [(power, 0.0, 0), (power, 0.0, 0)]
    else:
        left_sphere = draw_sphere(rng)
        if sun and rng.random() < 0.6:
            left_sphere = 0.0
        right_sphere = quarter(left_sphere + rng.gauss(0, 0.3))
        if rng.random() < 0.03:  # anisometropia
            right_sphere = quarter(left_sphere + rng.choice([-1, 1]) * rng.uniform(1.0, 2.5))
        left_cyl = draw_cylinder(rng)
        if left_cyl == 0.0:
            right_cyl = 0.0 if rng.random() < 0.75 else -0.25
        else:
            right_cyl = clamp(quarter(left_cyl + rng.gauss(0, 0.25)), -3.0, 0.0)
        if sun and left_sphere == 0.0:
            left_cyl = right_cyl = 0.0
            right_sphere = 0.0
        left_axis = draw_axis(rng) if left_cyl != 0.0 else 0
        if right_cyl == 0.0:
            right_axis = 0
        elif left_axis:
            right_axis = mirror_axis(left_axis, rng)
        else:
            right_axis = draw_axis(rng)
        eyes = [(left_sphere, left_cyl, left_axis), (right_sphere, right_cyl, right_axis)]

    add = 0.0
    if multifocal:
        add = clamp(quarter(rng.gauss(2.0, 0.45)), 1.0, 3.0)

    gender = rng.choices([0, 1, 2, 3], weights=[45, 25, 22, 8])[0]
    if gender == 3 and (reader or multifocal):
        gender = 0
    if gender == 3:
        # Children's glasses: smaller powers, no adds, small frames.
        eyes = [(clamp(s, -4.0, 4.0), c, a) for (s, c, a) in eyes]
        add = 0.0
        progressive = bifocal = False
    rejections = 0
    if rng.random() < 0.05:
        rejections = rng.choice([1, 1, 1, 2, 2, 3])

    pair["left"] = (eyes[0][0], eyes[0][1], eyes[0][2], add)
    pair["right"] = (eyes[1][0], eyes[1][1], eyes[1][2], add)
    pair["sun"] = int(sun)
    pair["reading"] = int(reader)
    pair["progressive"] = int(progressive)
    pair["bifocal"] = int(bifocal)
    pair["pd"] = "S" if gender == 3 and rng.random() < 0.7 else draw_pd(rng)
    pair["gender"] = gender + 10 * rejections
    comment = ""
    if sun:
        comment = rng.choice(["Sunglasses, dark", "Sunglasses", "Sun clip-on"])
    elif rng.random() < 0.7:
        comment = rng.choice(COMMENTS)
    pair["comment"] = comment
    return pair


def eyeglass_record(bag, pair, rng):
    ls, lc, la, ladd = pair["left"]
    rs, rc, ra, radd = pair["right"]
    fields = [
        str(bag),
        fmt(ls, rng), fmt(lc, rng), str(la), fmt(ladd, rng),
        fmt(rs, rng), fmt(rc, rng), str(ra), fmt(radd, rng),
        str(pair["sun"]), str(pair["reading"]), "0",
        str(pair["progressive"]), str(pair["bifocal"]),
        pair["pd"],
        str(pair["gender"]),
        # Text fields are quoted, the two empty extras too: a quoted empty
        # field cannot be mistaken for the line end that closes the record.
        quoted(pair["comment"]), quoted(""), quoted(""),
    ]
    assert len(fields) == 19
    return ",".join(fields)


def bag_numbers(rng):
    last = PAIR_COUNT + GAP_COUNT
    gaps = set(rng.sample(range(2, last), GAP_COUNT))
    return [n for n in range(1, last + 1) if n not in gaps]


def stock_records(rng):
    lines = []
    for power in READING_POWERS:
        lines.append("READING,%.2f,%d" % (power, rng.randint(2, 24)))
    lenses = [(-1.00, 0.00), (-2.00, -0.50), (-3.00, 0.00), (1.50, 0.00),
              (2.50, -0.75), (-4.50, -1.25)]
    for sphere, cylinder in lenses:
        lines.append("LENS,%s,%s,%d" % (fmt(sphere), fmt(cylinder), rng.randint(1, 8)))
    child_lenses = [(-0.75, 0.00), (-1.50, -0.25), (1.00, 0.00), (2.00, -0.50)]
    for sphere, cylinder in child_lenses:
        lines.append("LENSCHILD,%s,%s,%d" % (fmt(sphere), fmt(cylinder), rng.randint(1, 6)))
    for size in (65, 67, 70):
        lines.append("FRAMES,%d,%d" % (size, rng.randint(3, 15)))
    for size in (57, 61, 65):
        lines.append("FRAMESCHILD,%d,%d" % (size, rng.randint(2, 10)))
    return lines


def inventory_text():
    rng = random.Random(SEED)
    lines = [eyeglass_record(bag, make_pair(rng), rng) for bag in bag_numbers(rng)]
    lines += stock_records(rng)
    return "".join(line + "\r\n" for line in lines)


def options_fields():
    fields = [
        "DEFAULT",       # lens shape
        "BOTH-EQUALLY",  # eye priority
        "NONE",          # dominant eye
        "YES",           # spherical equivalent
        "NO",            # diagnostic
        "NO",            # refresh upon add/remove
        "NO",            # autorefractor capture
        "NONE",          # autorefractor model
        " 1",            # serial port number
        "YES",           # no focometer
    ]
    add_by_age = [(0, 37, "0.00"), (38, 43, "1.00"), (44, 47, "1.50"), (48, 55, "2.00"),
                  (56, 99, "2.50"), (100, 101, "2.50"), (102, 103, "2.50"),
                  (104, 105, "2.50")]
    for low, high, add in add_by_age:
        fields += [str(low), str(high), add]
    fields += [
        "YES",           # print prescription
        "YES",           # automatic search
        "NO",            # confidence level
        "NO",            # automatic search when read
        "YES",           # print glasses prescriptions
        "NO",            # Varn rules
        "35",
        "NO",
        "NO",
        "YES",
        "NO",            # network journal
        "C:\\NetworkJournal",
        "1",
        "Default",       # printer
        "1",             # show levels
        "32000",
    ]
    assert len(fields) == 50
    return fields


def options_text():
    return ",".join(options_fields()) + "\r\n"


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="ascii", newline="") as handle:
        handle.write(text)


def main(argv):
    out = argv[1] if len(argv) > 1 else os.path.dirname(os.path.abspath(__file__))
    write(os.path.join(out, "Vistrel", "Total_Inventory.txt"), inventory_text())
    write(os.path.join(out, "Application Data", "Vistrel", "Vistrel-Options.txt"),
          options_text())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
