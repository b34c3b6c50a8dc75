# SPDX-License-Identifier: MIT
"""The rich skin: three layouts under northern lights."""
import aurora_art as art
import aurora_scene as scene
import mock
import style
from aurora_art import pane_button, round_button, three_states
from skinfile import BUTTON, INFO, MAIN, PICTURE, SCROLLBAR, SEARCH, STRETCHED, VOLUME, Font, Layout, Skin
from style import AMBER, DEEP, GREEN, ICE, MIST, NIGHT, ROSE, TEAL, VIOLET, skin_colour

SIZE = (1024, 768)

TITLE, ARTIST, SMALL = Font("Tahoma", 16, True), Font("Tahoma", 11), Font("Tahoma", 8)
TAB, CLOCK, DIGITS = Font("Tahoma", 10, True), Font("Arial", 13, True), Font("Arial", 10, True)

# The codes of what a button does and an info tells.
PLAY, STOP, PAUSE, NEXT, PREVIOUS, FORWARD, REWIND, REPEAT, SHUFFLE, LOUDER, SOFTER, SCRIPT = range(1, 13)
CLOSE, MAXIMISE, MINIMISE, VIDEO, LYRICS, EQUALISER, BACK, AHEAD = range(13, 21)
ALBUMS, ARTISTS, SONGS, SPECIAL, PLAYLIST, TOP, DELETE, MAGIC, UP, DOWN, KEYBOARD = range(21, 32)
GENERATOR, AUTOPLAY, AUTOPLAY_STOP, AUTOPLAY_LISTS, LOAD, SAVE = range(32, 38)
AUTO_CUE, AUTO_MODE, TEMPO = 53, 54, 55

WIDE = 1700  # pixels that a text or the seek bar takes in a window of 1920, and some more

(LABEL, FULL_TITLE, SONG, ARTIST_NAME, ALBUM, LOUDNESS, ALBUM_PICTURE, ARTIST_PICTURE, ELAPSED, REMAINING, DURATION,
 SONG_INFO, REPEATING, SHUFFLING, STATUS, CREDITS, FOUND, TIME, LIST_NAME, LIST_DURATION, PROPERTY) = range(21)


class Page(Layout):
    """A layout with the habits of this skin."""

    def __init__(self, skin, key, folder):
        super().__init__(skin, key)
        self.folder = folder
        skin.layouts.append(self)

    def picture(self, key, rect, locks="", stretch="", **fields):
        self.add(key, PICTURE, rect, locks, stretch, **{"UseTransparency": True, "ShowSmooth": True, **fields})

    def button(self, key, rect, action, pictures, locks="", stretch="", caption="", font=TAB, **fields):
        if caption:
            fields = {"TextColor": skin_colour(ICE), "ShowShadow": True, "ShadowDistance": 1,
                      "CaptionY": (rect[3] - 2 - font.line_height()) // 2, "Font": font, "Caption": caption, **fields}
        self.add(key, BUTTON, rect, locks, stretch, ActionType=action, UseTransparency=True, ShowSmooth=True,
                 **pictures, **fields)

    def info(self, key, rect, kind, ground, font, colour, locks="", **fields):
        fields.setdefault("CaptionY", max(0, (rect[3] - font.line_height()) // 2))
        fields.setdefault("CapScrollSpeed", 2)
        self.add(key, INFO, rect, locks, InfoType=kind, PicNormal=ground, Font=font, TextColor=skin_colour(colour),
                 BackgroundColor=skin_colour(art.PLATE_BOTTOM), **fields)

    def plate(self, key, rect, locks, radius=8):
        name = self.folder.png(art.plate(rect[2], rect[3], radius), "plate_%dx%d" % rect[2:])
        self.picture(key, rect, locks, PicNormal=name)

    def ground(self, height, top, part, width=150):
        """The picture behind a text on a plate of that height; WIDE for a text that grows with the window."""
        return self.folder.png(art.plate_slice(height, top, part, width), "text_%d_%d_%d" % (height, top, part))


# ---- what all layouts have ---------------------------------------------------------------------------------------------

def window(page, name, outline, head, foot):
    """The scene, and the window's glass cut in pieces that keep to their edges."""
    page.picture("Backdrop", (0, 0, *SIZE), "LTRB", PicNormal="backdrop.jpg", name="Northern lights")
    for point in outline.points():
        page.point(*point)
    glass = scene.window_glass(outline, head, foot)
    (left, right), (low_left, low_right), edge = outline.top, outline.bottom, 48
    rows = ((0, head + 8, "T", left, right), (foot - 8, SIZE[1], "B", low_left, low_right))
    for row, (y0, y1, lock, start, end) in enumerate(rows, 1):
        pieces = ((0, edge, "L", ""), (edge, start, "L", "W"), (start, end, "", ""), (end, SIZE[0] - edge, "R", "W"),
                  (SIZE[0] - edge, SIZE[0], "R", ""))
        if outline.hold == STRETCHED:
            pieces = ((0, edge, "L", ""), (edge, SIZE[0] - edge, "LR", ""), (SIZE[0] - edge, SIZE[0], "R", ""))
        for column, (x0, x1, side, grow) in enumerate(pieces, 1):
            part = page.folder.png(style.cut(glass, x0, y0, x1 - x0, y1 - y0), "%s_glass%d%d" % (name, row, column))
            page.picture("Glass%d%d" % (row, column), (x0, y0, x1 - x0, y1 - y0), side + lock, grow, PicNormal=part,
                         Dragger=row == 1, name="Title bar" if row == 1 else "Dock")
    for key, x, side in (("GlassLeft", 0, "L"), ("GlassRight", SIZE[0] - 12, "R")):
        y0, y1 = rows[0][1], rows[1][0]
        part = page.folder.png(style.cut(glass, x, y0, 12, y1 - y0), "%s_%s" % (name, key.lower()))
        page.picture(key, (x, y0, 12, y1 - y0), side + "TB", PicNormal=part)


def window_buttons(page, y, right=1008):
    for i, (key, action, symbol, accent) in enumerate((("Close", CLOSE, "close", ROSE),
                                                       ("Maximise", MAXIMISE, "maximise", TEAL),
                                                       ("Minimise", MINIMISE, "minimise", TEAL))):
        pictures = three_states(page.folder, "window_" + symbol, pane_button(34, 34, symbol, 7, accent, 0.45))
        page.button(key, (right - 34 - i * 42, y, 34, 34), action, pictures, "RT")


def brand(page, y):
    page.picture("Wordmark", (52, y, 124, 36), "LT", PicNormal=page.folder.png(art.wordmark(124, 36), "wordmark"),
                 Dragger=True)
    page.picture("Seal", (14, y - 1, 38, 38), "LT", PicNormal=page.folder.png(art.sticker(38), "seal"), Rotation=8,
                 name="Seal, turned by 8 degrees")


def grip(page, x, y):
    page.add("Grip", BUTTON, (x, y, 24, 24), "RB", Resizer=True, UseTransparency=True,
             PicNormal=page.folder.png(art.grip(24), "grip"), name="Resize grip")


def main_panel(page, rect, searchable=True):
    """The list under a pane of frosted glass with its rounded frame."""
    x, y, width, height = rect
    image, pen = style.surface(width + 16, height + 16)
    art.frame(pen, width + 16, height + 16, 14)
    art.slices(page.folder, page, page.key.split("-")[0] + "Frame", image, (x - 8, y - 8, width + 16, height + 16),
               (20, width - 4), (20, height - 4))
    backdrop = scene.backdrop(*SIZE)
    ground = page.folder.jpg(scene.frosted(backdrop, rect, 0.45), "panel_" + page.key.split("-")[0].lower(), 84)
    page.add("Main", MAIN, rect, "LTRB", BackgroundColor=skin_colour(NIGHT), PicNormal=ground, StretchBackground=True,
             MarginLeft=10, MarginRight=14, MarginTop=12, MarginBottom=12, name="Main")


def scroller(page, x, y, height, width=36):
    for key, action, symbol, at, lock in (("ScrollUp", UP, "up", y, "RT"), ("ScrollDown", DOWN, "down", y + height - 36, "RB")):
        pictures = three_states(page.folder, "scroll_" + symbol, pane_button(36, 36, symbol))
        page.button(key, (x, at, width, 36), action, pictures, lock)
    name = page.folder.png(art.track(36, 240), "scroll_track")
    bar = three_states(page.folder, "scroll_bar", art.thumb(36, 100))
    page.add("Scrollbar", SCROLLBAR, (x, y + 40, width, height - 80), "RTB", PicNormal=name, PicOn=bar["PicNormal"],
             PicOver=bar["PicOver"], PicDown=bar["PicDown"], UseTransparency=True, ShowSmooth=True,
             Font=SMALL, BackgroundColor=skin_colour(DEEP), name="Scrollbar")


def transport(page, y, big=80, small=54, gap=4):
    """Five round buttons around the middle of the window."""
    row = (("Previous", PREVIOUS, "previous", -2), ("Stop", STOP, "stop", -1), ("Play", PLAY, "play", 0),
           ("Pause", PAUSE, "pause", 1), ("Next", NEXT, "next", 2))
    for key, action, symbol, place in row:
        size = small if place else big
        side = (place > 0) - (place < 0)
        middle = 512 + place * (small + gap) + side * (big - small) // 2
        pictures = three_states(page.folder, "transport_%s" % symbol, round_button(size, symbol, TEAL if place else GREEN))
        page.button(key, (middle - size // 2, y - size // 2, size, size), action, pictures, "B")


def small_buttons(page, x, y, entries, locks, width=51, gap=4):
    """Two in a row: in a corner they leave the middle of a narrow window to others."""
    height = 36
    for i, (key, action, symbol, accent) in enumerate(entries):
        pictures = three_states(page.folder, "small_" + symbol, pane_button(width, height, symbol, 10, accent))
        at = (x + i % 2 * (width + gap), y + i // 2 * (height + gap), width, height)
        page.button(key, at, action, pictures, locks)


def volume_group(page, x, y):
    """The bar that fills, and under it softer and louder, beside the grip."""
    page.plate("VolumePlate", (x, y, 112, 42), "RB")
    page.info("VolumeBar", (x + 6, y + 5, 100, 32), LOUDNESS, page.folder.bmp(art.volume_bar(100, 32, False), "volume_0", NIGHT),
              SMALL, ICE, "RB", PicOn=page.folder.bmp(art.volume_bar(100, 32, True), "volume_100", NIGHT),
              VolumeChangeable=True)
    small_buttons(page, x, y + 46, (("Softer", SOFTER, "volume_down", TEAL), ("Louder", LOUDER, "volume_up", TEAL)), "RB", 44)
    for element in page.elements[-2:]:
        element["Value"] = 10.5


def tabs(page, entries, rect, count, accent=TEAL):
    """Buttons that share the width of the window."""
    x, y, width, height = rect
    step = width / count
    pictures = three_states(page.folder, "tab_%d" % height, pane_button(104, height, accent=accent))
    for i, (key, action, caption) in enumerate(entries):
        left = round(x + i * step)
        page.button(key, (left, y, round(x + (i + 1) * step) - left - 5, height), action, pictures, "T", "W", caption)


def seek_bar(page, rect, plate_height, plate_top, locks):
    x, y, width, height = rect
    image, pen = style.surface(WIDE, height)
    style.paste(pen, art.plate_slice(plate_height, plate_top, height, WIDE))
    pen.rectangle(0, 2, WIDE, height - 4)
    style.fill(pen, style.vertical(2, height - 2, (0, style.BLACK, 0.9), (1, "27407a", 0.9)))
    page.info("Seeker", rect, LABEL, page.folder.png(image, "seek_ground"), SMALL, ICE, locks, Seeker=True,
              SeekerColor=skin_colour(TEAL), SeekTopOffset=3, SeekBottomOffset=3, SeekLeftOffset=1, SeekRightOffset=1,
              name="Seek bar")


def display(page, rect, peep=40):
    """Record, sleeve, what is playing, the seek bar, an equaliser and the dial; `peep` pixels of the record are seen."""
    x, y, width, height = rect
    art.slices(page.folder, page, page.key.split("-")[0] + "Display", art.plate(width, height, 14), rect,
               (24, width - 24), (), "T")
    frames = [art.record(96, 360 * i / 12) for i in range(12)]
    page.picture("Record", (x + 12 + peep, y + 9, 96, 96), "LT", UseTopLeftTransparency=True,
                 PicNormal=page.folder.animated_gif(frames, "record", art.PLATE_TOP, 80), name="Spinning record")
    page.info("Sleeve", (x + 10, y + 8, 98, 98), ALBUM_PICTURE, page.folder.jpg(art.album(98), "sleeve"), SMALL, ICE,
              "LT", CaptionY=80)
    left, right = x + 120 + peep, x + width - 200
    space = right - 8 - left
    lines = (("SongTitle", SONG, 6, 28, TITLE, ICE), ("ArtistName", ARTIST_NAME, 34, 22, ARTIST, TEAL),
             ("AlbumName", ALBUM, 56, 16, SMALL, MIST), ("SongInfo", SONG_INFO, 72, 16, SMALL, MIST))
    for key, kind, top, part, font, colour in lines:
        page.info(key, (left, y + top, space, part), kind, page.ground(height, top, part, WIDE), font, colour, "LTR")
    seek_bar(page, (left, y + 91, space, 14), height, 91, "LTR")
    frames = [art.equaliser(90, 60, i) for i in range(16)]
    page.picture("Equaliser", (right, y + 12, 90, 60), "RT", UseTopLeftTransparency=False,
                 PicNormal=page.folder.animated_gif(frames, "equaliser", art.PLATE_BOTTOM, 90), name="Dancing bars")
    times = page.ground(height, 86, 20)
    page.info("Elapsed", (right, y + 86, 44, 20), ELAPSED, times, DIGITS, GREEN, "RT")
    page.info("Remaining", (right + 46, y + 86, 44, 20), REMAINING, times, DIGITS, MIST, "RT")
    page.picture("DialRing", (x + width - 102, y + 9, 96, 96), "RT", PicNormal=page.folder.png(art.dial_ring(96), "dial_ring"))
    page.add("Dial", VOLUME, (x + width - 98, y + 13, 88, 88), "RT", UseTransparency=True, ShowSmooth=True,
             PicNormal=page.folder.png(art.dial(88), "dial"), VolumeChangeable=True, name="Volume dial")


def clock_plate(page, y, kind, locks="T"):
    page.plate("ClockPlate", (392, y, 240, 38), locks)
    page.info("Status", (404, y + 8, 110, 22), kind, page.ground(38, 8, 22), TAB, GREEN, locks)
    page.picture("Lamp", (520, y + 13, 12, 12), locks, UseTopLeftTransparency=True,
                 PicNormal=page.folder.gif(art.lamp(12, GREEN), "lamp", art.PLATE_TOP))
    page.info("Clock", (542, y + 8, 82, 22), TIME, page.ground(38, 8, 22), CLOCK, ICE, locks, CaptionY=0)


# ---- the layouts ----------------------------------------------------------------------------------------------------------

def standard(skin, folder):
    page = Page(skin, "Standard", folder)
    window(page, "standard", scene.Outline(SIZE, (24, 746), 30, (322, 702), (322, 702)), 74, 656)
    brand(page, 32)
    clock_plate(page, 18, STATUS)
    window_buttons(page, 33)
    display(page, (16, 84, 992, 114))
    tabs(page, (("Albums", ALBUMS, "Albums"), ("Artists", ARTISTS, "Artists"), ("Songs", SONGS, "Songs"),
                ("Special", SPECIAL, "Special"), ("Playlist", PLAYLIST, "Playlist"), ("Top100", TOP, "Top 100")),
         (16, 206, 640, 40), 6)
    page.picture("SearchField", (720, 207, 204, 38), "T", "W", IsSearch=True,
                 PicNormal=folder.png(art.search_field(204, 38), "search_field"))
    page.add("SearchBox", SEARCH, (756, 215, 152, 22), "T", "W", TextColor=skin_colour(ICE), Font=ARTIST,
             BackgroundColor=skin_colour("0a1730"), name="Search Box")
    page.button("Magic", (659, 197, 58, 58), MAGIC, three_states(folder, "magic", art.diamond(58), folder.png), "T", "W",
                Rotation=45, name="Magic, turned by 45 degrees")
    pictures = three_states(folder, "keyboard", pane_button(76, 38, "keyboard"))
    page.button("Keyboard", (932, 206, 76, 40), KEYBOARD, pictures, "T", "W")
    main_panel(page, (24, 264, 932, 376))
    scroller(page, 970, 256, 392)
    transport(page, 705)
    small_buttons(page, 20, 663, (("Shuffle", SHUFFLE, "shuffle", TEAL), ("Repeat", REPEAT, "repeat", TEAL),
                                  ("Delete", DELETE, "delete", ROSE), ("Favourites", 47, "heart", ROSE)), "LB")
    volume_group(page, 894, 660)
    grip(page, 990, 718)


def kiosk(skin, folder):
    page = Page(skin, "Kiosk-Mode", folder)
    window(page, "kiosk", scene.Outline(SIZE, (14, 768), 40, (200, 824), (0, 0), STRETCHED, 90), 80, 668)
    page.picture("Wordmark", (30, 28, 196, 42), "LT", PicNormal=folder.png(art.wordmark(196, 42), "wordmark_large"),
                 Dragger=True)
    page.plate("TitlePlate", (240, 16, 544, 52), "LTR", 12)
    page.info("NowPlaying", (254, 25, 516, 34), FULL_TITLE, page.ground(52, 9, 34, WIDE), TITLE, ICE, "LTR", CapScrollSpeed=3)
    page.plate("ClockPlate", (800, 22, 106, 40), "RT")
    page.info("Clock", (810, 30, 88, 24), TIME, page.ground(40, 8, 24), CLOCK, GREEN, "RT", CaptionY=1)
    pictures = three_states(folder, "window_close", pane_button(34, 34, "close", 7, ROSE, 0.45))
    page.button("Close", (924, 25, 34, 34), CLOSE, pictures, "RT")
    side = (("Albums", ALBUMS, "album"), ("Artists", ARTISTS, "artist"), ("Songs", SONGS, "song"),
            ("Top100", TOP, "trophy"), ("Special", SPECIAL, "special"), ("Playlist", PLAYLIST, "playlist"))
    captions = {"Top100": "Top 100"}
    for i, (key, action, symbol) in enumerate(side):
        pictures = three_states(folder, "side_" + symbol, pane_button(156, 76, symbol, 14, part=0.44, left=14))
        page.button(key, (20, 114 + i * 89, 156, 76), action, pictures, "L", "H", captions.get(key, key),
                    Font("Tahoma", 13, True), CaptionX=48, CaptionY=26)
    main_panel(page, (200, 108, 752, 536))
    page.picture("SearchField", (20, 718, 170, 36), "LB", IsSearch=True,
                 PicNormal=folder.png(art.search_field(170, 36), "search_field_kiosk"))
    page.add("SearchBox", SEARCH, (54, 725, 122, 22), "LB", TextColor=skin_colour(ICE), Font=ARTIST,
             BackgroundColor=skin_colour("0a1730"), name="Search Box")
    scroller(page, 966, 100, 552, 40)
    big = (("Back", BACK, "back", TEAL), ("Keyboard", KEYBOARD, "keyboard", TEAL))
    small_buttons(page, 20, 678, big, "LB", 82, 6)
    for i, (key, action, symbol) in enumerate((("ListUp", UP, "up"), ("ListDown", DOWN, "down"))):
        pictures = three_states(folder, "wide_" + symbol, pane_button(100, 70, symbol, 16, GREEN, 0.5))
        page.button(key, (409 + i * 106, 681, 100, 70), action, pictures, "B")
    page.plate("CreditPlate", (834, 685, 170, 62), "RB", 12)
    page.picture("Coin", (840, 693, 46, 46), "RB", PicNormal=folder.png(coin(46), "coin"), Rotation=-12.5)
    page.info("CreditLabel", (890, 692, 58, 22), LABEL, page.ground(62, 7, 22), TAB, MIST, "RB", InfoField="Credits")
    page.info("Credits", (950, 692, 48, 46), CREDITS, page.ground(62, 7, 46), Font("Arial", 16, True), AMBER, "RB")
    page.info("Found", (890, 715, 58, 20), FOUND, page.ground(62, 30, 20), SMALL, TEAL, "RB")


def coin(size):
    image, pen = style.surface(size, size)
    middle = size / 2
    style.disc(pen, middle, middle, middle - 3)
    style.fill(pen, style.vertical(0, size, (0, "ffe9b0", 1), (0.5, AMBER, 1), (1, "a8671c", 1)))
    style.disc(pen, middle, middle, middle - 8)
    style.stroke(pen, "7a4a10", 0.7, 1.5)
    art.icon(pen, "song", middle - size * 0.2, middle - size * 0.2, size * 0.38, "6a3c08")
    return image


def admin(skin, folder):
    page = Page(skin, "Admin-Mode", folder)
    window(page, "admin", scene.Outline(SIZE, (0, 768), 22, (0, 1024), (0, 1024), STRETCHED, 0), 60, 684)
    brand(page, 13)
    page.plate("ListPlate", (392, 11, 240, 38), "T")
    page.info("PlaylistName", (404, 19, 146, 22), LIST_NAME, page.ground(38, 8, 22), TAB, GREEN, "T")
    page.info("PlaylistDuration", (556, 19, 66, 22), LIST_DURATION, page.ground(38, 8, 22), DIGITS, ICE, "T")
    window_buttons(page, 13)
    display(page, (148, 70, 860, 114), 18)
    rows = (("LoadList", LOAD, "Load", "playlist"), ("SaveList", SAVE, "Save", "album"),
            ("Generator", GENERATOR, "Generate", "magic"), ("AutoPlay", AUTOPLAY, "Auto play", "play"),
            ("AutoStop", AUTOPLAY_STOP, "Auto stop", "stop"), ("Video", VIDEO, "Video", "video"),
            ("Lyrics", LYRICS, "Lyrics", "lyrics"), ("Equalizer", EQUALISER, "Equalizer", "equaliser"),
            ("Tempo", TEMPO, "Tempo", "tempo"), ("Script", SCRIPT, "Script", "script"))
    for i, (key, action, caption, symbol) in enumerate(rows):
        pictures = three_states(folder, "tool_" + symbol, pane_button(120, 52, symbol, 11, VIOLET if i > 4 else TEAL, 0.5, 10))
        more = {"dbScript": "Tidy up"} if action == SCRIPT else {}
        page.button(key, (16, 80 + i * 59, 120, 52), action, pictures, "L", "H", caption, CaptionX=26, CaptionY=16, **more)
    page.plate("SidePlate", (948, 200, 60, 476), "RTB", 12)
    low, high = art.volume_column(40, False), art.volume_column(40, True)
    page.info("VolumeColumn", (958, 214, 40, 448), LOUDNESS, folder.png(low, "column_0"), SMALL, ICE, "RTB", Value=1,
              PicOn=folder.png(high, "column_100"), VolumeChangeable=True)
    main_panel(page, (156, 208, 772, 460))
    page.add("SearchBox", SEARCH, (330, 85, 200, 25), "LT", Visible=False, BackgroundColor=0xFFFFFF, name="Search Box")
    page.add("Scrollbar", SCROLLBAR, (954, 200, 40, 450), "RTB", Visible=False, BackgroundColor=0x8000000F)
    transport(page, 725, 72)
    page.plate("StatePlate", (20, 701, 116, 48), "LB", 10)
    for i, (key, kind, label) in enumerate((("RepeatState", REPEATING, "Repeat"), ("ShuffleState", SHUFFLING, "Shuffle"))):
        y = 706 + i * 19
        ground = page.ground(48, 5 + i * 19, 19)
        page.info(key + "Label", (30, y, 50, 19), LABEL, ground, SMALL, MIST, "LB", InfoField=label)
        page.info(key, (82, y, 48, 19), kind, ground, SMALL, GREEN, "LB")
    small_buttons(page, 882, 687, (("Rewind", REWIND, "rewind", TEAL), ("Forward", FORWARD, "forward", TEAL),
                                   ("AutoCue", AUTO_CUE, "clock", VIOLET), ("AutoMode", AUTO_MODE, "repeat", VIOLET)), "RB")
    for element in page.elements:
        if element["ActionType"] in (FORWARD, REWIND):
            element["Value"] = 10
    grip(page, 992, 740)


def preferences(skin, pictures):
    row = Font("Tahoma", 13, True)
    skin.prefer(**pictures)
    skin.prefer(
        SP_BackgroundPicture="backdrop.jpg", SP_SkinInformation="Aurora: glass and northern lights",
        SP_ColLight=skin_colour("16264c"), SP_ColBack=skin_colour("1a3a66"), SP_ColDark=skin_colour(NIGHT),
        SP_ButtonFont=Font("Tahoma", 9, True), SP_ButtonColor=skin_colour("1d3a66"), SP_ListFont=Font("Tahoma", 9),
        SP_SEListFont=Font("Tahoma", 9), SP_ListColor=skin_colour("0a1730"), SP_ListFontColor=skin_colour(ICE),
        SP_BMListFont=Font("Tahoma", 8), SP_BMSEListFont=Font("Tahoma", 8), SP_BMListColor=skin_colour("0a1730"),
        SP_BMListFontColor=skin_colour(ICE))
    for family in ("AA", "IN", "SO", "KB", "SL"):
        skin.prefer(**{family + "_Transparency": True, family + "_UseTopLeftTransparency": False,
                       family + "_TransparentColor": 0xFF00FF})
        if family != "KB":
            skin.prefer(**{family + "_Smooth": True})
    skin.prefer(
        AA_Font=Font("Wingdings", 17), AA_CapOffsetX=0, AA_CapOffsetY=6, AA_TextColor=skin_colour(ICE),
        IN_Font=Font("Webdings", 18), IN_CapOffsetX=0, IN_CapOffsetY=7, IN_Width=42, IN_Height=42, IN_Margin=4,
        IN_TextColor=skin_colour(TEAL),
        SO_Height=42, SO_Margin=4, SOD_IconsRateX=10, SOD_IconsRateY=22, SOD_IconsUserX=88, SOD_IconsUserY=22,
        SOS_SongFontS=row, SOD_SongFontD=row, SOD_ArtistFont=Font("Tahoma", 8),
        SOD_SongXTrim=14, SOD_ArtistXTrim=14, SOS_SongXTrim=32, SOS_SongOffsetYS=9, SOS_SongCapAlign=0, SO_IconsX=10,
        SO_SongTextColor=skin_colour(ICE), SOD_ArtistTextColor=skin_colour(TEAL), SO_ShadowColor=0,
        KB_Font=Font("Arial", 14, True), KBU_Font=Font("Wingdings", 16), KBB_Font=Font("Wingdings", 16),
        KB_TextColor=skin_colour(ICE), KB_Shadow=True,
        SL_Width=38, SL_Font=Font("Tahoma", 8, True), SL_TextColor=skin_colour(MIST), SL_SelTextColor=skin_colour(GREEN),
        PI_Font=Font("Tahoma", 9), PI_FontSizeFactor=0.65, PI_TextShadow=True, PI_TextColor=skin_colour(ICE), PI_PictureBorderColor=skin_colour(TEAL),
        PI_PictureShadowColor=skin_colour("03060f"),
        LA_Font=Font("Tahoma", 16, True), LA_TextColor=skin_colour(ICE))


def make(path):
    folder = style.Folder(path)
    skin = Skin(path, *SIZE)
    folder.jpg(scene.backdrop(*SIZE), "backdrop", 90)
    for layout in (standard, kiosk, admin):
        layout(skin, folder)
    preferences(skin, art.preference_pictures(folder))
    image, pen = style.surface(320, 240)
    pen.scale(320 / SIZE[0], 240 / SIZE[1])
    style.paste(pen, mock.compose(skin.layouts[0]))
    skin.prefer(SP_PicPreview=folder.jpg(style.flatten(image, NIGHT), "preview"))
    skin.write()
    return skin
