// qor-cli history view|recent|most-viewed|all|clear
#include "Cli.h"
#include "MaterialJson.h"

#include "history/HistoryManager.h"
#include "model/QORModel.h"

#include <QJsonArray>
#include <QJsonObject>

namespace qor::cli {

namespace {

QString isoDate(const QDateTime& date)
{
    if (!date.isValid())
        return QString();
    const QDateTime local = date.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

QJsonObject entryJson(const HistoryObject& entry)
{
    const QDateTime date = entry.lastViewDate();
    return { { QStringLiteral("name"), entry.name() },
             { QStringLiteral("unId"), entry.unId() },
             { QStringLiteral("viewCount"), entry.viewCount() },
             { QStringLiteral("lastViewDate"), date.isValid() ? QJsonValue(isoDate(date)) : QJsonValue() } };
}

void printEntries(Context& ctx, const HistoryList& entries)
{
    QJsonArray array;
    for (const auto& e : entries)
        array.append(entryJson(*e));
    if (ctx.json) {
        ctx.printJson(array);
        return;
    }
    if (entries.isEmpty())
        ctx.out << "The history is empty\n";
    for (const auto& e : entries)
        ctx.out << e->unId().leftJustified(5) << " " << e->name() << "  (" << e->viewCount()
                << (e->viewCount() == 1 ? " view" : " views") << ", last " << isoDate(e->lastViewDate()) << ")\n";
    ctx.out.flush();
}

// Saves and says so when the file could not be written.
bool save(Context& ctx, HistoryManager& manager)
{
    if (manager.saveHistory())
        return true;
    ctx.err << "qor-cli: the history could not be saved in " << homeFilePath(QStringLiteral("Library"), QString())
            << Qt::endl;
    return false;
}

HistoryManager& loadedHistory()
{
    HistoryManager& manager = *HistoryManager::sharedInstance();
    // The model loads the history as part of its own loading; listing needs
    // no reference data, so it reads the file directly.
    if (QORModel* model = QORModel::sharedInstance(false); !model || model->isLoading())
        manager.loadHistory();
    return manager;
}

// One view, of the material `material ARG` shows first, or of the one among
// them named with --name: opening a material is one view of one material.
int viewCommand(Context& ctx, QStringList args)
{
    QString name;
    bool named = false;
    if (!takeOption(args, QStringLiteral("--name"), &name, &named))
        return ctx.usage(QStringLiteral("--name needs a material name"));
    if (args.size() != 1)
        return ctx.usage(QStringLiteral("history view needs exactly one UN number or name"));
    QORModel& model = loadedModel();
    HistoryManager& manager = *HistoryManager::sharedInstance();
    MaterialPtr viewed;
    for (const MaterialPtr& m : findMaterials(model, args.first()))
        if (!named || m->name.compare(name, Qt::CaseInsensitive) == 0) {
            viewed = m;
            break;
        }
    if (viewed)
        manager.addToHistory(viewed);
    if (!viewed && !manager.importedLegacyHistory()) {
        if (!ctx.json)
            ctx.out << "No material matches " << args.first() << (named ? " named " + name : QString()) << "\n";
        else
            ctx.printJson(QJsonArray());
        ctx.out.flush();
        return NothingFound;
    }
    save(ctx, manager);
    HistoryList entries;
    if (viewed)
        entries.append(manager.historyObjectForKey(viewed->unId));
    printEntries(ctx, entries);
    return viewed ? Found : NothingFound;
}

int historyCommand(Context& ctx, QStringList args)
{
    if (args.isEmpty())
        return ctx.usage(QStringLiteral("history needs one of view, recent, most-viewed, all, clear"));
    const QString sub = args.takeFirst();
    if (sub == QLatin1String("view"))
        return viewCommand(ctx, args);
    if (!args.isEmpty())
        return ctx.usage(QStringLiteral("unexpected argument '%1'").arg(args.first()));

    HistoryList entries;
    if (sub == QLatin1String("clear")) {
        HistoryManager& manager = loadedHistory();
        manager.viewedHistory().clearHistory();
        if (!save(ctx, manager))
            return NothingFound;
        if (!ctx.json)
            ctx.out << "History cleared\n";
        else
            ctx.printJson(QJsonArray());
        ctx.out.flush();
        return Found;
    }
    HistoryManager& manager = loadedHistory();
    if (sub == QLatin1String("recent"))
        entries = manager.viewedHistory().recent();
    else if (sub == QLatin1String("most-viewed"))
        entries = manager.viewedHistory().mostViewed();
    else if (sub == QLatin1String("all"))
        entries = manager.viewedHistory().allAlpha();
    else
        return ctx.usage(QStringLiteral("unknown history command '%1'").arg(sub));
    // An import from the legacy archive lives only in memory until saved.
    if (manager.importedLegacyHistory())
        save(ctx, manager);
    printEntries(ctx, entries);
    return entries.isEmpty() ? NothingFound : Found;
}

const bool registered = registerCommand(
    { QStringLiteral("history"),
      QStringLiteral("history view ARG [--name NAME] | recent | most-viewed | all | clear   the viewed history (--data-dir holds it)"),
      historyCommand });

} // namespace
} // namespace qor::cli
