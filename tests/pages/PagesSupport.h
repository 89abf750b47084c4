#pragma once
// Small fixtures for the page tests: PDFs of a given page size, and a data
// folder of their own so caches and mail files never leak between tests.
#include "FixturePack.h"

#include "history/UserPaths.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSettings>
#include <QTemporaryDir>

namespace qor::test {

// A PDF whose pages measure size points, each filled with a colour.
inline void writePdf(const QString& path, const QSizeF& size, int pages = 1, const QColor& colour = Qt::red)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setResolution(72);
    QPainter painter(&writer);
    for (int i = 0; i < pages; ++i) {
        if (i > 0)
            writer.newPage();
        painter.fillRect(QRectF(QPointF(0, 0), size), colour);
    }
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
