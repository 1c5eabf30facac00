// Accessibility.cpp: names of controls, and the hook into Qt's accessibility.
#include "ui/qt/Accessibility.h"

#include <QAccessible>
#include <array>

#include "state/Zellen.h"
#include "ui/layer/Controls.h"
#include "ui/qt/AccessibleForm.h"
#include "ui/qt/FormWidget.h"
#include "ui/qt/LabelText.h"
#include "ui/windows/FrmTessel.h"

namespace malvone::qt {
namespace {

constexpr std::array<const char*, kFarben + 1> kFarbnamen = {"leer", "orange", "hellgrün", "gelb",
                                                             "himmelblau"};

bool IsCell(const Visual& visual)
{
    return visual.Owner().Name() == frmTessel.Name() && visual.Name() == "imgFeld" &&
           visual.Index() >= 1 && visual.Index() <= kZellen;
}

QString CellName(const Visual& cell)
{
    const std::int32_t colour = cell.Tag->Number();
    const bool known = colour >= 0 && colour <= kFarben;
    return QStringLiteral("Spalte %1, Reihe %2, %3")
        .arg(Spalte(cell.Index()) + 1)
        .arg(Reihe(cell.Index()) + 1)
        .arg(QString::fromUtf8(kFarbnamen[known ? static_cast<std::size_t>(colour) : 0]));
}

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

QString SpokenName(const Visual& visual)
{
    if (IsCell(visual)) {
        return CellName(visual);
    }
    const auto* const label = dynamic_cast<const Label*>(&visual);
    const QString words = label != nullptr ? ToQString(label->Caption.Get()) : QString();
    return words.isEmpty() ? ToQString(visual.ToolTipText.Get()) : words.simplified();
}

void TellScreenReader(FormWidget& form, const Control& control, Change what)
{
    const auto* const label = dynamic_cast<const Label*>(&control);
    // The question for a screen reader calls the session bus: it can wait until there is something
    // to read.
    const bool told = what == Change::Text && label != nullptr && form.isVisible();
    if (!told || !QAccessible::isActive()) {
        return;
    }
    auto* const tree = dynamic_cast<AccessibleForm*>(QAccessible::queryAccessibleInterface(&form));
    if (QAccessibleInterface* const spoken = tree != nullptr ? tree->Of(*label) : nullptr) {
        QAccessibleEvent event(spoken, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

}  // namespace malvone::qt
