// SPDX-License-Identifier: MIT
// Like controls that grow on demand and never shrink. Slot 0 is a hidden template.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace ornavo {

template <class T>
class Pool {
public:
    explicit Pool(std::function<T*(int index)> make) : make_(std::move(make)) {
        controls_.push_back(make_(0));
    }

    int Top() const { return static_cast<int>(controls_.size()) - 1; }
    T& operator[](int index) const { return *controls_.at(static_cast<std::size_t>(index)); }
    /// The lowest slot from 1 whose Tag is empty; a new visible one where none is.
    int GetFree() {
        for (int i = firstFree_; i <= Top(); ++i)
            if ((*this)[i].Tag.empty()) return firstFree_ = i;
        firstFree_ = Load();
        controls_.back()->setVisible(true);
        return firstFree_;
    }
    /// One slot more, as it is made; its index.
    int Load() {
        controls_.push_back(make_(Top() + 1));
        return Top();
    }
    /// Frees and hides every slot from 1.
    void Clear() {
        for (int i = 1; i <= Top(); ++i) {
            (*this)[i].Tag.clear();
            (*this)[i].setVisible(false);
        }
        firstFree_ = 1;
    }
    /// A slot has been given back outside of Clear.
    void Released(int index) {
        if (index < firstFree_) firstFree_ = index;
    }

private:
    std::function<T*(int)> make_;
    std::vector<T*> controls_;  // owned by their parent window
    int firstFree_ = 1;         // no slot below it is free
};

}  // namespace ornavo
