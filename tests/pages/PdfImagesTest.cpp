#include "PagesSupport.h"

#include "pages/PdfImages.h"
#include "pages/PdfViews.h"

#include <QDir>
#include <QFile>
#include <QPdfDocument>
#include <gtest/gtest.h>

using namespace qor;

namespace {

class PdfTest : public ::testing::Test {
protected:
    PdfTest()
    {
        test::writePdf(pack.path(QStringLiteral("box.pdf")), { QSizeF(100, 50) });
        test::writePdf(pack.path(QStringLiteral("two.pdf")), { QSizeF(100, 50), QSizeF(50, 100) });
        QImage png(8, 4, QImage::Format_ARGB32);
        png.fill(Qt::green);
        png.save(pack.path(QStringLiteral("icon.png")));
        ImageCreations::setScaleFactor(2);
    }
    ~PdfTest() override { ImageCreations::setScaleFactor(0); }

    QUrl url(const char* name) const { return QUrl::fromLocalFile(pack.path(QString::fromLatin1(name))); }
    QStringList cacheFiles() const
    {
        return QDir(data.path() + QStringLiteral("/Caches/__PDF_CACHE__")).entryList(QDir::Files);
    }

    test::UserDataDir data;
    test::FixturePack pack;
};

QSizeF pointSize(const QImage& image) { return image.deviceIndependentSize(); }

} // namespace

TEST(PdfSizes, SingleFloatCeilingsOfTheBoxArithmetic)
{
    const QSizeF box(100, 50);
    // 100 / (100/29) is a hair above 29 in double precision; the float ceiling keeps 29.
    EXPECT_EQ(ImageCreations::sizeToFit(box, QSizeF(29, 20)), QSizeF(29, 15));
    EXPECT_EQ(ImageCreations::sizeAtWidth(box, 33), QSizeF(33, 17));
    EXPECT_EQ(ImageCreations::sizeAtHeight(box, 10.5), QSizeF(21, 10.5));
    EXPECT_TRUE(ImageCreations::sizeToFit(QSizeF(), QSizeF(40, 40)).isEmpty());
}

TEST_F(PdfTest, OperationsSizeFromPageOneAndRenderAtTheScaleFactor)
{
    const QImage fit = ImageCreations::imageWithPDFNamedFitSize(QStringLiteral("box.pdf"), QSizeF(40, 40));
    EXPECT_EQ(fit.size(), QSize(80, 40));
    EXPECT_EQ(pointSize(fit), QSizeF(40, 20));
    EXPECT_EQ(pointSize(ImageCreations::imageWithPDFURLAtWidth(url("box.pdf"), 33)), QSizeF(33, 17));
    EXPECT_EQ(ImageCreations::originalSizeImageWithPDFNamed(QStringLiteral("box.pdf")).size(), QSize(200, 100));

    // Page 2 is upright, but the size still comes from page 1; the page is stretched over it.
    const QImage second = ImageCreations::imageWithPDFURLAtWidth(url("two.pdf"), 33, 2);
    EXPECT_EQ(pointSize(second), QSizeF(33, 17));
    EXPECT_EQ(second.pixelColor(63, 31), QColor(Qt::blue));

    const QImage square = ImageCreations::imageWithPDFNamed(QStringLiteral("box.pdf"), QSizeF(33, 33));
    ASSERT_EQ(square.size(), QSize(66, 66));
    for (QPoint p : { QPoint(1, 1), QPoint(64, 64), QPoint(1, 64) })
        EXPECT_EQ(square.pixelColor(p), QColor(Qt::red)) << p.x() << "," << p.y();
}

TEST_F(PdfTest, CacheNameChangesWithScaleSizePageAndFileVersion)
{
    const QUrl box = url("box.pdf");
    const QString base = ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 2, 1);
    EXPECT_TRUE(base.startsWith(data.path() + QStringLiteral("/Caches/__PDF_CACHE__/")));
    EXPECT_EQ(ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 2, 1), base);
    EXPECT_NE(ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 3, 1), base);
    EXPECT_NE(ImageCreations::cacheFilenameForURL(box, QSizeF(33, 34), 2, 1), base);
    EXPECT_NE(ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 2, 2), base);
    EXPECT_TRUE(ImageCreations::cacheFilenameForURL(QUrl(), QSizeF(33, 33), 2, 1).isEmpty());

    // Same size in bytes, another modification time.
    QFile file(pack.path(QStringLiteral("box.pdf")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-3600), QFileDevice::FileModificationTime));
    file.close();
    const QString touched = ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 2, 1);
    EXPECT_NE(touched, base);
    // Another byte size.
    test::writePdf(pack.path(QStringLiteral("box.pdf")), { QSizeF(100, 50), QSizeF(100, 50) });
    EXPECT_NE(ImageCreations::cacheFilenameForURL(box, QSizeF(33, 33), 2, 1), touched);
}

TEST_F(PdfTest, SecondCallReadsTheCacheInsteadOfRendering)
{
    const QString cached = ImageCreations::cacheFilenameForURL(url("box.pdf"), QSizeF(33, 33), 2, 1);
    ImageCreations::imageWithPDFNamed(QStringLiteral("box.pdf"), QSizeF(33, 33));
    ASSERT_TRUE(QFile::exists(cached));
    // Plant a different picture under the cache name: only a cache read can return it.
    QImage marker(66, 66, QImage::Format_ARGB32);
    marker.fill(Qt::yellow);
    ASSERT_TRUE(marker.save(cached, "PNG"));
    const QImage again = ImageCreations::imageWithPDFNamed(QStringLiteral("box.pdf"), QSizeF(33, 33));
    EXPECT_EQ(again.pixelColor(10, 10), QColor(Qt::yellow));
    EXPECT_EQ(again.devicePixelRatio(), 2);

    // A damaged cache file is drawn again and replaced.
    QFile damaged(cached);
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly | QIODevice::Truncate));
    damaged.write("not a png");
    damaged.close();
    EXPECT_EQ(ImageCreations::imageWithPDFNamed(QStringLiteral("box.pdf"), QSizeF(33, 33)).pixelColor(10, 10), QColor(Qt::red));
    EXPECT_FALSE(QImage(cached).isNull());
}

TEST_F(PdfTest, PlainImagesAndMissingFilesNeverReachTheCache)
{
    const QImage png = ImageCreations::imageOrPDFNamed(QStringLiteral("icon.png"));
    EXPECT_EQ(png.size(), QSize(8, 4));
    EXPECT_EQ(ImageCreations::imageOrPDFWithContentsOfFile(pack.path(QStringLiteral("icon.png"))).size(), QSize(8, 4));
    EXPECT_TRUE(ImageCreations::imageWithPDFNamed(QStringLiteral("missing.pdf"), QSizeF(33, 33)).isNull());
    EXPECT_TRUE(ImageCreations::imageWithPDFNamed(QStringLiteral("box.pdf"), QSizeF(33, 33), 7).isNull());
    EXPECT_TRUE(ImageCreations::imageWithPDFNamedFitSize(QStringLiteral("icon.png"), QSizeF(33, 33)).isNull());
    EXPECT_TRUE(cacheFiles().isEmpty());

    EXPECT_EQ(ImageCreations::imageOrPDFNamed(QStringLiteral("box.pdf")).size(), QSize(200, 100));
    EXPECT_EQ(cacheFiles().size(), 1);
}

TEST_F(PdfTest, ProviderIdsPickTheMatchingOperation)
{
    EXPECT_EQ(ImageCreations::imageForRequest(QStringLiteral("box.pdf?w=33&h=33&s=1")).size(), QSize(33, 33));
    EXPECT_EQ(ImageCreations::imageForRequest(QStringLiteral("box.pdf?w=33&h=33")).size(), QSize(66, 66));
    EXPECT_EQ(pointSize(ImageCreations::imageForRequest(QStringLiteral("box.pdf?w=40&h=40&fit=1"))), QSizeF(40, 20));
    EXPECT_EQ(pointSize(ImageCreations::imageForRequest(QStringLiteral("box.pdf"), QSize(30, 60))), QSizeF(30, 15));
    EXPECT_EQ(ImageCreations::imageForRequest(QStringLiteral("two.pdf?w=10&h=10&page=2")).pixelColor(5, 5), QColor(Qt::blue));
    EXPECT_EQ(ImageCreations::imageForRequest(QStringLiteral("icon.png?w=33")).size(), QSize(8, 4));
    EXPECT_TRUE(ImageCreations::imageForRequest(QStringLiteral("box.pdf?w=abc&h=-3"), QSize()).size() == QSize(200, 100));
}

TEST_F(PdfTest, PlacardViewerFitsTheTurnedPage)
{
    MyPDFView viewer;
    viewer.setPDFDocument(openPdf(pack.path(QStringLiteral("box.pdf"))));
    viewer.rotateLeft();  // 100 x 50 stands up as 50 x 100
    QImage canvas(100, 100, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    viewer.drawRect(painter, QRectF(0, 0, 100, 100));
    painter.end();
    EXPECT_EQ(canvas.pixelColor(50, 95), QColor(Qt::red));
    EXPECT_EQ(canvas.pixelColor(10, 50).alpha(), 0);
    EXPECT_EQ(canvas.pixelColor(90, 50).alpha(), 0);
}
