# SPDX-License-Identifier: MIT
"""The pictures of the rich skin. Each function stores what belongs together and returns names where they are needed."""
import math

import style
from icons import icon, star_points
from style import (AMBER, BLACK, DEEP, GREEN, ICE, NIGHT, ROSE, STATES, TEAL, VIOLET, WHITE, glass, glass_disc,
                   rounded, surface)

FIELDS = {"normal": "PicNormal", "over": "PicOver", "down": "PicDown"}
PLATE_TOP, PLATE_BOTTOM = "050b1c", "0e2144"  # the display behind all texts


def three_states(folder, name, draw, store=None):
    """Draws normal, over and down, and gives the fields of an element that has them."""
    store = store or folder.png
    return {FIELDS[state]: store(draw(state), "%s_%s" % (name, state)) for state in STATES}


def _tone(state):
    return {"normal": ICE, "over": WHITE, "down": GREEN}[state]


def round_button(size, symbol, accent=TEAL):
    def draw(state):
        image, pen = surface(size, size)
        middle, radius = size / 2, size / 2 - 5
        style.drop_shadow(pen, size, size, lambda p: style.disc(p, middle, middle + 1, radius), 2.5)
        if state != "normal":
            style.glow(pen, lambda: style.disc(pen, middle, middle, radius), accent, 0.8, 4)
        glass_disc(pen, middle, middle, radius, state, accent)
        part = size * (0.44 if size > 60 else 0.42)
        nudge = 1 if state == "down" else 0
        icon(pen, symbol, middle - part / 2 + (part * 0.03 if symbol == "play" else 0), middle - part / 2 + nudge, part,
             _tone(state), shade=0.6)
        return image
    return draw


def pane_button(width, height, symbol=None, radius=9, accent=TEAL, part=0.56, left=None):
    """A glass button; its symbol stands in the middle or, for captioned ones, at `left`."""
    def draw(state):
        image, pen = surface(width, height)
        style.drop_shadow(pen, width, height, lambda p: rounded(p, 2, 2, width - 4, height - 4, radius), 1.5, alpha=0.5)
        glass(pen, 1, 1, width - 2, height - 3, radius, state, accent)
        if symbol:
            size = min(width, height) * part
            x = (width - size) / 2 if left is None else left
            icon(pen, symbol, x, (height - 1 - size) / 2 + (state == "down"), size, _tone(state), shade=0.6)
        return image
    return draw


# ---- plates and slices -------------------------------------------------------------------------------------------------

def plate_paint(height):
    return style.vertical(0, height, (0, PLATE_TOP, 1), (1, PLATE_BOTTOM, 1))


def plate(width, height, radius=10):
    """The opaque display on which texts stand."""
    image, pen = surface(width, height)
    rounded(pen, 0, 0, width, height, radius)
    style.fill(pen, plate_paint(height))
    rounded(pen, 0.5, 0.5, width - 1, height - 1, radius)
    pen.set_source(style.vertical(0, height, (0, BLACK, 0.9), (0.5, TEAL, 0.25), (1, TEAL, 0.55)))
    pen.set_line_width(1)
    pen.stroke()
    return image


def frame(pen, width, height, radius):
    """A ring of glass around something rectangular."""
    for inset, colour, alpha in ((0.5, TEAL, 0.55), (7.5, TEAL, 0.30)):
        rounded(pen, inset, inset, width - 2 * inset, height - 2 * inset, radius - inset)
        if inset < 1:
            style.solid(pen, NIGHT, 0.60)
            pen.fill_preserve()
        style.stroke(pen, colour, alpha, 1)
    rounded(pen, 4, 4, width - 8, height - 8, radius - 4)
    style.stroke(pen, WHITE, 0.05, 6)


def plate_slice(height, top, part, width):
    """The ground of a text that starts `top` pixels below the edge of a plate."""
    image, pen = surface(width, part)
    pen.translate(0, -top)
    pen.set_source(plate_paint(height))
    pen.paint()
    return image


def slices(folder, layout, name, picture, rect, cuts_x, cuts_y, locks_y=("T", "TB", "B")):
    """Cuts a picture in columns and rows whose corners keep their size, and lays them out as elements."""
    xs, ys = (0, *cuts_x, rect[2]), (0, *cuts_y, rect[3])
    across = ("L", "LR", "R")
    rows = range(len(ys) - 1)
    down = locks_y if len(ys) > 2 else (locks_y,)
    for row in rows:
        for column in range(3):
            x, y, width, height = xs[column], ys[row], xs[column + 1] - xs[column], ys[row + 1] - ys[row]
            part = style.cut(picture, x, y, width, height)
            file = folder.png(part, "%s_%d%d" % (name, row + 1, column + 1))
            layout.picture("%s%d%d" % (name, row + 1, column + 1), (rect[0] + x, rect[1] + y, width, height),
                           across[column] + down[row], PicNormal=file, UseTransparency=style.is_clear(part))


# ---- moving things ------------------------------------------------------------------------------------------------------

def record(size, angle):
    image, pen = surface(size, size)
    middle = size / 2
    style.disc(pen, middle, middle, middle - 1)
    style.fill(pen, style.radial(middle, middle, middle, (0, "20242c", 1), (0.9, "0b0d12", 1), (1, "2c3646", 1)))
    for ring in range(8):
        style.disc(pen, middle, middle, middle * (0.46 + ring * 0.065))
        style.stroke(pen, WHITE, 0.07, 0.7)
    for turn in (0, 180):
        for spread in range(-14, 15, 2):
            a = math.radians(turn - 50 + spread)
            pen.move_to(middle + math.cos(a) * middle * 0.42, middle + math.sin(a) * middle * 0.42)
            pen.line_to(middle + math.cos(a) * middle * 0.95, middle + math.sin(a) * middle * 0.95)
            style.stroke(pen, ICE, 0.16 * (1 - abs(spread) / 15), 3)
    pen.translate(middle, middle)
    pen.rotate(math.radians(angle))
    style.disc(pen, 0, 0, middle * 0.38)
    style.fill(pen, style.vertical(-middle * 0.38, middle * 0.38, (0, GREEN, 1), (0.5, TEAL, 1), (1, VIOLET, 1)))
    pen.move_to(0, 0)
    pen.arc(0, 0, middle * 0.34, math.radians(-70), math.radians(-20))
    pen.close_path()
    style.solid(pen, WHITE, 0.55)
    pen.fill()
    icon(pen, "song", -middle * 0.30, 0, middle * 0.26, NIGHT)
    style.disc(pen, 0, 0, middle * 0.06)
    style.solid(pen, NIGHT)
    pen.fill()
    return image


def equaliser(width, height, moment, bars=9):
    """One frame of sixteen; the dance returns to its start."""
    image, pen = surface(width, height)
    step = width / bars
    for bar in range(bars):
        phase = 2 * math.pi * moment / 16
        level = 0.5 + 0.27 * math.sin(phase * (1 + bar % 2) + bar * 1.9) + 0.2 * math.sin(phase * 3 + bar * 2.7)
        lit = max(1, round(level * 10))
        for block in range(10):
            y = height - (block + 1) * height / 10
            tone = GREEN if block < 4 else TEAL if block < 7 else ROSE
            pen.rectangle(round(bar * step) + 1, round(y) + 1, round(step) - 2, round(height / 10) - 2)
            style.solid(pen, tone if block < lit else style.mix(PLATE_BOTTOM, tone, 0.13))
            pen.fill()
    return image


# ---- dial, volume -------------------------------------------------------------------------------------------------------

def dial(size):
    image, pen = surface(size, size)
    middle, radius = size / 2, size / 2 - 6
    style.drop_shadow(pen, size, size, lambda p: style.disc(p, middle, middle, radius - 1), 3, alpha=0.8)
    style.disc(pen, middle, middle, radius)
    style.fill(pen, style.radial(middle, middle, radius, (0, "31466f", 1), (0.72, "1a2a50", 1), (0.78, "0c1734", 1),
                                 (0.9, "3a527f", 1), (1, "0b1430", 1)))
    for i in range(36):
        a = math.radians(i * 10)
        for reach, alpha in ((0.97, 0.25), (0.86, 0.0)):
            pen.move_to(middle + math.cos(a) * radius * 0.84, middle + math.sin(a) * radius * 0.84)
            pen.line_to(middle + math.cos(a) * radius * reach, middle + math.sin(a) * radius * reach)
            style.stroke(pen, BLACK, alpha, 2)
    style.disc(pen, middle, middle, radius)
    style.stroke(pen, TEAL, 0.7, 1.2)
    for wide, alpha in ((8, 0.2), (5.5, 0.4), (3, 1)):
        pen.set_line_cap(1)
        pen.move_to(middle, middle - radius * 0.68)
        pen.line_to(middle, middle - radius * 0.40)
        style.stroke(pen, GREEN, alpha, wide)
    return image


def dial_ring(size):
    image, pen = surface(size, size)
    middle = size / 2
    for i in range(31):
        part = i / 30
        a = math.radians(-90 - 152 + 304 * part)
        tone = style.mix(GREEN, TEAL, part * 2) if part < 0.5 else style.mix(TEAL, ROSE, part * 2 - 1)
        pen.move_to(middle + math.cos(a) * (middle - 5), middle + math.sin(a) * (middle - 5))
        pen.line_to(middle + math.cos(a) * (middle - 1), middle + math.sin(a) * (middle - 1))
        style.stroke(pen, tone, 0.95, 1.8)
    return image


def volume_bar(width, height, lit):
    image, pen = surface(width, height)
    pen.set_source(plate_paint(height))
    pen.paint()
    bars = width // 6
    for i in range(bars):
        tall = 5 + (height - 11) * (i + 1) / bars
        tone = style.mix(GREEN, TEAL, i / bars * 2) if i < bars / 2 else style.mix(TEAL, VIOLET, i / bars * 2 - 1)
        rounded(pen, 2 + i * 6, height - 3 - tall, 4, tall, 1)
        style.solid(pen, tone if lit else style.mix(PLATE_BOTTOM, tone, 0.18))
        pen.fill()
    return image


def volume_column(width, lit, height=1000, colourful=430):
    """It hangs from the top and is cut off below, so the colours lie in its upper part."""
    image, pen = surface(width, height)
    pen.set_source(plate_paint(colourful))
    pen.paint()
    for y in range(0, height, 8):
        part = max(0, 1 - y / colourful)
        tone = style.mix(GREEN, TEAL, part * 2) if part < 0.5 else style.mix(TEAL, ROSE, part * 2 - 1)
        rounded(pen, 4, y + 1, width - 8, 6, 1.5)
        style.solid(pen, tone if lit else style.mix(PLATE_BOTTOM, tone, 0.18))
        pen.fill()
    return image


def album(size, symbol="album"):
    """What stands where a record has no picture of its own."""
    image, pen = surface(size, size)
    pen.rectangle(0, 0, size, size)
    style.fill(pen, style.vertical(0, size, (0, "143a5c", 1), (0.5, "1b2a66", 1), (1, "4a2a7a", 1)))
    for i in range(5):
        pen.move_to(0, size * (0.25 + i * 0.1))
        pen.curve_to(size * 0.3, size * (0.05 + i * 0.12), size * 0.6, size * (0.6 + i * 0.06), size, size * (0.2 + i * 0.1))
        style.stroke(pen, (GREEN, TEAL, GREEN, VIOLET, ROSE)[i], 0.35, size * 0.05)
    icon(pen, symbol, size * 0.27, size * 0.22, size * 0.46, WHITE, 0.9, shade=0.5)
    pen.rectangle(0.5, 0.5, size - 1, size - 1)
    style.stroke(pen, WHITE, 0.35, 1)
    return image


# ---- marks --------------------------------------------------------------------------------------------------------------

def _letter_paths(pen, unit):
    """The five letters of the name as thin strokes, each about 0.8 units wide."""
    def strokes(x, *lines):
        for line in lines:
            pen.move_to(x + line[0][0] * unit, line[0][1] * unit)
            for px, py in line[1:]:
                pen.line_to(x + px * unit, py * unit)
    gap, x = unit * 1.08, 0
    strokes(x, ((0, 1), (0.42, 0), (0.84, 1)))
    x += gap + unit * 0.1
    pen.move_to(x, 0)
    pen.line_to(x, unit * 0.62)
    pen.arc_negative(x + unit * 0.36, unit * 0.62, unit * 0.36, math.pi, 0)
    pen.line_to(x + unit * 0.72, 0)
    x += gap
    for letter in "ROR":
        if letter == "R":
            strokes(x, ((0, 1), (0, 0), (0.36, 0)))
            pen.arc(x + unit * 0.36, unit * 0.28, unit * 0.28, -math.pi / 2, math.pi / 2)
            strokes(x, ((0.36, 0.56), (0, 0.56)), ((0.34, 0.56), (0.68, 1)))
            x += gap * 0.94
        else:
            pen.new_sub_path()
            pen.arc(x + unit * 0.5, unit * 0.5, unit * 0.5, 0, 2 * math.pi)
            x += gap * 1.2
    strokes(x, ((0, 1), (0.42, 0), (0.84, 1)))
    return x + unit * 0.84


def wordmark(width, height):
    image, pen = surface(width, height)
    unit = min(height - 14, (width - 16) * 7 / 45)

    def path():
        pen.save()
        pen.translate(8, (height - unit) / 2)
        pen.new_path()
        _letter_paths(pen, unit)
        pen.restore()

    pen.set_line_cap(1)
    pen.set_line_join(1)
    style.glow(pen, path, TEAL, 0.55, 5)
    path()
    pen.set_source(style.horizontal(0, width, (0, GREEN, 1), (0.5, ICE, 1), (1, "c9b8ff", 1)))
    pen.set_line_width(2.2)
    pen.stroke()
    return image


def sticker(size):
    """A round seal with a wavy edge and a note."""
    image, pen = surface(size, size)
    middle = size / 2
    pen.new_path()
    for point in star_points(middle, middle, middle - 3, middle - 6, 16):
        pen.line_to(*point)
    pen.close_path()
    style.fill(pen, style.vertical(0, size, (0, AMBER, 1), (1, ROSE, 1)), keep=True)
    style.stroke(pen, WHITE, 0.6, 1)
    icon(pen, "song", size * 0.24, size * 0.22, size * 0.5, WHITE, shade=0.4)
    return image


def grip(size):
    image, pen = surface(size, size)
    for i in range(3):
        reach = size * (0.30 + 0.24 * i)
        pen.move_to(size - 3, size - reach)
        pen.line_to(size - reach, size - 3)
        pen.set_line_cap(1)
        style.stroke(pen, BLACK, 0.7, 3.4, keep=True)
        style.stroke(pen, TEAL, 0.95, 1.6)
    return image


def diamond(size):
    """A pane that is drawn upright and stands on its corner when it is turned by 45 degrees."""
    def draw(state):
        image, pen = surface(size, size)
        side = size * 0.66
        start = (size - side) / 2
        glass(pen, start, start, side, side, 7, state, VIOLET)
        pen.translate(size / 2, size / 2)
        pen.rotate(math.radians(-45))
        icon(pen, "magic", -size * 0.17, -size * 0.17, size * 0.34, _tone(state), shade=0.6)
        return image
    return draw


def lamp(size, colour):
    image, pen = surface(size, size)
    style.disc(pen, size / 2, size / 2, size / 2 - 1)
    style.fill(pen, style.radial(size / 2, size / 2, size / 2, (0, WHITE, 1), (0.4, colour, 1),
                                 (1, style.mix(colour, BLACK, 0.5), 1)))
    return image


def search_field(width, height):
    image, pen = surface(width, height)
    rounded(pen, 0.5, 0.5, width - 1, height - 1, height / 2)
    style.fill(pen, style.vertical(0, height, (0, PLATE_TOP, 0.95), (1, PLATE_BOTTOM, 0.95)), keep=True)
    style.stroke(pen, TEAL, 0.55, 1)
    icon(pen, "search", 10, height / 2 - 8, 16, TEAL)
    return image


def track(width, height):
    image, pen = surface(width, height)
    rounded(pen, width / 2 - 7, 1, 14, height - 2, 7)
    style.fill(pen, style.horizontal(width / 2 - 7, width / 2 + 7, (0, PLATE_TOP, 0.95), (1, PLATE_BOTTOM, 0.8)), keep=True)
    style.stroke(pen, TEAL, 0.35, 1)
    return image


def thumb(width, height):
    def draw(state):
        image, pen = surface(width, height)
        glass(pen, 4, 1, width - 8, height - 2, (width - 8) / 2, "over" if state == "normal" else state, TEAL)
        for i in (-1, 0, 1):
            pen.rectangle(width / 2 - 6, height / 2 + i * 5 - 1, 12, 2)
            style.solid(pen, ICE, 0.8)
            pen.fill()
        return image
    return draw


# ---- what the jukebox draws by itself ---------------------------------------------------------------------------------

ROWS = (  # preference, look, accent
    ("SO_Picture", "quiet", TEAL), ("SO_PictureSel", "selected", TEAL), ("SO_PictureOver", "over", TEAL),
    ("SO_PictureDown", "down", GREEN), ("SO_PictureArtistHL", "selected", VIOLET), ("SO_PicturePlayed", "quiet", ROSE),
)
KEYS = (("KBN", 44, DEEP), ("KBU", 56, "2a1a55"), ("KBS", 132, DEEP), ("KBB", 56, "4a1738"), ("KBE", 80, "0b4a3c"))
PREFERENCE_STATES = (("", "normal"), ("Over", "over"), ("Down", "down"))


def preference_pictures(folder):
    """All pictures that preferences name, by preference."""
    found = {}
    for key, look, accent in ROWS:
        image, pen = surface(520, 42)
        glass(pen, 0, 0, 520, 42, 7, look, accent)
        found[key] = folder.png(image, "row_" + (key[len("SO_Picture"):].lower() or "normal"))
    for prefix, width, ground in KEYS:
        for suffix, state in PREFERENCE_STATES:
            image, pen = surface(width, 32)
            glass(pen, 0, 0, width, 32, 7, state, TEAL, ground)
            found["%s_Picture%s" % (prefix, suffix)] = folder.png(image, "key_%s_%s" % (prefix.lower(), state))
    for suffix, state in PREFERENCE_STATES:
        for prefix, draw in (("IN", pane_button(42, 42, None)), ("AA", pane_button(40, 40, None, 8, VIOLET))):
            found["%s_Picture%s" % (prefix, suffix)] = folder.png(draw(state), "%s_%s" % (prefix.lower(), state))
    for suffix, look in (*PREFERENCE_STATES, ("On", "selected")):
        image, pen = surface(40, 20)
        glass(pen, 0, 0, 40, 20, 4, "quiet" if look == "normal" else look, TEAL)
        found["SL_Picture" + suffix] = folder.png(image, "letter_" + look)
    found["SP_PicNoAlbum"] = folder.jpg(album(240), "no_album")
    found["SP_PicNoArtist"] = folder.jpg(album(240, "artist"), "no_artist")
    return found
