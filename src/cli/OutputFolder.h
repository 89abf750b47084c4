#pragma once
// The import commands' output folder: the --output option, the files
// written into it, and the message when nothing was.
#include "Cli.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace qor::cli {

// Pulls "--output DIR" out of args. A missing or empty value is the usage
// error "--output needs <what>". Without the option the folder is
// `fallback`; with no fallback it is the usage error
// "<command> needs --output DIR". False after printing the usage error.
bool takeOutputFolder(Context& ctx, QStringList& args, QString* dir, const QString& what, const QString& command,
                      const QString& fallback = {});

// Writes every (file name, contents) pair into dir, creating dir, or none:
// all files are prepared before the first one replaces anything.
bool writeAllOrNothing(const QString& dir, const QList<QPair<QString, QByteArray>>& files, QString* error);

// Prints why a command stopped and that it wrote nothing; returns NothingFound.
int nothingWritten(Context& ctx, const QString& error);

} // namespace qor::cli
