// SPDX-License-Identifier: MIT
// The source tree as a house: which file includes which, and what is wrong with that.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "support/temporary_folder.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;
using Names = std::set<std::string>;

std::string RoomOf(const std::string& file) {
    return file.substr(0, file.find('/'));
}

/// A header and its source, and what includes either.
std::string UnitOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

/// The rooms that each room may include, besides itself: a line for each, its name, then those.
std::map<std::string, Names> ReadPlan(const fs::path& path) {
    std::map<std::string, Names> plan;
    std::ifstream file(path);
    for (std::string line, room, below; std::getline(file, line);) {
        std::istringstream words(line);
        words >> room;
        for (Names& allowed = plan[room]; words >> below;) allowed.insert(below);
    }
    return plan;
}

class House {
public:
    /// Reads all .h and .cpp files of the rooms below a folder.
    explicit House(const fs::path& source) {
        for (const auto& entry : fs::recursive_directory_iterator(source))
            if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
                ReadFile(fs::relative(entry.path(), source).generic_string(), entry.path());
    }
    std::size_t Files() const { return lines_.size(); }
    /// Includes that the plan does not allow, of files that are not there, and rooms that it does not know.
    Texts WaysUp(std::map<std::string, Names> plan) const {
        Texts wrong;
        for (const auto& [file, lines] : lines_)
            if (!plan.contains(RoomOf(file))) wrong.push_back(file + " lies in no room of the plan");
        for (const auto& [file, target] : includes_) {
            // What the build makes of a class lies beside it and in no room.
            if (target.ends_with(".moc") || target.starts_with("moc_")) continue;
            if (!lines_.contains(target))
                wrong.push_back(file + " includes " + target + ", which is not there");
            else if (RoomOf(file) != RoomOf(target) && !plan[RoomOf(file)].contains(RoomOf(target)))
                wrong.push_back(file + " must not include " + target);
        }
        return wrong;
    }
    /// The units of rings and of the ways between them: what is left when units that need none, and units
    /// that none needs, are taken away again and again.
    Names Rings() const {
        std::set<std::pair<std::string, std::string>> needs;
        for (const auto& [file, target] : includes_)
            if (UnitOf(file) != UnitOf(target)) needs.emplace(UnitOf(file), UnitOf(target));
        for (std::size_t before = 0; before != needs.size();) {
            before = needs.size();
            Names needing, needed;
            for (const auto& [above, below] : needs) needing.insert(above), needed.insert(below);
            std::erase_if(needs, [&](const auto& way) {
                return !needed.contains(way.first) || !needing.contains(way.second);
            });
        }
        Names units;
        for (const auto& [above, below] : needs) units.insert(above);
        return units;
    }
    /// Files of the rooms that include a header of the window library.
    Texts WindowHeadersIn(const Names& rooms) const {
        Texts files;
        for (const std::string& file : windowHeaders_)
            if (rooms.contains(RoomOf(file))) files.push_back(file);
        return files;
    }
    Texts LongerThan(int limit) const {
        Texts files;
        for (const auto& [file, lines] : lines_)
            if (lines > limit) files.push_back(file + " has " + std::to_string(lines) + " lines");
        return files;
    }

private:
    void ReadFile(const std::string& name, const fs::path& path) {
        static const std::regex include(R"(^\s*#\s*include\s*(["<])([^">]+)[">].*)");
        std::ifstream file(path);
        std::smatch match;
        int& lines = lines_[name];
        for (std::string line; std::getline(file, line); ++lines) {
            if (!std::regex_match(line, match, include)) continue;
            if (match[1] == "\"")
                includes_.emplace(name, match[2]);
            else if (match.str(2).starts_with('Q'))
                windowHeaders_.insert(name);
        }
    }

    std::map<std::string, int> lines_;                        // by file, "room/file.h"
    std::set<std::pair<std::string, std::string>> includes_;  // of the house's own files
    Names windowHeaders_;                                     // files that include <Q...>
};

TEST(House, NobodyLooksUpAndThereIsNoRing) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    const auto plan = ReadPlan(ORNAVO_BINARY_DIR "/rooms.txt");
    ASSERT_TRUE(house.Files() > 20 && plan.size() > 10);
    EXPECT_EQ(house.WaysUp(plan), Texts());
    EXPECT_EQ(house.WindowHeadersIn({"base", "document", "pixels"}), Texts()) << "These know no windows.";
    EXPECT_EQ(house.Rings(), Names());
    EXPECT_EQ(house.LongerThan(500), Texts());
    EXPECT_EQ(House(ORNAVO_SOURCE_DIR "/tests").LongerThan(500), Texts());
}

TEST(Inspection, FindsWhatIsWrong) {
    const TemporaryFolder tree;
    tree.Write("low/a.h", "#include <string>\n");
    tree.Write("low/a.cpp", "#include \"low/a.h\"\n#include \"low/b.h\"\n");
    tree.Write("low/b.h", "#include \"high/up.h\"  // a way up\n#include \"low/end.h\"\n");
    tree.Write("low/end.h", "");
    tree.Write("high/up.h", "  #  include \"low/c.h\"\n// #include \"low/a.h\"\n");
    tree.Write("low/c.h", "#include \"low/a.h\"\n#include <QWidget>\n#include \"low/gone.h\"\n");
    tree.Write("side/s.cpp", "#include \"high/up.h\"\n");
    tree.Write("high/long.cpp", std::string(501, '\n'));
    tree.Write("high/fits.cpp", std::string(500, '\n'));
    const House house(tree.place());
    EXPECT_EQ(
        house.WaysUp(ReadPlan(tree.Write("plan", "low\nhigh low\n"))),
        (Texts{"side/s.cpp lies in no room of the plan", "low/b.h must not include high/up.h",
               "low/c.h includes low/gone.h, which is not there", "side/s.cpp must not include high/up.h"}));
    EXPECT_EQ(house.Rings(), (Names{"high/up", "low/a", "low/b", "low/c"}));
    EXPECT_EQ(house.WindowHeadersIn({"low"}), Texts{"low/c.h"});
    EXPECT_EQ(house.WindowHeadersIn({"high"}), Texts());
    EXPECT_EQ(house.LongerThan(500), Texts{"high/long.cpp has 501 lines"});
}

}  // namespace
}  // namespace ornavo
