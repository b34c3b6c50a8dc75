// SPDX-License-Identifier: MIT
#include "camera.h"

#include <QPainter>
#include <QTemporaryDir>

namespace ornavo::guide {
namespace {

constexpr int StillFor = 500, AtMost = 3000;  // milliseconds
constexpr int Gap = 12;                       // pixels between pictures side by side

QString Percent(int scale) {
    return walk::Number(scale) + '%';
}

}  // namespace

QImage Camera::Still(const QRect& part) {
    QElapsedTimer all, still;
    all.start();
    still.start();
    QImage seen = desktop_.Picture().copy(part);
    desktop_.WaitFor("a picture that is still", [&] {
        const QImage now = desktop_.Picture().copy(part);
        if (now != seen) still.start();
        seen = now;
        return still.elapsed() > StillFor || all.elapsed() > AtMost;
    });
    return seen;
}

void Camera::Take(const QString& name, const QRect& part, int scale) {
    Keep(name, Still(part), scale);
}

void Camera::TakeBeside(const QString& name, const QList<QRect>& parts, int scale) {
    QList<QImage> pictures;
    for (const QRect& part : parts) pictures += Still(part);
    KeepBeside(name, pictures, scale);
}

void Camera::KeepBeside(const QString& name, const QList<QImage>& pictures, int scale, int columns) {
    QList<QPoint> corners;
    QSize whole;
    QPoint next;
    for (const QImage& picture : pictures) {
        if (!corners.isEmpty() && corners.size() % columns == 0) next = {0, whole.height() + Gap};
        corners += next;
        whole = whole.expandedTo({next.x() + picture.width(), next.y() + picture.height()});
        next.rx() += picture.width() + Gap;
    }
    QImage board(whole, QImage::Format_RGB32);
    board.fill(Qt::white);
    QPainter painter(&board);
    for (int i = 0; i < pictures.size(); ++i) painter.drawImage(corners[i], pictures[i]);
    painter.end();
    Keep(name, board, scale);
}

void Camera::Keep(const QString& name, const QImage& picture, int scale) {
    const QTemporaryDir scratch;
    const QString file = scratch.filePath("picture.png");
    if (!picture.save(file)) throw std::runtime_error("can't write " + file.toStdString());
    Convert({file, "-resize", Percent(scale), "-dither", "FloydSteinberg", "-colors", "256", "-strip",
             "-define", "png:exclude-chunks=date,time", "-define", "png:compression-level=9",
             "png8:" + folder_ + '/' + name + ".png"});
}

void Camera::KeepFilm(const QString& name, int scale, int pause) {
    const QTemporaryDir scratch;
    QStringList files;
    for (const QImage& picture : film_) {
        files += scratch.filePath(QString("%1.png").arg(files.size(), 4, 10, QChar('0')));
        if (!picture.save(files.last()))
            throw std::runtime_error("can't write " + files.last().toStdString());
    }
    film_.clear();
    Convert(QStringList{"-delay", walk::Number(pause), "-loop", "0"} + files +
            QStringList{"-resize", Percent(scale), "+dither", "-colors", "128", "-fuzz", "2%", "-layers",
                        "Optimize", folder_ + '/' + name + ".gif"});
}

void Camera::Convert(const QStringList& arguments) const {
    QProcess convert;
    convert.setProcessChannelMode(QProcess::ForwardedChannels);
    convert.start("convert", arguments);
    if (!convert.waitForFinished(120000) || convert.exitCode() != 0)
        throw std::runtime_error("convert has failed: " + arguments.last().toStdString());
}

}  // namespace ornavo::guide
