// SingleGame.h: a data folder has one game on the desktop. A second start brings the first one to
// the front, and ends.
#pragma once

#include <sys/un.h>

#include <filesystem>
#include <functional>

namespace malvone::qt {

// A socket with an abstract name, made of user and folder, stands for the folder: who has bound it
// plays. It leaves no file behind, and goes with its process however that ends.
class SingleGame
{
public:
    explicit SingleGame(const std::filesystem::path& folder);
    ~SingleGame();
    SingleGame(const SingleGame&) = delete;
    SingleGame& operator=(const SingleGame&) = delete;

    // False where another game has the folder and has come to the front. One that hangs is given
    // up after a few seconds; both play then. Where there are no such sockets everybody plays.
    bool MayPlay();
    // From now on `come` is called for each later start, with the token in the environment that
    // lets a window come to the front on Wayland. Needs an application object.
    void Listen(const std::function<void()>& come) const;

private:
    sockaddr_un address_{};
    int own_ = -1;

    bool OtherHasCome() const;
};

}  // namespace malvone::qt
