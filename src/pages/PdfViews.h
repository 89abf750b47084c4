#pragma once
// Drawing PDF pages: one page stretched over a rectangle (what the image
// cache renders with), and the placard viewer's page, zoom and rotation state.
#include <QColor>
#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QUrl>
#include <memory>

class QImage;
class QPainter;
class QPdfDocument;

namespace qor {

// Opens a PDF file; none when it cannot be read.
std::shared_ptr<QPdfDocument> openPdf(const QString& path);

class UIImagePDFView {
public:
    explicit UIImagePDFView(const QSizeF& frameSize = QSizeF()) : frameSize(frameSize) {}

    QSizeF frameSize;
    QColor backgroundColor = Qt::transparent;
    QUrl resourceURL;
    int page = 1;

    QString resourceName() const { return m_resourceName; }
    // Also points resourceURL at the pack file of exactly that name.
    void setResourceName(const QString& name);

    // Stretches the page over rect, whatever the aspect ratios; callers size
    // the view from the page box. False when there was no page to draw.
    bool drawRect(QPainter& painter, const QRectF& rect) const;
    // The whole view as an image of frameSize points at the given scale;
    // null when there was no page to draw.
    QImage renderImage(qreal scale) const;

    // The pack file of exactly that name; none for no name or a missing file.
    static QUrl resourceURLForName(const QString& name);
    // Box sizes are the crop box, which is what pages render from; QtPdf does
    // not expose its origin, so the rectangles start at 0,0.
    static QRectF mediaRect(const QString& name);
    static QRectF mediaRectForURL(const QUrl& url);
    // Null rectangle for no URL, an unreadable file or a missing page.
    static QRectF mediaRectForURL(const QUrl& url, int page);
    // 1 for no URL.
    static int pageCountForURL(const QUrl& url);

private:
    QString m_resourceName;
};

// The placard viewer: a document, its current page and the rotation.
class MyPDFView : public QObject {
    Q_OBJECT
public:
    explicit MyPDFView(QObject* parent = nullptr) : QObject(parent) {}

    std::shared_ptr<QPdfDocument> pdfDocument() const { return m_document; }
    // Goes to page 1 of the new document.
    void setPDFDocument(std::shared_ptr<QPdfDocument> document);
    int pageNumber() const { return m_pageNumber; }
    // Numbers outside 1..pageCount are ignored.
    void setPageNumber(int number);
    int pageCount() const;
    void incrementPageNumber();
    void decrementPageNumber();
    // Plus or minus 90; deliberately never wrapped into 0..359.
    void rotateRight();
    void rotateLeft();
    int angle() const { return m_angle; }
    bool zoomed() const { return m_zoomed; }
    void setZoomed(bool zoomed) { m_zoomed = zoomed; }

    // The page fitted into bounds, centred.
    void drawRect(QPainter& painter, const QRectF& bounds) const;
    // The page filling the width of bounds, from the top (landscape).
    void drawRectLandscapeFill(QPainter& painter, const QRectF& bounds) const;
    // The page at its own size, centred.
    void drawRectOrig(QPainter& painter, const QRectF& bounds) const;

signals:
    void layoutRequested();

private:
    enum class Fit { Inside, Width, Original };
    void drawPage(QPainter& painter, const QRectF& bounds, Fit fit) const;

    std::shared_ptr<QPdfDocument> m_document;
    int m_pageNumber = 1;
    int m_angle = 0;
    bool m_zoomed = false;
};

// A placard's PDF from the pack ("<placard>.pdf").
class PDFDoc {
public:
    explicit PDFDoc(const QString& placard);
    std::shared_ptr<QPdfDocument> document;
};

} // namespace qor
