// SPDX-License-Identifier: MIT
// Takes any bytes as a skin's settings file: nothing crashes, the fast paths of reading give the same values
// as the general one, and a skin that was loaded and saved once does not change any more.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "base/failure.h"
#include "base/file_layer.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "document/current_skin.h"
#include "document/fields.h"
#include "document/skin_lines.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

/// The real disk without flushing.
class QuickLayer : public FileLayer {
public:
    void Flush(int) override {}
    void FlushFolder(const fs::path&) override {}
};

/// Makes a temporary folder, in memory if the system offers that.
fs::path MakeFolder() {
    std::error_code ignored;
    const fs::path memory = "/dev/shm";
    std::string name =
        (fs::is_directory(memory, ignored) ? memory : fs::temp_directory_path()) / "skin_file-XXXXXX";
    if (!mkdtemp(name.data())) std::abort();
    return name;
}

struct Place {
    fs::path folder = MakeFolder();
    ~Place() { fs::remove_all(folder); }
};

void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "skin_file: %s\n", what);
    std::abort();
}

template <class T>
void Describe(std::string& text, const T& object) {
    for (const Field<T>& field : Fields<T>()) {
        const Value value = field.get(object);
        if (!field.saved || value.Is<FontRef>()) continue;
        text.append(field.name).append("=").append(value.ToText()).append("\n");
    }
    if constexpr (requires { object.Font->Name; })
        if (object.Font) Describe(text.append("Font\n"), *object.Font);
}

std::string Describe(const dbSkin& skin) {
    std::string text;
    Describe<dbSkin>(text, skin);
    for (const dbSkinPrefRef& pref : *skin.dbSkinPrefs) Describe(text, *pref);
    for (const dbLayoutRef& layout : *skin.dbLayouts) {
        Describe(text, *layout);
        for (const dbPointRef& point : *layout->dbPoints) Describe(text, *point);
        for (const dbLayoutElementRef& element : *layout->dbLayoutElements) Describe(text, *element);
    }
    return text;
}

/// Closes gaps in the orders, because an item beyond a gap is rightly lost at each save.
void Renumber(const dbSkin& skin) {
    for (const dbLayoutRef& layout : *skin.dbLayouts) {
        std::int32_t order = 0;
        for (const dbPointRef& point : *layout->dbPoints) point->Order = ++order;
        order = 0;
        for (const dbLayoutElementRef& element : *layout->dbLayoutElements) element->Order = ++order;
    }
}

/// Loads the skin with this name in the folder `base`, without the catalogue.
dbSkinRef Load(const fs::path& base, const std::string& name) {
    objSkin = std::make_shared<dbSkin>();
    objSkin->dbSkinPrefs =
        std::make_shared<dbSkinPrefs>();  // loading the catalogue would take most of the time
    objSkin->SetBasePath(ToText(base));
    objSkin->SkinName = name;
    objSkin->LoadSkin();
    Renumber(*objSkin);
    return objSkin;
}

/// False if the save is refused, because no folder can have the name; the skin is then unchanged.
bool Save(dbSkin& skin) {
    const std::string before = Describe(skin);
    if (Attempt([&] { skin.SaveSkin(false); })) return true;
    Require(Describe(skin) == before, "a refused save has changed the skin");
    return false;
}

void ComparePaths(std::string_view bytes) {
    for (const Field<dbLayoutElement>& field : Fields<dbLayoutElement>()) {
        dbLayoutElement quick, general;
        if (!field.take(quick, bytes)) continue;
        field.set(general, ReadValue(bytes));
        Require(field.get(quick) == field.get(general), "the two paths read a value differently");
    }
    const TagLine parts = GetTag(TrimTag(bytes)), plain = PlainLine(bytes).value_or(parts);
    Require(plain.tag == parts.tag && plain.value == parts.value,
            "the two paths take a line apart differently");
}

/// The saves until nothing changes any more: a fraction that is rounded up to 1 is saved as "+7." and read as
/// the floor.
constexpr int SettlingRounds = 1;

void RoundTrip(const fs::path& base, std::string_view bytes) {
    fs::create_directory(base / "Fuzz");
    ReplaceFile(base / "Fuzz" / SettingsFileName, bytes);
    dbSkinRef skin = Load(base, "Fuzz");
    Require(IsPlainName(skin->SkinName), "a file has given a name that is none");
    std::string expected;
    for (int round = 0; round <= SettlingRounds; ++round) {
        if (!Save(*skin)) return;
        expected = Describe(*skin);
        skin = Load(base, skin->SkinName);
    }
    Require(Describe(*skin) == expected, "what was saved comes back changed");
}

}  // namespace
}  // namespace ornavo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ornavo;
    static QuickLayer layer;
    static const Place place;
    UseFileLayer(&layer);
    UseNumberSigns(size % 2 == 0 ? NumberSigns{} : NumberSigns{",", "."});
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    ComparePaths(bytes.substr(0, 40));
    RoundTrip(place.folder, bytes);
    for (const auto& entry : std::filesystem::directory_iterator(place.folder))
        std::filesystem::remove_all(entry.path());
    return 0;
}
