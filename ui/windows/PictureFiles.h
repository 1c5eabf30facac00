// PictureFiles.h: which file lies behind the name of a picture.
#pragma once

#include <span>
#include <string_view>

namespace malvone {

struct PictureFile
{
    std::string_view Picture;  // its name in the bank
    std::string_view File;     // the file's name without folder and ending
};

// One row for each picture of the bank. Pictures that look the same share a file.
std::span<const PictureFile> PictureFiles();

// The file of a picture; empty for a name that is not in the table.
std::string_view FileOf(std::string_view picture);

}  // namespace malvone
