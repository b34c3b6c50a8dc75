// SPDX-License-Identifier: MIT
#include "platform/startup.h"

#include <QApplication>
#include <QLocale>
#include <QPalette>
#include <QProxyStyle>
#include <QStandardPaths>
#include <array>

#include "base/numbers.h"
#include "base/text.h"
#include "platform/fonts.h"
#include "platform/panel_scale.h"

namespace ornavo {
namespace {

/// The Fusion style, except that a list opens below its box with a scroll bar instead of covering the screen.
class PanelStyle : public QProxyStyle {
public:
    PanelStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

/// A colour of the palette, 0xAARRGGBB.
struct Tone {
    QPalette::ColorRole role;
    QRgb normal;
    QRgb disabled;
};

/// Warm light neutrals and one blue, independent of the desktop's colours.
constexpr std::array Tones = {
    Tone{QPalette::Window, 0xFFEFEBE4, 0xFFEFEBE4},
    Tone{QPalette::WindowText, 0xFF26221D, 0xFF9A938A},
    Tone{QPalette::Base, 0xFFFFFFFF, 0xFFF5F2ED},
    Tone{QPalette::AlternateBase, 0xFFF7F4EF, 0xFFF2EFE9},
    Tone{QPalette::Text, 0xFF1E1A16, 0xFF9A938A},
    Tone{QPalette::PlaceholderText, 0xFF8C857B, 0xFFB0A99F},
    Tone{QPalette::Button, 0xFFEAE5DC, 0xFFEAE5DC},
    Tone{QPalette::ButtonText, 0xFF26221D, 0xFF9A938A},
    Tone{QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF},
    Tone{QPalette::Light, 0xFFFFFFFF, 0xFFFFFFFF},
    Tone{QPalette::Midlight, 0xFFF6F3EE, 0xFFF6F3EE},
    Tone{QPalette::Mid, 0xFFC3BBAE, 0xFFC3BBAE},
    Tone{QPalette::Dark, 0xFF9C9488, 0xFFB9B1A5},
    Tone{QPalette::Shadow, 0xFF5F584F, 0xFF8F877C},
    Tone{QPalette::Highlight, 0xFF2F5F9E, 0xFFC3BBAE},
    Tone{QPalette::HighlightedText, 0xFFFFFFFF, 0xFF6B645B},
    Tone{QPalette::Link, 0xFF1F4E8C, 0xFF9A938A},
    Tone{QPalette::LinkVisited, 0xFF6A3F86, 0xFF9A938A},
    Tone{QPalette::ToolTipBase, 0xFFFFFBE6, 0xFFFFFBE6},
    Tone{QPalette::ToolTipText, 0xFF26221D, 0xFF26221D},
};

QPalette LightPalette() {
    QPalette palette;
    for (const Tone& tone : Tones) {
        palette.setColor(QPalette::Active, tone.role, QColor::fromRgb(tone.normal));
        palette.setColor(QPalette::Inactive, tone.role, QColor::fromRgb(tone.normal));
        palette.setColor(QPalette::Disabled, tone.role, QColor::fromRgb(tone.disabled));
    }
    return palette;
}

/// Takes the user's number signs, or the English ones if a skin's file cannot hold the user's decimal sign.
void UseTheirNumberSigns() {
    const QLocale theirs = QLocale::system();
    const NumberSigns signs = {theirs.decimalPoint().toStdString(), theirs.groupSeparator().toStdString()};
    UseNumberSigns(FitsFile(signs.decimal) ? signs : NumberSigns());
}

}  // namespace

void PrepareProcess() {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::Floor);
}

void InitCommonControls(QApplication& application) {
    InstallFontSubstitutes();
    application.setStyle(new PanelStyle);
    application.setPalette(LightPalette());
    application.setFont(PanelFont(QApplication::font()));
    UseTheirNumberSigns();
}

std::string DataFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return data.toStdString() + "/ornavo";
}

}  // namespace ornavo
