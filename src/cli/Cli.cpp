#include "Cli.h"

#include "model/QORModel.h"
#include "model/Resources.h"
#include "model/Translations.h"
#include "history/UserPaths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace qor::cli {

namespace {
std::vector<Command>& registry()
{
    static std::vector<Command> list;
    return list;
}
} // namespace

bool registerCommand(Command command)
{
    registry().push_back(std::move(command));
    return true;
}

const std::vector<Command>& commands()
{
    return registry();
}

int Context::usage(const QString& message) const
{
    err << "qor-cli: " << message << Qt::endl;
    err << "Run 'qor-cli --help' for the list of commands." << Qt::endl;
    return UsageError;
}

void Context::printJson(const QJsonValue& value) const
{
    QJsonDocument doc = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    out << doc.toJson(QJsonDocument::Indented);
    out.flush();
}

bool takeOption(QStringList& args, const QString& name, QString* value, bool* present)
{
    if (present)
        *present = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args.at(i);
        if (a == name) {
            if (present)
                *present = true;
            if (i + 1 >= args.size())
                return false;
            *value = args.at(i + 1);
            args.remove(i, 2);
            return true;
        }
        if (a.startsWith(name + QLatin1Char('='))) {
            if (present)
                *present = true;
            *value = a.mid(name.size() + 1);
            args.remove(i);
            return true;
        }
    }
    return true;
}

bool takeFlag(QStringList& args, const QString& name)
{
    return args.removeAll(name) > 0;
}

bool takeSortAndCategory(Context& ctx, QStringList& args, int* sort, QString* category)
{
    QString sortText = QStringLiteral("0");
    *category = QStringLiteral("A");
    bool ok = takeOption(args, QStringLiteral("--category"), category);
    if (!ok) {
        ctx.usage(QStringLiteral("--category needs one of A T U M W P"));
        return false;
    }
    ok = takeOption(args, QStringLiteral("--sort"), &sortText);
    *sort = sortText.toInt(&ok);
    if (!ok || *sort < 0 || *sort > 3) {
        ctx.usage(QStringLiteral("--sort needs a number from 0 to 3"));
        return false;
    }
    return true;
}

static void printHelp(QTextStream& out)
{
    out << "usage: qor-cli [--resources DIR] [--data-dir DIR] [--lang CODE] [--json] COMMAND [ARGS]\n\ncommands:\n";
    for (const auto& c : commands())
        out << "  " << c.synopsis << "\n";
    out << "\nexit status: 0 found, 1 nothing found, 2 usage error\n";
    out.flush();
}

int run(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    QStringList args = arguments;
    Context ctx{ false, out, err };
    QString resources, dataDir, lang;
    bool present = false;
    if (!takeOption(args, QStringLiteral("--resources"), &resources, &present))
        return ctx.usage(QStringLiteral("--resources needs a folder"));
    if (present)
        Resources::setOverride(resources);
    if (!takeOption(args, QStringLiteral("--data-dir"), &dataDir, &present))
        return ctx.usage(QStringLiteral("--data-dir needs a folder"));
    if (present)
        UserPaths::setDataDir(dataDir);
    if (!takeOption(args, QStringLiteral("--lang"), &lang, &present))
        return ctx.usage(QStringLiteral("--lang needs a language code"));
    if (present)
        Preferences::setLanguageOverride(lang);
    Translations::installPreferred();
    ctx.json = takeFlag(args, QStringLiteral("--json"));
    if (takeFlag(args, QStringLiteral("--help")) || takeFlag(args, QStringLiteral("-h"))) {
        printHelp(out);
        return Found;
    }
    if (args.isEmpty())
        return ctx.usage(QStringLiteral("no command given"));
    const QString name = args.takeFirst();
    for (const auto& c : commands())
        if (c.name == name)
            return c.run(ctx, args);
    return ctx.usage(QStringLiteral("unknown command '%1'").arg(name));
}

} // namespace qor::cli
