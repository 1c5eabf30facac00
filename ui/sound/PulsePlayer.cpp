// PulsePlayer.cpp: whenever it wakes, looks at the states that libpulse keeps of connection and
// stream, and takes the next step. Callbacks only note what they are told.
#include "ui/sound/PulsePlayer.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace malvone {
namespace {

constexpr std::chrono::milliseconds kAnswerWithin{300};
constexpr std::int64_t kRefillMs = 20;               // the server asks for more at most this often
constexpr std::int64_t kStockMs = 2000;              // how much of a wave the server buffers
constexpr std::string_view kNoDevice = "auto_null";  // stands in for missing hardware

std::uint32_t BytesFor(const Wave& wave, std::int64_t ms)
{
    const auto frames = static_cast<std::size_t>(wave.Rate * ms / 1000);
    return static_cast<std::uint32_t>(frames * wave.FrameBytes());
}

}  // namespace

PulsePlayer::PulsePlayer(Mailbox& mailbox, const PulseFunctions& pulse)
    : mailbox_(mailbox), pulse_(pulse)
{}

void PulsePlayer::Run()
{
    loop_ = pulse_.pa_mainloop_new();
    if (loop_ == nullptr) {
        mailbox_.Answer(0);
        return;
    }
    mailbox_.SetWaker([this] { pulse_.pa_mainloop_wakeup(loop_); });
    Connect();
    for (bool goOn = true; goOn;) {
        const Mailbox::Mail mail = mailbox_.Take();
        if (mail.Path) {
            Begin(*mail.Path);
        }
        Step();
        goOn = !mail.End && Sleep();
    }
    mailbox_.SetWaker({});
    Disconnect();
    pulse_.pa_mainloop_free(loop_);
}

void PulsePlayer::Begin(const std::string& path)
{
    std::optional<Wave> wave = LoadWave(path);
    if (!wave) {
        return;
    }
    waiting_ = std::move(wave);
    if (context_ == nullptr) {
        Connect();
    }
}

bool PulsePlayer::Sleep()
{
    int duration = -1;  // microseconds; −1 is for ever
    if (deadline_) {
        const auto rest = std::chrono::ceil<std::chrono::microseconds>(*deadline_ - Clock::now());
        duration = static_cast<int>(std::max<std::int64_t>(rest.count(), 0));
    }
    return pulse_.pa_mainloop_prepare(loop_, duration) >= 0 &&
           pulse_.pa_mainloop_poll(loop_) >= 0 && pulse_.pa_mainloop_dispatch(loop_) >= 0;
}

void PulsePlayer::Step()
{
    if (context_ == nullptr) {
        return;
    }
    const pa_context_state_t state = pulse_.pa_context_get_state(context_);
    if (state == PA_CONTEXT_READY && counting_ == Counting::Open) {
        AskForDevices();
    }
    if (state == PA_CONTEXT_READY && counting_ == Counting::Done) {
        TendStream();
    }
    const bool tooLate = deadline_ && Clock::now() >= *deadline_;
    if (!PA_CONTEXT_IS_GOOD(state) || tooLate) {
        Disconnect();
    }
}

void PulsePlayer::DemandAnswer()
{
    // A second request does not give the server more time for the first.
    if (!deadline_) {
        deadline_ = Clock::now() + kAnswerWithin;
    }
}

void PulsePlayer::Connect()
{
    counting_ = Counting::Open;
    deviceCount_ = 0;
    context_ = pulse_.pa_context_new(pulse_.pa_mainloop_get_api(loop_), "Malvone");
    if (context_ == nullptr ||
        pulse_.pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        Disconnect();
        return;
    }
    DemandAnswer();
}

void PulsePlayer::Disconnect()
{
    DropStream();
    if (context_ != nullptr) {
        pulse_.pa_context_disconnect(context_);
        pulse_.pa_context_unref(context_);
        context_ = nullptr;
    }
    waiting_.reset();
    deadline_.reset();
    mailbox_.Answer(0);
}

void PulsePlayer::AskForDevices()
{
    counting_ = Counting::Running;
    pa_operation* const operation =
        pulse_.pa_context_get_sink_info_list(context_, &PulsePlayer::DeviceTold, this);
    if (operation != nullptr) {
        pulse_.pa_operation_unref(operation);
    }
}

void PulsePlayer::DeviceTold(pa_context* /*context*/, const pa_sink_info* device, int end,
                             void* player)
{
    auto& self = *static_cast<PulsePlayer*>(player);
    if (end == 0) {
        self.deviceCount_ += device->name == kNoDevice ? 0 : 1;
        return;
    }
    self.counting_ = Counting::Done;
    self.deadline_.reset();
    self.mailbox_.Answer(self.deviceCount_);
}

void PulsePlayer::TendStream()
{
    if (stream_ != nullptr) {
        const pa_stream_state_t state = pulse_.pa_stream_get_state(stream_);
        if (state == PA_STREAM_CREATING) {
            return;  // it cannot even be cancelled before the server has answered
        }
        deadline_.reset();
        if (state == PA_STREAM_READY && !drained_ && !waiting_) {
            WriteStream();
        } else {
            DropStream();
        }
    }
    if (waiting_) {
        MakeStream();
    }
}

void PulsePlayer::MakeStream()
{
    sounding_ = std::move(*waiting_);
    waiting_.reset();
    written_ = 0;
    draining_ = drained_ = false;

    const pa_sample_spec format{sounding_.Bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE,
                                sounding_.Rate, sounding_.Channels};
    // With early requests the delay is the size of a request, so a wave is heard soon although the
    // server buffers much of it.
    const auto any = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{any, BytesFor(sounding_, kStockMs), any,
                                BytesFor(sounding_, kRefillMs), any};
    stream_ = pulse_.pa_stream_new(context_, "Malvone", &format, nullptr);
    if (stream_ == nullptr) {
        return;
    }
    if (pulse_.pa_stream_connect_playback(stream_, nullptr, &buffer, PA_STREAM_EARLY_REQUESTS,
                                          nullptr, nullptr) < 0) {
        DropStream();
        return;
    }
    DemandAnswer();
}

void PulsePlayer::WriteStream()
{
    const std::size_t room = pulse_.pa_stream_writable_size(stream_);
    if (room == static_cast<std::size_t>(-1)) {
        return;  // the connection is lost, as its state will show
    }
    const std::size_t rest = sounding_.Data.size() - written_;
    const std::size_t amount = std::min(rest, room - room % sounding_.FrameBytes());
    if (amount > 0 && pulse_.pa_stream_write(stream_, sounding_.Data.data() + written_, amount,
                                             nullptr, 0, PA_SEEK_RELATIVE) < 0) {
        DropStream();
        return;
    }
    written_ += amount;
    if (written_ == sounding_.Data.size() && !draining_) {
        draining_ = true;
        pa_operation* const operation =
            pulse_.pa_stream_drain(stream_, &PulsePlayer::StreamDrained, this);
        if (operation != nullptr) {
            pulse_.pa_operation_unref(operation);
        }
    }
}

void PulsePlayer::DropStream()
{
    if (stream_ == nullptr) {
        return;
    }
    pulse_.pa_stream_disconnect(stream_);
    pulse_.pa_stream_unref(stream_);
    stream_ = nullptr;
}

void PulsePlayer::StreamDrained(pa_stream* stream, int /*success*/, void* player)
{
    auto& self = *static_cast<PulsePlayer*>(player);
    if (stream == self.stream_) {
        self.drained_ = true;
    }
}

}  // namespace malvone
