#pragma once
// Runs qor-cli in-process, each run on a fresh shared model as a new process
// would be. For test targets that link the CLI library.
#include "Cli.h"
#include "FixturePack.h"
#include "model/QORModel.h"

#include <QJsonDocument>
#include <QStringList>
#include <QTextStream>

namespace qor::test {

struct CliResult {
    int code = -1;
    QString out, err;
    QJsonDocument json() const { return QJsonDocument::fromJson(out.toUtf8()); }
};

inline CliResult runCli(const QStringList& args)
{
    delete QORModel::sharedInstance(false);
    CliResult r;
    QTextStream o(&r.out), e(&r.err);
    r.code = cli::run(args, o, e);
    o.flush();
    e.flush();
    delete QORModel::sharedInstance(false);
    return r;
}

} // namespace qor::test
