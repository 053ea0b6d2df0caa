"""Makes designs as the program saves them, from seeded random numbers."""

import random

HEAD = '<?xml version="1.0" encoding="UTF-8" ?>\n<vessel>\n <units id="9001" />\n <shapes view="01" >\n'
TAIL = """ </shapes>
 <gps x="10.000" y="0.000" z="8.300" />
 <txd x="-10.000" y="0.000" z="-1.750" />
 <piv x="0.000" y="10.000" z="0.000" />
 <anchors>
  <anchor>
   <id>1</id>
   <name>Panam&#xE1; lead &amp; roller</name>
   <attachmentX>11.250</attachmentX>
   <attachmentY>-2.000</attachmentY>
  </anchor>
 </anchors>
</vessel>
"""


def polyline(numbers):
    """A polyline of 20 vertices that wanders about."""
    x, y, z = (numbers.uniform(-reach, reach) for reach in (500.0, 500.0, 10.0))
    lines = ["  <polyline>\n"]
    for _ in range(20):
        x += numbers.uniform(-2.0, 2.0)
        y += numbers.uniform(-2.0, 2.0)
        lines.append(f'   <vertex x="{x:.3f}" y="{y:.3f}" z="{z:.3f}" />\n')
    return "".join([*lines, "  </polyline>\n"])


def write(path, size):
    """A design of so many bytes."""
    numbers = random.Random(9)
    with path.open("w", encoding="ascii", newline="\n") as stream:
        written = stream.write(HEAD)
        while written < size:
            written += stream.write(polyline(numbers))
        stream.write(TAIL)
