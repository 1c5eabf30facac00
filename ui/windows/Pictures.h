// Pictures.h: the bank of pictures: every picture of the program by name, with its file and size.
#pragma once

#include <span>
#include <string_view>

#include "ui/layer/Picture.h"

namespace malvone {

// All pictures of the program.
std::span<const PictureInfo> AllPictures();

// The picture of a name. An unknown name is a mistake in the program and stops a debug build.
Picture PictureNamed(std::string_view name);

}  // namespace malvone
