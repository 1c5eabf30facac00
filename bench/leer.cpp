// An empty window of the game's size: the yardstick for start-up times.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("leeres Fenster"));
    window.setFixedSize(755, 463);
    window.show();
    return QApplication::exec();
}
