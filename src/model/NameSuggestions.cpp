#include "NameSuggestions.h"

#include "MaterialSearch.h"

#include <QCollator>
#include <algorithm>

namespace qor {

namespace {

uint64_t key(QChar a, QChar b, QChar c)
{
    return (uint64_t(a.unicode()) << 32) | (uint64_t(b.unicode()) << 16) | uint64_t(c.unicode());
}

size_t intersection(const uint64_t* a, size_t na, const uint64_t* b, size_t nb)
{
    size_t i = 0, j = 0, n = 0;
    while (i < na && j < nb) {
        if (a[i] < b[j])
            ++i;
        else if (b[j] < a[i])
            ++j;
        else {
            ++n;
            ++i;
            ++j;
        }
    }
    return n;
}

} // namespace

// Words are runs of letters and digits, lower-cased; each is padded with two
// spaces in front and one behind, so beginnings of words weigh more than ends.
std::vector<NameSuggestions::Trigrams> NameSuggestions::wordTrigrams(const QString& text)
{
    std::vector<Trigrams> words;
    const QString lower = text.toLower();
    qsizetype i = 0;
    while (i < lower.size()) {
        while (i < lower.size() && !lower.at(i).isLetterOrNumber())
            ++i;
        qsizetype end = i;
        while (end < lower.size() && lower.at(end).isLetterOrNumber())
            ++end;
        if (end > i) {
            const QString padded = QStringLiteral("  ") + lower.mid(i, end - i) + QLatin1Char(' ');
            Trigrams t;
            for (qsizetype k = 0; k + 2 < padded.size(); ++k)
                t.push_back(key(padded.at(k), padded.at(k + 1), padded.at(k + 2)));
            std::sort(t.begin(), t.end());
            t.erase(std::unique(t.begin(), t.end()), t.end());
            words.push_back(std::move(t));
        }
        i = end;
    }
    return words;
}

void NameSuggestions::index(const MaterialList& materials)
{
    if (m_indexed.constData() == materials.constData() && qsizetype(m_names.size()) == materials.size())
        return;
    m_names.clear();
    m_words.clear();
    m_trigrams.clear();
    m_names.reserve(materials.size());
    for (const auto& m : materials) {
        const auto words = wordTrigrams(m->name);
        m_names.push_back({ uint32_t(m_words.size()), uint32_t(words.size()) });
        for (const Trigrams& w : words) {
            m_words.push_back({ uint32_t(m_trigrams.size()), uint32_t(w.size()) });
            m_trigrams.insert(m_trigrams.end(), w.begin(), w.end());
        }
    }
    m_indexed = materials;
}

// Jaccard similarity of the query's trigrams and those of the best run of
// consecutive words (as many as the query has, or all of a shorter name).
// Trigrams count once per word on both sides, so identical texts score 1.
double NameSuggestions::bestWindow(const Trigrams& query, int queryWords, const Name& name) const
{
    if (name.wordCount == 0 || query.empty())
        return 0;
    const int window = std::min<int>(queryWords, int(name.wordCount));
    size_t shared[64], sizes[64];
    const uint32_t n = std::min<uint32_t>(name.wordCount, 64);
    for (uint32_t w = 0; w < n; ++w) {
        const Word& word = m_words[name.firstWord + w];
        shared[w] = intersection(query.data(), query.size(), m_trigrams.data() + word.first, word.count);
        sizes[w] = word.count;
    }
    double best = 0;
    size_t s = 0, z = 0;
    for (uint32_t w = 0; w < n; ++w) {
        s += shared[w];
        z += sizes[w];
        if (int(w) >= window) {
            s -= shared[w - window];
            z -= sizes[w - window];
        }
        if (int(w) + 1 >= window) {
            const size_t inter = std::min(s, query.size());
            const double sim = double(inter) / double(query.size() + z - inter);
            best = std::max(best, sim);
        }
    }
    return best;
}

static bool worthSuggesting(const QString& text)
{
    return text.trimmed().size() >= 3 && std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

// Every word's trigrams, sorted but kept twice when two words share one, so
// that the counts match those summed over a run of the name's words.
static std::vector<uint64_t> merged(const std::vector<std::vector<uint64_t>>& words)
{
    std::vector<uint64_t> all;
    for (const auto& w : words)
        all.insert(all.end(), w.begin(), w.end());
    std::sort(all.begin(), all.end());
    return all;
}

double NameSuggestions::similarity(const QString& text, const QString& name)
{
    NameSuggestions one;
    auto m = std::make_shared<Material>();
    m->name = name;
    const MaterialList list{ m };
    const auto words = wordTrigrams(text);
    one.index(list);
    return one.bestWindow(merged(words), int(words.size()), one.m_names.front());
}

std::vector<NameSuggestions::Suggestion> NameSuggestions::suggest(const QString& text, const MaterialList& materials)
{
    std::vector<Suggestion> out;
    if (!worthSuggesting(text))
        return out;
    index(materials);
    const auto words = wordTrigrams(text);
    const std::vector<uint64_t> query = merged(words);
    for (qsizetype i = 0; i < materials.size(); ++i) {
        const Name& name = m_names[size_t(i)];
        const double sim = bestWindow(query, int(words.size()), name);
        if (sim < kMinSimilarity)
            continue;
        int size = 0;
        for (uint32_t w = 0; w < name.wordCount; ++w)
            size += int(m_words[name.firstWord + w].count);
        out.push_back({ materials.at(i), sim, size });
    }
    const auto& weights = MaterialSearch::rankingWeights();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    auto better = [&](const Suggestion& a, const Suggestion& b) {
        if (a.similarity != b.similarity)
            return a.similarity > b.similarity;
        const int wa = weights.value(a.material->unId, 0), wb = weights.value(b.material->unId, 0);
        if (wa != wb)
            return wa > wb;
        if (a.nameSize != b.nameSize)
            return a.nameSize < b.nameSize;
        const int c = collator.compare(a.material->name, b.material->name);
        return c != 0 ? c < 0 : a.material->unId < b.material->unId;
    };
    const size_t keep = std::min<size_t>(out.size(), kMaxSuggestions);
    std::partial_sort(out.begin(), out.begin() + ptrdiff_t(keep), out.end(), better);
    out.resize(keep);
    return out;
}

MaterialList NameSuggestions::suggestMaterials(const QString& text, const MaterialList& materials)
{
    MaterialList list;
    for (const Suggestion& s : suggest(text, materials))
        list.append(s.material);
    return list;
}

} // namespace qor
