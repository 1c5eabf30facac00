// Resources.h: where the pictures lie among the program's resources.
#pragma once

#include <QString>
#include <string_view>

namespace malvone::qt {

// The path of a picture's file, given without its extension.
QString ResourcePath(std::string_view file);

}  // namespace malvone::qt
