#include "SideIndex.h"

#include <algorithm>
#include <cmath>

namespace qor {

namespace {
QString labelFor(const QString& key)
{
    return key.trimmed().left(kSideIndexLabelLength);
}
} // namespace

QList<SideIndexEntry> condenseSideIndex(const QStringList& keys, int capacity)
{
    QList<SideIndexEntry> entries;
    const int n = int(keys.size());
    if (capacity < 1 || n == 0)
        return entries;
    if (n <= capacity) {
        for (int i = 0; i < n; ++i)
            entries.append({ labelFor(keys.at(i)), i });
        return entries;
    }
    // k keys and k - 1 dots fill at most `capacity`; with n > capacity every dot
    // stands for at least one hidden key.
    const int shown = (capacity + 1) / 2;
    if (shown == 1)
        return { { labelFor(keys.first()), 0 } };
    int previous = 0;
    entries.append({ labelFor(keys.first()), 0 });
    for (int j = 1; j < shown; ++j) {
        const int index = int(std::lround(double(j) * (n - 1) / (shown - 1)));
        entries.append({ QStringLiteral("•"), (previous + index) / 2 });
        entries.append({ labelFor(keys.at(index)), index });
        previous = index;
    }
    return entries;
}

int sideIndexKeyAt(int keyCount, double fraction)
{
    if (keyCount <= 0 || std::isnan(fraction))
        return -1;
    const int index = int(std::floor(std::clamp(fraction, 0.0, 1.0) * keyCount));
    return std::min(index, keyCount - 1);
}

} // namespace qor
