#pragma once
// The side index of a list: when it has more keys than its height holds, it
// shows an evenly spread subset with "•" between, first and last key always.
#include <QList>
#include <QString>
#include <QStringList>

namespace qor {

struct SideIndexEntry {
    QString label;  // the key as shown, or "•" for keys left out
    int keyIndex;   // the key a touch on the entry goes to
    bool operator==(const SideIndexEntry&) const = default;
};

inline constexpr int kSideIndexLabelLength = 4;

// At most `capacity` entries for the keys (capacity below 1 give none).
QList<SideIndexEntry> condenseSideIndex(const QStringList& keys, int capacity);
// The key under a finger at `fraction` (0 top, 1 bottom) of the index's
// height: a drag passes over every key, the hidden ones included. -1 when none.
int sideIndexKeyAt(int keyCount, double fraction);

} // namespace qor
