// SPDX-License-Identifier: MIT
// One step of a slider over a picture of 12 megapixels, compared with a copy of the same bytes, with the rule
// pixel by pixel, and with OpenCV's conversion to hue, lightness and saturation and back. All on one thread.
// Each step has a new hue, so that the table is computed each time.
#include <benchmark/benchmark.h>

#include <cstring>
#include <opencv2/imgproc.hpp>

#include "pixels/ccolourise.h"

namespace ornavo {
namespace {

constexpr int Width = 4000, Height = 3000;
constexpr int Saturation = 180;

enum Content { Noise, Scene };

/// Noise has random pairs of channels, the worst case for a table. A scene changes slowly and has a little
/// grain, like a photograph.
cDIBSection MakePicture(Content content, int width = Width, int height = Height) {
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

std::int64_t BytesOf(const cDIBSection& picture) {
    return std::int64_t{picture.BytesPerScanLine()} * picture.Height();
}

void CountBytes(benchmark::State& state, const cDIBSection& picture) {
    state.SetBytesProcessed(state.iterations() * BytesOf(picture));
}

void CopyBytes(benchmark::State& state) {
    const cDIBSection source = MakePicture(Noise);
    cDIBSection result = source;
    for (auto _ : state) {
        std::memcpy(result.DIBSectionBitsPtr(), source.DIBSectionBitsPtr(),
                    static_cast<std::size_t>(BytesOf(source)));
        benchmark::ClobberMemory();
    }
    CountBytes(state, source);
}

void Process(benchmark::State& state, Content content, int width) {
    const cDIBSection source = MakePicture(content, width);
    cDIBSection result = source;
    cColourise engine;
    engine.Saturation = Saturation;
    for (auto _ : state) {
        engine.Hue = (engine.Hue + 1) % 256;
        engine.Process(source, result);
        benchmark::ClobberMemory();
    }
    CountBytes(state, source);
}

/// Measures little but the computation of the table.
void ProcessOnePixel(benchmark::State& state) {
    cDIBSection picture = MakePicture(Noise, 1, 1);
    cColourise engine;
    engine.Saturation = Saturation;
    for (auto _ : state) {
        engine.Hue = (engine.Hue + 1) % 256;
        engine.Process(picture, picture);
        benchmark::ClobberMemory();
    }
}

void ProcessByRule(benchmark::State& state, Content content) {
    const cDIBSection source = MakePicture(content);
    cDIBSection result = source;
    cColourise engine;
    engine.Saturation = Saturation;
    for (auto _ : state) {
        engine.Hue = (engine.Hue + 1) % 256;
        engine.ProcessByRule(source, result);
        benchmark::ClobberMemory();
    }
    CountBytes(state, source);
}

void OpenCvThereAndBack(benchmark::State& state, Content content) {
    cv::setNumThreads(1);
    cDIBSection source = MakePicture(content);
    const cv::Mat picture(Height, Width, CV_8UC3, source.DIBSectionBitsPtr());
    cv::Mat hls, result;
    for (auto _ : state) {
        cv::cvtColor(picture, hls, cv::COLOR_BGR2HLS);
        cv::cvtColor(hls, result, cv::COLOR_HLS2BGR);
        benchmark::ClobberMemory();
    }
    CountBytes(state, source);
}

void Medians(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly();
}
void Once(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->Iterations(1);
}

BENCHMARK(CopyBytes)->Apply(Medians);
BENCHMARK_CAPTURE(Process, scene, Scene, Width)->Apply(Medians);
BENCHMARK_CAPTURE(Process, noise, Noise, Width)->Apply(Medians);
BENCHMARK_CAPTURE(Process, scene with padded rows, Scene, Width + 2)->Apply(Medians);
BENCHMARK(ProcessOnePixel)->Apply(Medians);
BENCHMARK_CAPTURE(ProcessByRule, scene, Scene)->Apply(Once);
BENCHMARK_CAPTURE(ProcessByRule, noise, Noise)->Apply(Once);
BENCHMARK_CAPTURE(OpenCvThereAndBack, scene, Scene)->Apply(Medians);
BENCHMARK_CAPTURE(OpenCvThereAndBack, noise, Noise)->Apply(Medians);

}  // namespace
}  // namespace ornavo

BENCHMARK_MAIN();
