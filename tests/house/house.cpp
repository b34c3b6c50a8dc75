// SPDX-License-Identifier: MIT
#include "house/house.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <regex>

namespace ornavo {

namespace fs = std::filesystem;

namespace {

std::string RoomOf(const std::string& file) {
    return file.substr(0, file.find('/'));
}

}  // namespace

House::House(const fs::path& source) {
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string extension = entry.path().extension().string();
        if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp"))
            ReadFile(fs::relative(entry.path(), source).generic_string(), entry.path());
    }
}

void House::ReadFile(const std::string& name, const fs::path& path) {
    static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">].*)");
    std::ifstream file(path);
    std::smatch match;
    std::size_t& lines = lines_[name];
    for (std::string line; std::getline(file, line); ++lines) {
        if (!std::regex_match(line, match, include)) continue;
        if (match[1] == "\"")
            includes_[name].push_back(match[2]);
        else if (match.str(2).starts_with('Q'))
            windowHeaders_.insert(name);
    }
}

std::vector<std::string> House::WaysUp(const Plan& plan) const {
    std::vector<std::string> wrong;
    for (const auto& [file, lines] : lines_)
        if (!plan.contains(RoomOf(file))) wrong.push_back(file + " lies in no room of the plan");
    for (const auto& [file, targets] : includes_) {
        for (const std::string& target : targets) {
            // What the build makes of a class lies beside it and in no room.
            if (target.ends_with(".moc") || target.starts_with("moc_")) continue;
            const auto allowed = plan.find(RoomOf(file));
            const bool same = RoomOf(target) == RoomOf(file);
            if (!lines_.contains(target))
                wrong.push_back(file + " includes " + target + ", which is not there");
            else if (!same && (allowed == plan.end() || !allowed->second.contains(RoomOf(target))))
                wrong.push_back(file + " must not include " + target);
        }
    }
    return wrong;
}

std::vector<std::string> House::Ring() const {
    std::set<std::string> done;
    std::vector<std::string> way;
    const std::function<bool(const std::string&)> closes = [&](const std::string& file) {
        if (const auto at = std::find(way.begin(), way.end(), file); at != way.end()) {
            way.erase(way.begin(), at);
            way.push_back(file);
            return true;
        }
        if (done.contains(file)) return false;
        way.push_back(file);
        if (const auto found = includes_.find(file); found != includes_.end())
            for (const std::string& next : found->second)
                if (closes(next)) return true;
        way.pop_back();
        done.insert(file);
        return false;
    };
    for (const auto& [file, lines] : lines_)
        if (closes(file)) return way;
    return {};
}

std::vector<std::string> House::WindowHeadersIn(const std::set<std::string>& rooms) const {
    std::vector<std::string> files;
    std::copy_if(windowHeaders_.begin(), windowHeaders_.end(), std::back_inserter(files),
                 [&](const std::string& file) { return rooms.contains(RoomOf(file)); });
    return files;
}

std::vector<std::string> House::LongerThan(std::size_t limit) const {
    std::vector<std::string> files;
    for (const auto& [file, lines] : lines_)
        if (lines > limit) files.push_back(file + " has " + std::to_string(lines) + " lines");
    return files;
}

}  // namespace ornavo
