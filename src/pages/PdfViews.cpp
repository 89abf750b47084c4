#include "PdfViews.h"

#include "model/Resources.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfDocument>
#include <QtMath>

namespace qor {

namespace {
// Device pixels rect covers under the painter's current transform.
QSize devicePixels(const QPainter& painter, const QRectF& rect)
{
    const QSizeF s = painter.deviceTransform().mapRect(rect).size();
    return QSize(qCeil(s.width() - 1e-6), qCeil(s.height() - 1e-6));
}
} // namespace

std::shared_ptr<QPdfDocument> openPdf(const QString& path)
{
    if (path.isEmpty())
        return nullptr;
    auto doc = std::make_shared<QPdfDocument>();
    if (doc->load(path) != QPdfDocument::Error::None || doc->pageCount() < 1)
        return nullptr;
    return doc;
}

void UIImagePDFView::setResourceName(const QString& name)
{
    m_resourceName = name;
    resourceURL = resourceURLForName(name);
}

bool UIImagePDFView::drawRect(QPainter& painter, const QRectF& rect) const
{
    if (resourceURL.isEmpty())
        return false;
    painter.fillRect(rect, backgroundColor);
    const auto doc = openPdf(resourceURL.toLocalFile());
    if (!doc || page < 1 || page > doc->pageCount())
        return false;
    const QSize pixels = devicePixels(painter, rect);
    if (pixels.isEmpty())
        return false;
    const QImage image = doc->render(page - 1, pixels);
    if (image.isNull())
        return false;
    painter.drawImage(rect, image);
    return true;
}

QImage UIImagePDFView::renderImage(qreal scale) const
{
    const QSize pixels(qCeil(frameSize.width() * scale), qCeil(frameSize.height() * scale));
    if (pixels.isEmpty() || scale <= 0)
        return QImage();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const bool drawn = drawRect(painter, QRectF(QPointF(0, 0), frameSize));
    painter.end();
    return drawn ? image : QImage();
}

QUrl UIImagePDFView::resourceURLForName(const QString& name)
{
    if (name.isEmpty())
        return QUrl();
    const QString path = Resources::path(name);
    return QFileInfo::exists(path) ? QUrl::fromLocalFile(path) : QUrl();
}

QRectF UIImagePDFView::mediaRect(const QString& name)
{
    return mediaRectForURL(resourceURLForName(name));
}

QRectF UIImagePDFView::mediaRectForURL(const QUrl& url)
{
    return mediaRectForURL(url, 1);
}

QRectF UIImagePDFView::mediaRectForURL(const QUrl& url, int page)
{
    const auto doc = url.isEmpty() ? nullptr : openPdf(url.toLocalFile());
    if (!doc || page < 1 || page > doc->pageCount())
        return QRectF();
    return QRectF(QPointF(0, 0), doc->pagePointSize(page - 1));
}

int UIImagePDFView::pageCountForURL(const QUrl& url)
{
    if (url.isEmpty())
        return 1;
    const auto doc = openPdf(url.toLocalFile());
    return doc ? doc->pageCount() : 0;
}

void MyPDFView::setPDFDocument(std::shared_ptr<QPdfDocument> document)
{
    if (m_document != document)
        m_document = std::move(document);
    setPageNumber(1);
}

int MyPDFView::pageCount() const
{
    return m_document ? m_document->pageCount() : 0;
}

void MyPDFView::setPageNumber(int number)
{
    if (number < 1 || number > pageCount())
        return;
    m_pageNumber = number;
    emit layoutRequested();
}

void MyPDFView::incrementPageNumber()
{
    if (m_pageNumber < pageCount())
        setPageNumber(m_pageNumber + 1);
}

void MyPDFView::decrementPageNumber()
{
    if (m_pageNumber > 1)
        setPageNumber(m_pageNumber - 1);
}

void MyPDFView::rotateRight()
{
    m_angle += 90;
    emit layoutRequested();
}

void MyPDFView::rotateLeft()
{
    m_angle -= 90;
    emit layoutRequested();
}

void MyPDFView::drawRect(QPainter& painter, const QRectF& bounds) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    drawPage(painter, bounds, Fit::Inside);
}

void MyPDFView::drawRectLandscapeFill(QPainter& painter, const QRectF& bounds) const
{
    drawPage(painter, bounds, Fit::Width);
}

void MyPDFView::drawRectOrig(QPainter& painter, const QRectF& bounds) const
{
    drawPage(painter, bounds, Fit::Original);
}

void MyPDFView::drawPage(QPainter& painter, const QRectF& bounds, Fit fit) const
{
    if (!m_document || m_pageNumber < 1 || m_pageNumber > pageCount())
        return;
    QSizeF box = m_document->pagePointSize(m_pageNumber - 1);
    const int quarterTurns = ((m_angle / 90) % 4 + 4) % 4;
    if (quarterTurns % 2)
        box.transpose();
    if (box.isEmpty() || bounds.isEmpty())
        return;

    qreal scale = 1;
    if (fit == Fit::Inside)
        scale = qMin(bounds.width() / box.width(), bounds.height() / box.height());
    else if (fit == Fit::Width)
        scale = bounds.width() / box.width();
    const QSizeF size = box * scale;
    QRectF target(QPointF(0, 0), size);
    target.moveCenter(bounds.center());
    if (fit == Fit::Width)
        target.moveTop(bounds.top());

    QPdfDocumentRenderOptions options;
    options.setRotation(static_cast<QPdfDocumentRenderOptions::Rotation>(quarterTurns));
    const QImage image = m_document->render(m_pageNumber - 1, devicePixels(painter, target), options);
    painter.save();
    painter.setClipRect(target);
    painter.drawImage(target, image);
    painter.restore();
}

PDFDoc::PDFDoc(const QString& placard) : document(openPdf(Resources::path(placard, QStringLiteral("pdf"))))
{
}

} // namespace qor
