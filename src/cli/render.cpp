// SPDX-License-Identifier: MIT
// Draws the picture of a layout by the code of canvas and preview, without a screen.
#include <QImage>

#include "cli/open_skin.h"
#include "cli/picture_file.h"
#include "platform/clock.h"
#include "platform/shown.h"
#include "playback/info_show.h"
#include "render/layout_picture.h"

namespace ornavo {
namespace {

/// A clock that stands at the time of --time, HH:MM:SS; without a time the real clock stays in use.
class GivenClock : public Clock {
public:
    explicit GivenClock(const std::string& text) {
        if (text.empty()) return;
        now_ = QDateTime(QDate(2000, 1, 1), QTime::fromString(Shown(text), "HH:mm:ss"));
        if (!now_.isValid()) throw UsageError("--time is HH:MM:SS");
        UseClock(this);
    }
    ~GivenClock() override { UseClock(nullptr); }
    QDateTime Now() const override { return now_; }

private:
    QDateTime now_;
};

bool OneOf(const Arguments& arguments, const std::string& name, const std::string& first,
           const std::string& second) {
    const std::string value = arguments.Get(name, first);
    if (value != first && value != second) throw UsageError("--" + name + " is " + first + " or " + second);
    return value == first;
}

}  // namespace

int Render(const Arguments& arguments) {
    const std::string out = arguments.Need("out");
    const bool preview = OneOf(arguments, "view", "preview", "canvas");
    const bool soft = OneOf(arguments, "edge", "soft", "hard");
    const GivenClock clock(arguments.Get("time", ""));
    OpenNamedSkin(arguments.operands[0]);
    LayoutPicture composed(*objSkin, NamedLayout(arguments)->Key, SizeToDraw(arguments),
                           preview ? View::Preview : View::Canvas);
    if (preview) InfoShow().Begin(composed.host(), composed.layout());
    for (const std::string& failure : composed.failures()) Tell(failure);
    const QImage picture = preview ? composed.Shaped(soft) : composed.Whole();
    WritePng(picture, out);
    return 0;
}

}  // namespace ornavo
