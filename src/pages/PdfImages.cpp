#include "PdfImages.h"

#include "PdfViews.h"

#include "history/FileManager.h"
#include "history/UserPaths.h"
#include "model/Filter.h"
#include "model/Resources.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfDocument>
#include <QUrlQuery>
#include <cmath>

namespace qor {

namespace {

qreal s_scaleOverride = 0;

float ceilFloat(double v)
{
    return std::ceil(float(v));
}

// Crop box of page 1; empty when the document cannot be read.
QSizeF boxOf(const QUrl& url)
{
    return UIImagePDFView::mediaRectForURL(url).size();
}

QImage renderCached(const QUrl& url, const QSizeF& size, qreal scale, int page)
{
    if (url.isEmpty() || size.isEmpty())
        return QImage();
    const QString cachePath = ImageCreations::cacheFilenameForURL(url, size, scale, page);
    if (!cachePath.isEmpty() && QFileInfo::exists(cachePath)) {
        QImage cached(cachePath, "PNG");
        // An unreadable cache file is rendered again and overwritten.
        if (!cached.isNull()) {
            cached.setDevicePixelRatio(scale);
            return cached;
        }
    }
    UIImagePDFView view(size);
    view.page = page;
    view.resourceURL = url;
    QImage image = view.renderImage(scale);
    if (image.isNull()) {
        qWarning("Cannot draw page %d of %s", page, qPrintable(url.toString()));
        return image;
    }
    // A failed write only costs a render next time. Written whole or not at
    // all, owner-only like every other user file.
    if (!cachePath.isEmpty()) {
        QByteArray png;
        QBuffer buffer(&png);
        if (buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"))
            writeFileAtomically(cachePath, png);
    }
    return image;
}

QImage renderFitting(const QUrl& url, const QSizeF& size, qreal scale, int page)
{
    return renderCached(url, ImageCreations::sizeToFit(boxOf(url), size), scale, page);
}

QImage renderAtWidth(const QUrl& url, qreal width, qreal scale, int page)
{
    return renderCached(url, ImageCreations::sizeAtWidth(boxOf(url), width), scale, page);
}

QImage renderAtHeight(const QUrl& url, qreal height, qreal scale, int page)
{
    return renderCached(url, ImageCreations::sizeAtHeight(boxOf(url), height), scale, page);
}

QImage renderOriginal(const QUrl& url, qreal scale, int page)
{
    return renderCached(url, boxOf(url), scale, page);
}

// Size text of the cache key: stable across runs, like "{66, 66}".
QString sizeText(qreal w, qreal h)
{
    return QStringLiteral("{%1, %2}").arg(QString::number(w, 'g', 17), QString::number(h, 'g', 17));
}

QImage packImage(const QString& name)
{
    QImage image(Resources::path(name));
    if (image.isNull() && QFileInfo(name).suffix().isEmpty())
        image.load(Resources::path(name, QStringLiteral("png")));
    return image;
}

} // namespace

QSizeF ImageCreations::sizeAtWidth(const QSizeF& box, qreal width)
{
    if (box.isEmpty())
        return QSizeF();
    return QSizeF(width, ceilFloat(width / (box.width() / box.height())));
}

QSizeF ImageCreations::sizeAtHeight(const QSizeF& box, qreal height)
{
    if (box.isEmpty())
        return QSizeF();
    return QSizeF(ceilFloat(box.width() / box.height() * height), height);
}

QSizeF ImageCreations::sizeToFit(const QSizeF& box, const QSizeF& size)
{
    if (box.isEmpty() || size.isEmpty())
        return QSizeF();
    const qreal s = qMax(box.width() / size.width(), box.height() / size.height());
    return QSizeF(ceilFloat(box.width() / s), ceilFloat(box.height() / s));
}

qreal ImageCreations::scaleFactor()
{
    if (s_scaleOverride > 0)
        return s_scaleOverride;
    return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
}

void ImageCreations::setScaleFactor(qreal scale)
{
    s_scaleOverride = scale;
}

QString ImageCreations::cacheFilenameForURL(const QUrl& url, const QSizeF& size, qreal scaleFactor, int page)
{
    if (url.isEmpty())
        return QString();
    const QFileInfo info(url.toLocalFile());
    const QDateTime modified = info.lastModified().toUTC();
    const QString key = info.fileName() + QStringLiteral(" - ") + QString::number(info.size()) + QStringLiteral(" - ")
                        + modified.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss +0000")) + QStringLiteral(" - ")
                        + sizeText(size.width() * scaleFactor, size.height() * scaleFactor) + QStringLiteral(" - ")
                        + QString::number(page);
    const QString dir = UserPaths::cachesDir() + QStringLiteral("/__PDF_CACHE__");
    UserPaths::ensureDir(dir);
    return dir + QLatin1Char('/') + MD5(key) + QStringLiteral(".png");
}

QImage ImageCreations::imageWithPDFURL(const QUrl& url, const QSizeF& size, int page)
{
    return renderCached(url, size, scaleFactor(), page);
}

QImage ImageCreations::imageWithPDFURLAtWidth(const QUrl& url, qreal width, int page)
{
    return renderAtWidth(url, width, scaleFactor(), page);
}

QImage ImageCreations::imageWithPDFURLAtHeight(const QUrl& url, qreal height, int page)
{
    return renderAtHeight(url, height, scaleFactor(), page);
}

QImage ImageCreations::imageWithPDFURLFitSize(const QUrl& url, const QSizeF& size, int page)
{
    return renderFitting(url, size, scaleFactor(), page);
}

QImage ImageCreations::originalSizeImageWithPDFURL(const QUrl& url, int page)
{
    return renderOriginal(url, scaleFactor(), page);
}

QImage ImageCreations::imageWithPDFNamed(const QString& name, const QSizeF& size, int page)
{
    return imageWithPDFURL(UIImagePDFView::resourceURLForName(name), size, page);
}

QImage ImageCreations::imageWithPDFNamedAtWidth(const QString& name, qreal width, int page)
{
    return imageWithPDFURLAtWidth(UIImagePDFView::resourceURLForName(name), width, page);
}

QImage ImageCreations::imageWithPDFNamedAtHeight(const QString& name, qreal height, int page)
{
    return imageWithPDFURLAtHeight(UIImagePDFView::resourceURLForName(name), height, page);
}

QImage ImageCreations::imageWithPDFNamedFitSize(const QString& name, const QSizeF& size, int page)
{
    return imageWithPDFURLFitSize(UIImagePDFView::resourceURLForName(name), size, page);
}

QImage ImageCreations::originalSizeImageWithPDFNamed(const QString& name, int page)
{
    return originalSizeImageWithPDFURL(UIImagePDFView::resourceURLForName(name), page);
}

QImage ImageCreations::imageOrPDFNamed(const QString& name)
{
    if (QFileInfo(name).suffix() == QLatin1String("pdf"))
        return originalSizeImageWithPDFNamed(name);
    return packImage(name);
}

QImage ImageCreations::imageOrPDFWithContentsOfFile(const QString& path)
{
    if (path.endsWith(QLatin1String("pdf")))
        return originalSizeImageWithPDFURL(QUrl::fromLocalFile(path));
    return QImage(path);
}

QImage ImageCreations::imageForRequest(const QString& id, const QSize& requestedSize)
{
    const qsizetype q = id.indexOf(QLatin1Char('?'));
    const QString name = QUrl::fromPercentEncoding(id.left(q).toUtf8());
    const QUrlQuery query(q < 0 ? QString() : id.mid(q + 1));
    if (!name.endsWith(QLatin1String("pdf")))
        return packImage(name);

    auto number = [&](const char* key, double fallback) {
        bool ok = false;
        const double v = query.queryItemValue(QString::fromLatin1(key)).toDouble(&ok);
        return ok && v > 0 ? v : fallback;
    };
    const qreal w = number("w", 0), h = number("h", 0);
    const qreal scale = number("s", scaleFactor());
    const int page = int(number("page", 1));
    const bool fit = query.queryItemValue(QStringLiteral("fit")) == QLatin1String("1");
    const QUrl url = UIImagePDFView::resourceURLForName(name);

    if (w > 0 && h > 0)
        return fit ? renderFitting(url, QSizeF(w, h), scale, page) : renderCached(url, QSizeF(w, h), scale, page);
    if (w > 0)
        return renderAtWidth(url, w, scale, page);
    if (h > 0)
        return renderAtHeight(url, h, scale, page);
    if (requestedSize.isValid() && !requestedSize.isEmpty())
        return renderFitting(url, QSizeF(requestedSize), scale, page);
    return renderOriginal(url, scale, page);
}

} // namespace qor
