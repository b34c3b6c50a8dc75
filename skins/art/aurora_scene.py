# SPDX-License-Identifier: MIT
"""The night behind the rich skin: stars, curtains of northern light, mountains and a lake; and the window's glass."""
import math
import random

import cairo

import style
from skinfile import LEFT_TOP, MIDDLE, RIGHT_BOTTOM
from style import GREEN, ICE, NIGHT, ROSE, TEAL, VIOLET, WHITE

CURTAINS = (  # base height, height of the rays, swing, wave length, phase, lower and upper colour, strength
    (330, 330, 46, 620, 0.4, GREEN, VIOLET, 0.090),
    (400, 300, 38, 480, 2.1, TEAL, VIOLET, 0.075),
    (290, 270, 30, 800, 4.0, GREEN, ROSE, 0.070),
)


def backdrop(width, height, seed=7):
    image, pen = style.surface(width, height)
    pen.rectangle(0, 0, width, height)
    style.fill(pen, style.vertical(0, height, (0, NIGHT, 1), (0.45, "0b1c40", 1), (0.62, "0f3350", 1),
                                   (0.66, "0a1830", 1), (1, "050914", 1)))
    chance = random.Random(seed)
    shore = height * 0.66
    _stars(pen, width, shore, chance)
    lights = _lights(width, height)
    pen.set_operator(cairo.OPERATOR_ADD)
    style.paste(pen, style.blurred(lights, 5))
    style.paste(pen, style.blurred(lights, 24), alpha=0.7)
    pen.set_operator(cairo.OPERATOR_OVER)
    _mountains(pen, width, shore, chance)
    _lake(pen, image, width, height, shore, chance)
    return image


def _stars(pen, width, shore, chance):
    for _ in range(520):
        x, y, size = chance.random() * width, chance.random() ** 1.3 * shore, chance.random()
        style.disc(pen, x, y, 0.4 + size ** 6 * 1.1)
        style.solid(pen, style.mix(WHITE, ICE, chance.random()), 0.25 + 0.7 * size ** 3)
        pen.fill()


def _lights(width, height):
    image, pen = style.surface(width, height)
    pen.set_operator(cairo.OPERATOR_ADD)
    for base, rays, swing, length, phase, low, high, strength in CURTAINS:
        for x in range(-20, width + 20, 2):
            along = 2 * math.pi * x / length + phase
            foot = base + swing * math.sin(along) + swing * 0.6 * math.sin(along * 2.3 + 1)
            ripple = 0.55 + 0.45 * math.sin(along * 11 + 3 * math.sin(along * 1.7)) * math.sin(along * 5.1)
            fade = 0.5 + 0.5 * math.sin(along * 0.63 + phase)
            power = strength * (0.35 + ripple) * (0.35 + fade) * 1.55
            top = foot - rays * (0.55 + 0.45 * ripple)
            pen.rectangle(x, top, 3, foot + 26 - top)
            style.fill(pen, style.vertical(top, foot + 26, (0, high, 0), (0.35, high, power * 0.34),
                                           (0.72, low, power * 0.75), (0.93, low, power), (1, low, 0)))
    return image


def _mountains(pen, width, shore, chance):
    for rise, rough, colour in ((112, 38, "0c1c3a"), (64, 26, "081226")):
        heights = [chance.uniform(0.35, 1.0) for _ in range(12)]
        pen.new_path()
        pen.move_to(0, shore)
        for x in range(0, width + 8, 8):
            part = x / width * 10
            i, f = int(part), part - int(part)
            ridge = heights[i] * (1 - f) + heights[i + 1] * f
            pen.line_to(x, shore - rise * ridge - rough * 0.4 * abs(math.sin(x * 0.043 + rise)) * ridge)
        pen.line_to(width + 8, shore)
        pen.close_path()
        style.solid(pen, colour)
        pen.fill()


def _lake(pen, image, width, height, shore, chance):
    deep = height - shore
    pen.save()
    pen.rectangle(0, shore, width, deep)
    pen.clip()
    mirrored, other = style.surface(width, height)
    other.translate(0, shore * 1.62)
    other.scale(1, -0.62)
    style.paste(other, image)
    style.paste(pen, style.blurred(mirrored, 4), alpha=0.75)
    pen.rectangle(0, shore, width, deep)
    style.fill(pen, style.vertical(shore, height, (0, GREEN, 0.10), (0.12, NIGHT, 0.15), (1, NIGHT, 0.85)))
    for _ in range(150):
        x, y = chance.random() * width, shore + chance.random() ** 1.6 * deep
        long = 8 + 46 * chance.random()
        pen.rectangle(x, y, long, 1)
        style.fill(pen, style.horizontal(x, x + long, (0, GREEN, 0), (0.5, ICE, 0.10), (1, GREEN, 0)))
    pen.restore()


def frosted(picture, rect, dark=0.62):
    """A part of the scene seen through dark frosted glass."""
    image, pen = style.surface(rect[2], rect[3])
    style.paste(pen, style.blurred(style.cut(picture, *rect), 5))
    style.solid(pen, NIGHT, dark)
    pen.paint()
    pen.rectangle(0, 0, rect[2], rect[3])
    style.fill(pen, style.vertical(0, rect[3], (0, style.BLACK, 0.35), (0.06, style.BLACK, 0), (1, style.TEAL, 0.05)))
    return image


# ---- the outline of a window ------------------------------------------------------------------------------------------

class Outline:
    """A rounded body with one bump at the top and one at the bottom; a bump is (left, right) and its slope in pixels.

    `hold` says how the bumps keep their place when the window is resized."""

    def __init__(self, size, body, radius, top, bottom, hold=MIDDLE, slope=44):
        self.size, self.body, self.radius, self.hold, self.slope = size, body, radius, hold, slope
        self.top, self.bottom = top, bottom

    def points(self):
        """(x, y, how x holds, how y holds), from the top left down the left side and round."""
        width, (high, low) = self.size[0], self.body
        r, near, far = self.radius, LEFT_TOP, RIGHT_BOTTOM
        found = self._arc(r, high + r, 270, 180, near, near)
        found += self._arc(r, low - r, 180, 90, near, far)
        found += self._bump(self.bottom, low, self.size[1], far)
        found += self._arc(width - r, low - r, 90, 0, far, far)
        found += self._arc(width - r, high + r, 0, -90, far, near)
        found += reversed(self._bump(self.top, high, 0, near))
        return found

    def _arc(self, x, y, start, end, across, down, steps=9):
        for_angle = [math.radians(start + (end - start) * i / steps) for i in range(steps + 1)]
        return [(x + self.radius * math.cos(a), y + self.radius * math.sin(a), across, down) for a in for_angle]

    def _bump(self, span, level, peak, down):
        if not span or level == peak:
            return []
        left, right = span
        steps = 10
        rise = [((1 - math.cos(math.pi * i / steps)) / 2, self.slope * i / steps) for i in range(steps + 1)]
        first = [(left + step, level + (peak - level) * part, self.hold, down) for part, step in rise]
        second = [(right - step, level + (peak - level) * part, self.hold, down) for part, step in reversed(rise)]
        return first + second

    def trace(self, pen):
        pen.new_path()
        for x, y, _, _ in self.points():
            pen.line_to(x, y)
        pen.close_path()


def window_glass(outline, head, foot):
    """Everything that belongs to the window itself: glass above `head` and below `foot`, and light along the edge."""
    width, height = outline.size
    image, pen = style.surface(width, height)
    outline.trace(pen)
    pen.clip()
    for y0, y1, up in ((0, head, True), (foot, height, False)):
        pen.rectangle(0, y0, width, y1 - y0)
        entries = ((0, "14305a", 0.82), (0.5, "0a1a3c", 0.80), (1, "071026", 0.86))
        style.fill(pen, style.vertical(y0, y1, *entries))
        line = y1 - 1 if up else y0
        pen.rectangle(0, line, width, 1)
        style.solid(pen, TEAL, 0.55)
        pen.fill()
        pen.rectangle(0, line + (1 if up else -7), width, 7)
        ends = (line + 1, line + 8) if up else (line, line - 7)
        style.fill(pen, style.vertical(*ends, (0, TEAL, 0.20), (1, TEAL, 0)))
    pen.reset_clip()
    outline.trace(pen)
    pen.clip()
    for wide, alpha in ((22, 0.05), (15, 0.07), (9, 0.12), (5, 0.25)):
        outline.trace(pen)
        style.stroke(pen, TEAL, alpha, wide)
    outline.trace(pen)
    pen.set_source(style.vertical(0, height, (0, WHITE, 0.95), (0.12, GREEN, 0.85), (0.5, TEAL, 0.6), (1, VIOLET, 0.9)))
    pen.set_line_width(3)
    pen.stroke()
    return image
