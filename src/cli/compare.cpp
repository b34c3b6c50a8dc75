// SPDX-License-Identifier: MIT
// Tells what two skins differ in, in words or as JSON, and in pixels.
#include <QDir>
#include <QImage>
#include <algorithm>
#include <charconv>
#include <cstdio>

#include "base/paths.h"
#include "cli/json.h"
#include "cli/open_skin.h"
#include "cli/picture_file.h"
#include "compare/differences.h"
#include "platform/picture_difference.h"
#include "render/layout_picture.h"

namespace ornavo {
namespace {

/// What a layout that both skins have differs in.
struct LayoutChange {
    std::string layout;
    double share;  // of the changed pixels, 0 to 1
};

int ToleranceOf(const Arguments& arguments) {
    const std::string text = arguments.Get("tolerance", "0");
    int tolerance = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), tolerance);
    if (error != std::errc() || end != text.data() + text.size() || tolerance < 0 || tolerance > 255)
        throw UsageError("--tolerance takes a whole number, 0 to 255");
    return tolerance;
}

dbSkinRef Opened(const std::string& skin) {
    OpenNamedSkin(skin);
    return objSkin;
}

QImage PictureOf(const dbSkin& skin, const std::string& layout, Size size) {
    LayoutPicture composed(skin, layout, size, View::Preview);
    for (const std::string& failure : composed.failures()) Tell(failure);
    return composed.Shaped(true);
}

/// Writes before, after and difference of a layout into the folder.
void WritePictures(const std::string& folder, const std::string& layout, const QImage& before,
                   const QImage& after, const QImage& difference) {
    if (!QDir().mkpath(QString::fromStdString(folder)))
        throw Failure(Failure::PathError, "Compare", "The folder " + folder + " can't be made.");
    const std::string start = WithSeparator(folder) + CleanFileName(layout);
    WritePng(before, start + "-before.png");
    WritePng(after, start + "-after.png");
    WritePng(difference, start + "-difference.png");
}

std::vector<LayoutChange> ChangesOfLayouts(const Arguments& arguments, const dbSkin& before,
                                           const dbSkin& after) {
    std::vector<LayoutChange> changes;
    const Size size = SizeToDraw(arguments);
    const int tolerance = ToleranceOf(arguments);
    for (const dbLayoutRef& layout : *after.dbLayouts) {
        if (!before.dbLayouts->Find(layout->Key)) continue;
        const QImage was = PictureOf(before, layout->Key, size), is = PictureOf(after, layout->Key, size);
        const PictureDifference difference = Compare(was, is, tolerance);
        changes.push_back({layout->Key, difference.share});
        if (arguments.Has("out") && difference.share > 0)
            WritePictures(arguments.Get("out"), layout->Key, was, is, difference.picture);
    }
    return changes;
}

void PrintJson(const Differences& differences, const std::vector<LayoutChange>& changes) {
    JsonWriter json;
    json.BeginObject();
    json.BeginArray("differences");
    for (const Difference& one : differences) {
        json.BeginObject();
        json.Write("kind", std::string(NameOf(one.kind)));
        json.Write("layout", one.layout);
        json.Write("item", one.item);
        json.Write("field", one.field);
        json.Write("before", one.before);
        json.Write("after", one.after);
        json.EndObject();
    }
    json.EndArray();
    json.BeginArray("pixels");
    for (const LayoutChange& change : changes) {
        json.BeginObject();
        json.Write("layout", change.layout);
        json.Write("share", change.share);
        json.EndObject();
    }
    json.EndArray();
    json.EndObject();
    std::fputs(json.Text().c_str(), stdout);
}

void PrintWords(const Differences& differences, const std::vector<LayoutChange>& changes) {
    for (const Difference& one : differences) std::puts(WordsOf(one).c_str());
    for (const LayoutChange& change : changes)
        if (change.share > 0)
            std::printf("%s: %.4f %% of the pixels changed\n", change.layout.c_str(), 100 * change.share);
}

}  // namespace

int CompareTwo(const Arguments& arguments) {
    const dbSkinRef before = Opened(arguments.operands[0]), after = Opened(arguments.operands[1]);
    const Differences differences = CompareSkins(*before, *after);
    const std::vector<LayoutChange> changes = ChangesOfLayouts(arguments, *before, *after);
    (arguments.Has("json") ? PrintJson : PrintWords)(differences, changes);
    FlushOutput();
    const bool isPixel = std::ranges::any_of(changes, [](const LayoutChange& one) { return one.share > 0; });
    return differences.empty() && !isPixel ? 0 : 1;
}

}  // namespace ornavo
