// PulsePlayer.h: plays waves on a PulseAudio server (or PipeWire in its place), on the thread that
// calls Run(). A server that does not answer in time is given up, and with it what should have
// sounded; the next wave tries anew.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "ui/sound/Mailbox.h"
#include "ui/sound/PulseFunctions.h"
#include "ui/sound/Wave.h"

namespace malvone {

class PulsePlayer
{
public:
    PulsePlayer(Mailbox& mailbox, const PulseFunctions& pulse);

    // Returns when the letter box has been closed. Sleeps whenever there is nothing to do.
    void Run();

private:
    using Clock = std::chrono::steady_clock;

    void Begin(const std::string& path);
    bool Sleep();
    void Step();

    void Connect();
    void Disconnect();
    void AskForDevices();
    static void DeviceTold(pa_context* context, const pa_sink_info* device, int end, void* player);

    void TendStream();
    void MakeStream();
    void WriteStream();
    void DropStream();
    static void StreamDrained(pa_stream* stream, int success, void* player);

    void DemandAnswer();

    Mailbox& mailbox_;
    const PulseFunctions& pulse_;
    pa_mainloop* loop_ = nullptr;

    enum class Counting { Open, Running, Done };
    pa_context* context_ = nullptr;
    Counting counting_ = Counting::Open;
    std::int32_t deviceCount_ = 0;

    std::optional<Wave> waiting_;  // the wave that sounds next, as soon as that is possible
    pa_stream* stream_ = nullptr;
    Wave sounding_;
    std::size_t written_ = 0;  // bytes of sounding_ that the server has
    bool draining_ = false;    // All is written and the server will tell when it has sounded.
    bool drained_ = false;

    std::optional<Clock::time_point> deadline_;  // until when the server owes an answer
};

}  // namespace malvone
