// Sizing.cpp: finds sizes for windows, and scales for sizes.
#include "ui/qt/windows/Sizing.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>

#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/windows/Placement.h"

namespace malvone::qt {
namespace {

// At half the designed size the game can still be played.
constexpr double kSmallestFactor = 0.5;

}  // namespace

QSizeF DesignOf(const Window& window)
{
    return {ToPixels(window.ClientWidth), ToPixels(window.ClientHeight)};
}

QSize SizeOf(const Window& window, double factor)
{
    constexpr double kRounding = 0.01;
    const QSizeF size = DesignOf(window) * factor;
    return {static_cast<int>(std::ceil(size.width() - kRounding)),
            static_cast<int>(std::ceil(size.height() - kRounding))};
}

QSize Sizing::SizeAt(double factor) const
{
    const QSize client = SizeOf(window_, factor);
    const int menu = menu_ != nullptr ? menu_->heightForWidth(client.width()) : 0;
    return client.grownBy(QMargins(0, menu, 0, 0));
}

QRectF Sizing::Room() const
{
    return form_.rect().adjusted(0, menu_ != nullptr ? menu_->height() : 0, 0, 0);
}

void Sizing::LayOut()
{
    if (menu_ != nullptr) {
        menu_->setGeometry(0, 0, form_.width(), menu_->heightForWidth(form_.width()));
    }
    scale_ = Scale(DesignOf(window_), Room(), form_.devicePixelRatioF());
}

void Sizing::SetFactor(double factor)
{
    // Between whole ratios Qt asks for sizes in steps of more than a pixel: counted from this size.
    form_.setBaseSize(SizeAt(factor));
    if (window_.BorderStyle == Border::Sizable) {
        form_.setMinimumSize(SizeAt(kSmallestFactor));
        form_.resize(SizeAt(factor));
    } else {
        form_.setFixedSize(SizeAt(factor));
    }
}

double Sizing::FactorOnScreen() const
{
    constexpr QSizeF kFrame(10, 36);  // about the size of a frame
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const QSizeF design = DesignOf(window_);
    const QSizeF menu(0, SizeAt(1).height() - design.height());
    const QRectF room(QPointF(), QSizeF(screen.availableSize()) - kFrame - menu);
    return std::min(1.0, Scale(design, room, screen.devicePixelRatio()).Factor());
}

void Sizing::FitOntoScreens()
{
    const QSize size = form_.size();
    const bool shrunk = size == small_;
    const double fitting = FactorOnScreen();
    if (shrunk && placement_.Fits(large_)) {
        small_ = QSize();
        form_.resize(large_);
        window_.Move(static_cast<Twips>(largePlace_.x()), static_cast<Twips>(largePlace_.y()));
    } else if (fitting < scale_.Factor() ? !placement_.Fits(size) : shrunk) {
        if (!shrunk) {
            large_ = size;
            largePlace_ = QPointF(window_.Left, window_.Top);
        }
        SetFactor(fitting);
        small_ = form_.size();
    }
}

}  // namespace malvone::qt
