// SPDX-License-Identifier: MIT
// An animated GIF that provides its frames while it runs.
#pragma once

#include <QImage>
#include <QMovie>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/pictures.h"

namespace ornavo {

/// Plays an animated GIF and calls `onFrame` for each new frame.
class TileMovie {
public:
    /// Starts paused at its first frame. The frame is null if the file is not an animated GIF or exceeds the
    /// limits of pictures.
    TileMovie(std::string path, std::function<void()> onFrame);

    const std::string& Path() const { return path_; }
    const QImage& Frame() const { return frame_; }  // RGB32 or premultiplied ARGB32
    void Run(bool run);                             // runs on from the present frame, or pauses
    bool IsRunning() const { return movie_.state() == QMovie::Running; }
    bool IsStale() const;  // the file has changed since it was opened

private:
    void TakeFrame(QImage next);

    std::string path_;
    std::filesystem::file_time_type time_;
    PictureMemory memory_;
    QMovie movie_;
    QImage frame_;
};

}  // namespace ornavo
