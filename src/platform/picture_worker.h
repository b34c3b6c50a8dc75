// SPDX-License-Identifier: MIT
// A second core that decodes pictures before they are asked for.
#pragma once

#include <QImage>
#include <atomic>
#include <filesystem>
#include <list>
#include <map>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace ornavo {

/// Decodes files while it lives, the last first. Who takes them from the first on, and reads those that it
/// has not begun, meets it in the middle and waits for one file at most.
class PictureWorker {
public:
    explicit PictureWorker(const std::vector<std::filesystem::path>& files);
    /// The picture, when it is ready; none if it is not begun, or cannot be decoded within a usual size.
    std::optional<QImage> Take(const std::filesystem::path& file);

private:
    enum State { Waiting, Begun, Ready, Taken };
    /// A file, and its picture when that is ready.
    struct Job {
        explicit Job(std::filesystem::path path) : file(std::move(path)) {}
        std::filesystem::path file;
        QImage picture;
        std::atomic<State> state = Waiting;
    };
    void Work(const std::stop_token& stop);

    std::list<Job> jobs_;
    std::map<std::filesystem::path, Job*> byFile_;
    std::jthread thread_;  // the last member, so that it ends before the jobs go
};

}  // namespace ornavo
