#include "LoadablePage.h"

#include "model/Resources.h"

#include <QEventLoop>
#include <QPointer>
#include <QThread>

namespace qor {

QUrl pageBaseUrl()
{
    // Trailing slash: the base must name the folder, not a file in its parent.
    return QUrl::fromLocalFile(Resources::dir() + QLatin1Char('/'));
}

void LoadablePage::load()
{
    loadData(data, QStringLiteral("text/html"), QStringLiteral("UTF8"), pageBaseUrl());
    loading = true;
}

void LoadablePage::loadData(const QByteArray& bytes, const QString& mimeType, const QString& encoding, const QUrl& baseUrl)
{
    if (PageView* v = webView())
        v->loadData(bytes, mimeType, encoding, baseUrl);
}

void LoadablePage::loadRequestFromString(const QString& url)
{
    if (PageView* v = webView())
        v->loadUrl(QUrl(url));
}

std::optional<QString> LoadablePage::stringByEvaluatingJavaScriptFromString(const QString& script)
{
    return evaluateScriptSync(webView(), script);
}

std::optional<QString> evaluateScriptSync(PageView* view, const QString& script)
{
    if (!view)
        return std::nullopt;
    struct Outcome {
        bool done = false;
        QVariant value;
        QString error;
    };
    auto outcome = std::make_shared<Outcome>();
    QEventLoop loop;
    QPointer<QEventLoop> loopPtr(&loop);
    QPointer<PageView> viewPtr(view);
    view->evaluateJavaScript(script, [outcome, loopPtr](const QVariant& value, const QString& error) {
        outcome->done = true;
        outcome->value = value;
        outcome->error = error;
        if (loopPtr)
            loopPtr->quit();
    });
    if (!outcome->done) {
        // A view destroyed mid-evaluation never answers; don't wait for it.
        QObject::connect(view, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
    }
    if (!outcome->done)
        return std::nullopt;
    if (!outcome->error.isEmpty()) {
        qWarning("evaluateJavaScript error : %s", qPrintable(outcome->error));
        return std::nullopt;
    }
    if (!outcome->value.isValid() || outcome->value.isNull())
        return std::nullopt;
    return outcome->value.toString();
}

void runOnThreadOf(QObject* context, std::function<void()> fn)
{
    if (QThread::currentThread() == context->thread())
        fn();
    else
        QMetaObject::invokeMethod(context, std::move(fn), Qt::QueuedConnection);
}

LoadingTimer::LoadingTimer(QObject* owner, std::function<void()> tick) : m_owner(owner)
{
    m_timer.setInterval(kIntervalMs);
    QObject::connect(&m_timer, &QTimer::timeout, owner, std::move(tick));
}

void LoadingTimer::start()
{
    runOnThreadOf(m_owner, [this] { m_timer.start(); });
}

void LoadingTimer::invalidate()
{
    runOnThreadOf(m_owner, [this] { m_timer.stop(); });
}

} // namespace qor
