// SPDX-License-Identifier: MIT
#include "render/style_builders.h"

#include <span>
#include <string>
#include <type_traits>

#include "base/failure.h"
#include "document/current_skin.h"
#include "render/key_colour.h"
#include "render/layout_host.h"
#include "render/prefs.h"
#include "render/sample_family.h"
#include "render/skin_picture.h"
#include "render/song_layers.h"
#include "render/target.h"

namespace ornavo {
namespace {

/// A button to style and its family.
struct Styling {
    const SampleFamily& family;
    TileButton& button;

    Value Read(std::string_view name) const {
        return Pref(std::string(family.prefix).append("_").append(name)).value;
    }
};

using Step = void (*)(const Styling&);

/// Sets a field from a preference, which is named without its prefix and converted to the field's type.
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

void TakePictures(const Styling& s, const std::string& prefix) {
    TileButton& button = s.button;
    const auto take = [&](auto set, PictureRef& plain, std::string& animated, const char* name) {
        Attempt([&] { set(plain, animated, PrefText(prefix + name)); });
    };
    take(SetTilePicture, button.Picture, button.AniPicture, "_Picture");
    take(SetSeldomPicture, button.PictureDown, button.AniPictureDown, "_PictureDown");
    take(SetSeldomPicture, button.PictureOver, button.AniPictureOver, "_PictureOver");
}

void Pictures(const Styling& s) {
    TakePictures(s, std::string(s.family.prefix));
}

void KeyPictures(const Styling& s) {  // each key has its own
    TakePictures(s, std::string(s.family.prefix).append(s.family.suffix));
}

void TakeText(TileLayer& layer, const SampleCaption& caption) {
    layer.Text = caption.text;
    if (!caption.textKey.empty()) Attempt([&] { layer.Text = PrefText(caption.textKey); });
    TakeFont(layer, caption.fontKey, caption.fontSize);
}

void Caption(const Styling& s) {
    s.button.Elements.Clear();
    TileLayer& layer = s.button.Elements.Add("Caption");
    Take(s, layer.Top, "CapOffsetY");
    Take(s, layer.Left, "CapOffsetX");
    layer.RightTrim = -layer.Left;
    TakeText(layer, s.family.caption);
    Take(s, layer.ForeColor, "TextColor");
}

void KeyCaption(const Styling& s) {
    constexpr float top = 3;
    s.button.Elements.Clear();
    TileLayer& layer = s.button.Elements.Add("Key");
    layer.Top = top;
    Take(s, layer.ForeColor, "TextColor");
    TakeText(layer, s.family.caption);
}

void Songs(const Styling& s) {
    SetupSongLayers(s.button, s.family.suffix == "D" ? SongRow::TwoLines : SongRow::OneLine);
}

constexpr Step InfoSteps[] = {Border,    Shadow, Ground,   Width,    Height,
                              KeyColour, Smooth, Rotation, Pictures, Caption};
constexpr Step AddAllSteps[] = {Border, Shadow, Ground, KeyColour, Smooth, Rotation, Pictures, Caption};
constexpr Step LetterSteps[] = {Border, Shadow,   Ground,   Width,  KeyColour,
                                Smooth, Rotation, Pictures, Caption};
constexpr Step SongSteps[] = {Border, Shadow, Ground, KeyColour, Smooth, Rotation, Pictures, Height, Songs};
constexpr Step KeySteps[] = {Ground, KeyColour, KeyPictures, Shadow, KeyCaption};

void Run(std::span<const Step> steps, const Styling& styling) {
    for (const Step step : steps) step(styling);
}

}  // namespace

void SetupInfoButton(const SampleFamily& family, TileButton& button) {
    Run(InfoSteps, {family, button});
}

void SetupAddAllButton(const SampleFamily& family, TileButton& button) {
    Run(AddAllSteps, {family, button});
}

void SetupSongButton(const SampleFamily& family, TileButton& button) {
    Run(SongSteps, {family, button});
}

void SetupKey(const SampleFamily& family, TileButton& button) {
    Run(KeySteps, {family, button});
}

void StyleLetter(const SampleFamily& family, TileButton& button) {
    Run(LetterSteps, {family, button});
}

void SetupSearchBox(TextBox& box) {
    Attempt([&] {
        const FontRef font = Pref("TB_Font").Font;
        if (!font) throw Failure(Failure::NothingSet, "SetupSearchBox");
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
    label(host.sample.lbl_Kiosk, "LA_TextColor");
    label(host.sample.lbl_KioskShadow, "LA_ShadowColor");
    Attempt([&] { host.sample.lbl_KioskShadow.setVisible(Pref("LA_Shadow").value.ToBoolean()); });
    TileButton& letters = host.sample.lbl_SL[0];
    Attempt([&] { letters.State.UseShadow = Pref("SL_Shadow").value.ToBoolean(); });
    letters.State.ShadowDistance = 1;
    Attempt([&] { letters.State.ShadowColor = Pref("SL_ShadowColor").value.ToLong(); });
    letters.Refresh();
}

}  // namespace ornavo
