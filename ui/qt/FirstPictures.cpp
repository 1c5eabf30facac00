// FirstPictures.cpp: which pictures the first frame shows, and the thread that renders them.
#include "ui/qt/FirstPictures.h"

#include <QThread>
#include <utility>

#include "ui/qt/PictureFiles.h"
#include "ui/windows/Pictures.h"

namespace malvone::qt {
namespace {

// Large and slow ones first. A part of two of them only is seen.
struct Seen
{
    std::string_view Picture;
    int Width = 0;  // 0: the whole picture
    int Height = 0;
};
constexpr std::string_view kBackdrop = "frmHintergrund.Image1";
constexpr Seen kSeen[] = {
    {"frmTessel", 755, 463},       {"frmTessel.Picture1", 463, 337},
    {"frmTessel.Image1"},          {"frmTessel.Image3"},
    {"frmTessel.Image6"},          {"frmTessel.Image4"},
    {"frmBilder.cmdHilfeAuswahl"}, {"frmBilder.cmdBeschreibungenAuswahl"},
    {"frmBilder.imgGrund"},        {"frmBilder.imgPfeil(1)"},
    {"frmDigital.imgDiggi(10)"},   {"frmDigital.imgDiggi(0)"},
};

Look LookAtScaleOne(const Seen& seen)
{
    const Picture picture = PictureNamed(seen.Picture);
    const QSize whole(picture.Width(), picture.Height());
    const QSize part = seen.Width == 0 ? whole : QSize(seen.Width, seen.Height);
    return LookOf(FileOf(seen.Picture), whole, part);
}

}  // namespace

FirstPictures::FirstPictures()
{
    work_[CoarseLook(PictureNamed(kBackdrop))];
    for (const Seen& seen : kSeen) {
        work_[LookAtScaleOne(seen)];
    }
    // Qt takes the first thread that it meets for the main thread: that has to be this one.
    static_cast<void>(QThread::currentThread());
    thread_ = std::thread([this] { RenderAll(); });
}

FirstPictures::~FirstPictures()
{
    thread_.join();
}

void FirstPictures::RenderAll()
{
    const auto render = [this](const Look& look) {
        if (!Begin(look)) {
            return;
        }
        const QImage image = Rendered(look);
        const std::lock_guard lock(mutex_);
        work_[look] = {State::Done, image};
    };
    render(CoarseLook(PictureNamed(kBackdrop)));
    for (const Seen& seen : kSeen) {
        render(LookAtScaleOne(seen));
    }
}

bool FirstPictures::Begin(const Look& look)
{
    const std::lock_guard lock(mutex_);
    Work& work = work_[look];
    if (work.Progress != State::Waiting) {
        return false;
    }
    work.Progress = State::Begun;
    return true;
}

QImage FirstPictures::Take(const Look& look)
{
    const std::lock_guard lock(mutex_);
    const auto found = work_.find(look);
    if (found == work_.end()) {
        return {};
    }
    const QImage image = std::exchange(found->second.Image, {});
    if (found->second.Progress == State::Waiting) {
        found->second.Progress = State::Begun;
    }
    return image;
}

}  // namespace malvone::qt
