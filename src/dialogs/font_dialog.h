// SPDX-License-Identifier: MIT
// The choice of a font for a skin. It knows faces that this machine lacks, since the jukebox may have them,
// and shows each as the canvas would.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "base/font.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace ornavo {

class FontDialog : public QDialog {
    Q_OBJECT
public:
    /// The list has the faces of this machine, those offered, and that of `start`.
    FontDialog(QWidget* owner, const Font& start, const std::vector<std::string>& offered);

    /// As it stands in the dialog; a name and a size that were not touched are exactly those of `start`.
    Font Chosen() const;

private:
    void ListFaces(const std::vector<std::string>& offered);
    QLayout* FaceColumn();
    QLayout* SizeColumn();
    QLayout* StyleColumn();
    void ShowFacesLike(const QString& typed);
    void TakeSize();
    void ShowSample();

    Font font_;
    QLineEdit* filter_;
    QListWidget* faces_;
    QLineEdit* size_;
    QListWidget* sizes_;
    QCheckBox *bold_, *italic_, *underline_, *strikethrough_;
    QLabel* sample_;
};

}  // namespace ornavo
