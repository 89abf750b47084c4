#include "WebEnginePageView.h"

namespace qor {

WebEnginePageView::~WebEnginePageView()
{
    answerPendingScripts();
}

void WebEnginePageView::loadData(const QByteArray& data, const QString&, const QString&, const QUrl& baseUrl)
{
    m_html = QString::fromUtf8(data);
    if (m_html.isNull())
        m_html = QLatin1String("");
    m_baseUrl = baseUrl;
    m_url.clear();
    emit contentChanged();
}

void WebEnginePageView::loadUrl(const QUrl& url)
{
    m_html.clear();
    m_baseUrl.clear();
    m_url = url;
    emit contentChanged();
}

void WebEnginePageView::stopLoading()
{
    emit stopRequested();
}

void WebEnginePageView::evaluateJavaScript(const QString& script, ScriptCallback done)
{
    if (!m_host) {
        // Nothing on screen to run it in; callers waiting for a value get none.
        if (done)
            done(QVariant(), QString());
        return;
    }
    const int id = m_nextScriptId++;
    if (done)
        m_pending.insert(id, std::move(done));
    emit scriptRequested(id, script);
}

void WebEnginePageView::attachHost(QObject* host)
{
    if (m_host == host)
        return;
    answerPendingScripts();
    m_host = host;
}

void WebEnginePageView::detachHost(QObject* host)
{
    if (m_host != host)
        return;
    answerPendingScripts();
    m_host.clear();
}

void WebEnginePageView::scriptFinished(int id, const QVariant& result)
{
    if (ScriptCallback done = m_pending.take(id))
        done(result, QString());
}

void WebEnginePageView::answerPendingScripts()
{
    const QHash<int, ScriptCallback> pending = std::exchange(m_pending, {});
    for (const ScriptCallback& done : pending)
        done(QVariant(), QString());
}

} // namespace qor
