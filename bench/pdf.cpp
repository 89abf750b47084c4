// A 33 x 33 point icon at scale 2: drawn from the PDF (cache miss) versus read
// back from the PNG cache (hit).
#include "BenchSupport.h"

#include "history/UserPaths.h"
#include "model/Resources.h"
#include "pages/PdfImages.h"

#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

// A placard-like icon: a bordered diamond with a number, as the artwork is.
void writeIcon(const QString& path)
{
    QPdfWriter writer(path);
    writer.setResolution(72);
    writer.setPageMargins(QMarginsF());
    writer.setPageSize(QPageSize(QSizeF(100, 100), QPageSize::Point, QString(), QPageSize::ExactMatch));
    QPainter p(&writer);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath diamond;
    diamond.moveTo(50, 2);
    diamond.lineTo(98, 50);
    diamond.lineTo(50, 98);
    diamond.lineTo(2, 50);
    diamond.closeSubpath();
    p.fillPath(diamond, QColor(0xe3, 0x1b, 0x23));
    p.setPen(QPen(Qt::black, 3));
    p.drawPath(diamond);
    p.setFont(QFont(QStringLiteral("Helvetica"), 20, QFont::Bold));
    p.drawText(QRectF(0, 60, 100, 30), Qt::AlignCenter, QStringLiteral("3"));
}

struct IconSetup {
    QTemporaryDir pack, data;
    QUrl url;
    QString cachePath;
    IconSetup()
    {
        writeIcon(pack.filePath(QStringLiteral("icon.pdf")));
        qor::Resources::setOverride(pack.path());
        qor::UserPaths::setDataDir(data.path());
        qor::ImageCreations::setScaleFactor(2);
        url = QUrl::fromLocalFile(pack.filePath(QStringLiteral("icon.pdf")));
        cachePath = qor::ImageCreations::cacheFilenameForURL(url, QSizeF(33, 33), 2, 1);
    }
    ~IconSetup()
    {
        qor::ImageCreations::setScaleFactor(0);
        qor::UserPaths::setDataDir(QString());
        qor::Resources::setOverride(QString());
    }
};

void BM_IconColdRender(benchmark::State& state)
{
    IconSetup s;
    for (auto _ : state) {
        state.PauseTiming();
        QFile::remove(s.cachePath);
        state.ResumeTiming();
        QImage image = qor::ImageCreations::imageWithPDFURL(s.url, QSizeF(33, 33));
        benchmark::DoNotOptimize(image);
    }
}
BENCHMARK(BM_IconColdRender)->Unit(benchmark::kMillisecond);

void BM_IconCacheHit(benchmark::State& state)
{
    IconSetup s;
    qor::ImageCreations::imageWithPDFURL(s.url, QSizeF(33, 33));
    for (auto _ : state) {
        QImage image = qor::ImageCreations::imageWithPDFURL(s.url, QSizeF(33, 33));
        benchmark::DoNotOptimize(image);
    }
}
BENCHMARK(BM_IconCacheHit)->Unit(benchmark::kMicrosecond);

} // namespace

QOR_BENCHMARK_MAIN()
