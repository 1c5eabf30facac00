// Sound.cpp: the game's side of sound: starts the playing thread, sends it mail and ends it.
#include "ui/sound/Sound.h"

#include <csignal>
#include <system_error>
#include <utility>

#include "ui/sound/Mailbox.h"
#include "ui/sound/PulseFunctions.h"
#include "ui/sound/PulsePlayer.h"

namespace malvone {
namespace {

constexpr std::chrono::milliseconds kPatience{100};  // the longest that the game is ever held up

void RunThread(Mailbox& mailbox, const std::string& library)
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);  // signals are for the main thread
    PulseFunctions pulse;
    if (pulse.Load(library)) {
        PulsePlayer(mailbox, pulse).Run();
    } else {
        mailbox.Answer(0);
    }
}

}  // namespace

Sound::Sound(std::string library) : library_(std::move(library)) {}

Sound::~Sound()
{
    Finish();
}

void Sound::Prepare()
{
    auto mailbox = std::make_shared<Mailbox>();
    try {
        std::packaged_task<void()> task(
            [mailbox, library = library_] { RunThread(*mailbox, library); });
        ended_ = task.get_future();
        thread_ = std::thread(std::move(task));
        mailbox_ = std::move(mailbox);
    } catch (const std::system_error&) {
        // Without a thread the game has no sound.
    }
}

std::int32_t Sound::DeviceCount()
{
    return mailbox_ ? mailbox_->AwaitAnswer(kPatience).value_or(1) : 0;
}

void Sound::Play(std::string path)
{
    if (mailbox_) {
        mailbox_->Post(std::move(path));
    }
}

void Sound::Finish()
{
    if (!mailbox_) {
        return;
    }
    mailbox_->Close();
    // A thread that hangs in the library is left behind; it uses only what it owns.
    if (ended_.wait_for(kPatience) == std::future_status::ready) {
        thread_.join();
    } else {
        thread_.detach();
    }
    mailbox_.reset();
}

}  // namespace malvone
