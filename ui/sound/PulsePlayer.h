// PulsePlayer.h: plays waves on a PulseAudio server (or PipeWire in its place), on the thread that
// calls Run(). If the server does not answer in time, the wave is dropped; the next one connects
// again.
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

    // Returns when the mailbox has been closed. Sleeps while there is nothing to do.
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

    std::optional<Wave> waiting_;  // the wave to play as soon as possible
    pa_stream* stream_ = nullptr;
    Wave sounding_;
    std::size_t written_ = 0;  // bytes of sounding_ that the server has
    bool draining_ = false;    // all is written; the server will tell when it has been played
    bool drained_ = false;

    std::optional<Clock::time_point> deadline_;  // for the answer that the server owes
};

}  // namespace malvone
