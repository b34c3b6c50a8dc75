// SPDX-License-Identifier: MIT
// The picture of the rich sample made by the tool, whole process, beside that of an SVG converter: the
// same pictures at the same places and sizes, without texts, colours made transparent or rotations. And the
// size of the picture, beside that by the encoder's own compression.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include "base/paths.h"
#include "document/current_skin.h"
#include "judge.h"
#include "process.h"
#include "render/placement.h"

namespace ornavo::bench {
namespace {

constexpr const char* Layout = "Standard";

/// The pictures of a layout, as they are before a pointer comes.
QString Svg(const dbLayout& layout) {
    const Frame frame = {objSkin->SkinWidth, objSkin->SkinHeight, objSkin->SkinWidth, objSkin->SkinHeight};
    QString text = QString("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>\n")
                       .arg(frame.TargetWidth)
                       .arg(frame.TargetHeight);
    for (const dbLayoutElementRef& element : *layout.dbLayoutElements) {
        if (element->PicNormal.empty()) continue;
        const Rect place = GetElementRect(*element, frame);
        text +=
            QString("<image x='%1' y='%2' width='%3' height='%4' preserveAspectRatio='none' href='%5'/>\n")
                .arg(place.left)
                .arg(place.top)
                .arg(place.width)
                .arg(place.height)
                .arg(QString::fromStdString(GetFileName(element->PicNormal)));
    }
    return text + "</svg>\n";
}

/// The sample and its SVG in a folder, because the converter reads no pictures of other folders.
class Sample {
public:
    Sample() {
        const QDir skin(RICH_SKIN);
        for (const QString& name : skin.entryList(QDir::Files))
            QFile::copy(skin.filePath(name), folder_.filePath(name));
        objSkin->SetBasePath(QFileInfo(folder_.path()).path().toStdString());
        objSkin->SkinName = QFileInfo(folder_.path()).fileName().toStdString();
        const dbLayoutRef layout = objSkin->LoadSkin() ? objSkin->dbLayouts->Find(Layout) : nullptr;
        if (!layout) qFatal("no sample");
        QFile svg(folder_.filePath("layout.svg"));
        if (!svg.open(QIODevice::WriteOnly) || svg.write(Svg(*layout).toUtf8()) < 0) qFatal("no SVG");
    }
    double Render() const {
        return CpuOfProcess({TOOL, "render", PathOf(""), "--layout", Layout, "--out", PathOf("here.png")});
    }
    double Convert() const {
        return CpuOfProcess({"rsvg-convert", "-o", PathOf("peer.png"), PathOf("layout.svg")});
    }
    std::string PathOf(const char* name) const { return folder_.filePath(name).toStdString(); }

private:
    QTemporaryDir folder_;
};

double KiloBytes(const QString& file) {
    return static_cast<double>(QFileInfo(file).size()) / 1000;
}

int Run(int count, char** words) {
    const Sample sample;
    sample.Render();
    const QString here = QString::fromStdString(sample.PathOf("here.png"));
    const QString again = QString::fromStdString(sample.PathOf("again.png"));
    if (!QImage(here).save(again)) qFatal("no picture");
    return Judge({{"render Aurora, whole process", [&] { return sample.Render(); }, "rsvg-convert",
                   [&] { return sample.Convert(); }, 1},
                  {"render Aurora, whole process, wall", [&] { return Wall([&] { sample.Render(); }); },
                   "rsvg-convert", [&] { return Wall([&] { sample.Convert(); }); }, 1},
                  {"the size of its PNG", [=] { return KiloBytes(here); }, "the encoder's own compression",
                   [=] { return KiloBytes(again); }, 1.2, "", "kB"}},
                 count, words);
}

}  // namespace
}  // namespace ornavo::bench

int main(int count, char** words) {
    return ornavo::bench::Run(count, words);
}
