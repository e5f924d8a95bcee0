// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>

#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace selvane {

/// Gives a list model other rows without resetting it, so that views keep their place, focus and open menus.
/// The model names this as its friend.
struct RowUpdate {
    /// Rows with equal keys are the same; no two rows of a list may have equal keys. Announces those that go,
    /// move and come, with as few moves as possible. The model must announce the new contents of those that
    /// stay.
    template <typename Model, typename Row, typename Key>
    static void apply(Model& model, std::vector<Row>& rows, std::vector<Row> wanted, Key key) {
        const Places places = placesOf(wanted, key);
        remove(model, rows, places, key);
        const auto present = placesOf(rows, key);
        order(model, rows, places, key);
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            if (present.contains(key(wanted[i])))
                continue;
            std::size_t end = i + 1;
            while (end < wanted.size() && !present.contains(key(wanted[end])))
                ++end;
            model.beginInsertRows({}, static_cast<int>(i), static_cast<int>(end) - 1);
            rows.insert(at(rows, i), at(wanted, i), at(wanted, end));
            model.endInsertRows();
            i = end - 1;
        }
        rows = std::move(wanted);
    }

private:
    using Places = std::unordered_map<std::string, std::size_t>;

    template <typename Row>
    static auto at(std::vector<Row>& rows, std::size_t position) {
        return rows.begin() + static_cast<std::ptrdiff_t>(position);
    }
    template <typename Row, typename Key>
    static Places placesOf(const std::vector<Row>& rows, Key key) {
        Places result;
        for (std::size_t i = 0; i < rows.size(); ++i)
            result.emplace(key(rows[i]), i);
        return result;
    }
    template <typename Model, typename Row, typename Key>
    static void remove(Model& model, std::vector<Row>& rows, const Places& staying, Key key) {
        for (std::size_t end = rows.size(); end > 0; --end) {
            if (staying.contains(key(rows[end - 1])))
                continue;
            std::size_t first = end - 1;
            while (first > 0 && !staying.contains(key(rows[first - 1])))
                --first;
            model.beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
            rows.erase(at(rows, first), at(rows, end));
            model.endRemoveRows();
            end = first + 1;
        }
    }
    /// Brings the rows into the order of their places. The most that are in order already stay where they
    /// are.
    template <typename Model, typename Row, typename Key>
    static void order(Model& model, std::vector<Row>& rows, const Places& places, Key key) {
        std::vector<std::size_t> order; // the places of the rows as they stand
        for (const Row& row : rows)
            order.push_back(places.at(key(row)));
        const std::set<std::size_t> staying = longestRise(order);
        std::vector<std::size_t> sorted = order;
        std::ranges::sort(sorted);
        for (std::size_t i = 0; i < sorted.size(); ++i) {
            if (staying.contains(sorted[i]))
                continue;
            const auto from = std::ranges::find(order, sorted[i]);
            // Behind the one that comes before it, which has its place already.
            const auto to = i == 0 ? order.begin() : std::ranges::find(order, sorted[i - 1]) + 1;
            if (to == from)
                continue;
            const auto first = from - order.begin();
            const auto before = to - order.begin();
            model.beginMoveRows({}, static_cast<int>(first), static_cast<int>(first), {},
                                static_cast<int>(before));
            shift(order, first, before);
            shift(rows, first, before);
            model.endMoveRows();
        }
    }
    /// Moves one element to before another.
    template <typename Element>
    static void shift(std::vector<Element>& elements, std::ptrdiff_t from, std::ptrdiff_t before) {
        const auto begin = elements.begin();
        if (before < from)
            std::rotate(begin + before, begin + from, begin + from + 1);
        else
            std::rotate(begin + from, begin + from + 1, begin + before);
    }
    /// The longest selection of different numbers that rise as they stand.
    static std::set<std::size_t> longestRise(const std::vector<std::size_t>& numbers) {
        std::vector<std::size_t> ends; // by length less one, the smallest number with which such a rise ends
        std::vector<std::size_t> positions; // of each number in the longest rise that ends with it
        for (const std::size_t number : numbers) {
            const auto place = std::ranges::lower_bound(ends, number) - ends.begin();
            positions.push_back(static_cast<std::size_t>(place));
            ends.resize(std::max(ends.size(), static_cast<std::size_t>(place) + 1));
            ends[static_cast<std::size_t>(place)] = number;
        }
        std::set<std::size_t> rise;
        std::size_t wanted = ends.size();
        for (std::size_t i = numbers.size(); i > 0 && wanted > 0; --i) {
            if (positions[i - 1] == wanted - 1 && (rise.empty() || numbers[i - 1] < *rise.begin())) {
                rise.insert(numbers[i - 1]);
                --wanted;
            }
        }
        return rise;
    }
};

} // namespace selvane
