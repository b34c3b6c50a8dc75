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
using Names = std::set<std::string>;

/// What comes before '/' is the room of a file; before '.', its unit: a header and its source.
std::string Before(char end, const std::string& file) {
    return file.substr(0, file.find(end));
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
        const std::regex include(R"re(\s*#\s*include\s*"([^"]+)".*)re");
        std::smatch match;
        for (const fs::path& path : fs::recursive_directory_iterator(source)) {
            if (path.extension() != ".h" && path.extension() != ".cpp") continue;
            const std::string name = fs::relative(path, source).generic_string();
            std::ifstream file(path);
            int& lines = lines_[name];
            for (std::string line; std::getline(file, line); ++lines)
                if (std::regex_match(line, match, include)) includes_.emplace(name, match[1]);
        }
    }
    /// Includes that the plan does not allow, and files in rooms that it does not know.
    Names WaysUp(std::map<std::string, Names> plan) const {
        Names wrong;
        for (const auto& [file, lines] : lines_)
            if (!plan.contains(Before('/', file))) wrong.insert(file + " lies in no room of the plan");
        for (const auto& [file, target] : includes_) {
            const std::string room = Before('/', file), other = Before('/', target);
            if (room != other && !plan[room].contains(other))
                wrong.insert(file + " must not include " + target);
        }
        return wrong;
    }
    /// The units of rings and of the ways between them: what is left when units that need none, and units
    /// that none needs, are taken away again and again.
    Names Rings() const {
        std::set<std::pair<std::string, std::string>> needs;
        for (const auto& [file, target] : includes_) {
            const std::string above = Before('.', file), below = Before('.', target);
            if (above != below) needs.emplace(above, below);
        }
        Names needing;
        for (std::size_t before = 0; before != needs.size();) {
            before = needs.size();
            Names needed;
            needing.clear();
            for (const auto& [above, below] : needs) needing.insert(above), needed.insert(below);
            std::erase_if(needs, [&](const auto& way) {
                return !needed.contains(way.first) || !needing.contains(way.second);
            });
        }
        return needing;
    }
    Names TooLong() const {
        Names files;
        for (const auto& [file, lines] : lines_)
            if (lines > 500) files.insert(file);
        return files;
    }

private:
    std::map<std::string, int> lines_;                        // by file, "room/file.h"
    std::set<std::pair<std::string, std::string>> includes_;  // of the house's own files
};

TEST(House, NobodyLooksUpAndThereIsNoRing) {
    const House house(ORNAVO_SOURCE_DIR "/src");
    const auto plan = ReadPlan(ORNAVO_BINARY_DIR "/rooms.txt");
    ASSERT_GT(plan.size(), 10u);
    EXPECT_EQ(house.WaysUp(plan), Names());
    EXPECT_EQ(house.Rings(), Names());
    EXPECT_EQ(house.TooLong(), Names());
    EXPECT_EQ(House(ORNAVO_SOURCE_DIR "/tests").TooLong(), Names());
}

TEST(Inspection, FindsWhatIsWrong) {
    const TemporaryFolder tree;
    tree.Write("low/a.cpp", "#include \"low/a.h\"\n#include \"low/b.h\"\n");
    tree.Write("low/b.h", "#include \"high/up.h\"  // a way up\n");
    tree.Write("high/up.h", "  #  include \"low/c.h\"\n// #include \"low/a.h\"\n");
    tree.Write("low/c.h", "#include \"low/a.h\"\n");
    tree.Write("side/s.cpp", "#include \"high/up.h\"\n");
    tree.Write("high/long.cpp", std::string(501, '\n'));
    const House house(tree.place());
    EXPECT_EQ(house.WaysUp(ReadPlan(tree.Write("plan", "low\nhigh low\n"))),
              (Names{"side/s.cpp lies in no room of the plan", "low/b.h must not include high/up.h",
                     "side/s.cpp must not include high/up.h"}));
    EXPECT_EQ(house.Rings(), (Names{"high/up", "low/a", "low/b", "low/c"}));
    EXPECT_EQ(house.TooLong(), Names{"high/long.cpp"});
}

}  // namespace
}  // namespace ornavo
