// SPDX-License-Identifier: MIT
#include "platform/picture_worker.h"

#include "platform/picture_file.h"

namespace ornavo {
namespace {

constexpr std::int64_t AheadPixels =
    16'000'000;  // of all pictures; beyond it each is read when it is asked for

}  // namespace

PictureWorker::PictureWorker(const std::vector<std::filesystem::path>& files) {
    for (const std::filesystem::path& file : files)
        if (const auto [known, isNew] = byFile_.try_emplace(file); isNew)
            known->second = &jobs_.emplace_back(file);
    if (!jobs_.empty()) thread_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
}

void PictureWorker::Work(const std::stop_token& stop) {
    std::int64_t left = AheadPixels;
    for (auto at = jobs_.rbegin(); at != jobs_.rend(); ++at) {
        Job& job = *at;
        State waiting = Waiting;
        if (stop.stop_requested() || left < 0) return;
        if (!job.state.compare_exchange_strong(waiting, Begun)) continue;
        PictureFile file(job.file);
        const QSize size = file.Size();
        if (size.isValid() && FitsPicture(size)) left -= PixelsOf(size);
        if (size.isValid() && FitsPicture(size) && left >= 0) job.picture = file.Decoded();
        if (job.picture.size() != size) job.picture = QImage();
        job.state = Ready;
        job.state.notify_one();
    }
}

std::optional<QImage> PictureWorker::Take(const std::filesystem::path& file) {
    const auto found = byFile_.find(file);
    if (found == byFile_.end()) return std::nullopt;
    Job& job = *found->second;
    State state = Waiting;
    if (job.state.compare_exchange_strong(state, Taken)) return std::nullopt;
    job.state.wait(Begun);
    if (job.state.exchange(Taken) != Ready || job.picture.isNull()) return std::nullopt;
    return std::move(job.picture);
}

}  // namespace ornavo
