#pragma once
// Helpers shared by the lookups: the per-material cache, format texts with
// "%@"/"%d" placeholders (the localisation table keeps them in that form) and
// column text clean-up.
#include <QString>
#include <initializer_list>
#include <optional>

namespace qor {

// Computes on first use and keeps the result on the material, even an empty
// one, so a lookup that found nothing is not asked again.
template <typename T, typename Compute>
T cachedLookup(std::optional<T>& cache, Compute compute)
{
    if (!cache)
        cache = compute();
    return *cache;
}

// Fills each "%@" or "%d" of format, in order, with the next value. Values are
// inserted literally, so a value holding "%1" or "%@" is never re-expanded.
QString fillFormat(const QString& format, std::initializer_list<QString> values);

// Paragraph breaks of the source HTML become blank lines.
QString paragraphsToLines(QString text);

} // namespace qor
