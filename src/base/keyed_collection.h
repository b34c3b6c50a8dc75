// SPDX-License-Identifier: MIT
// An ordered list whose items have text keys, compared without regard to case.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "base/text_map.h"

namespace ornavo {

/// An ordered list of shared objects, found by key or by position. Positions count from 1.
template <class T>
class KeyedCollection {
public:
    using Ref = std::shared_ptr<T>;

    int Count() const { return static_cast<int>(items_.size()); }
    /// Null if there is no such key.
    Ref Find(std::string_view key) const {
        const auto found = byKey_.find(key);
        return found == byKey_.end() ? nullptr : found->second;
    }
    /// Both throw Failure 9 if there is no such position or key.
    Ref Item(int position) const {
        CheckPosition(position);
        return items_[static_cast<std::size_t>(position - 1)].item;
    }
    Ref Item(std::string_view key) const {
        Ref found = Find(key);
        if (!found) throw NotFound();
        return found;
    }
    /// Inserts in front of position `before`, 1 to Count() + 1; Failure 9 outside of that. Failure 457 if the
    /// key exists already, in which case nothing changes.
    void Insert(std::string_view key, Ref item, int before) {
        if (before < 1 || before > Count() + 1) throw NotFound();
        if (!byKey_.try_emplace(std::string(key), item).second)
            throw Failure(Failure::DuplicateKey, "KeyedCollection",
                          "This key is already associated with an element of this collection");
        items_.insert(items_.begin() + (before - 1), Entry{std::string(key), std::move(item)});
    }
    void Append(std::string_view key, Ref item) { Insert(key, std::move(item), Count() + 1); }
    void Remove(int position) {
        CheckPosition(position);
        const auto entry = items_.begin() + (position - 1);
        byKey_.erase(entry->key);
        items_.erase(entry);
    }
    void Remove(std::string_view key) {
        for (std::size_t i = 0; i < items_.size(); ++i)
            if (EqualText(items_[i].key, key)) return Remove(static_cast<int>(i) + 1);
        throw NotFound();
    }

    /// Replaces each item by a copy of it, after which none is shared with another collection.
    void CopyItems() {
        for (Entry& entry : items_)
            byKey_.find(entry.key)->second = entry.item = std::make_shared<T>(*entry.item);
    }

private:
    /// An item with its key.
    struct Entry {
        std::string key;
        Ref item;
    };

public:
    /// Iterates over the items' references, in order.
    class ConstIterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Ref;
        using difference_type = std::ptrdiff_t;
        using pointer = const Ref*;
        using reference = const Ref&;
        ConstIterator() = default;
        explicit ConstIterator(typename std::vector<Entry>::const_iterator at) : at_(at) {}
        const Ref& operator*() const { return at_->item; }
        ConstIterator& operator++() {
            ++at_;
            return *this;
        }
        ConstIterator operator++(int) {
            const ConstIterator before = *this;
            ++at_;
            return before;
        }
        bool operator==(const ConstIterator&) const = default;

    private:
        typename std::vector<Entry>::const_iterator at_;
    };
    ConstIterator begin() const { return ConstIterator(items_.begin()); }
    ConstIterator end() const { return ConstIterator(items_.end()); }

private:
    static Failure NotFound() { return Failure(Failure::NotFound, "KeyedCollection"); }
    void CheckPosition(int position) const {
        if (position < 1 || position > Count()) throw NotFound();
    }
    std::vector<Entry> items_;
    TextMap<std::string, Ref> byKey_;
};

}  // namespace ornavo
