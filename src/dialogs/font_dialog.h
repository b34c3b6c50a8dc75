// SPDX-License-Identifier: MIT
// The dialog for a skin's font. It also offers faces that are not installed here, because the jukebox may
// have them, and shows each as the canvas would.
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

/// The font dialog.
class FontDialog : public QDialog {
    Q_OBJECT
public:
    /// Lists the installed faces, `offered` and the face of `start`.
    FontDialog(QWidget* owner, const Font& start, const std::vector<std::string>& offered);

    /// The chosen font. A face and a size that the user has not changed are those of `start`.
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
