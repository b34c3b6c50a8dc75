// SPDX-License-Identifier: MIT
// The source tree as a house: which file includes which, and what is wrong with that.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>
#include <set>
#include <sstream>

#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

std::string RoomOf(const std::string& file) {
    return file.substr(0, file.find('/'));
}

/// A header and its source, and what includes either.
std::string UnitOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

/// The rooms that each room may include, besides itself.
using Plan = std::map<std::string, std::set<std::string>>;

/// A line for each room: its name, then those that it may include.
Plan ReadPlan(const fs::path& path) {
    Plan plan;
    std::ifstream file(path);
    for (std::string line, room, below; std::getline(file, line);) {
        std::istringstream words(line);
        words >> room;
        for (std::set<std::string>& allowed = plan[room]; words >> below;) allowed.insert(below);
    }
    return plan;
}

class House {
public:
    /// Reads all .h and .cpp files of the rooms below a folder.
    explicit House(const fs::path& source) {
        for (const auto& entry : fs::recursive_directory_iterator(source)) {
            const std::string extension = entry.path().extension().string();
            if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp"))
                ReadFile(fs::relative(entry.path(), source).generic_string(), entry.path());
        }
    }

    std::size_t Files() const { return lines_.size(); }
    /// Includes that the plan does not allow, of files that are not there, and rooms that it does not know.
    std::vector<std::string> WaysUp(const Plan& plan) const {
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
    /// The units of one ring, the first one again at the end; empty if there is none.
    std::vector<std::string> Ring() const {
        std::map<std::string, std::set<std::string>> needs;
        for (const auto& [file, targets] : includes_)
            for (const std::string& target : targets)
                if (UnitOf(target) != UnitOf(file)) needs[UnitOf(file)].insert(UnitOf(target));
        std::set<std::string> done;
        std::vector<std::string> way;
        const std::function<bool(const std::string&)> closes = [&](const std::string& unit) {
            if (const auto at = std::find(way.begin(), way.end(), unit); at != way.end()) {
                way.erase(way.begin(), at);
                way.push_back(unit);
                return true;
            }
            if (done.contains(unit)) return false;
            way.push_back(unit);
            if (const auto found = needs.find(unit); found != needs.end())
                for (const std::string& next : found->second)
                    if (closes(next)) return true;
            way.pop_back();
            done.insert(unit);
            return false;
        };
        for (const auto& [unit, targets] : needs)
            if (closes(unit)) return way;
        return {};
    }
    /// Files from the given rooms that include a header of the window library.
    std::vector<std::string> WindowHeadersIn(const std::set<std::string>& rooms) const {
        std::vector<std::string> files;
        std::copy_if(windowHeaders_.begin(), windowHeaders_.end(), std::back_inserter(files),
                     [&](const std::string& file) { return rooms.contains(RoomOf(file)); });
        return files;
    }
    std::vector<std::string> LongerThan(std::size_t limit) const {
        std::vector<std::string> files;
        for (const auto& [file, lines] : lines_)
            if (lines > limit) files.push_back(file + " has " + std::to_string(lines) + " lines");
        return files;
    }

private:
    void ReadFile(const std::string& name, const fs::path& path) {
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

    std::map<std::string, std::size_t> lines_;                  // by file, "room/file.h"
    std::map<std::string, std::vector<std::string>> includes_;  // of the house's own files
    std::set<std::string> windowHeaders_;                       // files that include <Q...>
};

std::string Listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) list += "\n  " + text;
    return list;
}

TEST(House, NobodyLooksUp) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    ASSERT_GT(house.Files(), 20u);
    const Plan plan = ReadPlan(ORNAVO_BINARY_DIR "/rooms.txt");
    ASSERT_GT(plan.size(), 10u);
    const auto wrong = house.WaysUp(plan);
    EXPECT_TRUE(wrong.empty()) << Listed(wrong);
    const auto windows = house.WindowHeadersIn({"base", "document", "pixels"});
    EXPECT_TRUE(windows.empty()) << "These know no windows:" << Listed(windows);
}

TEST(House, HasNoRing) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    const auto ring = house.Ring();
    EXPECT_TRUE(ring.empty()) << Listed(ring);
}

TEST(House, FilesStayShort) {
    for (const char* folder : {"/src", "/tests"}) {
        const auto files = House(std::string(ORNAVO_SOURCE_DIR) + folder).LongerThan(500);
        EXPECT_TRUE(files.empty()) << Listed(files);
    }
}

TEST(Inspection, FindsWhatIsWrong) {
    const TemporaryFolder tree;
    tree.Write("low/a.h", "#include <string>\n");
    tree.Write("low/a.cpp", "#include \"low/a.h\"\n#include \"low/b.h\"\n");
    tree.Write("low/b.h", "#include \"high/up.h\"  // a way up\n");
    tree.Write("high/up.h", "  #  include \"low/c.h\"\n// #include \"low/a.h\"\n");
    tree.Write("low/c.h", "#include \"low/a.h\"\n#include <QWidget>\n#include \"low/gone.h\"\n");
    tree.Write("side/s.cpp", "#include \"high/up.h\"\n");
    tree.Write("high/long.cpp", std::string(501, '\n'));
    tree.Write("high/fits.cpp", std::string(500, '\n'));
    const House house(tree.place());
    using Texts = std::vector<std::string>;
    EXPECT_EQ(
        house.WaysUp(ReadPlan(tree.Write("plan", "low\nhigh low\n"))),
        (Texts{"side/s.cpp lies in no room of the plan", "low/b.h must not include high/up.h",
               "low/c.h includes low/gone.h, which is not there", "side/s.cpp must not include high/up.h"}));
    EXPECT_EQ(house.Ring(), (Texts{"high/up", "low/c", "low/a", "low/b", "high/up"}));
    EXPECT_EQ(house.WindowHeadersIn({"low"}), Texts{"low/c.h"});
    EXPECT_TRUE(house.WindowHeadersIn({"high"}).empty());
    EXPECT_EQ(house.LongerThan(500), Texts{"high/long.cpp has 501 lines"});
}

}  // namespace
}  // namespace ornavo
