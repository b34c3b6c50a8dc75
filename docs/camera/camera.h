// SPDX-License-Identifier: MIT
// Parts of a desktop become pictures of the guide.
#pragma once

#include <QStringList>

#include "walk/desktop.h"

namespace ornavo::guide {

class Camera {
public:
    /// `folder`: where the pictures go; those of the same name are replaced.
    Camera(walk::Desktop& desktop, QString folder) : desktop_(desktop), folder_(std::move(folder)) {}

    /// A part of the screen, once nothing in it moves any more. `scale`: percent of its size.
    void Take(const QString& name, const QRect& part, int scale = 100);
    /// Parts of the screen side by side.
    void TakeBeside(const QString& name, const QList<QRect>& parts, int scale = 100);
    /// The same of pictures taken before, `columns` in a row.
    void KeepBeside(const QString& name, const QList<QImage>& pictures, int scale = 100, int columns = 9);
    QImage Still(const QRect& part);

    /// One more picture of the moving one, as it is at once.
    void Film(const QRect& part) { film_ += desktop_.Picture().copy(part); }
    /// `pause`: between its pictures, in hundredths of a second.
    void KeepFilm(const QString& name, int scale, int pause);

private:
    void Keep(const QString& name, const QImage& picture, int scale);
    void Convert(const QStringList& arguments) const;
    walk::Desktop& desktop_;
    QString folder_;
    QList<QImage> film_;
};

}  // namespace ornavo::guide
