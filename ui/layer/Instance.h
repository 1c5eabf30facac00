// Instance.h: the names under which the game knows its windows; a window is made by the first use
// of its name.
#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/layer/Window.h"

namespace malvone {

// The name under which the game knows a window. The first touch makes the window as designed and
// runs its Form_Load; after Unload, the next touch begins anew.
class InstanceBase
{
public:
    std::string_view Name() const { return name_; }
    bool Loaded() const { return Current() != nullptr; }
    virtual Window* Current() const = 0;  // null while it is not loaded
    virtual Window& Touch() = 0;

    // All instances of the program, by name.
    static const std::vector<InstanceBase*>& All();
    static InstanceBase* Find(std::string_view name);

protected:
    explicit InstanceBase(std::string_view name);
    virtual ~InstanceBase() = default;
    InstanceBase(const InstanceBase&) = delete;
    InstanceBase& operator=(const InstanceBase&) = delete;

    void Announce(Window& window);

private:
    friend class Window;
    friend class Application;
    virtual std::unique_ptr<Window> Release() = 0;

    std::string_view name_;
};

template<class T>
class Instance final : public InstanceBase
{
public:
    explicit Instance(std::string_view name) : InstanceBase(name) {}

    T* operator->() { return &Get(); }
    T& operator*() { return Get(); }
    T& Get()
    {
        if (!window_) {
            window_ = std::make_unique<T>();
            Announce(*window_);
        }
        return *window_;
    }

    Window* Current() const override { return window_.get(); }
    Window& Touch() override { return Get(); }

private:
    std::unique_ptr<Window> Release() override { return std::move(window_); }

    std::unique_ptr<T> window_;
};

// Loads a window without showing it.
inline void Load(InstanceBase& instance)
{
    instance.Touch();
}

}  // namespace malvone
