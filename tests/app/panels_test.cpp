// SPDX-License-Identifier: MIT
// The panels under the desktop's own font: nothing of them is cut.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "app/program_fixture.h"

namespace ornavo::testing {
namespace {

/// What has less room than it asks for.
std::string Cut(const QWidget& window) {
    std::string names;
    for (const QWidget* part : window.findChildren<QWidget*>()) {
        const auto* command = dynamic_cast<const TileCommand*>(part);
        const bool named = command ? command->Caption().size() > 3 : part->objectName().startsWith("chk_Sho");
        const bool line = qobject_cast<const QLineEdit*>(part) || qobject_cast<const QLabel*>(part);
        const int low = part->fontMetrics().ascent() + part->fontMetrics().descent() / 2;
        const bool narrow = named && part->width() < part->sizeHint().width();
        if (part->isVisible() && (narrow || ((command || line) && part->height() < low)))
            names += part->objectName().toStdString() + ' ';
    }
    return names;
}

using Panels = ProgramTest;
TEST_F(Panels, AreCutUnderNoFontOfTheDesktop) {
    const QFont before = QApplication::font();
    for (const int pixels : {11, 12, 15, 19, 23, 28}) {
        QFont font = before;
        font.setPixelSize(pixels);
        QApplication::setFont(font);
        const QTemporaryDir settings;
        UseSettingsFile(settings.filePath("settings.ini"));
        Start("");
        program_->LoadDebug(ORNAVO_SOURCE_DIR "/skins/Classic");
        Panel().btn_SkinProperties->PerformClick();
        QCoreApplication::processEvents();
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_EQ(window->windowType() == Qt::Tool ? Cut(*window) : "", "") << pixels;
        program_->properties().Hide();
    }
    QApplication::setFont(before);
}

}  // namespace
}  // namespace ornavo::testing
