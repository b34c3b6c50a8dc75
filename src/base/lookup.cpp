// SPDX-License-Identifier: MIT
#include "base/lookup.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/paths.h"
#include "base/text_map.h"

namespace ornavo {

namespace fs = std::filesystem;

namespace {

/// The names of one folder.
class Listing {
public:
    explicit Listing(const std::string& folder) {
        for (FolderEntry& entry : fileLayer().List(NativePath(folder))) Add(entry.name, entry.type);
    }
    void Add(const std::string& name, fs::file_type type) { names_[name].insert_or_assign(name, type); }
    void AppendNames(std::vector<std::string>& names) const {
        for (const auto& same : names_)
            for (const auto& entry : same.second) names.push_back(entry.first);
    }
    void Remove(const std::string& name) {
        if (const auto same = names_.find(name); same != names_.end()) same->second.erase(name);
    }
    /// The name and type of the entry that is meant: in the given case if there is one, otherwise the first
    /// by byte order. Null if there is none.
    const std::pair<const std::string, fs::file_type>* Find(const std::string& name) const {
        const auto same = names_.find(name);
        if (same == names_.end() || same->second.empty()) return nullptr;
        const auto exact = same->second.find(name);
        return exact == same->second.end() ? &*same->second.begin() : &*exact;
    }

private:
    /// Names that differ in case only are together.
    TextMap<std::string, std::map<std::string, fs::file_type>> names_;
};

/// What is known of the disk. All paths are texts with native separators: to take an fs::path apart costs
/// more than to look its name up.
class Lookup : public FileListener {
public:
    /// A path as it is on the disk, and what is there.
    struct Found {
        std::string path;
        fs::file_type type;
    };
    Found Find(const std::string& path);
    FileState State(const std::string& path);
    /// The listing of a folder, by its exact path; made now unless it is known.
    Listing& List(const std::string& folder) { return listings_.try_emplace(folder, folder).first->second; }
    void Made(const fs::path& path) override { Change(ToText(path), true); }
    void Gone(const fs::path& path) override { Change(ToText(path), false); }

private:
    Listing* ListingOf(const std::string& folder) {
        const auto known = listings_.find(folder);
        return known == listings_.end() ? nullptr : &known->second;
    }
    void Change(const std::string& path, bool isMade);
    /// The disk's answer, also if it was given before.
    const FileState& Asked(const std::string& path) {
        const auto [state, isNew] = states_.try_emplace(path);
        if (isNew) state->second = fileLayer().State(NativePath(path));
        return state->second;
    }

    std::unordered_map<std::string, FileState> states_;
    std::unordered_map<std::string, Listing> listings_;
};

/// Asks the disk only where the listing does not tell.
Lookup::Found Lookup::Find(const std::string& path) {
    auto [folder, name] = SplitPath(path);
    if (name.empty()) return {path, State(path).type};
    const Listing* listing = ListingOf(folder);
    if (!listing) {
        const fs::file_type type = Asked(path).type;
        if (Exists(type)) return {path, type};
        if (!folder.empty()) folder = Find(folder).path;
        listing = &List(folder);
    }
    const auto* entry = listing->Find(name);
    Found found{JoinPath(folder, entry ? entry->first : name), fs::file_type::not_found};
    if (entry) found.type = entry->second == fs::file_type::unknown ? Asked(found.path).type : entry->second;
    return found;
}

FileState Lookup::State(const std::string& path) {
    const auto [folder, name] = SplitPath(path);
    const Listing* listing = ListingOf(folder);
    const auto* entry = listing ? listing->Find(name) : nullptr;
    const bool isGone = listing && !(entry && entry->first == name);
    return isGone ? FileState() : Asked(path);
}

void Lookup::Change(const std::string& path, bool isMade) {
    states_.erase(path);
    const auto [folder, name] = SplitPath(path);
    Listing* listing = ListingOf(folder);
    if (!listing) return;
    listing->Remove(name);
    if (isMade) listing->Add(name, fs::file_type::unknown);  // asked for when somebody wants to know
}

std::unique_ptr<Lookup> scopeLookup;  // null between operations

template <class Question>
auto Ask(std::string_view path, Question question) {
    const std::string text = NativeText(path);
    if (scopeLookup) return question(*scopeLookup, text);
    Lookup once;
    return question(once, text);
}

fs::file_type TypeAt(std::string_view path) {
    return Ask(path, [](Lookup& lookup, const std::string& text) { return lookup.Find(text).type; });
}

}  // namespace

fs::path OnDisk(std::string_view path) {
    return NativePath(
        Ask(path, [](Lookup& lookup, const std::string& text) { return lookup.Find(text).path; }));
}

FileState StateOf(const fs::path& path) {
    return Ask(ToText(path), [](Lookup& lookup, const std::string& text) { return lookup.State(text); });
}

std::string FindFile(std::string_view path) {
    return Ask(path, [](Lookup& lookup, const std::string& text) {
        Lookup::Found found = lookup.Find(text);
        return found.type == fs::file_type::regular ? std::move(found.path) : std::string();
    });
}

bool FileExists(std::string_view path) {
    return TypeAt(path) == fs::file_type::regular;
}

bool FolderExists(std::string_view path) {
    return TypeAt(path) == fs::file_type::directory;
}

std::vector<std::string> NamesIn(const fs::path& folder) {
    std::vector<std::string> names;
    Ask(ToText(folder),
        [&](Lookup& lookup, const std::string& text) { lookup.List(text).AppendNames(names); });
    return names;
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
