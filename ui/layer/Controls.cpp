// Controls.cpp: what the kinds of control do beyond holding their properties.
#include "ui/layer/Controls.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/CodePage.h"
#include "ui/layer/Window.h"

namespace malvone {

ImagePicture::ImagePicture(Visual& image, const Property<bool>& stretch)
    : Property<malvone::Picture>(image, Change::Picture), image_(image), stretch_(stretch)
{}

ImagePicture& ImagePicture::operator=(const malvone::Picture& picture)
{
    if (!picture.Empty() && !stretch_) {
        image_.Width = static_cast<Twips>(picture.Width()) * kTwipsPerPixel;
        image_.Height = static_cast<Twips>(picture.Height()) * kTwipsPerPixel;
    }
    Property<malvone::Picture>::operator=(picture);
    return *this;
}

ImagePicture& ImagePicture::operator=(const ImagePicture& other)
{
    return this == &other ? *this : *this = other.Get();
}

void Image::CopyFrom(const Image& other)
{
    Visual::CopyFrom(other);
    Stretch = other.Stretch.Get();
    Picture = other.Picture.Get();
}

void TextBox::SetFocus()
{
    Owner().SetFocus(this);
}

void TextBox::Type(std::string_view text)
{
    if (Locked) {
        return;
    }
    const std::string old = Text;
    const auto length = static_cast<std::int32_t>(CharacterCount(old));
    const std::int32_t start = std::clamp(SelStart.Get(), 0, length);
    const std::int32_t end = start + std::clamp(SelLength.Get(), 0, length - start);
    const std::string head = Characters(old, 0, static_cast<std::size_t>(start));
    const std::string tail = Characters(old, static_cast<std::size_t>(end), old.size());
    // By design (nur-was-die-datei-haelt): one would expect every letter. What the file cannot
    // hold is not typed. Test: Layer.PlaysAsItsScriptSays
    const std::string typed = KeepTypable(text);
    if (typed.empty() && !text.empty()) {
        return;
    }

    SelLength = 0;
    Text = head + typed + tail;
    SelStart = start + static_cast<std::int32_t>(CharacterCount(typed));
}

void ListBox::AddItem(std::string text)
{
    items_.push_back(std::move(text));
    Changed(Change::Text);
}

void ListBox::Clear()
{
    items_.clear();
    Changed(Change::Text);
}

const std::string& ListBox::List(std::int32_t index) const
{
    static const std::string none;
    return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : none;
}

void ListBox::SetList(std::int32_t index, std::string text)
{
    if (index >= 0 && index < ListCount()) {
        items_[static_cast<std::size_t>(index)] = std::move(text);
        Changed(Change::Text);
    }
}

char AccessKey(std::string_view caption)
{
    const std::size_t mark = caption.find('&');
    if (mark == std::string_view::npos || mark + 1 >= caption.size()) {
        return 0;
    }
    return static_cast<char>(std::toupper(static_cast<unsigned char>(caption[mark + 1])));
}

std::string PlainCaption(std::string_view caption)
{
    std::string plain(caption);
    if (const std::size_t mark = plain.find('&'); mark != std::string::npos) {
        plain.erase(mark, 1);
    }
    return plain;
}

}  // namespace malvone
