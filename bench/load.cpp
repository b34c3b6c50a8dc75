// SPDX-License-Identifier: MIT
// Loading a skin, from the text to the model and freed again, compared with an XML library's tree of the same
// file: the library's call, and a whole process; and the tool's dump of the skin.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <pugixml.hpp>

#include "base/files.h"
#include "big_skin.h"
#include "judge.h"

namespace ornavo::bench {
namespace {

const char* self = nullptr;

double Milliseconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// CPU time of a process from its start to its end, without its output.
double CpuOfProcess(std::vector<std::string> words) {
    std::vector<char*> pointers;
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const pid_t child = vfork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_WRONLY);
        dup2(nothing, STDOUT_FILENO);
        execv(pointers[0], pointers.data());
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", words[0].c_str());
        std::exit(1);
    }
    return Milliseconds(usage.ru_utime) + Milliseconds(usage.ru_stime);
}

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
