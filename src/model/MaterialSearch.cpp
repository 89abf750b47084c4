#include "MaterialSearch.h"

#include "Filter.h"
#include "Resources.h"
#include "SafeSort.h"

#include <QCollator>
#include <algorithm>

namespace qor {

namespace {
// The ranking rule, negative when a goes first. Two materials outside the
// weight table go by name. Otherwise only a strictly heavier b goes first:
// equal weights answer "a first" either way round, and a viewed material
// outside the table deliberately gains nothing against another one outside it.
template <typename CompareNames>
int rankOrder(bool aInTable, int aWeight, bool bInTable, int bWeight, CompareNames compareNames)
{
    if (!aInTable && !bInTable)
        return compareNames();
    return bWeight > aWeight ? 1 : -1;
}
} // namespace

const QHash<QString, int>& MaterialSearch::rankingWeights()
{
    static const QHash<QString, int> weights = [] {
        // Weight, then the UN ids that carry it: how often responders look them up.
        const struct { int weight; const char* ids; } groups[] = {
        { 528, "1005" },
        { 441, "1203" },
        { 391, "1017" },
        { 351, "1075" },
        { 307, "1993" },
        { 303, "1051" },
        { 254, "1090" },
        { 243, "1202" },
        { 222, "2810" },
        { 171, "1088" },
        { 159, "1789" },
        { 157, "1824" },
        { 120, "1089" },
        { 113, "1230" },
        { 94, "1170" },
        { 89, "2789" },
        { 88, "1841" },
        { 84, "1267" },
        { 83, "1830 1978" },
        { 82, "3082" },
        { 78, "1863" },
        { 73, "1219" },
        { 71, "1760" },
        { 69, "3077" },
        { 68, "1268" },
        { 67, "1987" },
        { 66, "3257" },
        { 65, "1950" },
        { 63, "1971" },
        { 62, "1079" },
        { 61, "1053 1114" },
        { 60, "1001 1072" },
        { 59, "2332" },
        { 56, "1263 1689" },
        { 55, "1223" },
        { 53, "1076" },
        { 51, "1294 1791" },
        { 50, "1040" },
        { 49, "1716" },
        { 46, "3475" },
        { 43, "1999" },
        { 42, "1541" },
        { 41, "1698 3065" },
        { 40, "1717" },
        { 39, "2015" },
        { 37, "1066 2055 2790" },
        { 36, "1866" },
        { 35, "1011 2032" },
        { 34, "1086 1805 1823" },
        { 33, "1052 1744 2014" },
        { 32, "2071 2794 3090" },
        { 31, "1972 3318" },
        { 30, "1073 1091 1307 1790" },
        { 29, "1013 1193 1415 1977" },
        { 28, "1270" },
        { 27, "1050 3268" },
        { 26, "1016 2672 2735" },
        { 25, "1010 1092 1093 1334 1397 1898" },
        { 24, "2187" },
        { 23, "1133 1754 1831 2978 3264" },
        { 21, "1006 1201 1715 2915 3265" },
        { 20, "1325 1384 1906 2031 2809 3266 3374" },
        { 19, "1002 1044 1049 1130 1432 2188 2208 2480" },
        { 18, "1008 1908 1992 2067 2218 3166 3512" },
        { 17, "1198 1613 1648 2448 2811 2909 3375" },
        { 16, "1067 1071 1680 1845 1869 2215 2504 2584 2924 3165 3480 3481" },
        { 15, "1070 1153 1381 1383 1486 1758 2315 3092" },
        { 14, "1045 1046 1365 1402 1593 1694 1836 1951 1962 2212 2713 3149 3373" },
        { 13, "1062 1206 1208 1350 1496 1722 1834 1907 2074 2199 3342 3511 3518" },
        { 12, "1026 1173 1427 1724 1749 1779 1786 1814 1967 1986 2282 2693 2795 2837 3123 3159" },
        { 11, "1003 1189 1221 1338 1453 1741 1953 2072 2426 2814 2821 2929 3109 3161 3163 3292" },
        { 10, "1098 1282 1299 1327 1340 1389 1558 1832 1931 1935 1956 2016 2035 2428 2571 2800 2912 2922 2967 3052 3091 3101 3138 3363 3364 3507 3510 3517" },
        };
        QHash<QString, int> w;
        for (const auto& g : groups)
            for (const QString& id : QString::fromLatin1(g.ids).split(QLatin1Char(' ')))
                w.insert(id, g.weight);
        return w;
    }();
    return weights;
}

MaterialSearch::MaterialSearch(ViewedPredicate viewed) : m_viewed(std::move(viewed))
{
}

void MaterialSearch::reset()
{
    m_results.clear();
    m_lastSearchText.clear();
}

int MaterialSearch::weight(const Material& m) const
{
    if (m_viewed && m_viewed(m))
        return kViewedWeight;
    return rankingWeights().value(m.unId, 0);
}

int MaterialSearch::compare(const Material& a, const Material& b) const
{
    const auto& w = rankingWeights();
    return rankOrder(w.contains(a.unId), weight(a), w.contains(b.unId), weight(b), [&] {
        QCollator collator;
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        const int c = collator.compare(a.name, b.name);
        return c < 0 ? -1 : c > 0 ? 1 : 0;
    });
}

void MaterialSearch::rank(MaterialList& list) const
{
    // Same order as compare(), with the weights and collation keys computed
    // once per material instead of once per comparison.
    struct Key {
        bool inTable;
        int weight;
        QCollatorSortKey name;
        MaterialPtr m;
    };
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const auto& w = rankingWeights();
    std::vector<Key> keys;
    keys.reserve(list.size());
    for (const auto& m : list)
        keys.push_back({ w.contains(m->unId), weight(*m), collator.sortKey(m->name), m });
    // compare() answers "a first" for equal weights both ways round, so it is
    // made strict here: a before b only when b is not also before a.
    auto cmp = [](const Key& a, const Key& b) {
        return rankOrder(a.inTable, a.weight, b.inTable, b.weight, [&] { return a.name.compare(b.name); });
    };
    std::vector<size_t> order(keys.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    safeStableSort(order, [&](size_t a, size_t b) { return cmp(keys[a], keys[b]) < 0 && cmp(keys[b], keys[a]) >= 0; });
    for (size_t i = 0; i < order.size(); ++i)
        list[qsizetype(i)] = keys[order[i]].m;
}

bool MaterialSearch::search(const QString& text, const Filter* filter, const MaterialList& materials, int sortType)
{
    m_results.clear();
    QString t = text;
    if (t.isEmpty())
        return true;
    if (t.size() < 4)
        t = t.toLower();
    if (t == m_lastSearchText)
        return false;
    m_lastSearchText = t;

    // Short words go through the prefix index; numbers always scan.
    if (t.size() < 3 && leadingInt(t) == 0 && filter) {
        auto it = filter->alphaIndex.constFind(t);
        if (it != filter->alphaIndex.cend()) {
            m_results = *it;
            rank(m_results);
            if (!m_results.isEmpty())
                return true;
        }
    }

    // Lower-cased names are kept between keystrokes: a case-insensitive
    // contains() over thousands of names is the slow part of a keystroke.
    // Holding a shared copy of the list keeps its buffer alive, so the
    // address comparison cannot mistake a new list for the old one.
    if (m_namesOf.constData() != materials.constData() || m_lowerNames.size() != materials.size()) {
        m_lowerNames.clear();
        m_lowerNames.reserve(materials.size());
        for (const auto& m : materials)
            m_lowerNames.append(m->name.toLower());
        m_namesOf = materials;
    }
    const QString needle = t.toLower();
    for (qsizetype i = 0; i < materials.size(); ++i) {
        if (m_results.size() > kScanLimit)
            break;
        const MaterialPtr& m = materials.at(i);
        bool match = false;
        switch (sortType) {
        case 0:
        case 2:
        case 3:
            match = m->unId.startsWith(t) || m_lowerNames.at(i).contains(needle);
            break;
        case 1:
            match = m->unId.startsWith(t);
            break;
        default:
            break;
        }
        if (match)
            m_results.append(m);
    }
    rank(m_results);
    return true;
}

} // namespace qor
