// SPDX-License-Identifier: MIT
// Skins as designers have them: every element names three pictures, and every line of an element is there.
#pragma once
#include <filesystem>
#include <string>

#include "base/file_layer.h"
#include "document/dbskin.h"

namespace ornavo::bench {

/// The real disk without flushing, as an XML library saves.
class UnflushedLayer : public FileLayer {
public:
    UnflushedLayer() { UseFileLayer(this); }
    ~UnflushedLayer() override { UseFileLayer(nullptr); }
    void Flush(int) override {}
    void FlushFolder(const std::filesystem::path&) override {}
};

/// How the elements name their pictures: as the files are called; in another case; files that are not there.
enum class Names { Exact, Upper, Gone };

/// A folder with a skin of one layout for as long as it lives.
class BigSkin {
public:
    /// With 300 pictures in the folder unless they are gone, and `distinct` different names.
    BigSkin(int elements, Names names, int distinct = 300);
    ~BigSkin() { std::filesystem::remove_all(base_); }
    BigSkin(const BigSkin&) = delete;
    BigSkin& operator=(const BigSkin&) = delete;

    const std::string& Bytes() const { return bytes_; }
    /// The skin as it is after the program has opened it; it is also the current one.
    dbSkin& LoadAnew();
    /// A new model of the file; only the model, no picture.
    dbSkin Load() const;
    const dbSkin& skin() const { return skin_; }

private:
    std::filesystem::path base_;
    dbSkin skin_;
    std::string bytes_;  // of the settings file, which is also well-formed XML
};

}  // namespace ornavo::bench
