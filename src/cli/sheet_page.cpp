// SPDX-License-Identifier: MIT
#include "cli/sheet_page.h"

#include <QByteArray>
#include <QPainter>
#include <algorithm>

#include "base/text.h"
#include "platform/png_bytes.h"
#include "platform/shown.h"

namespace ornavo {
namespace {

constexpr QSize MostTile(480, 360);
constexpr int Columns = 4, Gap = 16, CaptionHeight = 20, HeadingHeight = 36;  // pixels
constexpr QSize MostOnPage(1024, 1024);
const QColor Paper(32, 34, 38), Ink(230, 230, 230);

QImage Reduced(const QImage& picture, const QSize& most) {
    if (picture.width() <= most.width() && picture.height() <= most.height()) return picture;
    return picture.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The tiles of a section in rows, each as wide and as high as its largest one.
class Grid {
public:
    explicit Grid(const SheetSection& section) : section_(section) {
        for (const SheetTile& tile : section.tiles) {
            pictures_.push_back(Reduced(tile.picture, MostTile));
            cell_ = cell_.expandedTo(pictures_.back().size());
        }
        cell_ = cell_.expandedTo({120, 1});  // for the captions
        columns_ = std::max(1, std::min(Columns * (MostTile.width() + Gap) / (cell_.width() + Gap), Count()));
    }
    int Width() const { return columns_ * (cell_.width() + Gap) + Gap; }
    int Height() const {
        const int rows = (Count() + columns_ - 1) / columns_;
        return HeadingHeight + rows * (cell_.height() + CaptionHeight + Gap);
    }
    void Paint(QPainter& painter, int top) const {
        painter.setFont(Font(20));
        painter.drawText(QRect(Gap, top, Width(), HeadingHeight), Qt::AlignVCenter, Shown(section_.heading));
        painter.setFont(Font(13));
        for (int i = 0; i < Count(); ++i) {
            const auto at = static_cast<std::size_t>(i);
            const QPoint place(Gap + i % columns_ * (cell_.width() + Gap),
                               top + HeadingHeight + i / columns_ * (cell_.height() + CaptionHeight + Gap));
            painter.drawImage(place, pictures_[at]);
            const QRect caption(place.x(), place.y() + pictures_[at].height(), cell_.width(), CaptionHeight);
            painter.drawText(caption, Qt::AlignVCenter, Shown(section_.tiles[at].caption));
        }
    }

private:
    static QFont Font(int pixels) {
        QFont font;
        font.setPixelSize(pixels);
        return font;
    }
    int Count() const { return static_cast<int>(section_.tiles.size()); }

    const SheetSection& section_;
    std::vector<QImage> pictures_;
    QSize cell_{0, 0};
    int columns_ = 1;
};

std::string Escaped(const std::string& text) {
    return Shown(text).toHtmlEscaped().toStdString();
}

std::string Tagged(const char* tag, const std::string& inside, const char* attributes = "") {
    return std::string("<") + tag + attributes + ">" + inside + "</" + tag + ">\n";
}

std::string ListOf(const Findings& findings, const std::string& layout) {
    std::string items;
    for (const Finding& finding : findings) {
        if (!EqualText(finding.place.layout, layout)) continue;
        std::string place = finding.place.item;
        if (!finding.place.field.empty()) place += (place.empty() ? "" : ", ") + finding.place.field;
        const std::string severity(NameOf(finding.kind->severity));
        items += "<li class=\"" + severity + "\"><b>" + severity + "</b> " +
                 (place.empty() ? "" : "<i>" + Escaped(place) + "</i> ") + Escaped(finding.text) +
                 " <small>" + Escaped(std::string(finding.kind->help)) + "</small></li>\n";
    }
    return items.empty() ? "" : Tagged("ul", items);
}

std::string Figure(const SheetTile& tile) {
    const std::string bytes = PngBytesOf(Reduced(tile.picture, MostOnPage));
    const QByteArray encoded =
        QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())).toBase64();
    return "<figure><img alt=\"\" src=\"data:image/png;base64," + encoded.toStdString() + "\"><figcaption>" +
           Escaped(tile.caption) + "</figcaption></figure>\n";
}

constexpr const char* Style =
    "body{font:15px/1.45 system-ui,sans-serif;margin:2rem;background:#202226;color:#e6e6e6}"
    "h1,h2{font-weight:600}h2{margin-top:2.5rem}"
    ".tiles{display:flex;flex-wrap:wrap;gap:16px;align-items:flex-start}figure{margin:0;max-width:480px}"
    "figure.large{max-width:100%}img{max-width:100%;display:block;cursor:zoom-in}"
    "figcaption,small{color:#a8adb5}ul{list-style:none;padding:0;max-width:60rem}li{margin:.3rem 0}"
    "li b{display:inline-block;min-width:5.2em}.error b{color:#ff7b72}.warning b{color:#f2b84b}"
    ".hint b{color:#7fb4ff}";
constexpr const char* Script =
    "document.querySelectorAll('figure').forEach(f=>f.onclick=()=>f.classList.toggle('large'))";

}  // namespace

QImage SheetPicture(const std::vector<SheetSection>& sections) {
    const std::vector<Grid> grids(sections.begin(), sections.end());
    int width = 1, height = Gap;
    for (const Grid& grid : grids) {
        width = std::max(width, grid.Width());
        height += grid.Height();
    }
    QImage page(width, height, QImage::Format_RGB32);
    page.fill(Paper);
    QPainter painter(&page);
    painter.setPen(Ink);
    int top = 0;
    for (const Grid& grid : grids) {
        grid.Paint(painter, top);
        top += grid.Height();
    }
    return page;
}

std::string SheetPage(const std::string& skin, const std::vector<SheetSection>& sections,
                      const Findings& findings) {
    std::string body = Tagged("h1", Escaped(skin)) + ListOf(findings, "");
    std::string told;  // the layout whose findings stand there already
    for (const SheetSection& section : sections) {
        body += Tagged("h2", Escaped(section.heading));
        if (section.layout != told) body += ListOf(findings, section.layout);
        told = section.layout;
        std::string figures;
        for (const SheetTile& tile : section.tiles) figures += Figure(tile);
        body += Tagged("div", figures, " class=\"tiles\"");
    }
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>" + Escaped(skin) +
           "</title><style>" + Style + "</style></head><body>\n" + body + "<script>" + Script +
           "</script></body></html>\n";
}

}  // namespace ornavo
