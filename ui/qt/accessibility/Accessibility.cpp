// Accessibility.cpp: the hook into Qt's accessibility, and when changes are announced.
#include "ui/qt/accessibility/Accessibility.h"

#include <QAccessible>
#include <algorithm>
#include <utility>

#include "ui/qt/accessibility/AccessibleForm.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/windows/FormWidget.h"

namespace malvone::qt {
namespace {

// A level gives 140 cells new names. Screen readers throw away a queue of more than 50 events, and
// with it what has happened.
constexpr int kNamesAtOnce = 20;
constexpr int kRestMs = 500;

QAccessibleInterface* Make(const QString&, QObject* object)
{
    auto* const form = qobject_cast<FormWidget*>(object);
    return form != nullptr ? new AccessibleForm(form) : nullptr;
}

}  // namespace

void InstallAccessibility()
{
    QAccessible::installFactory(Make);
}

ScreenReader::ScreenReader()
{
    rest_.setSingleShot(true);
    connect(&rest_, &QTimer::timeout, this, &ScreenReader::Tell);
}

void ScreenReader::Follow(FormWidget& form, Change what)
{
    const bool heard = what != Change::Geometry && what != Change::Tip && what != Change::Select;
    if (!heard || !form.isVisible()) {
        return;
    }
    if (!std::exchange(queued_, true)) {
        QMetaObject::invokeMethod(this, &ScreenReader::Tell, Qt::QueuedConnection);
    }
    if (std::find(changed_.begin(), changed_.end(), &form) == changed_.end()) {
        changed_.emplace_back(&form);
    }
}

// The news is taken even if nobody listens, so that nobody hears it much later. Asking for
// listeners calls the session bus, so it waits until a window has been shown.
void ScreenReader::Tell()
{
    queued_ = false;
    const QString news = ToQString(reporter_.News());
    const int names = rest_.isActive() ? 0 : kNamesAtOnce;
    const std::vector<QPointer<FormWidget>> changed = std::exchange(changed_, {});
    if (!QAccessible::isActive()) {
        return;
    }
    for (FormWidget* const form : changed) {
        if (form == nullptr || form->Model() == nullptr) {
            continue;
        }
        auto& tree = static_cast<AccessibleForm&>(*QAccessible::queryAccessibleInterface(form));
        if (!news.isEmpty() && form->Model()->Role == WindowRole::Main) {
            tree.Announce(news);
        }
        if (tree.TellChanges(names)) {
            changed_.push_back(form);
        }
    }
    if (!changed_.empty() && !rest_.isActive()) {
        rest_.start(kRestMs);
    }
}

}  // namespace malvone::qt
