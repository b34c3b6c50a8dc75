// SPDX-License-Identifier: MIT
// Loading and saving a skin of many elements, compared with an XML library's tree of the same bytes and with
// reading and writing the bare file.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <pugixml.hpp>
#include <sstream>
#include <string>

#include "base/file_layer.h"
#include "base/files.h"
#include "document/current_skin.h"

namespace ornavo {
namespace {

namespace fs = std::filesystem;

constexpr int ElementCount = 5000;

/// The real disk without flushing, as an XML library saves.
class UnflushedLayer : public FileLayer {
public:
    void Flush(int) override {}
    void FlushFolder(const fs::path&) override {}
};

std::string Numbered(const char* text, int i) {
    return std::string(text).append(std::to_string(i));
}

void FillElement(dbLayoutElement& element, int i) {
    element.ElementName = Numbered("Element number ", i);
    element.LeftX = i % 1024;
    element.TopY = i * 7 % 768;
    element.WidthX = 40 + i % 100;
    element.HeightY = 30;
    element.LockLeft = element.LockTop = i % 2 == 0;
    element.Caption = i % 3 == 0 ? Numbered("Caption ", i) : "";
    element.Rotation = i % 5 == 0 ? 12.5 : 0;
    element.UseTransparency = i % 4 == 0;
    element.TextColor = 0xFFFFFF;
    element.BackgroundColor = ButtonFace;
    if (i % 6 == 0) element.Font = std::make_shared<Font>(Font{.Name = "Arial", .Size = 8.25, .Bold = true});
}

/// A folder with the skin, which is also well-formed XML, for as long as the program runs.
class Sample {
public:
    Sample() {
        std::string name = fs::temp_directory_path() / "ornavo-bench-XXXXXX";
        folder = mkdtemp(name.data());
        skin.SetBasePath(folder.string());
        skin.SkinName = "Big";
        const dbLayoutRef layout = skin.AddNewLayout("One");
        layout->AddDummyPoints();
        for (int i = 4; i <= ElementCount; ++i)
            FillElement(*layout->dbLayoutElements->Add(i, Numbered("E", i), i % 5, i % 56), i);
        skin.SaveSkin(false);
        bytes = ReadFile(skin.SkinFile());
    }
    ~Sample() { fs::remove_all(folder); }
    fs::path folder;
    dbSkin skin;
    std::string bytes;
};

Sample& sample() {
    static Sample one;
    return one;
}

void CountBytes(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * sample().bytes.size()));
}

void LoadSkin(benchmark::State& state) {
    for (auto _ : state) {
        dbSkin skin;
        skin.SetBasePath(sample().skin.BasePath());
        skin.SkinName = "Big";
        skin.LoadSkin();
        if (skin.dbLayouts->Item(1)->dbLayoutElements->Count() != ElementCount)
            state.SkipWithError("not loaded");
        state.PauseTiming();
        skin = dbSkin();
        state.ResumeTiming();
    }
    CountBytes(state);
}

void LoadPugixmlBuffer(benchmark::State& state) {
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_buffer(sample().bytes.data(), sample().bytes.size()))
            state.SkipWithError("no XML");
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
    CountBytes(state);
}

void LoadPugixmlFile(benchmark::State& state) {
    const std::string file = sample().skin.SkinFile();
    for (auto _ : state) {
        pugi::xml_document document;
        if (!document.load_file(file.c_str())) state.SkipWithError("no XML");
        state.PauseTiming();
        document.reset();
        state.ResumeTiming();
    }
    CountBytes(state);
}

void ReadPlainFile(benchmark::State& state) {
    const std::string file = sample().skin.SkinFile();
    for (auto _ : state) benchmark::DoNotOptimize(ReadFile(file));
    CountBytes(state);
}

void CopyPlainFile(benchmark::State& state) {
    const fs::path target = sample().folder / "copy.xml";
    for (auto _ : state)
        fs::copy_file(sample().skin.SkinFile(), target, fs::copy_options::overwrite_existing);
    CountBytes(state);
}

void SaveSkin(benchmark::State& state, bool flushed) {
    UnflushedLayer unflushed;
    UseFileLayer(flushed ? nullptr : &unflushed);
    for (auto _ : state) sample().skin.SaveSkin(false);
    UseFileLayer(nullptr);
    CountBytes(state);
}

/// pugixml's text is written to memory and then to the disk by the same steps as a skin.
void SavePugixml(benchmark::State& state, bool flushed) {
    UnflushedLayer unflushed;
    UseFileLayer(flushed ? nullptr : &unflushed);
    pugi::xml_document document;
    document.load_buffer(sample().bytes.data(), sample().bytes.size());
    struct Writer : pugi::xml_writer {
        std::string bytes;
        void write(const void* data, std::size_t size) override {
            bytes.append(static_cast<const char*>(data), size);
        }
    };
    for (auto _ : state) {
        Writer writer;
        document.save(writer, "\t", pugi::format_default, pugi::encoding_latin1);
        ReplaceFile(sample().folder / "pugixml.xml", writer.bytes);
    }
    UseFileLayer(nullptr);
    CountBytes(state);
}

/// By the library's own function.
void SavePugixmlFile(benchmark::State& state) {
    pugi::xml_document document;
    document.load_buffer(sample().bytes.data(), sample().bytes.size());
    const std::string file = sample().folder / "pugixml.xml";
    for (auto _ : state) document.save_file(file.c_str(), "\t", pugi::format_default, pugi::encoding_latin1);
    CountBytes(state);
}

/// What a real skin has: 500 elements with three pictures each of the 300 in its folder.
class PictureSkin {
public:
    /// Upper: the names are in another case than the files. Gone: there are no such files.
    enum class Names { Exact, Upper, Gone };
    explicit PictureSkin(Names names) {
        skin.SetBasePath(sample().folder.string());
        skin.SkinName = std::string("Pictures").append(std::to_string(static_cast<int>(names)));
        fs::create_directory(skin.SkinFolder());
        const std::string bytes(2000, 'p');
        for (int i = 0; i < PictureCount; ++i)
            if (names != Names::Gone) ReplaceFile(skin.SkinFolder() + Numbered("picture", i) + ".png", bytes);
        const dbLayoutRef layout = skin.AddNewLayout("One");
        for (int i = 4; i <= NamedElementCount; ++i) {
            dbLayoutElement& element = *layout->dbLayoutElements->Add(i, Numbered("E", i), i % 5, i % 56);
            FillElement(element, i);
            std::string dbLayoutElement::*fields[] = {&dbLayoutElement::PicNormal, &dbLayoutElement::PicOver,
                                                      &dbLayoutElement::PicDown};
            for (int field = 0; field < 3; ++field)
                element.*fields[field] =
                    Numbered(names == Names::Upper ? "PICTURE" : "picture", (3 * i + field) % PictureCount) +
                    ".png";
        }
        text = skin.FileBytes();
    }
    /// As it was before the first save.
    void LoadAnew() {
        ReplaceFile(skin.SkinFile(), text);
        dbSkin anew;
        anew.SetBasePath(skin.BasePath());
        anew.SkinName = skin.SkinName;
        anew.LoadSkin();
        skin = anew;
        *objSkin = skin;
    }
    dbSkin skin;
    std::string text;

private:
    static constexpr int PictureCount = 300, NamedElementCount = 500;
};

void SaveNamed(benchmark::State& state, PictureSkin::Names names) {
    UnflushedLayer unflushed;
    UseFileLayer(&unflushed);
    PictureSkin pictures(names);
    for (auto _ : state) {
        state.PauseTiming();
        pictures.LoadAnew();
        state.ResumeTiming();
        pictures.skin.SaveSkin(false);
    }
    UseFileLayer(nullptr);
}

/// The limit: what any save of that skin does.
void WriteNamed(benchmark::State& state) {
    UnflushedLayer unflushed;
    UseFileLayer(&unflushed);
    PictureSkin pictures(PictureSkin::Names::Exact);
    for (auto _ : state) {
        state.PauseTiming();
        pictures.LoadAnew();
        state.ResumeTiming();
        ReplaceFile(pictures.skin.SkinFile(), pictures.skin.FileBytes());
    }
    UseFileLayer(nullptr);
}

void Medians(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->Repetitions(9)->ReportAggregatesOnly()->UseRealTime();
}

BENCHMARK(LoadSkin)->Apply(Medians);
BENCHMARK(LoadPugixmlBuffer)->Apply(Medians);
BENCHMARK(LoadPugixmlFile)->Apply(Medians);
BENCHMARK(ReadPlainFile)->Apply(Medians);
BENCHMARK(CopyPlainFile)->Apply(Medians);
BENCHMARK_CAPTURE(SaveSkin, unflushed, false)->Apply(Medians);
BENCHMARK_CAPTURE(SavePugixml, unflushed, false)->Apply(Medians);
BENCHMARK(SavePugixmlFile)->Apply(Medians);
BENCHMARK_CAPTURE(SaveSkin, flushed, true)->Apply(Medians);
BENCHMARK_CAPTURE(SavePugixml, flushed, true)->Apply(Medians);
BENCHMARK(WriteNamed)->Apply(Medians);
BENCHMARK_CAPTURE(SaveNamed, exact, PictureSkin::Names::Exact)->Apply(Medians);
BENCHMARK_CAPTURE(SaveNamed, upper, PictureSkin::Names::Upper)->Apply(Medians);
BENCHMARK_CAPTURE(SaveNamed, gone, PictureSkin::Names::Gone)->Apply(Medians);

}  // namespace
}  // namespace ornavo

BENCHMARK_MAIN();
