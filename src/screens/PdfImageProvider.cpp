#include "PdfImageProvider.h"

#include "pages/PdfImages.h"

namespace qor {

PdfImageProvider::PdfImageProvider() : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage PdfImageProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    QImage image = ImageCreations::imageForRequest(id, requestedSize);
    if (image.isNull()) {
        // An empty placeholder keeps the screen drawing; the log says what was missing.
        qWarning("No image for image://%s/%s", kProviderId, qPrintable(id));
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace qor
