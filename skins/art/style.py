# SPDX-License-Identifier: MIT
"""The one look of all drawn pictures: palette, surfaces, glass, glows, shadows, and how they are stored.

Sizes are pixels; colours are "rrggbb" with an alpha of 0 to 1 beside them.
"""
import math
import os

import cairo
from PIL import Image, ImageFilter

KEY_COLOUR = (255, 0, 255)  # what a picture without alpha shows where nothing is

NIGHT, DEEP, SLATE = "060a18", "0b1534", "1a2a52"
TEAL, GREEN, VIOLET, ROSE, AMBER = "27e0c0", "78ffb4", "8d70ff", "f06ad0", "ffc46b"
ICE, MIST, WHITE, BLACK = "e2f6ff", "8fb0d4", "ffffff", "000000"

STATES = ("normal", "over", "down")


def rgb(colour):
    return tuple(int(colour[i:i + 2], 16) / 255 for i in (0, 2, 4))


def mix(first, second, part):
    """`part` of the second colour, the rest of the first."""
    pairs = zip(rgb(first), rgb(second))
    return "".join("%02x" % round(255 * (a + (b - a) * part)) for a, b in pairs)


def skin_colour(colour):
    """The number that a skin stores for a colour: blue, green, red from the top."""
    return int(colour[4:6] + colour[2:4] + colour[0:2], 16)


def surface(width, height):
    """A transparent picture and the pen that draws on it."""
    image = cairo.ImageSurface(cairo.FORMAT_ARGB32, round(width), round(height))
    return image, cairo.Context(image)


# ---- paths -----------------------------------------------------------------------------------------------------------

def rounded(pen, x, y, width, height, radius):
    radius = max(0, min(radius, width / 2, height / 2))
    pen.new_path()
    corners = ((x + width - radius, y + radius, -90), (x + width - radius, y + height - radius, 0),
               (x + radius, y + height - radius, 90), (x + radius, y + radius, 180))
    for cx, cy, start in corners:
        pen.arc(cx, cy, radius, math.radians(start), math.radians(start + 90))
    pen.close_path()


def disc(pen, x, y, radius):
    pen.new_path()
    pen.arc(x, y, radius, 0, 2 * math.pi)


# ---- paint -----------------------------------------------------------------------------------------------------------

def solid(pen, colour, alpha=1.0):
    pen.set_source_rgba(*rgb(colour), alpha)


def stops(gradient, *entries):
    for offset, colour, alpha in entries:
        gradient.add_color_stop_rgba(offset, *rgb(colour), alpha)
    return gradient


def vertical(y0, y1, *entries):
    return stops(cairo.LinearGradient(0, y0, 0, y1), *entries)


def horizontal(x0, x1, *entries):
    return stops(cairo.LinearGradient(x0, 0, x1, 0), *entries)


def radial(x, y, radius, *entries, inner=0):
    return stops(cairo.RadialGradient(x, y, inner, x, y, radius), *entries)


def fill(pen, source, keep=False):
    pen.set_source(source)
    (pen.fill_preserve if keep else pen.fill)()


def stroke(pen, colour, alpha, width, keep=False):
    solid(pen, colour, alpha)
    pen.set_line_width(width)
    (pen.stroke_preserve if keep else pen.stroke)()


def glow(pen, draw_path, colour, strength, reach):
    """Light around a path, brightest at it; the path is drawn anew for each ring."""
    rings = 6
    for ring in range(rings, 0, -1):
        draw_path()
        stroke(pen, colour, strength / rings * (1 - (ring - 1) / rings), reach * 2 * ring / rings)


# ---- between the two libraries ---------------------------------------------------------------------------------------

def to_image(picture):
    picture.flush()
    size = (picture.get_width(), picture.get_height())
    raw = bytes(picture.get_data())
    image = Image.frombuffer("RGBa", size, raw, "raw", "BGRa", picture.get_stride(), 1)
    return image.convert("RGBA")


def is_clear(picture):
    """Whether one can see through a part of it."""
    return to_image(picture).getextrema()[3][0] < 255


def to_surface(image):
    data = bytearray(image.convert("RGBA").convert("RGBa").tobytes("raw", "BGRa"))
    return cairo.ImageSurface.create_for_data(data, cairo.FORMAT_ARGB32, *image.size)


def blurred(picture, radius):
    return to_surface(to_image(picture).filter(ImageFilter.GaussianBlur(radius)))


def paste(pen, picture, x=0, y=0, alpha=1.0):
    pen.set_source_surface(picture, x, y)
    pen.paint_with_alpha(alpha)


def cut(picture, x, y, width, height):
    image, pen = surface(width, height)
    paste(pen, picture, -x, -y)
    return image


def drop_shadow(pen, width, height, draw_path, radius=3, dx=0, dy=2, alpha=0.55):
    shade, inner = surface(width, height)
    draw_path(inner)
    solid(inner, BLACK)
    inner.fill()
    paste(pen, blurred(shade, radius), dx, dy, alpha)


def flatten(picture, ground):
    """Without alpha, over one colour."""
    image, pen = surface(picture.get_width(), picture.get_height())
    solid(pen, ground)
    pen.paint()
    paste(pen, picture)
    return image


def keyed(picture, ground):
    """Without alpha: what is nearly nothing becomes the key colour, the rest stands over `ground`."""
    alpha = to_image(picture).getchannel("A").point(lambda value: 255 if value >= 128 else 0)
    ground_image = to_image(flatten(picture, ground)).convert("RGB")
    out = Image.new("RGB", alpha.size, KEY_COLOUR)
    out.paste(ground_image, (0, 0), alpha)
    return out


class Folder:
    """Where a skin's pictures go. Each call stores one picture and returns its bare name."""

    def __init__(self, path):
        self.path = path
        os.makedirs(path, exist_ok=True)

    def _save(self, image, name, **options):
        image.save(os.path.join(self.path, name), **options)
        return name

    def png(self, picture, name):
        return self._save(to_image(picture), name + ".png", optimize=True)

    def jpg(self, picture, name, quality=88):
        return self._save(to_image(picture).convert("RGB"), name + ".jpg", quality=quality, optimize=True)

    def bmp(self, picture, name, ground):
        return self._save(keyed(picture, ground), name + ".bmp")

    def gif(self, picture, name, ground):
        image = keyed(picture, ground)
        return self._save(_with_palette(image, image), name + ".gif")

    def animated_gif(self, frames, name, ground, milliseconds):
        images = [keyed(frame, ground) for frame in frames]
        strip = Image.new("RGB", (images[0].width, images[0].height * len(images)))
        for index, image in enumerate(images):
            strip.paste(image, (0, index * image.height))
        first, *others = [_with_palette(image, strip) for image in images]
        return self._save(first, name + ".gif", save_all=True, append_images=others, duration=milliseconds,
                          loop=0, optimize=False, disposal=1)


def _with_palette(image, sample):
    """At most 128 colours, chosen from the sample, the key colour exact."""
    colours = sample.quantize(127, method=Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    table = colours.getpalette()[:127 * 3] + list(KEY_COLOUR)
    table += table[-3:] * (256 - len(table) // 3)
    holder = Image.new("P", (1, 1))
    holder.putpalette(table)
    result = image.quantize(palette=holder, dither=Image.Dither.NONE)
    mask = Image.eval(_is_key(image), lambda value: 255 if value else 0)
    result.paste(127, (0, 0), mask)
    return result


def _is_key(image):
    from PIL import ImageChops
    difference = ImageChops.difference(image, Image.new("RGB", image.size, KEY_COLOUR))
    bands = difference.split()
    most = ImageChops.lighter(ImageChops.lighter(bands[0], bands[1]), bands[2])
    return most.point(lambda value: 0 if value else 255)


# ---- glass -----------------------------------------------------------------------------------------------------------

GLASS = {  # state: (dark body, light at the top, rim alpha, inner glow alpha, accent part of the body)
    "normal": (0.62, 0.20, 0.34, 0.00, 0.00),
    "over": (0.60, 0.28, 0.85, 0.55, 0.16),
    "down": (0.74, 0.08, 0.95, 0.75, 0.28),
    "selected": (0.62, 0.22, 0.95, 0.60, 0.38),
    "quiet": (0.42, 0.12, 0.20, 0.00, 0.00),
}


def glass(pen, x, y, width, height, radius, state="normal", accent=TEAL, ground=DEEP):
    """A pane of dark glass with a light edge, and the accent's glow in the livelier states."""
    body, light, rim, inner, tint = GLASS[state]
    colour = mix(ground, accent, tint)

    def path():
        rounded(pen, x + 0.5, y + 0.5, width - 1, height - 1, radius)

    path()
    fill(pen, vertical(y, y + height, (0, mix(colour, WHITE, 0.16), body), (0.5, colour, body + 0.12),
                       (1, mix(colour, accent, 0.10 + tint / 2), body + 0.06)))
    pen.save()
    path()
    pen.clip()
    if inner:
        rounded(pen, x, y + height / 2, width, height, radius)
        fill(pen, vertical(y + height * 0.35, y + height, (0, accent, 0), (1, accent, inner * 0.55)))
    _gloss(pen, x, y, width, height, radius, light)
    pen.restore()
    path()
    pen.set_source(vertical(y, y + height, (0, mix(accent, WHITE, 0.75), rim), (0.5, accent, rim * 0.45),
                            (1, accent, rim * 0.8)))
    pen.set_line_width(1)
    pen.stroke()


def _gloss(pen, x, y, width, height, radius, light):
    half = height * 0.5
    rounded(pen, x + 1.5, y + 1.5, width - 3, half, max(1, radius - 1.5))
    fill(pen, vertical(y, y + half, (0, WHITE, light), (1, WHITE, light * 0.25)))


def glass_disc(pen, x, y, radius, state="normal", accent=TEAL, ground=DEEP):
    """The round sister of the pane."""
    body, light, rim, inner, tint = GLASS[state]
    colour = mix(ground, accent, tint)
    disc(pen, x, y, radius - 0.5)
    fill(pen, vertical(y - radius, y + radius, (0, mix(colour, WHITE, 0.22), body + 0.15), (0.5, colour, body + 0.2),
                       (1, mix(NIGHT, accent, 0.16 + tint), body + 0.2)))
    if inner:
        disc(pen, x, y, radius - 1)
        fill(pen, radial(x, y + radius * 0.75, radius * 1.3, (0, accent, inner * 0.75), (1, accent, 0)))
    pen.save()
    disc(pen, x, y, radius - 2)
    pen.clip()
    pen.translate(x, y - radius * 0.62)
    pen.scale(1, 0.72)
    disc(pen, 0, 0, radius * 0.92)
    fill(pen, vertical(-radius, radius, (0, WHITE, light * 1.7), (0.9, WHITE, light * 0.12)))
    pen.restore()
    disc(pen, x, y, radius - 0.75)
    pen.set_source(vertical(y - radius, y + radius, (0, mix(accent, WHITE, 0.8), rim), (0.5, accent, rim * 0.6),
                            (1, accent, rim)))
    pen.set_line_width(1.5)
    pen.stroke()
