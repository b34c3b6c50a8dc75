# SPDX-License-Identifier: MIT
"""What the editor's sample of the jukebox's panel shows: its small icons at two sizes, and an album's cover."""
import math
import os

import style
from icons import ICONS, icon, star_points
from style import AMBER, DEEP, GREEN, ICE, NIGHT, ROSE, TEAL, VIOLET, WHITE

SIZE = 14  # pixels; the finer picture has twice as many
UNIT = 24
HALO = 0.55  # of the dark rim that sets a light icon off from a light row


def _path(points):
    def draw(pen):
        pen.move_to(*points[0])
        for point in points[1:]:
            pen.line_to(*point)
        pen.close_path()
    return draw


def _lines(*lines):
    def draw(pen):
        for line in lines:
            pen.move_to(*line[0])
            for point in line[1:]:
                pen.line_to(*point)
    return draw


def _ring(x, y, radius):
    def draw(pen):
        pen.new_sub_path()
        pen.arc(x, y, radius, 0, 2 * math.pi)
    return draw


STAR = _path(list(star_points(12, 12.8, 11.4, 5.0)))
HEART = ICONS["heart"][0][0]
# name: (filled parts, stroked parts), as in icons, for what only the panel has
SHAPES = {
    "star": ([STAR], []),
    "star_outline": ([], [STAR]),
    "heart_outline": ([], [HEART]),
    "glass": ([_path([(3, 4), (21, 4), (12, 14)])], [_lines([(12, 13), (12, 21)], [(7, 21.2), (17, 21.2)], [(14, 8), (19, 1.4)])]),
    "tag": ([_path([(2, 2.5), (12, 2.5), (22, 12.5), (12.5, 22), (2, 12)])], []),
    "folder": ([_path([(2, 5), (9, 5), (11.5, 8), (22, 8), (22, 20), (2, 20)])], []),
    "calendar": ([_path([(3, 4), (21, 4), (21, 9), (3, 9)])],
                 [_lines([(3, 9), (3, 21), (21, 21), (21, 9)], [(8, 1.8), (8, 5)], [(16, 1.8), (16, 5)])]),
    "sparkle": ([_path(list(star_points(12, 12, 11, 3.6, 4)))], []),
    "ring": ([], [_ring(12, 12, 8.5)]),
    "slash": ([], [_lines([(3, 21), (21, 3)])]),
}
SHAPES.update(ICONS)

WHOLE, MAIN, BADGE = (0, 0, 24), (0, 0, 18.5), (11, 10.5, 13.5)  # x, y and size of a part in the square

# key: the parts from the back to the front, each a shape, its colour and its place
ICON_PARTS = {
    "StarFull": [("star", AMBER, WHOLE)],
    "StarHalf": [("star", AMBER, WHOLE, 0.5), ("star_outline", AMBER, WHOLE)],
    "StarEmpty": [("star_outline", AMBER, WHOLE)],
    "Favorite": [("heart", ROSE, WHOLE)],
    "Party": [("glass", TEAL, WHOLE)],
    "Lyrics": [("lyrics", ICE, WHOLE)],
    "NoParty": [("glass", "8798ad", WHOLE), ("slash", "ff6b6b", WHOLE)],
    "NoFavorite": [("heart_outline", "8798ad", WHOLE), ("slash", "ff6b6b", WHOLE)],
    "Rate": [("star_outline", AMBER, MAIN), ("plus", GREEN, BADGE)],
    "AlbumGenre": [("album", ICE, MAIN), ("tag", GREEN, BADGE)],
    "AlbumYear": [("album", ICE, MAIN), ("calendar", AMBER, BADGE)],
    "ArtistGenre": [("artist", ICE, MAIN), ("tag", GREEN, BADGE)],
    "Genre": [("tag", GREEN, WHOLE), ("ring", DEEP, (4.0, 4.5, 4))],
    "LastPlayed": [("clock", ICE, WHOLE)],
    "PLGen": [("playlist", ICE, MAIN), ("sparkle", AMBER, BADGE)],
    "Unplayed": [("sparkle", GREEN, WHOLE)],
    "db_Script": [("script", VIOLET, WHOLE)],
    "Category": [("folder", AMBER, WHOLE)],
    "Year": [("calendar", ICE, WHOLE)],
    "ArtistFavorite": [("artist", ICE, MAIN), ("heart", ROSE, BADGE)],
    "AlbumFavorite": [("album", ICE, MAIN), ("heart", ROSE, BADGE)],
    "AlbumRate": [("album", ICE, MAIN), ("star", AMBER, BADGE)],
    "ArtistRate": [("artist", ICE, MAIN), ("star", AMBER, BADGE)],
    "Play": [("play", GREEN, WHOLE)],
    "Stop": [("stop", ROSE, WHOLE)],
    "Artist": [("artist", ICE, WHOLE)],
    "Album": [("album", ICE, WHOLE)],
    "Note": [("song", ICE, WHOLE)],
}


def _part(pen, shape, colour, place, share, rim):
    """One shape; with a rim it is drawn a little larger and dark."""
    x, y, size = place
    pen.save()
    if share < 1:
        pen.rectangle(x, y, size * share, size)
        pen.clip()
    pen.translate(x, y)
    pen.scale(size / UNIT, size / UNIT)
    pen.set_line_cap(1)
    pen.set_line_join(1)
    style.solid(pen, NIGHT if rim else colour, HALO if rim else 1)
    thin = 2.7 * UNIT / size * 0.8
    fills, strokes = SHAPES[shape]
    for draw in fills:
        pen.new_path()
        draw(pen)
        if rim:
            pen.set_line_width(2.2 * UNIT / size)
            pen.stroke_preserve()
        pen.fill()
    pen.set_line_width(thin + (2.2 * UNIT / size if rim else 0))
    for draw in strokes:
        pen.new_path()
        draw(pen)
        pen.stroke()
    pen.restore()


def draw_icon(key, size):
    image, pen = style.surface(size, size)
    pen.scale(size / UNIT, size / UNIT)
    pen.translate(1.2, 1.2)
    pen.scale((UNIT - 2.4) / UNIT, (UNIT - 2.4) / UNIT)
    for shape, colour, place, *share in ICON_PARTS[key]:
        for rim in (True, False):
            _part(pen, shape, colour, place, share[0] if share else 1, rim)
    return image


# ---- the cover -------------------------------------------------------------------------------------------------------

def _wave(pen, size, level, height, length, phase, colours):
    pen.move_to(0, size)
    for x in range(0, size + 4, 4):
        swell = math.sin(x / length + phase) + 0.45 * math.sin(x / length * 2.3 + phase * 1.7)
        pen.line_to(x, level - height * swell)
    pen.line_to(size, size)
    pen.close_path()
    style.fill(pen, style.vertical(level - height * 1.5, size, (0, colours[0], 0.95), (0.35, colours[1], 0.95), (1, NIGHT, 1)),
               keep=True)
    style.stroke(pen, WHITE, 0.28, 1.2)


def cover(size):
    """The tide under a large moon, a lantern on the reef."""
    image, pen = style.surface(size, size)
    pen.rectangle(0, 0, size, size)
    style.fill(pen, style.vertical(0, size, (0, "070b20", 1), (0.38, "2b2468", 1), (0.58, "a0508f", 1), (0.72, AMBER, 1)))
    for i in range(70):
        x, y = (i * 0.6180339887 % 1) * size, (i * 0.7548776662 % 1) ** 1.5 * size * 0.5
        style.disc(pen, x, y, size * (0.0012 + 0.0016 * (i * 0.5698402910 % 1)))
        style.solid(pen, WHITE, 0.35 + 0.5 * (i * 0.3819660113 % 1))
        pen.fill()
    x, y, radius = size * 0.60, size * 0.37, size * 0.215
    style.disc(pen, x, y, radius * 2.1)
    style.fill(pen, style.radial(x, y, radius * 2.1, (0, "fff3d0", 0.55), (0.48, "ffd9a0", 0.30), (1, AMBER, 0)))
    style.disc(pen, x, y, radius)
    style.fill(pen, style.radial(x - radius * 0.3, y - radius * 0.35, radius * 1.5, (0, "fffdf2", 1), (0.7, "ffe9b8", 1), (1, "f2b877", 1)))
    for dx, dy, part in ((0.32, -0.1, 0.2), (-0.12, 0.34, 0.15), (0.1, -0.46, 0.11), (-0.42, -0.05, 0.12)):
        style.disc(pen, x + dx * radius, y + dy * radius, part * radius)
        style.solid(pen, "d99a62", 0.16)
        pen.fill()
    _wave(pen, size, size * 0.66, size * 0.020, size * 0.11, 0.4, ("6a4a9a", "3a2f7c"))
    _reef(pen, size)
    for i in range(9):
        wide, down = size * (0.17 - i * 0.012), size * (0.685 + i * 0.030)
        style.rounded(pen, x - wide / 2 + size * 0.012 * math.sin(i * 2.1), down, wide, size * 0.008, size * 0.004)
        style.solid(pen, "ffe3a8", 0.50 - i * 0.04)
        pen.fill()
    _wave(pen, size, size * 0.745, size * 0.026, size * 0.10, 2.0, ("2f7fae", "1f4d88"))
    _wave(pen, size, size * 0.84, size * 0.032, size * 0.125, 4.1, (TEAL, "14708c"))
    _wave(pen, size, size * 0.945, size * 0.030, size * 0.09, 0.9, ("1a9aa0", "0d4668"))
    return image


def _reef(pen, size):
    pen.move_to(size * 0.02, size * 0.80)
    for x, y in ((0.05, 0.66), (0.10, 0.63), (0.15, 0.645), (0.21, 0.625), (0.27, 0.66), (0.33, 0.80)):
        pen.line_to(size * x, size * y)
    pen.close_path()
    style.solid(pen, "120f2c")
    pen.fill()
    x, foot, head = size * 0.165, size * 0.64, size * 0.40
    pen.move_to(x - size * 0.030, foot)
    for dx, y in ((-0.017, head), (0.017, head), (0.030, foot)):
        pen.line_to(x + size * dx, y)
    pen.close_path()
    style.fill(pen, style.horizontal(x - size * 0.03, x + size * 0.03, (0, "241b48", 1), (1, "5a3f7c", 1)))
    style.disc(pen, x, head - size * 0.018, size * 0.11)
    style.fill(pen, style.radial(x, head - size * 0.018, size * 0.11, (0, "fff2b0", 0.9), (0.25, AMBER, 0.45), (1, AMBER, 0)))
    pen.rectangle(x - size * 0.014, head - size * 0.036, size * 0.028, size * 0.036)
    style.solid(pen, "fff4c4")
    pen.fill()
    pen.move_to(x - size * 0.024, head - size * 0.036)
    pen.line_to(x, head - size * 0.062)
    pen.line_to(x + size * 0.024, head - size * 0.036)
    pen.close_path()
    style.solid(pen, "120f2c")
    pen.fill()


def make(path):
    os.makedirs(path, exist_ok=True)
    for key in ICON_PARTS:
        for size, name in ((SIZE, key), (2 * SIZE, key + "@2x")):
            style.to_image(draw_icon(key, size)).save(os.path.join(path, name + ".png"), optimize=True)
    style.to_image(cover(480)).convert("RGB").save(os.path.join(path, "album.jpg"), quality=88, optimize=True)
