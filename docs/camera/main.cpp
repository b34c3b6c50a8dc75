// SPDX-License-Identifier: MIT
// Takes the guide's pictures anew: guide_pictures FOLDER [PAGE...]. Each page begins on an empty desktop.
#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "pictures.h"

using namespace ornavo;

namespace {

constexpr int Limit = 180;  // seconds, of a page
constexpr guide::Page Pages[] = {
    {"guide", guide::TakeGuide},
    {"first-skin", guide::TakeFirstSkin},
};

bool Take(const guide::Page& page, const QString& folder) {
    walk::Desktop desktop(Limit);
    guide::Camera camera(desktop, folder);
    try {
        page.take(desktop, camera);
        return true;
    } catch (const std::exception& fault) {
        const QString file = QDir(folder).filePath(QString(page.name) + "-failed.png");
        desktop.Picture().save(file);
        std::fprintf(stderr, "%s: %s; the screen is kept in %s\n", page.name, fault.what(), qPrintable(file));
        return false;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.isEmpty()) return std::fputs("usage: guide_pictures FOLDER [PAGE...]\n", stderr), 2;
    bool allTaken = true;
    for (const guide::Page& page : Pages)
        if (arguments.size() == 1 || arguments.indexOf(page.name) > 0)
            allTaken = Take(page, arguments.first()) && allTaken;
    return allTaken ? 0 : 1;
}
