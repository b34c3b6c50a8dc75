// SPDX-License-Identifier: MIT
// Saving a skin, compared with its text and its write alone, and with an XML library's save.
#include <cstdio>
#include <pugixml.hpp>

#include "base/files.h"
#include "big_skin.h"
#include "judge.h"

namespace ornavo::bench {
namespace {

Round Saves(BigSkin& skin) {
    return [&] {
        dbSkin& loaded = skin.LoadAnew();
        return Cpu([&] { loaded.SaveSkin(false); });
    };
}

/// What any save of the skin does.
Round Writes(BigSkin& skin) {
    return [&] {
        const dbSkin& loaded = skin.LoadAnew();
        return Cpu([&] { ReplaceFile(loaded.SkinFile(), loaded.FileBytes()); });
    };
}

/// pugixml's text is written to memory and then to the disk by the same steps as a skin.
void SaveTree(const pugi::xml_document& tree, const std::string& file) {
    struct Writer : pugi::xml_writer {
        std::string bytes;
        void write(const void* data, std::size_t size) override {
            bytes.append(static_cast<const char*>(data), size);
        }
    } writer;
    tree.save(writer, "\t", pugi::format_default, pugi::encoding_latin1);
    ReplaceFile(file, writer.bytes);
}

/// The tree is loaded anew for each round, as the skin is.
Round SavesTree(BigSkin& skin) {
    return [&] {
        pugi::xml_document tree;
        tree.load_buffer(skin.Bytes().data(), skin.Bytes().size());
        return Cpu([&] { SaveTree(tree, skin.skin().SkinFile()); });
    };
}

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    using namespace ornavo::bench;
    const UnflushedLayer unflushed;
    BigSkin exact(500, Names::Exact), upper(500, Names::Upper), gone(500, Names::Gone);
    BigSkin manyGone(5000, Names::Gone, 15000);
    const char* const text = "its text and its write alone";
    const char* const same = "exact names";
    return Judge({{"save, 500 elements, 300 pictures", Saves(exact), text, Writes(exact), 3},
                  {"the same, names in another case", Saves(upper), same, Saves(exact), 1.2},
                  {"the same, pictures gone", Saves(gone), same, Saves(exact), 1.2},
                  {"save, 5,000 elements, 15,000 pictures gone", Saves(manyGone), "pugixml's save",
                   SavesTree(manyGone), 1.5}},
                 count, words);
}
