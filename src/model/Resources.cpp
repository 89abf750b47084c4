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
    const char16_t* p = reinterpret_cast<const char16_t*>(text.utf16());
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n && (p[i] == u' ' || QChar(p[i]).isSpace()))
        ++i;
    bool negative = false;
    if (i < n && (p[i] == u'-' || p[i] == u'+')) {
        negative = p[i] == u'-';
        ++i;
    }
    long long value = 0;
    for (; i < n && p[i] >= u'0' && p[i] <= u'9'; ++i) {
        value = value * 10 + (p[i] - u'0');
        if (value > INT_MAX)
            return negative ? INT_MIN : INT_MAX;
    }
    return int(negative ? -value : value);
}

QString capitalized(QStringView text)
{
    // Written in place: one allocation per text.
    QString out(text.size(), Qt::Uninitialized);
    char16_t* o = reinterpret_cast<char16_t*>(out.data());
    const char16_t* in = reinterpret_cast<const char16_t*>(text.utf16());
    bool startOfWord = true;
    for (qsizetype i = 0, n = text.size(); i < n; ++i) {
        const char16_t u = in[i];
        // ASCII, nearly every name, without the Unicode tables.
        if (u < 0x80) {
            const bool upper = u >= 'A' && u <= 'Z', lower = u >= 'a' && u <= 'z';
            if (upper || lower || (u >= '0' && u <= '9')) {
                o[i] = startOfWord ? (lower ? char16_t(u - 32) : u) : (upper ? char16_t(u + 32) : u);
                startOfWord = false;
            } else {
                o[i] = u;
                startOfWord = true;
            }
            continue;
        }
        const QChar c(u);
        if (c.isLetterOrNumber()) {
            o[i] = (startOfWord ? c.toUpper() : c.toLower()).unicode();
            startOfWord = false;
        } else {
            o[i] = u;
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
