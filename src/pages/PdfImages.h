#pragma once
// Images from single-page vector PDFs at any size, each rendered once per
// (file version, size, scale, page) and then read back from a PNG cache.
// Sizes are in points; images carry the scale factor as their device pixel
// ratio. A missing or unreadable PDF gives a null image.
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QUrl>

namespace qor {

class ImageCreations {
public:
    static QImage imageWithPDFURL(const QUrl& url, const QSizeF& size, int page = 1);
    static QImage imageWithPDFURLAtWidth(const QUrl& url, qreal width, int page = 1);
    static QImage imageWithPDFURLAtHeight(const QUrl& url, qreal height, int page = 1);
    static QImage imageWithPDFURLFitSize(const QUrl& url, const QSizeF& size, int page = 1);
    static QImage originalSizeImageWithPDFURL(const QUrl& url, int page = 1);

    static QImage imageWithPDFNamed(const QString& name, const QSizeF& size, int page = 1);
    static QImage imageWithPDFNamedAtWidth(const QString& name, qreal width, int page = 1);
    static QImage imageWithPDFNamedAtHeight(const QString& name, qreal height, int page = 1);
    static QImage imageWithPDFNamedFitSize(const QString& name, const QSizeF& size, int page = 1);
    static QImage originalSizeImageWithPDFNamed(const QString& name, int page = 1);

    // PDFs at their own size; other names are plain images from the pack.
    static QImage imageOrPDFNamed(const QString& name);
    static QImage imageOrPDFWithContentsOfFile(const QString& path);

    // "<caches>/__PDF_CACHE__/<md5>.png"; empty for no URL.
    static QString cacheFilenameForURL(const QUrl& url, const QSizeF& size, qreal scaleFactor, int page);

    // Sizes the operations above pick, from the crop box of page 1 whatever
    // page is drawn. Rounded up in single precision, as the artwork was sized.
    static QSizeF sizeAtWidth(const QSizeF& box, qreal width);
    static QSizeF sizeAtHeight(const QSizeF& box, qreal height);
    static QSizeF sizeToFit(const QSizeF& box, const QSizeF& size);

    // Device pixels per point; the screen's unless set (0 restores that).
    static qreal scaleFactor();
    static void setScaleFactor(qreal scale);

    // Image for a provider id "NAME?w=33&h=33[&s=2][&page=1][&fit=1]": w and h
    // give the size (fit=1: fit into it), w or h alone the matching operation,
    // neither the original size or requestedSize to fit into. Names not ending
    // in "pdf" are plain pack images.
    static QImage imageForRequest(const QString& id, const QSize& requestedSize = QSize());
};

} // namespace qor
