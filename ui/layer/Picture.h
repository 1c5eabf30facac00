// Picture.h: a picture as a name with a file and a size. Where files lie, and what kind they are,
// is the binding's business.
#pragma once

#include <string_view>

namespace malvone {

// One entry of the picture bank. The name is that of the control in whose definition the picture
// stands, such as "frmBilder.imgPfeil(1)"; the file has neither folder nor ending; the size is in
// pixels at scale 1.
struct PictureInfo
{
    std::string_view Name;
    std::string_view File;
    int Width = 0;
    int Height = 0;
};

// What a control shows: an entry of the bank, or nothing.
class Picture
{
public:
    constexpr Picture() = default;
    // The entry must outlive every copy; the bank is constant data.
    constexpr explicit Picture(const PictureInfo& info) : info_(&info) {}

    constexpr bool Empty() const { return info_ == nullptr; }
    constexpr std::string_view Name() const { return Empty() ? std::string_view() : info_->Name; }
    constexpr std::string_view File() const { return Empty() ? std::string_view() : info_->File; }
    constexpr int Width() const { return Empty() ? 0 : info_->Width; }
    constexpr int Height() const { return Empty() ? 0 : info_->Height; }

    // Each picture has one entry, so there are no names to compare.
    friend constexpr bool operator==(const Picture&, const Picture&) = default;

private:
    const PictureInfo* info_ = nullptr;
};

}  // namespace malvone
