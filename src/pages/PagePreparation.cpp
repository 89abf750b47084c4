#include "PagePreparation.h"

#include "model/Device.h"

#include <QFile>
#include <QSettings>

namespace qor {

int storedTextFontSize()
{
    QSettings settings;
    const QVariant v = settings.value(QStringLiteral("textFontSize"));
    if (!v.isValid())
        return 100;
    return int(v.toDouble());
}

PageOptions currentPageOptions(bool dark)
{
    PageOptions o;
    o.textSize = storedTextFontSize();
    o.dark = dark;
    o.tablet = Device::isTablet();
    return o;
}

QString preparePageText(QString html, const PageOptions& options)
{
    // Only the exact double-quoted orange body tag takes the text size.
    html.replace(QStringLiteral("body style=\"background-color: #ffb045\">"),
                 QString::asprintf("body style='background-color: #ffb045; -webkit-text-size-adjust: %0.0f%%;'>",
                                   double(options.textSize)));
    if (options.dark)
        html.replace(QStringLiteral("base.css"), QStringLiteral("dark.css"));
    if (options.tablet)
        html.replace(QStringLiteral("width = device-width"), QStringLiteral("width = 500"));
    return html;
}

QByteArray preparePageFile(const QString& path, const PageOptions& options)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return preparePageText(QString::fromUtf8(file.readAll()), options).toUtf8();
}

QString guideTextSizeScript(double percent)
{
    return QString::asprintf(" document.getElementsByTagName('body')[0].style.webkitTextSizeAdjust= '%.0f%%';", percent);
}

QString infoTextSizeScript(double percent)
{
    return QString::asprintf("document.getElementsByTagName('body')[0].style.webkitTextSizeAdjust= '%.0f%%'", percent);
}

} // namespace qor
