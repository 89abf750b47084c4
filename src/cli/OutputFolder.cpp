#include "OutputFolder.h"

#include <QDir>
#include <QSaveFile>
#include <memory>
#include <vector>

namespace qor::cli {

bool takeOutputFolder(Context& ctx, QStringList& args, QString* dir, const QString& what, const QString& command,
                      const QString& fallback)
{
    QString value;
    bool present = false;
    if (!takeOption(args, QStringLiteral("--output"), &value, &present) || (present && value.isEmpty())) {
        ctx.usage(QStringLiteral("--output needs %1").arg(what));
        return false;
    }
    if (!present && fallback.isEmpty()) {
        ctx.usage(QStringLiteral("%1 needs --output DIR").arg(command));
        return false;
    }
    *dir = present ? value : fallback;
    return true;
}

bool writeAllOrNothing(const QString& dir, const QList<QPair<QString, QByteArray>>& files, QString* error)
{
    if (!QDir().mkpath(dir)) {
        *error = QStringLiteral("%1: cannot create the folder").arg(dir);
        return false;
    }
    std::vector<std::unique_ptr<QSaveFile>> pending;
    for (const auto& [name, bytes] : files) {
        auto file = std::make_unique<QSaveFile>(QDir(dir).filePath(name));
        if (!file->open(QIODevice::WriteOnly) || file->write(bytes) != bytes.size()) {
            *error = QStringLiteral("%1: %2").arg(file->fileName(), file->errorString());
            return false;
        }
        pending.push_back(std::move(file));
    }
    for (auto& file : pending)
        if (!file->commit()) {
            *error = QStringLiteral("%1: %2").arg(file->fileName(), file->errorString());
            return false;
        }
    return true;
}

int nothingWritten(Context& ctx, const QString& error)
{
    ctx.err << "qor-cli: " << error << "\n" << "qor-cli: nothing written" << Qt::endl;
    return NothingFound;
}

} // namespace qor::cli
