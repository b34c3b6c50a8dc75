// SPDX-License-Identifier: MIT
#include "base/lookup.h"

#include <memory>
#include <set>
#include <string>
#include <unordered_map>

#include "base/paths.h"
#include "base/text.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

using NativeText = fs::path::string_type;

/// The names of one folder.
class Listing {
public:
    explicit Listing(const fs::path& folder) {
        for (const FolderEntry& entry : fileLayer().List(folder)) Add(entry.name, entry.type);
    }
    void Add(const std::string& name, fs::file_type type) {
        types_.insert_or_assign(name, type);
        names_[LowerText(name)].insert(name);
    }
    void Remove(const std::string& name) {
        types_.erase(name);
        names_[LowerText(name)].erase(name);
    }
    /// The name as the folder has it, in the given case if there is one; otherwise the first by byte order;
    /// "" if there is none.
    std::string Name(const std::string& wanted) const {
        if (types_.contains(wanted)) return wanted;
        const auto same = names_.find(LowerText(wanted));
        return same == names_.end() || same->second.empty() ? "" : *same->second.begin();
    }
    /// not_found for a name that the folder does not have in this case.
    fs::file_type Type(const std::string& name) const {
        const auto found = types_.find(name);
        return found == types_.end() ? fs::file_type::not_found : found->second;
    }

private:
    std::unordered_map<std::string, fs::file_type> types_;
    std::unordered_map<std::string, std::set<std::string>> names_;  // by name in lower case
};

/// What is known of the disk.
class Lookup : public FileListener {
public:
    fs::path Find(const fs::path& path);
    FileState State(const fs::path& path);
    fs::file_type Type(const fs::path& path);
    void Made(const fs::path& path) override { Change(path, true); }
    void Gone(const fs::path& path) override { Change(path, false); }

private:
    Listing* Known(const fs::path& folder) {
        const auto known = listings_.find(folder.native());
        return known == listings_.end() ? nullptr : &known->second;
    }
    bool Stands(const fs::path& path) {
        const fs::file_type type = State(path).type;
        return type != fs::file_type::not_found && type != fs::file_type::none;
    }
    void Change(const fs::path& path, bool isMade);

    std::unordered_map<NativeText, FileState> states_;
    std::unordered_map<NativeText, Listing> listings_;
};

fs::path Lookup::Find(const fs::path& path) {
    if (!path.has_relative_path()) return path;
    fs::path folder = path.parent_path();
    if (!Known(folder)) {
        if (Stands(path)) return path;
        folder = Find(folder);
    }
    const Listing& listing = listings_.try_emplace(folder.native(), folder).first->second;
    const std::string name = listing.Name(ToText(path.filename()));
    return folder / (name.empty() ? path.filename() : NativePath(name));
}

FileState Lookup::State(const fs::path& path) {
    const auto [state, isNew] = states_.try_emplace(path.native());
    if (!isNew) return state->second;
    const Listing* folder = Known(path.parent_path());
    if (!folder || folder->Type(ToText(path.filename())) != fs::file_type::not_found)
        state->second = fileLayer().State(path);
    return state->second;
}

/// A listing tells it without another question, except for links.
fs::file_type Lookup::Type(const fs::path& path) {
    if (const Listing* folder = Known(path.parent_path())) {
        const fs::file_type type = folder->Type(ToText(path.filename()));
        if (type == fs::file_type::regular || type == fs::file_type::directory) return type;
    }
    return State(path).type;
}

void Lookup::Change(const fs::path& path, bool isMade) {
    states_.erase(path.native());
    Listing* folder = Known(path.parent_path());
    if (!folder) return;
    const std::string name = ToText(path.filename());
    folder->Remove(name);
    if (isMade) folder->Add(name, (states_[path.native()] = fileLayer().State(path)).type);
}

std::unique_ptr<Lookup> scopeLookup;  // null between operations

template <class Question>
auto Asked(Question question) {
    if (scopeLookup) return question(*scopeLookup);
    Lookup once;
    return question(once);
}

}  // namespace

fs::path OnDisk(std::string_view path) {
    return Asked([exact = NativePath(path)](Lookup& lookup) { return lookup.Find(exact); });
}

FileState StateOf(const fs::path& path) {
    return Asked([&](Lookup& lookup) { return lookup.State(path); });
}

fs::path FindFile(std::string_view path) {
    return Asked([exact = NativePath(path)](Lookup& lookup) {
        fs::path found = lookup.Find(exact);
        return lookup.Type(found) == fs::file_type::regular ? found : fs::path();
    });
}

bool FolderExists(std::string_view path) {
    return Asked([exact = NativePath(path)](Lookup& lookup) {
        return lookup.Type(lookup.Find(exact)) == fs::file_type::directory;
    });
}

LookupScope::LookupScope() : isOuter_(!scopeLookup) {
    if (!isOuter_) return;
    scopeLookup = std::make_unique<Lookup>();
    UseFileListener(scopeLookup.get());
}

LookupScope::~LookupScope() {
    if (!isOuter_) return;
    UseFileListener(nullptr);
    scopeLookup.reset();
}

}  // namespace ornavo
