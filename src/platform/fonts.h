// SPDX-License-Identifier: MIT
// The record of a font becomes a font of the screen, the old fonts' stand-ins and symbols included.
#pragma once

#include <QFont>
#include <QString>
#include <string_view>

#include "base/font.h"

namespace ornavo {

/// Points are 96-dpi points on every screen: size * 96 / 72 pixels, rounded, at least 1.
QFont ScreenFont(const Font& font);
/// The text as this font shows it: for a symbol font each character becomes its symbol.
QString ShownText(const Font& font, std::string_view text);
/// Stand-ins for the jukebox's usual faces. Once, after QApplication and before the first window.
void InstallFontSubstitutes();

}  // namespace ornavo
