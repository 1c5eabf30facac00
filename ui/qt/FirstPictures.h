// FirstPictures.h: renders the pictures of the first frame beside Qt's own start, on another core.
#pragma once

#include <QImage>
#include <map>
#include <mutex>
#include <thread>

#include "ui/qt/Look.h"

namespace malvone::qt {

// The desktop's scale is not known so early: the pictures are those of scale 1, and at another
// scale only the backdrop, which is rendered coarsely, is of use.
class FirstPictures
{
public:
    // Begins at once. The thread that makes it has to be the one that will run Qt.
    FirstPictures();
    ~FirstPictures();
    FirstPictures(const FirstPictures&) = delete;
    FirstPictures& operator=(const FirstPictures&) = delete;

    // Hands a picture over, once. An empty image where it is not among those of the first frame, or
    // has not been begun yet: then whoever asks renders it, and nobody waits.
    QImage Take(const Look& look);

private:
    enum class State { Waiting, Begun, Done };
    struct Work
    {
        State Progress = State::Waiting;
        QImage Image;
    };

    std::mutex mutex_;
    std::map<Look, Work> work_;
    std::thread thread_;

    void RenderAll();
    bool Begin(const Look& look);
};

}  // namespace malvone::qt
