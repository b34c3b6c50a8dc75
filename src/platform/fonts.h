// SPDX-License-Identifier: MIT
// Converts a skin's font to a font of the screen, with stand-ins for old and symbol fonts.
#pragma once

#include <QFont>
#include <QString>
#include <string>
#include <string_view>

#include "base/font.h"

namespace ornavo {

/// The screen's font. A point is 1/72 inch at 96 dpi on every screen: size * 96 / 72 pixels, rounded, at
/// least 1.
QFont ScreenFont(const Font& font);
/// The text as this font draws it: with a symbol font each character becomes its symbol.
QString ShownText(const Font& font, std::string_view text);
/// The installed face that is drawn instead of the font's; "" if it is the font's own.
std::string StandInFor(const Font& font);
/// Registers the stand-ins for the jukebox's usual faces. Call once, after QApplication and before the first
/// window.
void InstallFontSubstitutes();

}  // namespace ornavo
