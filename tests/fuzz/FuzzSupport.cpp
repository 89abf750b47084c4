#include "FuzzSupport.h"

#include "history/UserPaths.h"
#include "model/PackSchema.h"
#include "model/Resources.h"

#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace qor::fuzz {

namespace {
QTemporaryDir* s_pack = nullptr;
QTemporaryDir* s_user = nullptr;

// Warnings about bad input are expected by the thousand; only fatal ones matter.
void quietHandler(QtMsgType type, const QMessageLogContext&, const QString& msg)
{
    if (type == QtFatalMsg || qEnvironmentVariableIsSet("QOR_FUZZ_VERBOSE"))
        std::fprintf(stderr, "%s\n", qPrintable(msg));
}

void createDatabases(const QString& dir)
{
    for (const auto& db : packDatabases()) {
        sqlite3* handle = nullptr;
        const QString path = dir + QLatin1Char('/') + db.fileName;
        if (sqlite3_open(QFile::encodeName(path).constData(), &handle) != SQLITE_OK)
            std::abort();
        for (const auto& t : db.tables)
            sqlite3_exec(handle, t.createSql().toUtf8().constData(), nullptr, nullptr, nullptr);
        sqlite3_close(handle);
    }
}
} // namespace

QString packDir() { return s_pack->path(); }
QString userDir() { return s_user->path(); }

QByteArray bytes(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();  // the scratch folder is ours; failing here is a set-up fault
    f.write(content);
}

bool hasSixFieldLine(const QByteArray& text)
{
    for (const QByteArray& line : text.split('\n'))
        if (line.count('^') == 5)
            return true;
    return false;
}

} // namespace qor::fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    using namespace qor::fuzz;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = { name, nullptr };
    static QGuiApplication app(argc, argv);
    qInstallMessageHandler(quietHandler);
    s_pack = new QTemporaryDir();
    s_user = new QTemporaryDir();
    std::atexit([] {
        delete s_pack;
        delete s_user;
    });
    createDatabases(s_pack->path());
    for (const char* f : { "chemicals_2024.csv", "guides.csv", "wikipedia_descriptions_by_un_number.csv" })
        writeFile(s_pack->filePath(QString::fromLatin1(f)), QByteArray());
    qor::Resources::setOverride(s_pack->path());
    qor::UserPaths::setDataDir(s_user->path());
    return 0;
}
