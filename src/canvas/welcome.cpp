// SPDX-License-Identifier: MIT
#include "canvas/welcome.h"

#include <QPainter>
#include <QVBoxLayout>

#include "base/lookup.h"
#include "editor/open_skin.h"
#include "editor/windows.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr int LeastWidth = 400, CardMargin = 16, MostColumns = 6;
const QColor CardColour(250, 248, 244), EdgeColour(150, 144, 136), InkColour(52, 48, 44);

QString TitleOf(const std::string& skin, bool found) {
    if (skin.empty()) return QStringLiteral("No skin is open");
    return (found ? QStringLiteral("Skin \u201c%1\u201d has no layout")
                  : QStringLiteral("No skin \u201c%1\u201d was found"))
        .arg(Shown(skin));
}

QString HintFor(bool found) {
    return found ? QStringLiteral(
                       "Add one, or open another skin, in the window \u201cSkin Project\u201d,\n"
                       "or drop a skin\u2019s folder here.")
                 : QStringLiteral(
                       "Open a skin or create one in the window \u201cSkin Project\u201d,\n"
                       "or drop a skin\u2019s folder here.");
}

}  // namespace

WelcomeCard::WelcomeCard(QWidget& canvas, Windows& windows)
    : QFrame(&canvas), lst_Skins(this), canvas_(canvas), windows_(windows), lbl_Title(this), lbl_Hint(this) {
    setObjectName(QStringLiteral("WelcomeCard"));
    QPalette colours = palette();
    for (const QPalette::ColorRole ink : {QPalette::WindowText, QPalette::Text})
        colours.setColor(ink, InkColour);
    colours.setColor(QPalette::Base, CardColour);
    setPalette(colours);
    for (QLabel* label : {&lbl_Title, &lbl_Hint}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(CardMargin, CardMargin, CardMargin, CardMargin);
    column->setSpacing(CardMargin / 2);
    column->addWidget(&lbl_Title);
    column->addWidget(&lbl_Hint);
    column->addWidget(&lst_Skins, 0, Qt::AlignHCenter);
    connect(&lst_Skins, &SkinList::Chosen, this,
            [this](const std::string& folder) { OpenSkin(windows_, folder); });
    connect(&tmrFill, &QTimer::timeout, this, &WelcomeCard::Fill);
    hide();
}

void WelcomeCard::Show(const std::string& skin, bool found) {
    if (!isHidden() && lbl_Title.text() == TitleOf(skin, found)) return Place();  // composed again
    QFont large = font();
    large.setPixelSize(QFontInfo(large).pixelSize() * 3 / 2);
    large.setBold(true);
    lbl_Title.setFont(large);
    lbl_Title.setText(TitleOf(skin, found));
    lbl_Hint.setText(HintFor(found));
    tmrFill.stop();
    shelf_.reset();
    filled_ = 0;
    lst_Skins.clear();
    wanted_ = skin.empty() || !found;
    Place();
    show();
    raise();
}

void WelcomeCard::Leave() {
    tmrFill.stop();
    if (lst_Skins.hasFocus()) canvas_.setFocus();
    hide();
}

void WelcomeCard::Place() {
    const QSize room = canvas_.size() - QSize(2 * CardMargin, 2 * CardMargin);
    lst_Skins.setVisible(lst_Skins.count() > 0);
    int width = LeastWidth;
    if (lst_Skins.count() > 0) {
        const int tile = lst_Skins.TileSize().width();
        const int most = std::max(1, std::min((room.width() - 3 * CardMargin) / tile, MostColumns));
        const int head = lbl_Title.sizeHint().height() + lbl_Hint.sizeHint().height() + 3 * CardMargin;
        lst_Skins.Arrange(std::min(most, lst_Skins.count()),
                          std::max(room.height() - head, lst_Skins.TileSize().height()));
        width = std::max(width, lst_Skins.width() + 2 * CardMargin);
    }
    resize(std::max(width, sizeHint().width()), sizeHint().height());
    move((canvas_.width() - this->width()) / 2, (canvas_.height() - height()) / 2);
}

void WelcomeCard::Fill() {
    if (shelf_->Step()) return;
    if (lst_Skins.count() == 0) {
        for (const SkinShelf::Skin& skin : shelf_->Newest()) lst_Skins.AddSkin(skin.folder);
        Place();
    }
    if (filled_ == lst_Skins.count()) return tmrFill.stop();
    lst_Skins.LoadPicture(filled_++);
}

void WelcomeCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(EdgeColour);
    painter.setBrush(CardColour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    if (!wanted_) return;
    wanted_ = false;
    shelf_.emplace(OnDisk(windows_.SkinsFolder()));
    tmrFill.start();
}

}  // namespace ornavo
