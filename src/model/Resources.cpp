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
    // constData, not utf16: no call, and the digits need no terminating null.
    const char16_t* p = reinterpret_cast<const char16_t*>(text.constData());
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

namespace {
// Writes n characters of in (UTF-16 units or Latin-1 bytes), capitalised, to out.
template <typename Char>
void capitalizeText(const Char* in, qsizetype n, char16_t* out)
{
    // ASCII, nearly every name, through a table instead of the Unicode
    // tables: 0 for a character that ends a word, else its upper case
    // (with the lower case 32 above it for letters).
    static constexpr auto kAscii = [] {
        struct { char16_t upper[128]; char16_t lower[128]; } t{};
        for (char16_t c = 0; c < 128; ++c) {
            const bool up = c >= 'A' && c <= 'Z', low = c >= 'a' && c <= 'z', digit = c >= '0' && c <= '9';
            t.upper[c] = low ? char16_t(c - 32) : (up || digit) ? c : 0;
            t.lower[c] = up ? char16_t(c + 32) : (low || digit) ? c : 0;
        }
        return t;
    }();
    bool startOfWord = true;
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t u = char16_t(in[i]);
        if (u < 0x80) {
            const char16_t c = startOfWord ? kAscii.upper[u] : kAscii.lower[u];
            out[i] = c ? c : u;
            startOfWord = c == 0;
            continue;
        }
        const QChar c(u);
        if (c.isLetterOrNumber()) {
            out[i] = (startOfWord ? c.toUpper() : c.toLower()).unicode();
            startOfWord = false;
        } else {
            out[i] = u;
            startOfWord = true;
        }
    }
}
} // namespace

QString capitalized(QStringView text)
{
    // Written in place: one allocation per text.
    QString out(text.size(), Qt::Uninitialized);
    capitalizeText(reinterpret_cast<const char16_t*>(text.utf16()), text.size(), reinterpret_cast<char16_t*>(out.data()));
    return out;
}

void capitalizeInto(QLatin1String text, char16_t* out)
{
    capitalizeText(reinterpret_cast<const unsigned char*>(text.data()), text.size(), out);
}

QString capitalized(const QString& text)
{
    return capitalized(QStringView(text));
}

} // namespace qor
