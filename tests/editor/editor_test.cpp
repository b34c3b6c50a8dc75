// SPDX-License-Identifier: MIT
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "editor/selection.h"
#include "editor/skin_drop.h"
#include "platform/control.h"
#include "support/recorded_windows.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace ornavo::testing {
namespace {

TEST(Selection, IsAControlAndAKey) {
    std::string told;
    Selection selection(
        [&](Control& corner, bool isSelected) { told += (isSelected ? "+" : "-") + corner.Tag; });
    Control element(nullptr, "btn_Element"), sample(nullptr, "but_Song");
    Control corner(nullptr, "cPointMover"), other(nullptr, "cPointMover");
    element.Tag = "Button1", sample.Tag = "no key", corner.Tag = "K1", other.Tag = "K2";
    const struct {
        std::function<void()> step;
        Control* control;
        const char *key, *told;  // which corners show that they are selected, or no longer
    } rows[] = {{[&] { selection.Select(element); }, &element, "Button1", ""},
                {[&] { selection.Select(corner); }, &corner, "K1", "+K1"},
                {[&] { selection.Select(other); }, &other, "K2", "-K1+K2"},
                {[&] { selection.Follow(corner); }, &corner, "K2", "-K2"},
                {[&] { selection.ForgetControl(); }, nullptr, "K2", "-K1"},
                {[&] { selection.SelectSample(sample); }, &sample, "", ""},
                {[&] { selection.Select(corner); }, &corner, "K1", "+K1"},
                {[&] { selection.Clear(); }, nullptr, "", "-K1"}};
    for (const auto& row : rows) {
        told.clear();
        row.step();
        EXPECT_EQ(selection.SelControl(), row.control) << &row - rows;
        EXPECT_EQ(selection.SelKey() + " " + told, std::string(row.key) + " " + row.told);
        EXPECT_EQ(selection.IsCorner(), row.control == &corner || row.control == &other);
    }
}

TEST(SkinDrop, TakesOneSkinAlone) {
    const TemporaryFolder folder;
    for (const char* file : {"Blue/skinSettings.XML", "Blue/a.png", "plain/a.txt"}) folder.Write(file, "");
    ScriptedPrompts prompts;
    RecordedWindows windows;
    QWidget window;
    new SkinDrop(window, windows);
    windows.failure = "torn";
    const std::pair<std::vector<const char*>, bool> rows[] = {
        {{"Blue"}, true},   {{"Blue/skinSettings.XML"}, true}, {{"Blue/a.png"}, false},
        {{"plain"}, false}, {{"Blue", "plain"}, false},        {{}, false}};
    for (const auto& [names, isTaken] : rows) {
        QMimeData data;
        QList<QUrl> urls;
        for (const char* name : names) urls += QUrl::fromLocalFile(QString::fromStdString(folder / name));
        data.setUrls(urls);
        windows.opened.clear();
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&window, &enter);
        EXPECT_EQ(enter.isAccepted(), isTaken);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &drop);
        EXPECT_EQ(windows.opened, isTaken ? (folder / names[0]).string() : "");
    }
    EXPECT_EQ(prompts.asked, std::vector<std::string>(2, "Loading Skin Error: torn"));
}

}  // namespace
}  // namespace ornavo::testing
