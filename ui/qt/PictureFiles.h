// PictureFiles.h: where the files of pictures lie in the program.
#pragma once

#include <QString>
#include <string_view>

namespace malvone::qt {

// Where a file of the table lies among the program's resources.
QString ResourcePath(std::string_view file);

}  // namespace malvone::qt
