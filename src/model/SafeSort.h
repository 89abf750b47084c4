#pragma once
// A stable merge sort that stays in bounds whatever the comparator answers.
// The search ranking's order is not transitive in every case, and the
// standard sorts may read out of range with such a comparator.
#include <algorithm>
#include <cstddef>
#include <vector>

namespace qor {

template <typename T, typename Less>
void safeStableSort(std::vector<T>& v, Less less)
{
    const size_t n = v.size();
    if (n < 2)
        return;
    std::vector<T> buffer(n);
    for (size_t width = 1; width < n; width *= 2) {
        for (size_t lo = 0; lo < n; lo += 2 * width) {
            const size_t mid = std::min(lo + width, n);
            const size_t hi = std::min(lo + 2 * width, n);
            size_t i = lo, j = mid, k = lo;
            while (i < mid && j < hi)
                buffer[k++] = less(v[j], v[i]) ? std::move(v[j++]) : std::move(v[i++]);
            while (i < mid)
                buffer[k++] = std::move(v[i++]);
            while (j < hi)
                buffer[k++] = std::move(v[j++]);
        }
        v.swap(buffer);
    }
}

} // namespace qor
