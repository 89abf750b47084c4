// qor-cli cfr / provision
#include "Cli.h"

#include "model/QORModel.h"
#include "queries/RegulationText.h"
#include "queries/SpecialProvisions.h"

#include <QJsonObject>

namespace qor::cli {

namespace {

int cfrCommand(Context& ctx, QStringList args)
{
    QString node;
    bool byNode = false;
    if (!takeOption(args, QStringLiteral("--node"), &node, &byNode))
        return ctx.usage(QStringLiteral("--node needs a node id"));
    if (byNode ? !args.isEmpty() : args.size() != 1)
        return ctx.usage(QStringLiteral("cfr needs exactly one section (such as 203 or 203,204) or --node ID"));
    const std::optional<QString> section = byNode ? std::nullopt : std::optional<QString>(args.first());

    // The regulation text needs no material list: skip loading it.
    QORModel* model = QORModel::sharedInstance();
    const QString html = model->getHTMLTextForCFRSection(section, node);
    const bool found = !html.contains(QLatin1String("class=\"not-in-pack\""));
    if (ctx.json) {
        QJsonObject o{ { QStringLiteral("html"), html }, { QStringLiteral("found"), found } };
        o.insert(QStringLiteral("section"), section ? QJsonValue(*section) : QJsonValue(QJsonValue::Null));
        o.insert(QStringLiteral("node"), byNode ? QJsonValue(node) : QJsonValue(QJsonValue::Null));
        ctx.printJson(o);
    } else {
        ctx.out << html << "\n";
        ctx.out.flush();
    }
    return found ? Found : NothingFound;
}

int provisionCommand(Context& ctx, QStringList args)
{
    if (args.size() != 1 || args.first().isEmpty())
        return ctx.usage(QStringLiteral("provision needs exactly one special provision code (such as IB3 or 128)"));
    const QString code = args.first();
    const SpecialProvisionGroup group = specialProvisionGroupForCode(code);
    if (ctx.json) {
        ctx.printJson(QJsonObject{ { QStringLiteral("code"), code }, { QStringLiteral("key"), group.key },
                                   { QStringLiteral("subtitle"), group.listSubtitle }, { QStringLiteral("title"), group.screenTitle } });
    } else {
        ctx.out << group.key << "\n" << group.listSubtitle << "\n" << group.screenTitle << "\n";
        ctx.out.flush();
    }
    return Found;
}

const bool registered = registerCommand({ QStringLiteral("cfr"), QStringLiteral("cfr SECTION | --node ID  the 49 CFR 173 regulation page as HTML"), cfrCommand })
    && registerCommand({ QStringLiteral("provision"), QStringLiteral("provision CODE      group key, list subtitle and screen title of a special provision"), provisionCommand });

} // namespace
} // namespace qor::cli
