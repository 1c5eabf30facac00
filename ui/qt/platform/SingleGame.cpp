// SingleGame.cpp: the second game knocks, the first one answers.
#include "ui/qt/platform/SingleGame.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QSocketNotifier>
#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

namespace malvone::qt {
namespace {

// Enough for a game that is still starting on a busy machine.
constexpr std::chrono::seconds kPatience(3);
constexpr std::chrono::milliseconds kPause(10);
constexpr const char* kToken = "XDG_ACTIVATION_TOKEN";

int NewSocket(int flags)
{
    return socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | flags, 0);
}

// Any user may take an abstract name.
bool IsOfThisUser(int channel)
{
    ucred other{};
    socklen_t size = sizeof other;
    return getsockopt(channel, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 &&
           other.uid == getuid();
}

// True if the game at the other end has come to the front.
bool Knock(int channel, const sockaddr_un& address)
{
    const timeval limit{kPatience.count(), 0};
    setsockopt(channel, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    setsockopt(channel, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    const char* const given = std::getenv(kToken);
    const std::string token = given != nullptr ? given : "";
    char answer = 0;
    return connect(channel, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
           IsOfThisUser(channel) &&
           send(channel, token.c_str(), token.size() + 1, MSG_NOSIGNAL) > 0 &&
           recv(channel, &answer, 1, 0) == 1;
}

// Does not wait for the other end, which may hang.
void Answer(int channel, const std::function<void()>& come)
{
    auto* const words = new QSocketNotifier(channel, QSocketNotifier::Read, qApp);
    QObject::connect(words, &QSocketNotifier::activated, [words, channel, come] {
        std::array<char, 1024> token{};
        if (recv(channel, token.data(), token.size() - 1, 0) > 0 && IsOfThisUser(channel)) {
            if (token.front() != '\0') {
                qputenv(kToken, token.data());
            }
            come();
            send(channel, "", 1, MSG_NOSIGNAL);
        }
        words->setEnabled(false);
        words->deleteLater();
        close(channel);
    });
}

}  // namespace

SingleGame::SingleGame(const std::filesystem::path& folder)
{
    std::error_code ignored;
    const std::string place = std::filesystem::weakly_canonical(folder, ignored).string();
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(place), QCryptographicHash::Sha1);
    const std::string name =
        "malvone-" + std::to_string(getuid()) + "-" + hash.toHex().toStdString();
    address_.sun_family = AF_UNIX;
    std::copy(name.begin(), name.end(), std::begin(address_.sun_path) + 1);
}

SingleGame::~SingleGame()
{
    if (own_ >= 0) {
        close(own_);
    }
}

bool SingleGame::MayPlay()
{
    own_ = NewSocket(SOCK_NONBLOCK);
    const auto end = std::chrono::steady_clock::now() + kPatience;
    // The other game may be ending, or may not listen yet: one of the two works out in a moment.
    while (bind(own_, reinterpret_cast<const sockaddr*>(&address_), sizeof address_) != 0) {
        const bool taken = errno == EADDRINUSE;
        if (taken && OtherHasCome()) {
            return false;
        }
        if (!taken || std::chrono::steady_clock::now() > end) {
            close(own_);
            own_ = -1;
            return true;
        }
        std::this_thread::sleep_for(kPause);
    }
    listen(own_, SOMAXCONN);
    return true;
}

bool SingleGame::OtherHasCome() const
{
    const int channel = NewSocket(0);
    const bool come = Knock(channel, address_);
    close(channel);
    return come;
}

void SingleGame::Listen(const std::function<void()>& come) const
{
    if (own_ < 0) {
        return;
    }
    auto* const door = new QSocketNotifier(own_, QSocketNotifier::Read, qApp);
    QObject::connect(door, &QSocketNotifier::activated, [this, come] {
        const int channel = accept4(own_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (channel >= 0) {
            Answer(channel, come);
        }
    });
}

}  // namespace malvone::qt
