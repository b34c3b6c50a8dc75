// SPDX-License-Identifier: MIT
// One step of a slider over a picture of 12 megapixels, beside a copy of the same bytes. Each step has a new
// hue, so that the table is computed each time. Not judged: the rule pixel by pixel, and OpenCV's conversion
// to hue, lightness and saturation and back, on one thread.
#include <cstring>
#include <memory>
#include <opencv2/imgproc.hpp>

#include "judge.h"
#include "pixels/ccolourise.h"

namespace ornavo {
namespace {

constexpr int Width = 4000, Height = 3000;
constexpr int Saturation = 177, OfTies = 180;  // pairs of one sum have one colour, as for most, or two

enum Content { Noise, Scene };

/// Noise has random pairs of channels, the worst case for a table. A scene changes slowly and has a little
/// grain, like a photograph.
cDIBSection MakePicture(Content content, int width, int height) {
    cDIBSection picture;
    picture.Create(width, height);
    picture.RandomiseBits(1);
    if (content == Noise) return picture;
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = picture.ScanLine(y);
        for (int x = 0; x < width; ++x)
            for (int channel = 0; channel < 3; ++channel) {
                std::uint8_t& byte = row[x * 3 + channel];
                const int slope = (x * (channel + 1) / 40 + y / 20) & 511;
                const int level = slope < 256 ? slope : 511 - slope;
                byte = static_cast<std::uint8_t>((level * 15 + byte) / 16);
            }
    }
    return picture;
}

/// A source, and a picture of the same size that is written over and over.
struct Pictures {
    cDIBSection source, result;
    cColourise engine;
    Pictures(cDIBSection picture, int saturation) : source(std::move(picture)), result(source) {
        engine.Saturation = saturation;
    }

    void Copy() {
        std::memcpy(result.DIBSectionBitsPtr(), source.DIBSectionBitsPtr(),
                    static_cast<std::size_t>(source.BytesPerScanLine()) * source.Height());
    }
    void NextHue() { engine.Hue = (engine.Hue + 1) % 256; }
    void Recolour() {
        NextHue();
        engine.Process(source, result);
    }
    void RecolourByRule() {
        NextHue();
        engine.ProcessByRule(source, result);
    }
};

std::shared_ptr<Pictures> Make(Content content, int saturation = Saturation, int width = Width,
                               int height = Height) {
    return std::make_shared<Pictures>(MakePicture(content, width, height), saturation);
}

bench::Round OneCore(std::function<void()> work) {
    return [work] { return bench::Cpu(work); };  // of all threads together
}

bench::Round TwoCores(std::function<void()> work) {
    return [work] { return bench::Wall(work); };
}

std::vector<bench::Row> Rows() {
    const struct {
        std::string name;
        std::shared_ptr<Pictures> pictures;
    } contents[] = {{"scene", Make(Scene)},
                    {"noise", Make(Noise)},
                    {"noise of ties", Make(Noise, OfTies)},
                    {"padded rows", Make(Scene, Saturation, Width + 2)}};
    std::vector<bench::Row> rows;
    for (const auto& [name, pictures] : contents) {
        const auto step = [pictures = pictures] { pictures->Recolour(); };
        const auto copy = [pictures = pictures] { pictures->Copy(); };
        rows.push_back(
            {"recolour 12 megapixels, " + name + ", one core", OneCore(step), "memcpy", OneCore(copy), 3});
        rows.push_back({"recolour 12 megapixels, " + name + ", two cores, wall", TwoCores(step),
                        "memcpy on one", TwoCores(copy), 2});
    }
    return rows;
}

/// Smaller pictures, because these take longer.
std::vector<bench::Row> ToldRows() {
    const auto pictures = Make(Scene, Saturation, Width / 4, Height / 4);
    const auto onePixel = Make(Noise, Saturation, 1, 1);
    const auto openCv = [pictures, hls = cv::Mat(), back = cv::Mat()]() mutable {
        cDIBSection& source = pictures->source;
        const cv::Mat picture(source.Height(), source.Width(), CV_8UC3, source.DIBSectionBitsPtr());
        cv::cvtColor(picture, hls, cv::COLOR_BGR2HLS);
        cv::cvtColor(hls, back, cv::COLOR_HLS2BGR);
    };
    const auto row = [&](std::string peer, bench::Round round) {
        return bench::Row{"recolour 0.75 megapixels", OneCore([pictures] { pictures->Recolour(); }),
                          std::move(peer), std::move(round)};
    };
    return {row("by the rule", OneCore([pictures] { pictures->RecolourByRule(); })),
            row("OpenCV", OneCore(openCv)),
            {"recolour a pixel: the table alone", OneCore([onePixel] { onePixel->Recolour(); }), "", {}}};
}

}  // namespace
}  // namespace ornavo

int main(int argc, char** argv) {
    cv::setNumThreads(1);
    std::vector<ornavo::bench::Row> rows = ornavo::Rows();
    for (const ornavo::bench::Row& row : ornavo::ToldRows()) rows.push_back(row);
    return ornavo::bench::Judge(rows, argc, argv);
}
