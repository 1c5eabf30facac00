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

void RunThread(const std::shared_ptr<Mailbox>& mailbox, const std::string& library)
{
    PulseFunctions pulse;
    if (pulse.Load(library)) {
        PulsePlayer(*mailbox, pulse).Run();
    } else {
        mailbox->Answer(0);
    }
    mailbox->ThreadEnds();
}

// Threads started meanwhile receive no signals, which are for the main thread.
class WithoutSignals
{
public:
    WithoutSignals()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~WithoutSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    WithoutSignals(const WithoutSignals&) = delete;
    WithoutSignals& operator=(const WithoutSignals&) = delete;

private:
    sigset_t before_{};
};

}  // namespace

Sound::Sound(std::string library) : library_(std::move(library)) {}

Sound::~Sound()
{
    Finish();
}

void Sound::Prepare()
{
    const std::lock_guard lock(mutex_);
    if (mailbox_) {
        return;
    }
    auto mailbox = std::make_shared<Mailbox>();
    try {
        const WithoutSignals withoutSignals;
        thread_ = std::thread(RunThread, mailbox, library_);
        mailbox_ = std::move(mailbox);
    } catch (const std::system_error&) {
        // Without a thread the game has no sound.
    }
}

std::int32_t Sound::DeviceCount()
{
    std::shared_ptr<Mailbox> mailbox;
    {
        const std::lock_guard lock(mutex_);
        mailbox = mailbox_;
    }
    return mailbox ? mailbox->AwaitAnswer(kPatience).value_or(1) : 0;
}

void Sound::Play(std::string path)
{
    const std::lock_guard lock(mutex_);
    if (mailbox_ && !path.empty()) {
        mailbox_->Post(std::move(path));
    }
}

void Sound::Finish()
{
    const std::lock_guard lock(mutex_);
    if (!mailbox_) {
        return;
    }
    mailbox_->Close();
    // A thread that hangs in the library is left behind; it uses only what it owns.
    if (mailbox_->AwaitThreadEnd(kPatience)) {
        thread_.join();
    } else {
        thread_.detach();
    }
    mailbox_.reset();
}

}  // namespace malvone
