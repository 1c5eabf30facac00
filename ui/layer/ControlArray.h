// ControlArray.h: controls that share a name and are told apart by an index. An array may have
// gaps, begin at any index, and grow.
#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

#include "ui/layer/Control.h"

namespace malvone {

// The indexes from one to another, both included.
inline std::vector<int> Indexes(int first, int last)
{
    std::vector<int> indexes(static_cast<std::size_t>(last - first) + 1);
    std::iota(indexes.begin(), indexes.end(), first);
    return indexes;
}

template<class T>
class ControlArray
{
public:
    // The designed elements from front to back, and what else their kind of control needs: the
    // parent of menu entries, for example.
    template<class... More>
    ControlArray(const Seat& seat, const std::vector<int>& indexes, More... more)
        : events_(std::make_shared<Events>()), seat_(seat)
    {
        for (const int index : indexes) {
            Put(index, std::make_unique<T>(SeatOf(index), more...));
        }
    }

    T& operator()(int index) const
    {
        assert(Has(index));
        return *elements_[static_cast<std::size_t>(index)];
    }
    bool Has(int index) const
    {
        return index >= 0 && index < End() && elements_[static_cast<std::size_t>(index)] != nullptr;
    }
    // One more than the highest index.
    int End() const { return static_cast<int>(elements_.size()); }

    // Makes a new element, a hidden copy of element 0, unless the index is in use.
    T& Load(int index)
    {
        if (!Has(index)) {
            Put(index, std::make_unique<T>(SeatOf(index)));
            T& element = (*this)(index);
            element.TellAdded();
            element.Visible = false;
            element.CopyFrom((*this)(0));
        }
        return (*this)(index);
    }

private:
    std::shared_ptr<Events> events_;
    Seat seat_;
    std::vector<std::unique_ptr<T>> elements_;

    Seat SeatOf(int index) const
    {
        Seat seat = seat_;
        seat.Index = static_cast<std::int16_t>(index);
        seat.Shared = events_;
        return seat;
    }
    void Put(int index, std::unique_ptr<T> element)
    {
        if (index >= End()) {
            elements_.resize(static_cast<std::size_t>(index) + 1);
        }
        elements_[static_cast<std::size_t>(index)] = std::move(element);
    }

public:
    Event<>& Click = events_->Click;
    Event<Mouse>& MouseDown = events_->MouseDown;
    Event<Mouse>& MouseUp = events_->MouseUp;
    Event<Mouse>& MouseMove = events_->MouseMove;
};

}  // namespace malvone
