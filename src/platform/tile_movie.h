// SPDX-License-Identifier: MIT
// An animated GIF that hands out its frames while it runs.
#pragma once

#include <QImage>
#include <QMovie>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/pictures.h"

namespace ornavo {

class TileMovie {
public:
    /// Stands at its first frame. A file that is none, or beyond the limits of pictures, has a null frame.
    TileMovie(std::string path, std::function<void()> onFrame);

    const std::string& Path() const { return path_; }
    const QImage& Frame() const { return frame_; }  // RGB32 or premultiplied ARGB32
    void Run(bool run);                             // holds still, or goes on where it stood
    bool IsRunning() const { return movie_.state() == QMovie::Running; }
    bool IsStale() const;  // the file is no longer the one that was opened

private:
    void TakeFrame(QImage next);

    std::string path_;
    std::filesystem::file_time_type time_;
    PictureMemory memory_;
    QMovie movie_;
    QImage frame_;
};

}  // namespace ornavo
