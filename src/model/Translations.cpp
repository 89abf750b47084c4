#include "Translations.h"

#include "Resources.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace qor {

namespace {
std::unique_ptr<QTranslator>& installed()
{
    static std::unique_ptr<QTranslator> translator;
    return translator;
}
std::unique_ptr<QTranslator>& installedQt()
{
    static std::unique_ptr<QTranslator> translator;
    return translator;
}
} // namespace

QStringList Translations::languages()
{
    return { QStringLiteral("es"), QStringLiteral("fr") };
}

QString Translations::catalogFor(const QString& language)
{
    const QString code = QLocale(QString(language).replace(QLatin1Char('-'), QLatin1Char('_'))).name().section(QLatin1Char('_'), 0, 0);
    return languages().contains(code) ? code : QString();
}

bool Translations::install(const QString& language)
{
    for (auto* t : { &installed(), &installedQt() }) {
        if (*t)
            QCoreApplication::removeTranslator(t->get());
        t->reset();
    }
    const QString code = catalogFor(language);
    if (code.isEmpty())
        return false;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral(":/i18n/qor_%1.qm").arg(code))) {
        qWarning("No %s catalog in this build", qPrintable(code));
        return false;
    }
    QCoreApplication::installTranslator(translator.get());
    installed() = std::move(translator);
    // Qt's own texts (standard buttons), when the system has them.
    auto qt = std::make_unique<QTranslator>();
    if (qt->load(QLocale(code), QStringLiteral("qtbase"), QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qt.get());
        installedQt() = std::move(qt);
    }
    return true;
}

bool Translations::installPreferred()
{
    return install(Preferences::firstPreferredLanguage());
}

} // namespace qor
