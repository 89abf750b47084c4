#pragma once
// Finding materials by name or UN number as the user types, and ranking the
// matches: common materials first, anything the user has viewed before all.
#include "Material.h"

#include <QHash>
#include <QStringList>
#include <functional>

namespace qor {

class Filter;

class MaterialSearch {
public:
    // Whether the user has viewed the material (it is in the history).
    using ViewedPredicate = std::function<bool(const Material&)>;

    static constexpr int kViewedWeight = 999;
    static constexpr int kScanLimit = 150;  // the scan stops once more than this have matched

    // Fixed weights by UN id; absent ids weigh 0.
    static const QHash<QString, int>& rankingWeights();

    explicit MaterialSearch(ViewedPredicate viewed = {});

    // Runs the search for text t on the given filter's prefix index and the
    // model's materials. Returns false when t equals the previous search
    // (the previous results stand).
    bool search(const QString& text, const Filter* filter, const MaterialList& materials, int sortType);

    const MaterialList& results() const { return m_results; }
    const QString& lastSearchText() const { return m_lastSearchText; }
    void reset();

    // Negative when a goes first. Equal weights answer "a first" either way round.
    int compare(const Material& a, const Material& b) const;
    void rank(MaterialList& list) const;

private:
    int weight(const Material& m) const;
    ViewedPredicate m_viewed;
    MaterialList m_results;
    QString m_lastSearchText;
    QStringList m_lowerNames;
    MaterialList m_namesOf;
};

} // namespace qor
