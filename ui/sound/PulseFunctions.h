// PulseFunctions.h: the functions of libpulse that the game calls. They are looked up at run time,
// so the program starts without the library, and no slower with it.
#pragma once

#include <pulse/pulseaudio.h>

#include <string>

namespace malvone {

// clang-format off
#define MALVONE_PULSE_FUNCTIONS(EACH) \
    EACH(pa_mainloop_new) \
    EACH(pa_mainloop_free) \
    EACH(pa_mainloop_get_api) \
    EACH(pa_mainloop_prepare) \
    EACH(pa_mainloop_poll) \
    EACH(pa_mainloop_dispatch) \
    EACH(pa_mainloop_wakeup) \
    EACH(pa_context_new) \
    EACH(pa_context_connect) \
    EACH(pa_context_disconnect) \
    EACH(pa_context_get_state) \
    EACH(pa_context_get_sink_info_list) \
    EACH(pa_context_unref) \
    EACH(pa_operation_unref) \
    EACH(pa_stream_new) \
    EACH(pa_stream_connect_playback) \
    EACH(pa_stream_disconnect) \
    EACH(pa_stream_get_state) \
    EACH(pa_stream_writable_size) \
    EACH(pa_stream_write) \
    EACH(pa_stream_drain) \
    EACH(pa_stream_unref)
// clang-format on

struct PulseFunctions
{
#define MALVONE_POINTER(name) decltype(&::name) name = nullptr;
    MALVONE_PULSE_FUNCTIONS(MALVONE_POINTER)
#undef MALVONE_POINTER

    // False if the library or one of the functions is missing. A loaded library stays loaded.
    bool Load(const std::string& library);
};

}  // namespace malvone
