// SPDX-License-Identifier: MIT
#include "playback/info_show.h"

#include <QPainter>

#include "base/failure.h"
#include "base/find_row.h"
#include "base/numbers.h"
#include "document/codes.h"
#include "platform/clock.h"
#include "render/element_info.h"
#include "render/skin_picture.h"

namespace ornavo {
namespace {

/// The sample text of an info type.
struct Sample {
    InfoTypeCode infoType;
    const char* text;
};
constexpr Sample Samples[] = {
    {InfoSongTitle, "The Lantern Over The Reef"},
    {InfoArtistAndSongTitle, "Quillmar - The Lantern Over The Reef"},
    {InfoArtistName, "Quillmar"},
    {InfoAlbumName, "The Tide Comes Over You!"},
    {InfoStatus, "Playing"},
    {InfoElapsedTime, "00:10"},
    {InfoSongDuration, "03:45"},
    {InfoRemainingTime, "01:00"},
    {InfoSongInfo, "128 Kbps / 44KHz / Stereo"},
    {InfoRepeatStatus, "On"},
    {InfoShuffleStatus, "Off"},
    {InfoCredits, "7"},
    {InfoSearchTotal, "123"},
};

void DrawPart(PictureBox& box, const PictureRef& picture, int width, int height) {
    box.Draw([&](QPainter& painter) {
        const QRect part = QRect(0, 0, width, height) & picture->image().rect();
        painter.fillRect(part, ScreenColour(box.BackColor()));  // the picture may be transparent in places
        painter.drawImage(part, picture->image(), part);
    });
}

/// The control of the element's slot; null if the slot has another element.
template <class T>
T* Host(const Pool<T>& pool, const dbLayoutElement& element) {
    const int slot = element.ControlIndex;
    return slot > 0 && slot <= pool.Top() && pool[slot].Tag == element.Key ? &pool[slot] : nullptr;
}

}  // namespace

void ShowInfoVolume(PictureBox& box, int volume, const dbLayoutElement& element) {
    const Rect bounds = box.Bounds();
    const PictureRef on = LoadSkinPicture(element.PicOn);
    if (element.Value == 0) {
        if (!on) return;
        box.Cls();
        const int width = ToLong(static_cast<double>(bounds.width) * volume / VolumeTop);
        return DrawPart(box, on, width, bounds.height);
    }
    const PictureRef off = LoadSkinPicture(element.PicNormal);
    if (!off) return;
    if (on) box.SetPicture(on);
    box.Cls();
    const int height = ToLong(bounds.height - static_cast<double>(bounds.height) * volume / VolumeTop);
    DrawPart(box, off, bounds.width, height);
}

std::string FirstText(const dbLayoutElement& element) {
    if (element.InfoType == InfoSystemTime) return TimeOfDay();
    if (const Sample* sample = FindRow(Samples, &Sample::infoType, element.InfoType)) return sample->text;
    if (element.Seeker) return element.Caption;
    return element.InfoType == InfoUserLabel ? element.InfoField : "";
}

void InfoShow::Begin(LayoutHost& host, const dbLayout& layout) {
    infos_.clear();
    dials_.clear();
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
        PictureBox* box = element->ElementType == TypeInfo ? Host(host.pInfo, *element) : nullptr;
        TileButton* dial = element->ElementType == TypeVolume ? Host(host.Element, *element) : nullptr;
        if (box) infos_.push_back({element, box, {.Caption = element->Caption}, {}});
        if (dial) dials_.push_back(dial);
    }
    SetupInfos();
    for (Info& info : infos_)
        if (info.element->Seeker) Draw(info);
    ShowLine();
}

void InfoShow::SetupInfos() {
    for (const Sample& sample : Samples) SetInfoCaption(sample.infoType, sample.text);
    SetInfoCaption(InfoSystemTime, TimeOfDay());
}

void InfoShow::SetInfoCaption(std::int32_t infoType, const std::string& text) {
    for (Info& info : infos_) {
        if (info.element->InfoType != infoType) continue;
        info.caption = NewCaption(text, info.box->TextWidth(text));
        Draw(info);
    }
}

void InfoShow::ShowLine() {
    const int angle = VolumeAngle(Volume);
    for (TileButton* dial : dials_) {
        dial->State.UseRotation = true;
        dial->State.Rotation = angle;
        dial->Refresh();
    }
    for (Info& info : infos_) {
        if (info.element->InfoType != InfoVolume) continue;
        Attempt([&] { ShowInfoVolume(*info.box, Volume, *info.element); });
        info.drawn.reset();
    }
}

/// Draws the bar with the text over it, unless the box shows exactly that.
void InfoShow::Draw(Info& info) const {
    const dbLayoutElement& element = *info.element;
    PictureBox& box = *info.box;
    const Rect bounds = box.Bounds();
    Look look = {{}, info.caption.ScrollPos, info.caption.Caption};
    if (element.Seeker)
        Attempt([&] {
            look.bar = SeekBarRect({element.SeekLeftOffset, element.SeekTopOffset, element.SeekRightOffset,
                                    element.SeekBottomOffset},
                                   {bounds.width, bounds.height}, SeekPos);
        });
    if (look == info.drawn) return;
    box.Cls();
    if (look.bar.width > 0 && look.bar.height > 0)
        box.Draw([&](QPainter& painter) {
            painter.fillRect(look.bar.left, look.bar.top, look.bar.width, look.bar.height,
                             ScreenColour(element.SeekerColor));
        });
    DrawInfoText(box, look.text, {look.textLeft, element.CaptionY});
    info.drawn = std::move(look);
}

void InfoShow::tmrScroller_Timer() {
    for (Info& info : infos_) {
        const dbLayoutElement& element = *info.element;
        if (ScrollStep(info.caption, info.box->Bounds().width, element.CapScrollSpeed, element.Seeker))
            Draw(info);
    }
}

void InfoShow::tmrSeekerDemo_Timer() {
    SeekPos = SeekStep(SeekPos);
    SetInfoCaption(InfoSystemTime, TimeOfDay());
}

}  // namespace ornavo
