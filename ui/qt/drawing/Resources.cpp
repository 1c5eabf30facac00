// Resources.cpp: builds the names of resources.
#include "ui/qt/drawing/Resources.h"

namespace malvone::qt {

QString ResourcePath(std::string_view file)
{
    return QStringLiteral(":/pictures/%1.svg")
        .arg(QLatin1StringView(file.data(), static_cast<qsizetype>(file.size())));
}

}  // namespace malvone::qt
