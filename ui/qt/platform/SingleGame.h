// SingleGame.h: lets only one game play with a data folder. A second start brings the first game to
// the front and ends.
#pragma once

#include <sys/un.h>

#include <filesystem>
#include <functional>

namespace malvone::qt {

// A socket with an abstract name made of user and folder: the game that has bound it plays. It
// leaves no file behind and goes with its process, however that ends.
class SingleGame
{
public:
    explicit SingleGame(const std::filesystem::path& folder);
    ~SingleGame();
    SingleGame(const SingleGame&) = delete;
    SingleGame& operator=(const SingleGame&) = delete;

    // False if another game has the folder and has come to the front. If it hangs, both play after
    // a few seconds. Without such sockets everybody plays.
    bool MayPlay();
    // Calls `come` for each later start, with the token in the environment that lets a window come
    // to the front on Wayland. Needs an application object.
    void Listen(const std::function<void()>& come) const;

private:
    sockaddr_un address_{};
    int own_ = -1;

    bool OtherHasCome() const;
};

}  // namespace malvone::qt
