// qt_repaint.cpp: how long it takes from a pointer event to the finished repaint.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTemporaryDir>

#include "game/Main.h"
#include "state/Zellen.h"
#include "ui/layer/App.h"
#include "ui/qt/QtBinding.h"
#include "ui/qt/platform/QtPlatform.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/sound/Sound.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::qt {
namespace {

void Send(FormWidget& form, QEvent::Type type, const Visual& target, Qt::MouseButton button)
{
    const QPointF place = form.PlaceOnForm(target).center();
    QMouseEvent event(type, place, form.mapToGlobal(place), button,
                      type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &event);
}

void Click(FormWidget& form, const Visual& target)
{
    Send(form, QEvent::MouseMove, target, Qt::NoButton);
    Send(form, QEvent::MouseButtonPress, target, Qt::LeftButton);
    Send(form, QEvent::MouseButtonRelease, target, Qt::LeftButton);
}

// The game itself, silent, in a folder of its own. The scale is the one that main() has set.
struct Table
{
    QTemporaryDir folder;
    Sound sound;
    QtPlatform platform{folder.path().toStdString(), folder.path().toStdString(), sound};
    QtBinding binding;

    Table()
    {
        ZustandNeu();
        App.Begin(binding, platform);
        {
            const EventScope scope;
            Main();
        }
        QCoreApplication::processEvents();
    }
    ~Table() { App.Finish(); }

    FormWidget& Form() { return *binding.Windows().FormOf(&*frmTessel); }
};

// All stones of one colour are the largest group there can be.
void FillWithOneColour()
{
    for (int cell = 1; cell <= kZellen; ++cell) {
        frmTessel->imgFeld(cell).Tag = "2";
    }
}

void PointerToRepaint(benchmark::State& state)
{
    Table table;
    FormWidget& form = table.Form();
    Click(form, frmTessel->lblNeu);
    if (state.range(0) != 0) {
        FillWithOneColour();
    }
    QCoreApplication::processEvents();
    int cell = 0;
    for (auto step : state) {
        (void)step;
        cell = (cell + 37) % kZellen;
        Send(form, QEvent::MouseMove, frmTessel->imgFeld(cell + 1), Qt::NoButton);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(PointerToRepaint)->ArgName("one_colour")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void WholeWindow(benchmark::State& state)
{
    Table table;
    Click(table.Form(), frmTessel->lblNeu);
    for (auto step : state) {
        (void)step;
        table.Form().repaint();
    }
}
BENCHMARK(WholeWindow)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace malvone::qt

// QT_SCALE_FACTOR=2 measures the double scale.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
