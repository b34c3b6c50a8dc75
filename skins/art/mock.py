# SPDX-License-Identifier: MIT
"""A quick picture of a layout, for the preview that a skin carries with it. It pastes pictures and writes captions
where the jukebox does; lists and playing songs are not shown."""
import math
import os

import cairo
from PIL import Image

import style
from skinfile import INFO, MAIN, SCROLLBAR, SEARCH

FACES = {"Tahoma": "DejaVu Sans Condensed", "Arial": "Liberation Sans", "Times New Roman": "Liberation Serif"}
SAMPLES = {1: "Quillmar - The Lantern Over The Reef", 2: "The Lantern Over The Reef", 3: "Quillmar",
           4: "The Tide Comes Over You!", 8: "02:14", 9: "01:31", 10: "03:45", 11: "128 Kbps / 44KHz / Stereo",
           12: "On", 13: "Off", 14: "Playing", 15: "7", 16: "123", 17: "20:45:00"}


def axis(start, size, near, far, stretch, design, target):
    """Where an element lies along one axis of a window that is larger or smaller than the design."""
    grown = target - design
    if near and far:
        return start, size + grown
    if near:
        return start, size + (round(grown / 2) if stretch else 0)
    if far:
        return target - start - (math.floor(grown / 2) if stretch else 0), size + (round(grown / 2) if stretch else 0)
    if stretch:
        return round(target * start / design), round(target * size / design)
    return start + round(grown / 2), size


def place(element, design, target):
    x, width = axis(element["LeftX"], element["WidthX"], element["LockLeft"], element["LockRight"],
                    element["StretchWidth"], design[0], target[0])
    y, height = axis(element["TopY"], element["HeightY"], element["LockTop"], element["LockBottom"],
                     element["StretchHeight"], design[1], target[1])
    return x, y, width, height


def corner(value, how, design, target):
    return (value, (target - design) / 2 + value, target - value + 1, target * value / design)[how]


def outline(layout, target, pen):
    pen.new_path()
    for x, y, across, down in layout.points:
        pen.line_to(corner(x, across, layout.skin.size[0], target[0]), corner(y, down, layout.skin.size[1], target[1]))
    pen.close_path()


def compose(layout, target=None):
    target = target or layout.skin.size
    image, pen = style.surface(*target)
    outline(layout, target, pen)
    pen.clip()
    for element in layout.elements:
        if element["Visible"]:
            _draw(pen, layout.skin.folder, element, place(element, layout.skin.size, target))
    return image


def _draw(pen, folder, element, rect):
    kind, (x, y, width, height) = element["ElementType"], rect
    if kind in (MAIN, SEARCH, INFO) and not element["PicNormal"]:
        style.solid(pen, _hex(element["BackgroundColor"]))
        pen.rectangle(*rect)
        pen.fill()
    _picture(pen, folder, element, element["PicNormal"], rect, kind != INFO)
    if kind == SCROLLBAR:
        bar = height - 250 if height >= 300 else 50
        _picture(pen, folder, element, element["PicOn"], (x, y + 15, width, bar), True)
    text = element["Caption"]
    if kind == INFO:
        text = element["InfoField"] if element["InfoType"] == 0 else SAMPLES.get(element["InfoType"], "")
    if text:
        _text(pen, element, text, rect, kind != INFO)


def _hex(colour):
    return "%02x%02x%02x" % (colour & 255, colour >> 8 & 255, colour >> 16 & 255)


def _picture(pen, folder, element, name, rect, stretch):
    if not name:
        return
    image = Image.open(os.path.join(folder, name)).convert("RGBA")
    if element["UseTransparency"] and not name.endswith(".png"):
        key = image.getpixel((0, 0)) if element["UseTopLeftTransparency"] else style.KEY_COLOUR
        image.putdata([(0, 0, 0, 0) if pixel[:3] == key[:3] else pixel for pixel in image.getdata()])
    x, y, width, height = rect
    pen.save()
    pen.rectangle(*rect)
    pen.clip()
    pen.translate(x + width / 2, y + height / 2)
    pen.rotate(math.radians(element["Rotation"]))
    pen.translate(-width / 2, -height / 2)
    if stretch:
        pen.scale(width / image.width, height / image.height)
    pen.set_source_surface(style.to_surface(image))
    pen.get_source().set_extend(cairo.EXTEND_PAD)
    pen.rectangle(0, 0, image.width, image.height)
    pen.fill()
    pen.restore()


def _text(pen, element, text, rect, centred):
    font = element["Font"]
    x, y, width, height = rect
    pen.save()
    pen.rectangle(*rect)
    pen.clip()
    pen.select_font_face(FACES.get(font.Name if font else "Tahoma", "DejaVu Sans Condensed"),
                         cairo.FONT_SLANT_ITALIC if font and font.Italic else cairo.FONT_SLANT_NORMAL,
                         cairo.FONT_WEIGHT_BOLD if font and font.Bold else cairo.FONT_WEIGHT_NORMAL)
    pen.set_font_size(round((font.Size if font else 8) * 96 / 72))
    left = (width - pen.text_extents(text).x_advance) / 2 + element["CaptionX"] / 2 if centred else 0
    base = y + element["CaptionY"] + pen.font_extents()[0]
    if centred and element["ShowShadow"]:
        style.solid(pen, _hex(element["ShadowColor"]))
        pen.move_to(x + left + element["ShadowDistance"], base + element["ShadowDistance"])
        pen.show_text(text)
    style.solid(pen, _hex(element["TextColor"]))
    pen.move_to(x + left, base)
    pen.show_text(text)
    pen.restore()
