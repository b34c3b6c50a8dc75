// SPDX-License-Identifier: MIT
// The dialog that creates a new, empty skin in memory.
#pragma once

#include "platform/asker.h"
#include "platform/form.h"
#include "platform/tile_command.h"
#include "project/skin_files.h"

class QLineEdit;

namespace ornavo {

/// The dialog for a new skin's name and size.
class frm_AddNewSkin : public Form {
    Q_OBJECT
public:
    frm_AddNewSkin(QWidget* owner, SkinFiles& files);

    QLineEdit* tbx_SkinName;
    QLineEdit* tbx_Width;  // pixels, at least 600
    QLineEdit* tbx_Height;
    TileCommand* btn_Create;
    TileCommand* btn_Cancel;

    void btn_Create_Click();

signals:
    void Created();  // the new skin is the current one; the dialog is closed

protected:
    void keyPressEvent(QKeyEvent*) override;
    void hideEvent(QHideEvent*) override { GiveKeyboardTo(parentWidget()); }

private:
    void Form_Load();

    SkinFiles& files_;
};

}  // namespace ornavo
