// SPDX-License-Identifier: MIT
#include "render/style_builders.h"

#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <type_traits>

#include "base/failure.h"
#include "document/current_skin.h"
#include "render/key_colour.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/skin_picture.h"
#include "render/song_layers.h"
#include "render/target.h"

namespace ornavo {
namespace {

struct Family;

/// A button under its family: where a step reads and what it sets.
struct Styling {
    const Family& family;
    TileButton& button;
    std::string_view pictures;  // prefix of the three pictures' keys
    int mode;                   // of a song row

    Value Read(std::string_view name) const;
};

using Step = void (*)(const Styling&);

struct Family {
    std::string_view prefix;
    std::span<const Step> steps;
    std::string_view fontKey;
    double fontSize;  // of a font made on first use, points
    bool hasText;     // the caption has its text from the preference
};

Value Styling::Read(std::string_view name) const {
    return Pref(std::string(family.prefix).append("_").append(name)).value;
}

/// One statement of a step: a preference by its name without the prefix, converted to the field's type.
template <class T>
void Take(const Styling& styling, T& field, std::string_view name) {
    Attempt([&] {
        const Value value = styling.Read(name);
        if constexpr (std::is_same_v<T, bool>)
            field = value.ToBoolean();
        else if constexpr (std::is_same_v<T, std::string>)
            field = value.ToText();
        else if constexpr (std::is_same_v<T, float>)
            field = static_cast<float>(value.ToDouble());
        else
            field = value.ToLong();
    });
}

void Border(const Styling& s) {
    Take(s, s.button.State.BorderColor, "BorderColor");
    Take(s, s.button.State.ShowBorder, "ShowBorder");
}

void Shadow(const Styling& s) {
    Take(s, s.button.State.UseShadow, "Shadow");
    Take(s, s.button.State.ShadowColor, "ShadowColor");
    Take(s, s.button.State.ShadowDistance, "ShadowDistance");
}

void Ground(const Styling& s) {
    Attempt([&] { s.button.State.BackStyle = s.Read("Transparency").ToBoolean() ? 0 : 1; });
    Take(s, s.button.State.UseTransparency, "Transparency");
    Take(s, s.button.State.TransColorTopLeft, "UseTopLeftTransparency");
}

void Width(const Styling& s) {
    Attempt([&] {
        const Rect now = s.button.Bounds();
        s.button.Move({now.left, now.top, s.Read("Width").ToLong(), now.height});
    });
}

void Height(const Styling& s) {
    Attempt([&] {
        const Rect now = s.button.Bounds();
        s.button.Move({now.left, now.top, now.width, s.Read("Height").ToLong()});
    });
}

void KeyColour(const Styling& s) {
    Attempt([&] {
        dbSkinPref& stored = Pref(std::string(s.family.prefix) + "_TransparentColor");
        bool isTopLeft = false;
        Attempt([&] { isTopLeft = s.Read("UseTopLeftTransparency").ToText() == "True"; });
        ExchangeTransparentColor(s.button, isTopLeft, objSkin, stored.value.ToLong(),
                                 [&](Colour colour) { stored.value = colour; });
    });
}

void Smooth(const Styling& s) {
    Take(s, s.button.State.ShowSmooth, "Smooth");
}

void Rotation(const Styling& s) {
    Attempt([&] {
        const double angle = s.Read("Rotation").ToDouble();
        s.button.State.UseRotation = angle != 0;
        if (angle != 0) s.button.State.Rotation = angle;
    });
}

void Pictures(const Styling& s) {
    TileButton& button = s.button;
    const auto take = [&](PictureRef& plain, std::string& animated, const char* name) {
        Attempt([&] { SetTilePicture(plain, animated, PrefText(std::string(s.pictures) + name)); });
    };
    take(button.Picture, button.AniPicture, "_Picture");
    take(button.PictureDown, button.AniPictureDown, "_PictureDown");
    take(button.PictureOver, button.AniPictureOver, "_PictureOver");
}

void Caption(const Styling& s) {
    s.button.Elements.Clear();
    TileLayer& layer = s.button.Elements.Add("Caption");
    if (s.family.hasText) Take(s, layer.Text, "Caption");
    Take(s, layer.Top, "CapOffsetY");
    Take(s, layer.Left, "CapOffsetX");
    layer.RightTrim = -layer.Left;
    TakeFont(layer, s.family.fontKey, s.family.fontSize);
    Take(s, layer.ForeColor, "TextColor");
}

void Songs(const Styling& s) {
    SetupSongLayers(s.button, s.mode);
}

struct KeyCaption {
    std::string_view prefix, text, textKey, fontKey;
};
constexpr std::array KeyCaptions = {
    KeyCaption{"KBN", "X", "", "KB_Font"},
    KeyCaption{"KBE", "Enter", "", "KB_Font"},
    KeyCaption{"KBS", "Space", "", "KB_Font"},
    KeyCaption{"KBB", "", "KBB_Caption", "KBB_Font"},
    KeyCaption{"KBU", "", "KBU_Caption", "KBU_Font"},
};

void KeyLayer(const Styling& s) {
    constexpr float top = 3;
    s.button.Elements.Clear();
    TileLayer& layer = s.button.Elements.Add("Key");
    layer.Top = top;
    Take(s, layer.ForeColor, "TextColor");
    for (const KeyCaption& key : KeyCaptions) {
        if (key.prefix != s.pictures) continue;
        layer.Text = key.text;
        if (!key.textKey.empty()) Attempt([&] { layer.Text = PrefText(key.textKey); });
        TakeFont(layer, key.fontKey, s.family.fontSize);
    }
}

constexpr Step InfoSteps[] = {Border,    Shadow, Ground,   Width,    Height,
                              KeyColour, Smooth, Rotation, Pictures, Caption};
constexpr Step AddAllSteps[] = {Border, Shadow, Ground, KeyColour, Smooth, Rotation, Pictures, Caption};
constexpr Step LetterSteps[] = {Border, Shadow,   Ground,   Width,  KeyColour,
                                Smooth, Rotation, Pictures, Caption};
constexpr Step SongSteps[] = {Border, Shadow, Ground, KeyColour, Smooth, Rotation, Pictures, Height, Songs};
constexpr Step KeySteps[] = {Ground, KeyColour, Pictures, Shadow, KeyLayer};

constexpr Family InfoFamily = {"IN", InfoSteps, "IN_Font", 18, true};
constexpr Family AddAllFamily = {"AA", AddAllSteps, "AA_Font", 22, true};
constexpr Family LetterFamily = {"SL", LetterSteps, "SL_Font", 8, false};
constexpr Family SongFamily = {"SO", SongSteps, "", 0, false};
constexpr Family KeyFamily = {"KB", KeySteps, "", 16, false};

void Style(const Family& family, TileButton& button, std::string_view pictures, int mode = 0) {
    const Styling styling = {family, button, pictures, mode};
    for (const Step step : family.steps) step(styling);
}

void StyleAndRefresh(const Family& family, TileButton& button) {
    Style(family, button, family.prefix);
    button.Refresh();
}

}  // namespace

void SetupInfoButton(TileButton& button) {
    StyleAndRefresh(InfoFamily, button);
}

void SetupAddAllButton(TileButton& button) {
    StyleAndRefresh(AddAllFamily, button);
}

void SetupSongButton(TileButton& button, int mode) {
    Style(SongFamily, button, SongFamily.prefix, mode);
    button.Refresh();
}

void SetupKey(TileButton& button, std::string_view prefix) {
    Style(KeyFamily, button, prefix);
    button.Refresh();
}

void StyleLetter(TileButton& button) {
    Style(LetterFamily, button, LetterFamily.prefix);
}

void SetupLetterStyle(TileButton& button) {
    StyleAndRefresh(LetterFamily, button);
}

void SetupSearchBox(TextBox& box) {
    Attempt([&] {
        const FontRef font = Pref("TB_Font").Font;
        if (!font) throw Failure(91, "SetupSearchBox", "Object variable not set");
        box.SetFont(*font);
    });
    Attempt([&] { box.SetBackColor(Pref("TB_BackColor").value.ToLong()); });
    Attempt([&] { box.SetForeColor(Pref("TB_TextColor").value.ToLong()); });
    Attempt([&] { box.SetBorderStyle(Pref("TB_Border").value.ToBoolean() ? 1 : 0); });
}

void SetupKioskLabels() {
    constexpr double fontSize = 16;
    LayoutHost& host = TargetForm->host();
    const auto label = [&](Label& one, std::string_view colourKey) {
        Attempt([&] { one.ForeColor = Pref(colourKey).value.ToLong(); });
        Attempt([&] { one.Font = *GetPrefFont("LA_Font", fontSize); });
        one.Refresh();
    };
    label(host.lbl_Kiosk, "LA_TextColor");
    label(host.lbl_KioskShadow, "LA_ShadowColor");
    Attempt([&] { host.lbl_KioskShadow.setVisible(Pref("LA_Shadow").value.ToBoolean()); });
    TileButton& letters = host.lbl_SL[0];
    Attempt([&] { letters.State.UseShadow = Pref("SL_Shadow").value.ToBoolean(); });
    letters.State.ShadowDistance = 1;
    Attempt([&] { letters.State.ShadowColor = Pref("SL_ShadowColor").value.ToLong(); });
    letters.Refresh();
}

void TakeTransparentColor(std::string_view prefix) {
    LayoutHost& host = TargetForm->host();
    const std::initializer_list<std::pair<std::string_view, TileButton*>> members = {
        {"AA", &host.but_AddAll}, {"IN", &host.but_Info}, {"SO", &host.but_Song}, {"SO", &host.but_Song2},
        {"KB", &host.KeyN},       {"KB", &host.KeyB},     {"KB", &host.KeyE},     {"KB", &host.KeyU},
        {"KB", &host.KeyS},       {"", &host.ScrollBar}};
    for (const auto& [family, button] : members)
        if (family == prefix) button->ColourOwner.reset();
    if (prefix == "SL")
        for (int slot = 1; slot <= host.lbl_SL.Top(); ++slot) host.lbl_SL[slot].ColourOwner.reset();
}

}  // namespace ornavo
