// Launch.h: what the desktop's launcher waits for.
#pragma once

namespace malvone::qt {

// Tells the launcher that this process will show no window. Until then, or for many seconds, the
// pointer would be that of a program being started.
void EndLaunch();

}  // namespace malvone::qt
