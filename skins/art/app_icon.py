# SPDX-License-Identifier: MIT
"""The program's own icon: a record between the handles with which a designer sizes it."""
import math
import os

import cairo

import style
from icons import icon
from style import GREEN, NIGHT, ROSE, TEAL, VIOLET, WHITE, rounded

SIZES = (16, 32, 48, 128)
UNIT = 128


def draw(pen, size):
    """Small sizes leave out what would only blur."""
    pen.scale(size / UNIT, size / UNIT)
    rounded(pen, 4, 4, 120, 120, 27)
    style.fill(pen, style.vertical(4, 124, (0, "1b3f78", 1), (0.55, "0d1e48", 1), (1, NIGHT, 1)), keep=True)
    pen.set_source(style.vertical(4, 124, (0, GREEN, 1), (0.5, TEAL, 1), (1, VIOLET, 1)))
    pen.set_line_width(8 if size < 32 else 4)
    pen.stroke()
    style.disc(pen, 64, 64, 39)
    style.fill(pen, style.radial(64, 64, 39, (0, "2a3140", 1), (0.9, "0a0c12", 1), (1, "46536b", 1)))
    if size >= 32:
        for radius in (24, 29, 34):
            style.disc(pen, 64, 64, radius)
            style.stroke(pen, WHITE, 0.13, 1.2)
        for turn in (-62, 118):
            pen.move_to(64, 64)
            pen.arc(64, 64, 38, math.radians(turn), math.radians(turn + 26))
            pen.close_path()
            style.solid(pen, WHITE, 0.16)
            pen.fill()
    style.disc(pen, 64, 64, 19)
    style.fill(pen, style.vertical(45, 83, (0, GREEN, 1), (0.5, TEAL, 1), (1, ROSE, 1)))
    if size >= 32:
        icon(pen, "song", 51, 51, 25, NIGHT)
    _handles(pen, size)


def _handles(pen, size):
    near, far, half = 25, 103, 9 if size < 48 else 6
    if size >= 48:
        pen.rectangle(near, near, far - near, far - near)
        pen.set_dash([7, 5])
        style.stroke(pen, WHITE, 0.75, 2)
        pen.set_dash([])
    for x in (near, far):
        for y in (near, far):
            pen.rectangle(x - half, y - half, half * 2, half * 2)
            style.solid(pen, WHITE)
            pen.fill_preserve()
            style.stroke(pen, NIGHT, 1, 2)


def make(path):
    for size in SIZES:
        image, pen = style.surface(size, size)
        draw(pen, size)
        style.to_image(image).save(os.path.join(path, "ornavo-%d.png" % size), optimize=True)
    with cairo.SVGSurface(os.path.join(path, "ornavo.svg"), UNIT, UNIT) as svg:
        draw(cairo.Context(svg), UNIT)
