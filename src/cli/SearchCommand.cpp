// qor-cli search: the list screen's search and ranking, for scripts.
#include "Cli.h"
#include "MaterialJson.h"

#include "model/MaterialSearch.h"
#include "model/NameSuggestions.h"
#include "model/QORModel.h"

#include <QJsonArray>
#include <QJsonObject>

namespace qor::cli {

namespace {

int searchCommand(Context& ctx, QStringList args)
{
    int sort = 0;
    QString category;
    if (!takeSortAndCategory(ctx, args, &sort, &category))
        return UsageError;
    if (args.size() != 1 || args.first().isEmpty())
        return ctx.usage(QStringLiteral("search needs exactly one non-empty TEXT"));

    QORModel& model = loadedModel();
    if (!model.filters().contains(category))
        return ctx.usage(QStringLiteral("unknown category '%1' (use one of A T U M W P)").arg(category));
    model.changeFilter(category, sort);

    MaterialSearch search(viewedPredicate());
    search.search(args.first(), model.currentFilter(), model.materials(), sort);
    const MaterialList& results = search.results();
    // Only an empty result offers close names; the names are never searched
    // in the UN-number sort, so neither are they suggested there.
    MaterialList suggestions;
    if (results.isEmpty() && sort != 1)
        suggestions = NameSuggestions().suggestMaterials(args.first(), model.materials());
    if (ctx.json) {
        QJsonArray array;
        auto add = [&](const MaterialPtr& m, bool suggestion) {
            QJsonObject o{ { QStringLiteral("name"), m->name }, { QStringLiteral("unId"), m->unId }, { QStringLiteral("guideId"), m->guideId } };
            if (suggestion)
                o.insert(QStringLiteral("suggestion"), true);
            array.append(o);
        };
        for (const auto& m : results)
            add(m, false);
        for (const auto& m : suggestions)
            add(m, true);
        ctx.printJson(array);
    } else {
        ctx.out << results.size() << " search results\n";
        for (const auto& m : results)
            ctx.out << "  " << m->unId.leftJustified(5) << " " << m->name << "  (guide " << m->guideId << ")\n";
        if (!suggestions.isEmpty())
            ctx.out << "Did you mean (suggestions, not matches):\n";
        for (const auto& m : suggestions)
            ctx.out << "  suggestion " << m->unId.leftJustified(5) << " " << m->name << "  (guide " << m->guideId << ")\n";
        ctx.out.flush();
    }
    return results.isEmpty() ? NothingFound : Found;
}

const bool registered = registerCommand(
    { QStringLiteral("search"), QStringLiteral("search TEXT [--sort 0-3] [--category X]   ranked as the list screen ranks them"), searchCommand });

} // namespace
} // namespace qor::cli
