#pragma once
// Small fixtures for the page tests: PDFs of a given page size, and a data
// folder of their own so caches and mail files never leak between tests.
#include "FixturePack.h"

#include "history/UserPaths.h"
#include "model/Material.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSettings>
#include <QTemporaryDir>

namespace qor::test {

// A PDF with one page per size (points), filled with colour; page 2 onwards blue.
inline void writePdf(const QString& path, const QList<QSizeF>& pages, const QColor& colour = Qt::red)
{
    QPdfWriter writer(path);
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(72);
    writer.setPageSize(QPageSize(pages.first(), QPageSize::Point, QString(), QPageSize::ExactMatch));
    QPainter painter(&writer);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        if (i > 0) {
            writer.setPageSize(QPageSize(pages[i], QPageSize::Point, QString(), QPageSize::ExactMatch));
            writer.newPage();
        }
        painter.fillRect(QRectF(QPointF(0, 0), pages[i]), i == 0 ? colour : QColor(Qt::blue));
    }
}

// An isolation-map row: small-spill figures and, if given, large-spill ones,
// each as metric/imperial isolation, day and night distances.
inline IsolationRecord record(const QString& condition, const QStringList& small, const QStringList& large = {})
{
    static const char* what[] = { "Initial isolation distance Metric", "Initial isolation distance Imp", "Protect distance Day Metric",
                                  "Protect distance Day Imp", "Protect distance Night Metric", "Protect distance Night Imp" };
    IsolationRecord r;
    r.insert(QStringLiteral("Condition"), condition);
    for (int i = 0; i < 6; ++i) {
        r.insert(QStringLiteral("Small Spill %1").arg(QLatin1String(what[i])), small.value(i));
        if (!large.isEmpty())
            r.insert(QStringLiteral("Large Spill %1").arg(QLatin1String(what[i])), large.value(i));
    }
    return r;
}

class UserDataDir {
public:
    UserDataDir()
    {
        UserPaths::setDataDir(m_dir.path());
        QSettings().remove(QStringLiteral("textFontSize"));
    }
    ~UserDataDir()
    {
        UserPaths::setDataDir(QString());
        QSettings().remove(QStringLiteral("textFontSize"));
    }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};

} // namespace qor::test

#include <QCoreApplication>
#include <QElapsedTimer>
#include <functional>

namespace qor::test {

// Runs the event loop until pred holds or timeoutMs passes; returns pred().
inline bool waitUntil(const std::function<bool()>& pred, int timeoutMs = 3000)
{
    QElapsedTimer t;
    t.start();
    while (!pred() && t.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return pred();
}

} // namespace qor::test
