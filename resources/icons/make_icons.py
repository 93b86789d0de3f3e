#!/usr/bin/env python3
"""Makes the hicolor icons beside this script, and the about window's picture, from pictures/IconApp.svg.

Needs rsvg-convert (librsvg2-bin).
The scalable icon is that picture itself, under its installed name. Where its tiles would fall between pixels, the
icon is drawn anew on the grid of the pixels.
"""

import shutil
import subprocess
from pathlib import Path

NAME = "org.tessarolyne.Tessarolyne"
HERE = Path(__file__).parent
PICTURE = HERE.parent / "pictures" / "IconApp.svg"
SCALED_SIZES = (48, 64, 128, 256, 512)
# Size of the icon: inset of its ground, radius of the ground's corners, size of a tile. A pixel lies between two
# tiles, two between the halves.
GRIDS = {16: (0, 3, 2), 22: (0, 4, 3), 24: (1, 4, 3), 32: (1, 6, 5)}


def on_the_grid(size, inset, radius, tile):
    """The picture for one small size: the tiles, and below them 1100 as full and empty places."""
    margin = (size - 4 * tile - 4) // 2
    columns = [margin + column * (tile + 1) + column // 2 for column in range(4)]
    rows = [margin + row * (tile + 1) for row in range(3)]
    shapes = []
    for column, x in enumerate(columns):
        colour = "#ffe8b8" if column < 2 else "#f0a35e"
        shapes += [f'<rect x="{x}" y="{y}" width="{tile}" height="{tile}" fill="{colour}"/>' for y in rows]
        place = f'x="{x}" y="{size - margin - tile}" width="{tile}" height="{tile}" rx="{tile / 2 if tile > 3 else 0}"'
        shapes.append(f'<rect {place} fill="#ffffff" fill-opacity="{1 if column < 2 else 0.35}"/>')
    side = size - 2 * inset
    return f"""<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}">
<linearGradient id="ground" x1="0" y1="0" x2="0" y2="1">
<stop offset="0" stop-color="#2f6f8f"/><stop offset="1" stop-color="#173b56"/></linearGradient>
<rect x="{inset}" y="{inset}" width="{side}" height="{side}" rx="{radius}" fill="url(#ground)"/>
{"".join(shapes)}</svg>"""


def write(size, svg):
    folder = HERE / "hicolor" / f"{size}x{size}" / "apps"
    folder.mkdir(parents=True, exist_ok=True)
    subprocess.run(
        ["rsvg-convert", f"--width={size}", f"--height={size}", f"--output={folder / NAME}.png"],
        input=svg.encode(),
        check=True,
    )


for grid_size, grid in GRIDS.items():
    write(grid_size, on_the_grid(grid_size, *grid))
for scaled_size in SCALED_SIZES:
    write(scaled_size, PICTURE.read_text(encoding="utf-8"))
shutil.copy(HERE / "hicolor" / "128x128" / "apps" / f"{NAME}.png", PICTURE.with_name("IconApp_128.png"))
