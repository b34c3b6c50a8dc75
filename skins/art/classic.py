# SPDX-License-Identifier: MIT
"""The plain skin: warm paper, wood and brass, few pictures, a rectangular window."""
import math

import mock
import style
from icons import icon
from skinfile import BUTTON, INFO, MAIN, PICTURE, SCROLLBAR, SEARCH, VOLUME, Font, Layout, Skin
from style import rounded, skin_colour, surface

SIZE = (800, 600)
PAPER, CREAM, SAND, WOOD, DARK_WOOD, INK, BRICK = "fbf4e6", "f3e6cb", "e2cfa6", "a9713c", "6b4220", "4a3320", "b5482f"

FIELDS = {"normal": "PicNormal", "over": "PicOver", "down": "PicDown"}
SHADES = {"normal": (PAPER, SAND, INK), "over": ("ffffff", "f0dcae", BRICK), "down": (SAND, CREAM, BRICK)}
TITLE, TEXT, CAPTION, DIGITS = (Font("Times New Roman", 17, True), Font("Tahoma", 9), Font("Tahoma", 9, True),
                                Font("Courier New", 12, True))


def face(width, height, symbol=None, radius=6):
    """Buttons of paper; stored with a key colour, so their corners are cut hard."""
    def draw(state):
        high, low, ink = SHADES[state]
        image, pen = surface(width, height)
        rounded(pen, 0, 0, width, height, radius)
        style.solid(pen, DARK_WOOD)
        pen.fill()
        rounded(pen, 1, 1, width - 2, height - 2, radius - 1)
        style.fill(pen, style.vertical(0, height, (0, high, 1), (1, low, 1)))
        rounded(pen, 1.5, 1.5, width - 3, height - 3, radius - 1)
        style.stroke(pen, "ffffff", 0.6, 1)
        if symbol:
            size = min(width, height) * 0.52
            icon(pen, symbol, (width - size) / 2, (height - size) / 2 + (state == "down"), size, ink)
        return image
    return draw


def pictures(folder, name, draw):
    return {FIELDS[state]: folder.bmp(draw(state), "%s_%s" % (name, state), DARK_WOOD) for state in style.STATES}


def wood(width, height):
    """A plank with its grain along the length."""
    image, pen = surface(width, height)
    pen.rectangle(0, 0, width, height)
    style.fill(pen, style.vertical(0, height, (0, "c58f55", 1), (0.5, WOOD, 1), (1, "8a5829", 1)))
    for line in range(height * 2):
        y = line / 2
        pen.move_to(0, y)
        for x in range(0, width + 40, 40):
            pen.line_to(x, y + 2.2 * math.sin(x / 97 + line * 0.7) + 1.5 * math.sin(x / 41 + line * 1.9))
        style.stroke(pen, DARK_WOOD, 0.05 + 0.07 * (math.sin(line * 2.6) > 0.3), 0.8)
    for y, colour, alpha in ((0, "ffffff", 0.45), (height - 1, "000000", 0.45)):
        pen.rectangle(0, y, width, 1)
        style.solid(pen, colour, alpha)
        pen.fill()
    return image


def knob(size):
    image, pen = surface(size, size)
    middle, radius = size / 2, size / 2 - 2
    style.disc(pen, middle, middle, radius)
    style.fill(pen, style.radial(middle, middle, radius, (0, "f6dd9a", 1), (0.75, "cf9f45", 1), (1, "8a6420", 1)), keep=True)
    style.stroke(pen, DARK_WOOD, 1, 1.5)
    for i in range(24):
        a = math.radians(i * 15)
        pen.move_to(middle + math.cos(a) * radius * 0.84, middle + math.sin(a) * radius * 0.84)
        pen.line_to(middle + math.cos(a) * radius * 0.96, middle + math.sin(a) * radius * 0.96)
        style.stroke(pen, DARK_WOOD, 0.4, 1.5)
    pen.set_line_cap(1)
    pen.move_to(middle, middle - radius * 0.72)
    pen.line_to(middle, middle - radius * 0.28)
    style.stroke(pen, BRICK, 1, 4)
    return image


def badge(width, height):
    image, pen = surface(width, height)
    icon(pen, "song", 2, 2, height - 4, PAPER, shade=0.5)
    return image


class Page(Layout):
    def __init__(self, skin, key, folder):
        super().__init__(skin, key)
        self.folder = folder
        skin.layouts.append(self)
        self.default_shape()

    def picture(self, key, rect, locks, file, **fields):
        self.add(key, PICTURE, rect, locks, PicNormal=file, **fields)

    def button(self, key, rect, action, faces, locks, stretch="", caption="", **fields):
        if caption:
            fields.update(Caption=caption, Font=CAPTION, TextColor=skin_colour(INK), CaptionY=(rect[3] - 14) // 2)
        self.add(key, BUTTON, rect, locks, stretch, ActionType=action, UseTransparency=True, UseTopLeftTransparency=True,
                 ShowSmooth=bool(stretch), **faces, **fields)

    def info(self, key, rect, kind, font, colour, locks, ground=PAPER, **fields):
        self.add(key, INFO, rect, locks, InfoType=kind, Font=font, TextColor=skin_colour(colour),
                 BackgroundColor=skin_colour(ground), CapScrollSpeed=fields.pop("CapScrollSpeed", 2),
                 CaptionY=fields.pop("CaptionY", max(0, (rect[3] - font.line_height()) // 2)), **fields)


def ground(page, top, bottom):
    """Paper between two planks."""
    page.picture("Paper", (0, 0, *SIZE), "LTRB", page.folder.png(paper(), "paper"))
    page.picture("PlankTop", (0, 0, SIZE[0], top), "LTR", page.folder.jpg(wood(SIZE[0], top), "plank_%d" % top),
                 Dragger=True, ShowSmooth=True, name="Title bar")
    page.picture("PlankBottom", (0, SIZE[1] - bottom, SIZE[0], bottom), "LRB",
                 page.folder.jpg(wood(SIZE[0], bottom), "plank_%d" % bottom), ShowSmooth=True, name="Dock")


def paper():
    image, pen = surface(16, 64)
    pen.rectangle(0, 0, 16, 64)
    style.fill(pen, style.vertical(0, 64, (0, CREAM, 1), (1, SAND, 1)))
    return image


def name_plate(page, y):
    page.picture("Badge", (14, y, 30, 30), "LT", page.folder.png(badge(30, 30), "badge"), UseTransparency=True)
    page.button("Name", (46, y - 2, 110, 34), 0, {}, "LT", caption="Classic", Dragger=True)
    page.elements[-1].update(Font=Font("Times New Roman", 18, True, True), TextColor=skin_colour(PAPER), CaptionY=4,
                             ShowShadow=True, ShadowDistance=1, ShadowColor=skin_colour(DARK_WOOD),
                             UseTopLeftTransparency=False)
    for i, (key, action, symbol) in enumerate((("Close", 13, "close"), ("Maximise", 14, "maximise"),
                                               ("Minimise", 15, "minimise"))):
        faces = pictures(page.folder, "window_" + symbol, face(34, 34, symbol, 4))
        page.button(key, (754 - i * 42, y - 2, 34, 34), action, faces, "RT")


def display(page, y):
    """A sheet of paper with a thin border: what is playing, the time, the seek bar and the brass knob."""
    page.add("Sheet", PICTURE, (12, y, 690, 82), "LTR", ShowBorder=True, BorderColor=skin_colour(WOOD),
             PicNormal=page.folder.gif(sheet(), "sheet", PAPER))
    page.info("SongTitle", (24, y + 6, 560, 28), 2, TITLE, INK, "LTR")
    page.info("ArtistName", (24, y + 34, 560, 20), 3, TEXT, BRICK, "LTR")
    page.info("Seeker", (24, y + 60, 580, 12), 0, TEXT, INK, "LTR", SAND, Seeker=True, SeekerColor=skin_colour(BRICK),
              SeekTopOffset=2, SeekBottomOffset=2, SeekLeftOffset=2, SeekRightOffset=2, name="Seek bar")
    page.info("Elapsed", (616, y + 10, 78, 22), 8, DIGITS, INK, "RT")
    page.info("Remaining", (616, y + 32, 78, 22), 9, DIGITS, DARK_WOOD, "RT")
    page.info("Clock", (616, y + 57, 78, 18), 17, TEXT, DARK_WOOD, "RT")
    page.add("Knob", VOLUME, (712, y + 3, 76, 76), "RT", UseTransparency=True, ShowSmooth=True, VolumeChangeable=True,
             PicNormal=page.folder.png(knob(76), "knob"), name="Volume knob")


def sheet():
    image, pen = surface(8, 8)
    style.solid(pen, PAPER)
    pen.paint()
    return image


def transport(page, y):
    row = (("Previous", 5, "previous"), ("Stop", 2, "stop"), ("Play", 1, "play"), ("Pause", 3, "pause"), ("Next", 4, "next"))
    for i, (key, action, symbol) in enumerate(row):
        faces = pictures(page.folder, "play_" + symbol, face(56, 44, symbol, 8))
        page.button(key, (260 + i * 56, y, 54, 44), action, faces, "B")
    for i, (key, action, symbol) in enumerate((("Shuffle", 9, "shuffle"), ("Repeat", 8, "repeat"))):
        faces = pictures(page.folder, "play_" + symbol, face(44, 36, symbol, 6))
        page.button(key, (14 + i * 50, y + 4, 44, 36), action, faces, "LB")
    for i, (key, action, symbol) in enumerate((("Softer", 11, "volume_down"), ("Louder", 10, "volume_up"))):
        faces = pictures(page.folder, "play_" + symbol, face(44, 36, symbol, 6))
        page.button(key, (666 + i * 50, y + 4, 44, 36), action, faces, "RB", Value=12)


def lists(page, rect):
    x, y, width, height = rect
    page.picture("ListSheet", (x - 1, y - 1, width - 40, height + 2), "LTRB", page.folder.gif(sheet(), "sheet", PAPER),
                 ShowBorder=True, BorderColor=skin_colour(WOOD))
    page.add("Main", MAIN, (x, y, width - 42, height), "LTRB", BackgroundColor=skin_colour(PAPER), MarginLeft=8,
             MarginRight=10, MarginTop=8, MarginBottom=8)
    page.add("Scrollbar", SCROLLBAR, (x + width - 34, y, 34, height), "RTB", BackgroundColor=skin_colour(SAND),
             ShowBorder=True, BorderColor=skin_colour(WOOD), Font=TEXT,
             UseTransparency=True, UseTopLeftTransparency=True,
             **{"Pic" + field: page.folder.bmp(face(34, 60)(state), "bar_" + state, DARK_WOOD)
                for field, state in (("On", "normal"), ("Over", "over"), ("Down", "down"))})


def grip(page):
    image, pen = surface(18, 18)
    for i in range(3):
        pen.move_to(17, 5 + i * 5)
        pen.line_to(5 + i * 5, 17)
        style.stroke(pen, PAPER, 0.9, 1.4)
    page.add("Grip", BUTTON, (780, 580, 18, 18), "RB", Resizer=True, UseTransparency=True,
             PicNormal=page.folder.png(image, "grip"), name="Resize grip")


TABS = (("Albums", 21), ("Artists", 22), ("Songs", 23), ("Playlist", 25), ("Top 100", 26))


def standard(skin, folder):
    page = Page(skin, "Standard", folder)
    ground(page, 38, 62)
    name_plate(page, 4)
    display(page, 48)
    faces = pictures(folder, "tab", face(92, 34))
    for i, (caption, action) in enumerate(TABS):
        page.button(caption.replace(" ", ""), (12 + i * 104, 139, 92, 34), action, faces, "T", "W", caption)
    page.add("SearchBox", SEARCH, (560, 144, 228, 24), "T", "W", ShowBorder=True, TextColor=skin_colour(INK),
             BackgroundColor=0xFFFFFF, Font=TEXT, name="Search Box")
    lists(page, (12, 182, 776, 346))
    transport(page, 547)
    grip(page)


def kiosk(skin, folder):
    page = Page(skin, "Kiosk-Mode", folder)
    ground(page, 64, 62)
    page.info("NowPlaying", (158, 14, 418, 36), 1, TITLE, PAPER, "LTR", DARK_WOOD, CapScrollSpeed=3)
    page.info("CreditLabel", (592, 14, 110, 36), 0, Font("Tahoma", 14, True), PAPER, "RT", DARK_WOOD, InfoField=" Credits")
    page.info("Credits", (702, 14, 82, 36), 15, Font("Tahoma", 16, True), "ffd98a", "RT", DARK_WOOD)
    faces = pictures(folder, "side", face(130, 60))
    for i, (caption, action) in enumerate((*TABS, ("Back", 19))):
        page.button(caption.replace(" ", ""), (12, 76 + i * 77, 130, 67), action, faces, "L", "H", caption, ShowShadow=False)
        page.elements[-1].update(Font=Font("Tahoma", 12, True), CaptionY=22)
    lists(page, (154, 76, 634, 452))
    page.add("SearchBox", SEARCH, (12, 19, 130, 26), "LT", ShowBorder=True, TextColor=skin_colour(INK),
             BackgroundColor=0xFFFFFF, Font=TEXT, name="Search Box")
    transport(page, 547)


# What the jukebox draws by itself, as large as the sample on the panel shows it: preference, file, size, corner.
FACES = (("SO", "row", 400, 40, 6), ("KBN", "key", 44, 32, 6), ("KBU", "key_wide", 56, 32, 6), ("KBB", "key_wide", 56, 32, 6),
         ("KBS", "key_space", 132, 32, 6), ("KBE", "key_enter", 80, 32, 6), ("IN", "info", 40, 40, 6), ("AA", "add", 40, 40, 6),
         ("SL", "letter", 34, 17, 3))


def preferences(skin, folder):
    for prefix, name, width, height, corner in FACES:
        for suffix, state in (("", "normal"), ("Over", "over"), ("Down", "down")):
            file = folder.bmp(face(width, height, radius=corner)(state), "%s_%s" % (name, state), DARK_WOOD)
            skin.prefer(**{"%s_Picture%s" % (prefix, suffix): file})
    ink, brick = skin_colour(INK), skin_colour(BRICK)
    skin.prefer(SO_PictureSel="row_over.bmp", SO_PictureArtistHL="row_over.bmp", SO_PicturePlayed="row_down.bmp",
                SL_PictureOn="letter_down.bmp", SP_SkinInformation="Classic: paper, wood and brass")
    for family in ("SO", "IN", "AA", "SL"):
        skin.prefer(**{family + "_Shadow": False, family + "_Transparency": True})
    skin.prefer(KB_Transparency=True, KB_TextColor=ink, SO_SongTextColor=ink, SOD_ArtistTextColor=brick, IN_TextColor=brick,
                AA_TextColor=ink, SL_TextColor=ink, SL_SelTextColor=brick, SO_Height=40, SO_Margin=3, IN_Margin=3,
                IN_Height=40, AA_Font=Font("Wingdings", 16), AA_CapOffsetX=0, AA_CapOffsetY=8, IN_CapOffsetX=0,
                SL_Width=34,
                SL_CapOffsetY=0, SL_FontSizeFactor=0.85, KB_Font=Font("Arial", 14), SOD_SongFontD=Font("Tahoma", 10),
                SOS_SongFontS=Font("Tahoma", 10),
                SOD_SongOffsetYD=3, SOS_SongOffsetYS=10, SOD_ArtistOffsetY=22, SOD_IconsRateY=21, SOD_IconsUserX=84,
                SOD_IconsUserY=21, LA_Font=Font("Times New Roman", 18, True), PI_FontSizeFactor=0.65,
                PI_TextColor=ink, PI_TextShadow=False, PI_PictureBorderColor=skin_colour(WOOD),
                PI_PictureShadowColor=skin_colour(SAND), LA_TextColor=ink, LA_ShadowColor=skin_colour(SAND),
                SP_ColLight=0xFFFFFF, SP_ColBack=skin_colour(CREAM), SP_ColDark=skin_colour(SAND),
                SP_ButtonColor=skin_colour(CREAM), SP_ListColor=skin_colour(PAPER), SP_ListFontColor=ink,
                SP_BMListColor=skin_colour(PAPER), SP_BMListFontColor=ink)


def make(path):
    folder = style.Folder(path)
    skin = Skin(path, *SIZE)
    standard(skin, folder)
    kiosk(skin, folder)
    preferences(skin, folder)
    image, pen = surface(320, 240)
    pen.scale(320 / SIZE[0], 240 / SIZE[1])
    style.paste(pen, mock.compose(skin.layouts[0]))
    skin.prefer(SP_PicPreview=folder.jpg(style.flatten(image, PAPER), "preview"))
    skin.write()
    return skin
