// Property.h: values of windows and controls, which report every change.
#pragma once

#include <string>
#include <utility>

namespace malvone {

// What has changed; a binding repaints or adjusts just that.
enum class Change {
    Geometry,  // position or size
    Visible,
    Enabled,
    Picture,
    Text,       // Caption, Text or the items of a list
    Look,       // colours, font, alignment, border
    State,      // Checked, Locked, TabStop, Interval
    Select,     // SelStart, SelLength
    Tip,        // ToolTipText, MousePointer
    Highlight,  // the highlight of the arrow keys has come to a control, or left it
    Data,       // Tag: nothing that can be seen
};

// What has properties: a window or a control.
class PropertyOwner
{
public:
    virtual void Changed(Change what) = 0;

protected:
    PropertyOwner() = default;
    ~PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;
};

// A value that tells its owner when it changes. Setting it to the same value does nothing.
template<class T>
class Property
{
public:
    Property(PropertyOwner& owner, Change what, T initial = T())
        : owner_(owner), what_(what), value_(std::move(initial))
    {}
    ~Property() = default;
    Property(const Property&) = delete;
    Property(Property&&) = delete;

    Property& operator=(T value)
    {
        if (value_ == value) {
            return *this;
        }
        value_ = std::move(value);
        owner_.Changed(what_);
        return *this;
    }
    // `a.Picture = b.Picture` copies the value and never the owner.
    Property& operator=(const Property& other)
    {
        if (this != &other) {
            *this = other.value_;
        }
        return *this;
    }
    Property& operator=(Property&&) = delete;

    const T& Get() const { return value_; }
    Change Kind() const { return what_; }
    operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)
    const T* operator->() const { return &value_; }

    friend bool operator==(const Property& a, const T& b) { return a.value_ == b; }
    friend bool operator==(const Property& a, const Property& b) { return a.value_ == b.value_; }

private:
    PropertyOwner& owner_;
    Change what_;
    T value_;
};

using TextProperty = Property<std::string>;

}  // namespace malvone
