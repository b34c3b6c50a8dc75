// SPDX-License-Identifier: MIT
// Stands in for a picture's row of the properties panel: Enter edits the picture.
#include <QApplication>
#include <QLineEdit>

#include "base/paths.h"
#include "dialogs/qt_prompts.h"
#include "document/current_skin.h"
#include "picture/frm_pictureeditor.h"
#include "platform/startup.h"

int main(int argc, char** argv) {
    using namespace ornavo;
    if (argc != 3) return 2;
    PrepareProcess();
    QApplication application(argc, argv);
    InitCommonControls(application);
    QtPrompts answers;
    UsePrompts(&answers);
    objSkin->SetBasePath(argv[1]);
    objSkin->SkinName = argv[2];
    objSkin->LoadSkin();
    std::string& picture = objSkin->dbLayouts->Item(1)->dbLayoutElements->Item(1)->PicNormal;
    QLineEdit row(QString::fromStdString(picture));
    row.setWindowTitle("Row");
    QObject::connect(&row, &QLineEdit::returnPressed, [&] {
        frm_PictureEditor editor(&row);
        editor.SetFinalName(GetBaseName(picture));
        editor.SetEditPicture(picture);
        editor.ShowModal();
        if (!editor.IsCanceled()) picture = GetFileName(editor.EditPicture());
    });
    row.show();
    const int code = QApplication::exec();
    objSkin->SaveSkin(false);
    return code;
}
