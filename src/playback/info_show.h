// SPDX-License-Identifier: MIT
// Shows a composed layout as if a song were playing: scrolling texts, seek bars, dials and volume pictures.
// It has its own texts and positions, and does not change the elements.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/dblayouts.h"
#include "playback/steps.h"
#include "render/layout_host.h"

namespace ornavo {

/// The imitation of a playing song on the controls of a layout.
class InfoShow {
public:
    int Volume = VolumeStart;
    double SeekPos = SongStart;  // milliseconds

    /// Starts on controls that have just been composed: sets all sample texts and draws bars and volume.
    void Begin(LayoutHost& host, const dbLayout& layout);
    void ShowLine();  // call after a change of Volume

    void tmrScroller_Timer();    // every ScrollInterval
    void tmrSeekerDemo_Timer();  // every SeekerInterval

private:
    /// What is drawn on a box.
    struct Look {
        Rect bar;
        std::int32_t textLeft = 0;
        std::string text;
        bool operator==(const Look&) const = default;
    };
    /// An info element, its box and its caption.
    struct Info {
        dbLayoutElementRef element;
        PictureBox* box;
        InfoCaption caption;
        std::optional<Look> drawn;  // empty if unknown
    };
    void SetupInfos();
    void SetInfoCaption(std::int32_t infoType, const std::string& text);
    void Draw(Info& info) const;

    std::vector<Info> infos_;  // elements that have a box
    std::vector<TileButton*> dials_;
};

/// The text of an info element when the playback begins; "" for none.
std::string FirstText(const dbLayoutElement& element);

/// Draws how far the element's volume picture is filled. Does nothing if the picture is missing. `volume` is
/// 0 to VolumeTop.
void ShowInfoVolume(PictureBox& box, int volume, const dbLayoutElement& element);

}  // namespace ornavo
