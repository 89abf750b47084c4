#pragma once
// "Did you mean": when a search finds nothing, the names closest to what was
// typed. Similarity is trigram overlap (Jaccard) between the typed words and
// the best run of as many consecutive words of a name, so a misspelt word
// still finds a long name that holds it.
#include "Material.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace qor {

class NameSuggestions {
public:
    static constexpr int kMaxSuggestions = 5;
    // Below this a name shares too little with the text to be worth offering.
    static constexpr double kMinSimilarity = 0.3;

    struct Suggestion {
        MaterialPtr material;
        double similarity = 0;
        int nameSize = 0;  // trigrams in the whole name: ties go to the shorter name
    };

    // Up to five materials, best first; equal similarity goes to the
    // material responders look up more often, then to the name with least
    // else in it, then by name. Empty for text
    // without letters or shorter than three characters.
    std::vector<Suggestion> suggest(const QString& text, const MaterialList& materials);
    MaterialList suggestMaterials(const QString& text, const MaterialList& materials);

    // Similarity in 0..1 of the typed text to one name.
    static double similarity(const QString& text, const QString& name);

private:
    using Trigrams = std::vector<uint64_t>;  // sorted; unique within one word
    struct Word {
        uint32_t first;  // offset into m_trigrams
        uint32_t count;
    };
    struct Name {
        uint32_t firstWord;
        uint32_t wordCount;
    };
    static std::vector<Trigrams> wordTrigrams(const QString& text);
    void index(const MaterialList& materials);
    double bestWindow(const Trigrams& query, int queryWords, const Name& name) const;

    // Flat index of every name's words, rebuilt when the list changes; a
    // shared copy of the list keeps its buffer alive for the comparison.
    MaterialList m_indexed;
    std::vector<Name> m_names;
    std::vector<Word> m_words;
    std::vector<uint64_t> m_trigrams;
};

} // namespace qor
