// SPDX-License-Identifier: MIT
#include "platform/fonts.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>
#include <array>
#include <map>
#include <tuple>

#include "base/find_row.h"
#include "base/numbers.h"
#include "base/text.h"
#include "platform/shown.h"
#include "platform/symbol_fonts.h"

namespace ornavo {
namespace {

constexpr const char* DefaultFace = "Tahoma";
constexpr const char* LastResort = "DejaVu Sans";
constexpr const char* SymbolFace = "Symbola";
constexpr double DotsPerPoint = 96.0 / 72.0;
constexpr double MostPoints = 2000;
constexpr std::size_t MostFonts = 256;

using FontKey = std::tuple<std::string, int, bool, bool, bool, bool>;  // name, pixels, attributes

/// A face that skins name, and the installed face that replaces it.
struct StandIn {
    const char* asked;
    const char* used;
    int stretch = QFont::Unstretched;  // narrower, because the stand-in is wider than the original
};

constexpr std::array StandIns = {
    StandIn{"Tahoma", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"MS Sans Serif", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"MS Shell Dlg", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"Microsoft Sans Serif", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"Segoe UI", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"Trebuchet MS", "DejaVu Sans", QFont::SemiCondensed},
    StandIn{"Verdana", "DejaVu Sans"},
    StandIn{"Lucida Console", "DejaVu Sans Mono"},
    StandIn{"Arial", "Liberation Sans"},
    StandIn{"Helvetica", "Liberation Sans"},
    StandIn{"Arial Narrow", "Liberation Sans Narrow"},
    StandIn{"Times", "Liberation Serif"},
    StandIn{"Times New Roman", "Liberation Serif"},
    StandIn{"Georgia", "DejaVu Serif"},
    StandIn{"Courier", "Liberation Mono"},
    StandIn{"Courier New", "Liberation Mono"},
    StandIn{"Fixedsys", "Liberation Mono"},
};

const StandIn* StandInOf(std::string_view name) {
    return FindRowIf(StandIns, [&](const StandIn& one) { return EqualText(one.asked, name); });
}

/// The default face if the name is blank or a number.
std::string FaceOf(std::string_view name) {
    const std::string_view face = TrimBlanks(name);
    return face.empty() || IsNumeric(face) ? DefaultFace : std::string(face);
}

int PixelSize(double points) {
    const double known = points > 0 ? std::min(points, MostPoints) : 0;  // NaN becomes 0
    return std::max(1, static_cast<int>(std::lround(known * DotsPerPoint)));
}

QFont NewScreenFont(const Font& font) {
    const std::string face = FaceOf(font.Name);
    const bool symbols = IsSymbolFont(face);
    const StandIn* standIn = StandInOf(face);
    QFont screen;
    QStringList faces = {symbols ? QString(SymbolFace) : Shown(face)};
    if (standIn) faces << standIn->used;
    screen.setFamilies(faces << LastResort);
    screen.setPixelSize(PixelSize(font.Size));
    const bool stood = standIn && !QFontDatabase::hasFamily(screen.families().front());
    // A QFont starts as a copy of the application's font, stretch included.
    screen.setStretch(stood ? standIn->stretch : static_cast<int>(QFont::Unstretched));
    screen.setBold(font.Bold);
    screen.setItalic(font.Italic);
    screen.setUnderline(font.Underline);
    screen.setStrikeOut(font.Strikethrough);
    screen.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    screen.setHintingPreference(QFont::PreferVerticalHinting);
    return screen;
}

/// The fonts made so far, because making one costs more than drawing a caption.
std::map<FontKey, QFont>& MadeFonts() {
    static std::map<FontKey, QFont> made;
    return made;
}

void ForgetFonts() {
    MadeFonts().clear();
}

}  // namespace

QFont ScreenFont(const Font& font) {
    static const bool once = (qAddPostRoutine(ForgetFonts), true);
    static_cast<void>(once);
    const FontKey key = {font.Name,   PixelSize(font.Size), font.Bold,
                         font.Italic, font.Underline,       font.Strikethrough};
    std::map<FontKey, QFont>& made = MadeFonts();
    if (const auto found = made.find(key); found != made.end()) return found->second;
    if (made.size() >= MostFonts) made.clear();
    return made[key] = NewScreenFont(font);
}

QString ShownText(const Font& font, std::string_view text) {
    const QString plain = Shown(text);
    const std::string face = FaceOf(font.Name);
    return IsSymbolFont(face) ? SymbolText(face, plain) : plain;
}

std::string StandInFor(const Font& font) {
    const std::string used = QFontInfo(ScreenFont(font)).family().toStdString();
    return EqualText(used, FaceOf(font.Name)) ? "" : used;
}

void InstallFontSubstitutes() {
    for (const StandIn& one : StandIns) QFont::insertSubstitutions(one.asked, {one.used, LastResort});
}

}  // namespace ornavo
