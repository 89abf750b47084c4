#include "Resources.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace qor {

namespace {
QString& overrideDir()
{
    static QString dir;
    return dir;
}
QString& languageOverride()
{
    static QString lang;
    return lang;
}
} // namespace

QString Resources::dir()
{
    if (!overrideDir().isEmpty())
        return overrideDir();
    const QByteArray env = qgetenv("QOR_RESOURCES");
    if (!env.isEmpty())
        return QString::fromLocal8Bit(env);
    if (QCoreApplication::instance()) {
        const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/qor/pack");
        if (QFileInfo::exists(installed + QStringLiteral("/pack.json")))
            return QDir::cleanPath(installed);
    }
    return QStringLiteral(QOR_DEFAULT_RESOURCES);
}

void Resources::setOverride(const QString& dir)
{
    overrideDir() = dir.isEmpty() ? QString() : QFileInfo(dir).absoluteFilePath();
}

QString Resources::path(const QString& fileName)
{
    return dir() + QLatin1Char('/') + fileName;
}

QString Resources::path(const QString& name, const QString& type)
{
    return type.isEmpty() ? path(name) : path(name + QLatin1Char('.') + type);
}

bool Resources::exists(const QString& fileName)
{
    return QFileInfo::exists(path(fileName));
}

QString Preferences::firstPreferredLanguage()
{
    if (!languageOverride().isEmpty())
        return languageOverride();
    const QStringList langs = QLocale::system().uiLanguages();
    return langs.isEmpty() ? QStringLiteral("en") : langs.first();
}

void Preferences::setLanguageOverride(const QString& lang)
{
    languageOverride() = lang;
}

int leadingInt(const QString& text)
{
    int i = 0;
    const int n = int(text.size());
    while (i < n && text.at(i).isSpace())
        ++i;
    bool negative = false;
    if (i < n && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+'))) {
        negative = text.at(i) == QLatin1Char('-');
        ++i;
    }
    long long value = 0;
    while (i < n && text.at(i) >= QLatin1Char('0') && text.at(i) <= QLatin1Char('9')) {
        value = value * 10 + (text.at(i).unicode() - '0');
        if (value > INT_MAX)
            return negative ? INT_MIN : INT_MAX;
        ++i;
    }
    return int(negative ? -value : value);
}

QString capitalized(QStringView text)
{
    // Written in place: one allocation per text.
    QString out(text.size(), Qt::Uninitialized);
    QChar* o = out.data();
    bool startOfWord = true;
    for (const QChar c : text) {
        if (c.isLetterOrNumber()) {
            *o++ = startOfWord ? c.toUpper() : c.toLower();
            startOfWord = false;
        } else {
            *o++ = c;
            startOfWord = true;
        }
    }
    return out;
}

QString capitalized(const QString& text)
{
    return capitalized(QStringView(text));
}

} // namespace qor
