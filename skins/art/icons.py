# SPDX-License-Identifier: MIT
"""Icons as vector paths on a square of 24 by 24 units; one table from a name to its strokes and fills."""
import math

import style


def _polygon(*points):
    def draw(pen):
        pen.move_to(*points[0])
        for point in points[1:]:
            pen.line_to(*point)
        pen.close_path()
    return draw


def _box(x, y, width, height, radius=1.0):
    def draw(pen):
        pen.new_sub_path()
        for cx, cy, start in ((x + width - radius, y + radius, -90), (x + width - radius, y + height - radius, 0),
                              (x + radius, y + height - radius, 90), (x + radius, y + radius, 180)):
            pen.arc(cx, cy, radius, math.radians(start), math.radians(start + 90))
        pen.close_path()
    return draw


def _dot(x, y, radius):
    def draw(pen):
        pen.new_sub_path()
        pen.arc(x, y, radius, 0, 2 * math.pi)
    return draw


def _arc(x, y, radius, start, end):
    def draw(pen):
        pen.new_sub_path()
        pen.arc(x, y, radius, math.radians(start), math.radians(end))
    return draw


def _line(*points):
    def draw(pen):
        pen.move_to(*points[0])
        for point in points[1:]:
            pen.line_to(*point)
    return draw


def _curve(start, *rest):
    def draw(pen):
        pen.move_to(*start)
        for six in rest:
            pen.curve_to(*six)
    return draw


def star_points(x, y, outer, inner, count=5):
    for i in range(count * 2):
        radius = inner if i % 2 else outer
        angle = math.pi * i / count - math.pi / 2
        yield x + radius * math.cos(angle), y + radius * math.sin(angle)


_HEART = _curve((12, 20.5), (5, 15, 2.5, 12, 2.5, 8.6), (2.5, 5.6, 4.8, 3.6, 7.3, 3.6), (9.4, 3.6, 11, 4.8, 12, 6.6),
                (13, 4.8, 14.6, 3.6, 16.7, 3.6), (19.2, 3.6, 21.5, 5.6, 21.5, 8.6), (21.5, 12, 19, 15, 12, 20.5))
_SPEAKER = _polygon((3, 9), (7, 9), (12, 4.5), (12, 19.5), (7, 15), (3, 15))

# name: (filled parts, stroked parts)
ICONS = {
    "play": ([_polygon((7, 4), (20.5, 12), (7, 20))], []),
    "stop": ([_box(5.5, 5.5, 13, 13, 1.6)], []),
    "pause": ([_box(5.5, 4.5, 4.6, 15, 1.2), _box(13.9, 4.5, 4.6, 15, 1.2)], []),
    "next": ([_polygon((4, 5), (15, 12), (4, 19)), _box(16, 5, 3.4, 14, 1)], []),
    "previous": ([_polygon((20, 5), (9, 12), (20, 19)), _box(4.6, 5, 3.4, 14, 1)], []),
    "forward": ([_polygon((3, 5.5), (12, 12), (3, 18.5)), _polygon((12, 5.5), (21, 12), (12, 18.5))], []),
    "rewind": ([_polygon((21, 5.5), (12, 12), (21, 18.5)), _polygon((12, 5.5), (3, 12), (12, 18.5))], []),
    "repeat": ([_polygon((15.5, 1.8), (20.5, 5.8), (15.5, 9.8)), _polygon((8.5, 14.2), (3.5, 18.2), (8.5, 22.2))],
               [_line((4, 11), (4, 5.8), (16, 5.8)), _line((20, 13), (20, 18.2), (8, 18.2))]),
    "shuffle": ([_polygon((17, 2.8), (22, 6.5), (17, 10.2)), _polygon((17, 13.8), (22, 17.5), (17, 21.2))],
                [_curve((2.5, 6.5), (9, 6.5, 11, 17.5, 17.5, 17.5)), _curve((2.5, 17.5), (9, 17.5, 11, 6.5, 17.5, 6.5))]),
    "volume_up": ([_SPEAKER], [_line((15, 12), (21, 12)), _line((18, 9), (18, 15))]),
    "volume_down": ([_SPEAKER], [_line((15, 12), (21, 12))]),
    "up": ([], [_line((5, 15), (12, 8), (19, 15))]),
    "down": ([], [_line((5, 9), (12, 16), (19, 9))]),
    "back": ([], [_line((14.5, 5), (7.5, 12), (14.5, 19))]),
    "ahead": ([], [_line((9.5, 5), (16.5, 12), (9.5, 19))]),
    "close": ([], [_line((6, 6), (18, 18)), _line((18, 6), (6, 18))]),
    "maximise": ([], [_box(5.5, 6, 13, 12, 1)]),
    "minimise": ([], [_line((5.5, 17), (18.5, 17))]),
    "search": ([], [_arc(10.5, 10.5, 6, 0, 360), _line((15, 15), (20.5, 20.5))]),
    "album": ([_dot(12, 12, 2.2)], [_arc(12, 12, 9, 0, 360), _arc(12, 12, 5.6, -80, -10), _arc(12, 12, 5.6, 100, 170)]),
    "artist": ([_dot(12, 7.6, 4.4), _curve((3.5, 21), (3.5, 15.6, 7, 13.6, 12, 13.6), (17, 13.6, 20.5, 15.6, 20.5, 21))],
               []),
    "song": ([_dot(7.4, 18, 3.2), _dot(17.4, 15.6, 3.2)], [_line((10.2, 18), (10.2, 5.6), (20.2, 3.4), (20.2, 15.6))]),
    "special": ([_polygon(*star_points(12, 12.6, 10, 4.2))], []),
    "playlist": ([_dot(4.6, 6, 1.5), _dot(4.6, 12, 1.5), _dot(4.6, 18, 1.5)],
                 [_line((9, 6), (20.5, 6)), _line((9, 12), (20.5, 12)), _line((9, 18), (20.5, 18))]),
    "trophy": ([_curve((7, 3), (7, 12, 9, 14, 12, 14), (15, 14, 17, 12, 17, 3)), _box(7.5, 18.4, 9, 2.6, 1),
                _box(11, 13, 2, 6, 0.5)], [_arc(6.6, 7, 3, 90, 270), _arc(17.4, 7, 3, -90, 90)]),
    "delete": ([], [_line((4.5, 7), (19.5, 7)), _line((9, 7), (9, 4), (15, 4), (15, 7)),
                    _line((6.5, 7), (7.5, 20.5), (16.5, 20.5), (17.5, 7)), _line((10.3, 11), (10.3, 17)),
                    _line((13.7, 11), (13.7, 17))]),
    "magic": ([_polygon(*star_points(15.5, 8.5, 6.6, 2.0, 4)), _polygon(*star_points(5.2, 5.2, 3.2, 1.0, 4))],
              [_line((3.5, 20.5), (12.2, 11.8))]),
    "heart": ([_HEART], []),
    "keyboard": ([_dot(7, 10, 1), _dot(10.4, 10, 1), _dot(13.8, 10, 1), _dot(17.2, 10, 1)],
                 [_box(2.5, 6, 19, 12, 2), _line((8, 14.4), (16, 14.4))]),
    "video": ([_polygon((10, 8.6), (16, 12), (10, 15.4))], [_box(2.5, 5, 19, 14, 2.5)]),
    "lyrics": ([], [_line((4, 6), (20, 6)), _line((7, 10.3), (17, 10.3)), _line((4, 14.6), (20, 14.6)),
                    _line((7, 18.9), (14, 18.9))]),
    "equaliser": ([_dot(6, 15, 2.2), _dot(12, 8, 2.2), _dot(18, 13, 2.2)],
                  [_line((6, 3.5), (6, 20.5)), _line((12, 3.5), (12, 20.5)), _line((18, 3.5), (18, 20.5))]),
    "script": ([], [_line((8, 6), (2.8, 12), (8, 18)), _line((16, 6), (21.2, 12), (16, 18)), _line((13.4, 4), (10.6, 20))]),
    "tempo": ([], [_line((9, 3.5), (15, 3.5), (19, 20.5), (5, 20.5), (9, 3.5)), _line((12, 16), (17.5, 6.5))]),
    "clock": ([], [_arc(12, 12, 9, 0, 360), _line((12, 6.5), (12, 12), (16, 14.2))]),
    "coin": ([_polygon(*star_points(12, 12.3, 5, 2.1))], [_arc(12, 12, 9, 0, 360)]),
    "plus": ([], [_line((12, 4.5), (12, 19.5)), _line((4.5, 12), (19.5, 12))]),
    "shift": ([_polygon((12, 3), (20.5, 12), (16, 12), (16, 20), (8, 20), (8, 12), (3.5, 12))], []),
}


def icon(pen, name, x, y, size, colour, alpha=1.0, weight=2.2, shade=0.0):
    """Draws an icon with its top left corner at x, y. `shade` is the alpha of a soft shadow under it."""
    for offset, tone, part in ((1.0, style.BLACK, shade), (0.0, colour, alpha)):
        if not part:
            continue
        pen.save()
        pen.translate(x + offset, y + offset)
        pen.scale(size / 24, size / 24)
        pen.set_line_width(weight)
        pen.set_line_cap(1)
        pen.set_line_join(1)
        style.solid(pen, tone, part)
        fills, strokes = ICONS[name]
        for draw in fills:
            pen.new_path()
            draw(pen)
            pen.fill()
        for draw in strokes:
            pen.new_path()
            draw(pen)
            pen.stroke()
        pen.restore()
