// GameOnScreen.h: the real game in windows of Qt's, with a pointer and keys for tests.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>

#include "game/Main.h"
#include "ui/layer/App.h"
#include "ui/qt/QtBinding.h"
#include "ui/qt/drawing/Painting.h"
#include "ui/qt/platform/QtPlatform.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/sound/Sound.h"
#include "ui/windows/FrmBeste.h"
#include "ui/windows/FrmHintergrund.h"
#include "ui/windows/FrmMsgJa.h"
#include "ui/windows/FrmMsgOk.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::qt {

class GameOnScreen : public testing::Test
{
protected:
    void SetUp() override
    {
        const std::filesystem::path folder = folder_.path().toStdString();
        platform_ = std::make_unique<QtPlatform>(folder, folder, sound_);
        binding_ = std::make_unique<QtBinding>();
        ZustandNeu();
        App.Begin(*binding_, *platform_);
        {
            const EventScope scope;
            Main();
        }
        QCoreApplication::processEvents();
    }

    void TearDown() override
    {
        App.Finish();
        binding_.reset();
    }

    FormWidget& Form(const Window& window) const { return *binding_->Windows().FormOf(&window); }

    static QPointF Middle(const FormWidget& form, const Visual& visual)
    {
        return form.PlaceOnForm(visual).center();
    }

    static void Send(FormWidget& form, QEvent::Type type, QPointF place, Qt::MouseButton button,
                     Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, place, form.mapToGlobal(place), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&form, &event);
    }

    void PointAt(const Visual& visual) const
    {
        FormWidget& form = Form(visual.Owner());
        Send(form, QEvent::MouseMove, Middle(form, visual), Qt::NoButton, Qt::NoButton);
    }

    void Click(const Visual& visual) const
    {
        const QPointer<FormWidget> form = &Form(visual.Owner());
        ClickAt(*form, Middle(*form, visual));
    }

    static void ClickAt(FormWidget& target, QPointF place)
    {
        const QPointer<FormWidget> form = &target;
        Send(*form, QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
        Send(*form, QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
        if (form != nullptr) {
            Send(*form, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
        }
    }

    static void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                      const QString& text = {}, bool heldDown = false)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text, heldDown);
        QCoreApplication::sendEvent(&widget, &event);
    }

    // Does something that opens a modal window, and something else as soon as that is open. The
    // window must be gone afterwards; a window left open is closed, and the test fails.
    static void WhileOpen(const std::function<void()>& open, const std::function<void()>& then)
    {
        bool ran = false;
        QTimer waiting;
        QObject::connect(&waiting, &QTimer::timeout, [&] {
            if (ran || App.TopModal() == nullptr) {
                return;
            }
            ran = true;
            then();
            Window* const modal = App.TopModal();
            if (modal != nullptr && modal->Shown() && !App.Ended()) {
                ADD_FAILURE() << modal->Name() << " is still open";
                modal->Unload();
            }
        });
        waiting.start(0);
        open();
        for (int i = 0; i < 100 && !ran && !App.Ended(); ++i) {
            QCoreApplication::processEvents();  // what asks the player may wait for Qt
        }
        EXPECT_TRUE(ran) << "no modal window was opened";
    }

    static QImage Painted(FormWidget& form) { return form.grab().toImage(); }

    QTemporaryDir folder_;
    Sound sound_;  // never made ready: silent
    std::unique_ptr<QtPlatform> platform_;
    std::unique_ptr<QtBinding> binding_;
};

}  // namespace malvone::qt
