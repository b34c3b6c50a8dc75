// SPDX-License-Identifier: MIT
#include "project/own_folder.h"

#include <fstream>

#include "base/failure.h"
#include "base/paths.h"
#include "document/dbskin.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

/// Tries to write, because permission bits do not tell for every user and disk.
bool CanWrite(const fs::path& folder) {
    const fs::path probe = folder / ".ornavo-probe";
    std::error_code ignored;
    const bool written = static_cast<bool>(std::ofstream(probe));
    fs::remove(probe, ignored);
    return written;
}

}  // namespace

fs::path OwnFolder(const fs::path& executableFolder, const fs::path& dataFolder) {
    const fs::path skins = executableFolder / "Skins";
    std::error_code ignored;
    return fs::is_directory(skins, ignored) && CanWrite(skins) ? executableFolder : dataFolder;
}

std::string SkinsFolder(std::string_view ownFolder) {
    return WithSeparator(ownFolder) + "Skins";
}

fs::path SampleFolder(const fs::path& executableFolder) {
    for (const char* candidate : {"../share/ornavo/skins", "../skins"}) {
        const fs::path folder = executableFolder / candidate;
        std::error_code ignored;
        if (fs::is_directory(folder, ignored)) return fs::canonical(folder, ignored);
    }
    return {};
}

void BringSamples(const fs::path& samples, const fs::path& ownFolder) {
    const fs::path skins = ownFolder / "Skins", partial = ownFolder / "Skins.partial";
    std::error_code ignored;
    if (samples.empty() || fs::exists(skins, ignored)) return;
    try {
        fs::remove_all(partial);
        fs::create_directories(partial);
        for (const fs::directory_entry& entry : fs::directory_iterator(samples))
            if (fs::exists(entry.path() / SettingsFileName))
                fs::copy(entry.path(), partial / entry.path().filename(), fs::copy_options::recursive);
        fs::rename(partial, skins);
    } catch (const fs::filesystem_error& error) {
        fs::remove_all(partial, ignored);
        throw Failure(Failure::PathError, "BringSamples",
                      "The sample skins can't be copied to " + ToText(skins) + ": " + error.code().message());
    }
}

}  // namespace ornavo
