#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the pictures of the editor's own buttons, at one and two screen pixels to the pixel.

    buttons.py FOLDER
"""
import os
import sys

import icons
import style

TILE = 32


def deep(pen, draw_path):
    """Night under the glass, so that it does not pale on a light desktop."""
    draw_path(pen)
    style.solid(pen, style.DEEP, 0.7)
    pen.fill()


def pane(pen, accent, x=2, y=2, width=28, height=28, radius=6):
    """The ground of most pictures: a pane of glass with its shadow."""
    style.drop_shadow(pen, TILE, TILE, lambda p: style.rounded(p, x, y + 1, width, height, radius), radius=1, dy=0,
                      alpha=0.35)
    deep(pen, lambda p: style.rounded(p, x, y, width, height, radius))
    style.glass(pen, x, y, width, height, radius, "selected", accent)


def button(pen):
    style.drop_shadow(pen, TILE, TILE, lambda p: style.rounded(p, 2, 8, 28, 18, 8), radius=1, dy=0, alpha=0.4)
    deep(pen, lambda p: style.rounded(p, 2, 7, 28, 18, 8))
    style.glass(pen, 2, 7, 28, 18, 8, "selected", style.TEAL)
    icons.icon(pen, "play", 10, 10, 12, style.ICE, shade=0.5)


def graphic(pen):
    """Hills and a sun behind glass."""
    pane(pen, style.VIOLET)
    pen.save()
    style.rounded(pen, 5, 6, 22, 20, 3)
    pen.clip()
    pen.rectangle(5, 6, 22, 20)
    style.fill(pen, style.vertical(6, 26, (0, style.SLATE, 1), (1, style.VIOLET, 1)))
    style.disc(pen, 20.5, 12.5, 3)
    style.solid(pen, style.AMBER)
    pen.fill()
    for colour, points in ((style.mix(style.TEAL, style.DEEP, 0.45), ((3, 27), (12, 13), (21, 27))),
                           (style.TEAL, ((12, 27), (20, 18), (29, 27)))):
        pen.new_path()
        for point in points:
            pen.line_to(*point)
        pen.close_path()
        style.solid(pen, colour)
        pen.fill()
    pen.restore()


def volume(pen):
    """A dial with its mark."""
    style.drop_shadow(pen, TILE, TILE, lambda p: style.disc(p, 16, 17, 13.5), radius=1, dy=0, alpha=0.4)
    deep(pen, lambda p: style.disc(p, 16, 16, 14))
    style.glass_disc(pen, 16, 16, 14, "selected", style.GREEN)
    pen.set_line_width(2.4)
    pen.set_line_cap(1)
    pen.new_path()
    pen.arc(16, 16, 9.5, 2.4, 5.4)
    style.solid(pen, style.GREEN)
    pen.stroke()
    pen.move_to(17.6, 14)
    pen.line_to(22, 8.6)
    style.solid(pen, style.WHITE)
    pen.stroke()


def info(pen):
    """Lines of text on a pane."""
    pane(pen, style.AMBER)
    for y, width, colour in ((9, 18, style.WHITE), (15, 14, style.AMBER), (21, 16, style.AMBER)):
        style.rounded(pen, 7, y, width, 2.6, 1.3)
        style.solid(pen, colour, 0.95)
        pen.fill()


def folder(pen, accent=style.AMBER):
    dark = style.mix(accent, style.DEEP, 0.45)
    style.drop_shadow(pen, TILE, TILE, lambda p: style.rounded(p, 2, 7, 28, 20, 3), radius=1, dy=1, alpha=0.4)
    style.rounded(pen, 2, 6, 13, 8, 2.5)
    style.solid(pen, dark)
    pen.fill()
    style.rounded(pen, 2, 9, 28, 17, 2.5)
    style.fill(pen, style.vertical(9, 26, (0, dark, 1), (1, style.mix(dark, style.BLACK, 0.15), 1)))
    style.rounded(pen, 3.5, 12, 28 - 3, 15, 2.5)
    style.fill(pen, style.vertical(12, 27, (0, style.mix(accent, style.WHITE, 0.45), 1), (1, accent, 1)))


def open_skin(pen):
    folder(pen)
    icons.icon(pen, "up", 9, 12, 14, style.mix(style.AMBER, style.DEEP, 0.85), weight=3)


def new_skin(pen):
    """A window of a skin with a plus."""
    pane(pen, style.TEAL, 2, 3, 25, 25, 5)
    style.rounded(pen, 6, 8, 17, 5, 1.5)
    style.solid(pen, style.ICE, 0.85)
    pen.fill()
    style.disc(pen, 24, 24, 7.5)
    style.fill(pen, style.vertical(16, 32, (0, style.mix(style.GREEN, style.WHITE, 0.4), 1),
                                   (1, style.mix(style.GREEN, style.DEEP, 0.3), 1)))
    icons.icon(pen, "plus", 18.5, 18.5, 11, style.NIGHT, weight=4)


def save_skin(pen):
    """The old disk."""
    style.drop_shadow(pen, TILE, TILE, lambda p: style.rounded(p, 3, 4, 26, 26, 3), radius=1, dy=0, alpha=0.4)
    style.rounded(pen, 3, 3, 26, 26, 3.5)
    style.fill(pen, style.vertical(3, 29, (0, style.mix(style.VIOLET, style.WHITE, 0.3), 1),
                                   (1, style.mix(style.VIOLET, style.DEEP, 0.45), 1)))
    for x, y, width, height, radius, colour in ((9, 3, 14, 9, 1, style.ICE), (18, 4.5, 3, 6, 0.8, style.DEEP),
                                                (7, 16, 18, 13, 1.5, style.WHITE)):
        style.rounded(pen, x, y, width, height, radius)
        style.solid(pen, colour)
        pen.fill()
    for y in (19.5, 23.5):
        style.rounded(pen, 10, y, 12, 1.6, 0.8)
        style.solid(pen, style.VIOLET)
        pen.fill()


def simple(name, colour):
    """A plain sign in one dark colour, for the small pictures beside a caption."""
    def draw(pen):
        icons.icon(pen, name, 3, 3, 26, colour, weight=2.6)
    return draw


INK = "2f5f9e"


def lens(pen):
    """A magnifying glass in the manner of the plain signs."""
    style.solid(pen, INK)
    pen.set_line_cap(1)
    pen.new_path()
    pen.arc(13, 13, 8.5, 0, 6.3)
    pen.set_line_width(3.4)
    pen.stroke()
    pen.move_to(20.5, 20.5)
    pen.line_to(27, 27)
    pen.set_line_width(5)
    pen.stroke()


def pencil(pen):
    """Large strokes, for it is shown at twelve pixels."""
    pen.save()
    pen.translate(16, 16)
    pen.rotate(0.785)
    for colour, points in ((style.AMBER, ((-5, -9), (5, -9), (5, 9), (-5, 9))), (INK, ((-5, 10), (5, 10), (0, 19))),
                           (INK, ((-5, -16), (5, -16), (5, -10), (-5, -10)))):
        pen.new_path()
        for point in points:
            pen.line_to(*point)
        pen.close_path()
        style.solid(pen, colour)
        pen.fill()
    pen.restore()


PICTURES = {  # name: (how it is drawn on 32 by 32, its edge in pixels)
    "add_button": (button, 32),
    "add_graphic": (graphic, 32),
    "add_volume": (volume, 32),
    "add_info": (info, 32),
    "open_skin": (open_skin, 32),
    "new_skin": (new_skin, 32),
    "save_skin": (save_skin, 32),
    "preview": (simple("play", INK), 16),
    "reset_view": (simple("maximise", INK), 16),
    "magnifier": (lens, 16),
    "edit_picture": (pencil, 12),
}


def drawn(draw, edge, scale):
    """Drawn large and brought down, for shadows are made of pixels."""
    fine = 4
    image, pen = style.surface(TILE * fine, TILE * fine)
    pen.scale(fine, fine)
    draw(pen)
    return style.to_image(image).resize((edge * scale, edge * scale), style.Image.Resampling.LANCZOS)


def main(folder_name):
    os.makedirs(folder_name, exist_ok=True)
    for name, (draw, edge) in PICTURES.items():
        for scale, suffix in ((1, ""), (2, "@2x")):
            drawn(draw, edge, scale).save(os.path.join(folder_name, name + suffix + ".png"), optimize=True)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
