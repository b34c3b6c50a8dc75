// SPDX-License-Identifier: MIT
// Loading a skin, from the text to the model and freed again, compared with an XML library's tree of the same
// file: the library's call, and a whole process; and the tool's dump of the skin.
#include <cstring>
#include <pugixml.hpp>

#include "base/files.h"
#include "big_skin.h"
#include "judge.h"
#include "process.h"

namespace ornavo::bench {
namespace {

const char* self = nullptr;

std::size_t LoadTree(const std::string& file) {
    pugi::xml_document tree;
    return tree.load_file(file.c_str()) ? 0 : 1;
}

Row Call(const char* work, BigSkin& skin) {
    skin.LoadAnew();
    return {work, [&] { return Cpu([&] { skin.Load(); }); }, "pugixml's tree",
            [&] { return Cpu([&] { LoadTree(skin.skin().SkinFile()); }); }, 0.8};
}

Row Process(const char* work, BigSkin& skin) {
    skin.LoadAnew();
    return {work,
            [&] {
                return CpuOfProcess({self, "--skin", skin.skin().BasePath(), skin.skin().SkinName});
            },
            "pugixml's tree",
            [&] {
                return CpuOfProcess({self, "--tree", skin.skin().SkinFile()});
            },
            0.8};
}

Row Dump(BigSkin& skin) {
    return {"dump, 5,000 elements, whole process",
            [&] {
                return CpuOfProcess({TOOL, "dump", skin.skin().SkinFolder()});
            },
            "pugixml's tree",
            [&] {
                return CpuOfProcess({self, "--tree", skin.skin().SkinFile()});
            },
            2};
}

int LoadAlone(const char* base, const char* name) {
    dbSkin skin;
    skin.SetBasePath(base);
    skin.SkinName = name;
    return skin.LoadSkin() ? 0 : 1;
}

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    using namespace ornavo::bench;
    if (count == 4 && std::strcmp(words[1], "--skin") == 0) return LoadAlone(words[2], words[3]);
    if (count == 3 && std::strcmp(words[1], "--tree") == 0) return static_cast<int>(LoadTree(words[2]));
    self = words[0];
    BigSkin big(5000, Names::Gone), huge(50000, Names::Gone);
    return Judge({Call("load and free, 5,000 elements", big), Call("load and free, 50,000 elements", huge),
                  Process("load and free, 5,000 elements, whole process", big),
                  Process("load and free, 50,000 elements, whole process", huge), Dump(big)},
                 count, words);
}
