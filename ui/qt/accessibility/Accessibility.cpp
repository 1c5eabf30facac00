// Accessibility.cpp: the hook into Qt's accessibility, and the moment at which changes are told.
#include "ui/qt/accessibility/Accessibility.h"

#include <QAccessible>
#include <algorithm>
#include <utility>

#include "ui/qt/accessibility/AccessibleForm.h"
#include "ui/qt/drawing/Conversions.h"
#include "ui/qt/windows/FormWidget.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::qt {
namespace {

QAccessibleInterface* Make(const QString&, QObject* object)
{
    auto* const form = qobject_cast<FormWidget*>(object);
    return form != nullptr ? new AccessibleForm(form) : nullptr;
}

AccessibleForm* TreeOf(FormWidget& form)
{
    return dynamic_cast<AccessibleForm*>(QAccessible::queryAccessibleInterface(&form));
}

}  // namespace

void InstallAccessibility()
{
    QAccessible::installFactory(Make);
}

void ScreenReader::Follow(FormWidget& form, Change what)
{
    const bool heard = what != Change::Geometry && what != Change::Tip && what != Change::Select;
    if (!heard || !form.isVisible()) {
        return;
    }
    if (changed_.empty()) {
        QMetaObject::invokeMethod(this, &ScreenReader::Tell, Qt::QueuedConnection);
    }
    if (std::find(changed_.begin(), changed_.end(), &form) == changed_.end()) {
        changed_.emplace_back(&form);
    }
}

// The news are asked for even where nobody listens, so that they are new when somebody does. The
// question for a listener calls the session bus: it is asked after a window has been shown.
void ScreenReader::Tell()
{
    const QString news = ToQString(reporter_.News());
    const std::vector<QPointer<FormWidget>> changed = std::exchange(changed_, {});
    if (!QAccessible::isActive()) {
        return;
    }
    for (const QPointer<FormWidget>& form : changed) {
        FormWidget* const widget = form.data();
        const Window* const window = widget == nullptr ? nullptr : widget->Model();
        AccessibleForm* const tree = window == nullptr ? nullptr : TreeOf(*widget);
        if (tree == nullptr) {
            continue;
        }
        if (!news.isEmpty() && window->Name() == frmTessel.Name()) {
            tree->Announce(news);
        }
        tree->TellChanges();
    }
}

}  // namespace malvone::qt
