// The functions of libpulse that the game calls, looked up at run time: the library is never
// linked, so the program starts without it, and as fast as if there were none.
#pragma once

#include <pulse/pulseaudio.h>

#include <string>

namespace malvone {

// clang-format off
#define MALVONE_PULSE_FUNKTIONEN(JEDE) \
    JEDE(pa_mainloop_new) \
    JEDE(pa_mainloop_free) \
    JEDE(pa_mainloop_get_api) \
    JEDE(pa_mainloop_prepare) \
    JEDE(pa_mainloop_poll) \
    JEDE(pa_mainloop_dispatch) \
    JEDE(pa_mainloop_wakeup) \
    JEDE(pa_context_new) \
    JEDE(pa_context_connect) \
    JEDE(pa_context_disconnect) \
    JEDE(pa_context_get_state) \
    JEDE(pa_context_get_sink_info_list) \
    JEDE(pa_context_unref) \
    JEDE(pa_operation_unref) \
    JEDE(pa_stream_new) \
    JEDE(pa_stream_connect_playback) \
    JEDE(pa_stream_disconnect) \
    JEDE(pa_stream_get_state) \
    JEDE(pa_stream_writable_size) \
    JEDE(pa_stream_write) \
    JEDE(pa_stream_drain) \
    JEDE(pa_stream_unref)
// clang-format on

struct PulseFunktionen
{
#define MALVONE_ZEIGER(name) decltype(&::name) name = nullptr;
    MALVONE_PULSE_FUNKTIONEN(MALVONE_ZEIGER)
#undef MALVONE_ZEIGER

    // False where the library or one of the functions is missing. A loaded library stays loaded.
    bool Laden(const std::string& bibliothek);
};

}  // namespace malvone
