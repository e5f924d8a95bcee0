// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QModelIndex>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace selvane {

/// Gives a list model other rows without resetting it, so that views keep their place, focus and open menus.
/// The model names this as its friend.
struct RowUpdate {
    /// Rows with equal keys are the same; no two rows of a list may have equal keys. Announces those that go,
    /// move and come. The model must announce the new contents of those that stay.
    template <typename Model, typename Row, typename Key>
    static void apply(Model& model, std::vector<Row>& rows, std::vector<Row> wanted, Key key) {
        remove(model, rows, keys(wanted, key), key);
        const auto present = keys(rows, key);
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            if (i < rows.size() && key(rows[i]) == key(wanted[i]))
                continue;
            if (present.contains(key(wanted[i]))) {
                move(model, rows, i, key, key(wanted[i]));
                continue;
            }
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
    template <typename Row>
    static auto at(std::vector<Row>& rows, std::size_t position) {
        return rows.begin() + static_cast<std::ptrdiff_t>(position);
    }
    template <typename Row, typename Key>
    static auto keys(const std::vector<Row>& rows, Key key) {
        std::set<std::string> result;
        for (const Row& row : rows)
            result.insert(key(row));
        return result;
    }
    template <typename Model, typename Row, typename Key>
    static void remove(Model& model, std::vector<Row>& rows, const std::set<std::string>& staying, Key key) {
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
    template <typename Model, typename Row, typename Key>
    static void move(Model& model, std::vector<Row>& rows, std::size_t to, Key key,
                     const std::string& moved) {
        const auto found =
            std::find_if(at(rows, to), rows.end(), [&](const Row& row) { return key(row) == moved; });
        const int from = static_cast<int>(found - rows.begin());
        model.beginMoveRows({}, from, from, {}, static_cast<int>(to));
        std::rotate(at(rows, to), found, found + 1);
        model.endMoveRows();
    }
};

} // namespace selvane
