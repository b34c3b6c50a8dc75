// SPDX-License-Identifier: MIT
#include "platform/tile_movie.h"

#include <QImageReader>

#include "base/lookup.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int ImagesInUse = 3;  // the decoder's, the movie's and the frame's

std::filesystem::file_time_type TimeOf(const std::string& path) {
    std::error_code error;
    return std::filesystem::last_write_time(OnDisk(path), error);
}

}  // namespace

TileMovie::TileMovie(std::string path, std::function<void()> onFrame)
    : path_(std::move(path)), time_(TimeOf(path_)) {
    if (!IsAnimatedGIF(path_)) return;
    const QString name = Shown(path_);
    QImageReader reader(name, "gif");
    memory_ = PictureMemory::Take(ImagesInUse * PixelsOfGif(path_));
    if (!memory_) return;
    movie_.setCacheMode(QMovie::CacheNone);
    movie_.setFormat("gif");
    movie_.setFileName(name);
    TakeFrame(reader.read());  // because starting the movie gives its first frame again
    QObject::connect(&movie_, &QMovie::frameChanged, &movie_, [this, onFrame = std::move(onFrame)] {
        TakeFrame(movie_.currentImage());
        onFrame();
    });
}

void TileMovie::TakeFrame(QImage next) {
    if (next.isNull()) return;
    next.convertTo(next.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    frame_ = std::move(next);
}

void TileMovie::Run(bool run) {
    if (!memory_ || run == IsRunning()) return;
    if (!run)
        movie_.setPaused(true);
    else if (movie_.state() == QMovie::Paused)
        movie_.setPaused(false);
    else
        movie_.start();
}

bool TileMovie::IsStale() const {
    return TimeOf(path_) != time_;
}

}  // namespace ornavo
