#pragma once
// qor-cli: the core library with text/JSON output for scripts and dispatch systems.
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QTextStream>
#include <functional>
#include <vector>

namespace qor::cli {

enum ExitCode { Found = 0, NothingFound = 1, UsageError = 2 };

struct Context {
    bool json = false;
    QTextStream& out;
    QTextStream& err;
    // Prints a usage error on stderr and returns UsageError.
    int usage(const QString& message) const;
    // Writes a JSON document (compact=false) to out.
    void printJson(const QJsonValue& value) const;
};

struct Command {
    QString name;
    QString synopsis;  // shown in the help text
    std::function<int(Context&, QStringList args)> run;
};

// Commands register themselves from their own files.
bool registerCommand(Command command);
const std::vector<Command>& commands();

// Runs qor-cli with the given arguments (without the program name).
int run(const QStringList& arguments, QTextStream& out, QTextStream& err);

// Pulls "--name VALUE" out of args; returns false on a missing value.
bool takeOption(QStringList& args, const QString& name, QString* value, bool* present = nullptr);
bool takeFlag(QStringList& args, const QString& name);
// Pulls "--sort 0-3" and "--category X" out of args (defaults 0 and "A");
// false after printing a usage error.
bool takeSortAndCategory(Context& ctx, QStringList& args, int* sort, QString* category);

} // namespace qor::cli
