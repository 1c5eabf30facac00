// The yardstick for the start: a window as large as the screen, and one of the game's size in front
// of it, each painted with one gradient.
#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QWidget>

namespace {

class Bare final : public QWidget
{
public:
    Bare() { setAttribute(Qt::WA_OpaquePaintEvent); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QLinearGradient gradient(rect().topLeft(), rect().bottomRight());
        gradient.setColorAt(0, Qt::darkBlue);
        gradient.setColorAt(1, Qt::white);
        QPainter(this).fillRect(rect(), gradient);
    }
};

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Bare backdrop;
    backdrop.setWindowFlag(Qt::FramelessWindowHint);
    backdrop.setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop.show();
    Bare window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.setFixedSize(755, 485);
    window.show();
    return QApplication::exec();
}
