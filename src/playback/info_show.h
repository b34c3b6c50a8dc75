// SPDX-License-Identifier: MIT
// A composed layout as if something played: texts that scroll, seek bars, dials and volume pictures on their
// controls. Texts and positions are its own; nothing of them is written to the elements.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/dblayouts.h"
#include "playback/steps.h"
#include "render/layout_host.h"

namespace ornavo {

class InfoShow {
public:
    int Volume = VolumeStart;
    double SeekPos = SongStart;  // milliseconds

    /// On controls that have just been composed: every sample text from its start, bars and volume as they
    /// are.
    void Begin(LayoutHost& host, const dbLayout& layout);
    void ShowLine();  // the volume has changed

    void tmrScroller_Timer();    // every ScrollInterval
    void tmrSeekerDemo_Timer();  // every SeekerInterval

private:
    struct Look {  // what is drawn on a box
        Rect bar;
        std::int32_t textLeft = 0;
        std::string text;
        bool operator==(const Look&) const = default;
    };
    struct Info {
        dbLayoutElementRef element;
        PictureBox* box;
        InfoCaption caption;
        std::optional<Look> drawn;  // null when it is not known
    };
    void SetupInfos();
    void SetInfoCaption(std::int32_t infoType, const std::string& text);
    void Draw(Info& info) const;

    std::vector<Info> infos_;  // those that have a box
    std::vector<TileButton*> dials_;
};

/// How far the volume picture of an element is filled; no change where its picture is missing.
void ShowInfoVolume(PictureBox& box, int volume, const dbLayoutElement& element);

}  // namespace ornavo
