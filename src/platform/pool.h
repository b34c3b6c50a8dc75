// SPDX-License-Identifier: MIT
// A pool of equal controls that grows on demand and never shrinks. Slot 0 is a hidden template.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace ornavo {

/// Controls by slot. A slot is free while its control's Tag is empty.
template <class T>
class Pool {
public:
    explicit Pool(std::function<T*(int index)> make) : make_(std::move(make)) {
        controls_.push_back(make_(0));
    }

    int Top() const { return static_cast<int>(controls_.size()) - 1; }
    T& operator[](int index) const { return *controls_.at(static_cast<std::size_t>(index)); }
    /// The lowest free slot from 1; a new visible control if none is free.
    int GetFree() {
        for (int i = firstFree_; i <= Top(); ++i)
            if ((*this)[i].Tag.empty()) return firstFree_ = i;
        firstFree_ = Load();
        controls_.back()->setVisible(true);
        return firstFree_;
    }
    /// Adds a control as `make` returns it, and returns its slot.
    int Load() {
        controls_.push_back(make_(Top() + 1));
        return Top();
    }
    /// Frees and hides all slots from 1.
    void Clear() {
        for (int i = 1; i <= Top(); ++i) {
            (*this)[i].Tag.clear();
            (*this)[i].setVisible(false);
        }
        firstFree_ = 1;
    }
    /// Frees all slots from 1, and leaves shown what will be handed out again: to hide and show a control
    /// costs a question to the screen. HideFree must follow.
    void Free() {
        for (int i = 1; i <= Top(); ++i) (*this)[i].Tag.clear();
        firstFree_ = 1;
    }
    void HideFree() {
        for (int i = 1; i <= Top(); ++i)
            if ((*this)[i].Tag.empty()) (*this)[i].setVisible(false);
    }
    /// The caller has freed this slot by emptying its Tag.
    void Released(int index) {
        if (index < firstFree_) firstFree_ = index;
    }

private:
    std::function<T*(int)> make_;
    std::vector<T*> controls_;  // owned by their parent window
    int firstFree_ = 1;         // no slot from 1 below it is free
};

}  // namespace ornavo
