#pragma once
// A page view shown by a QML PageHost (a WebEngineView). The view keeps what
// it was last asked to show, so a host attached later shows it too; scripts
// run in the attached host, and answer empty when no page is on screen.
#include "pages/PageView.h"

#include <QHash>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace qor {

class WebEnginePageView : public PageView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the page factories")
    Q_PROPERTY(QString html READ html NOTIFY contentChanged)
    Q_PROPERTY(QUrl baseUrl READ baseUrl NOTIFY contentChanged)
    Q_PROPERTY(QUrl url READ url NOTIFY contentChanged)
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY contentChanged)
public:
    using PageView::PageView;
    ~WebEnginePageView() override;

    void loadData(const QByteArray& data, const QString& mimeType, const QString& encoding, const QUrl& baseUrl) override;
    void loadUrl(const QUrl& url) override;
    void stopLoading() override;
    void evaluateJavaScript(const QString& script, ScriptCallback done) override;

    QString html() const { return m_html; }
    QUrl baseUrl() const { return m_baseUrl; }
    QUrl url() const { return m_url; }
    bool hasContent() const { return !m_html.isNull() || !m_url.isEmpty(); }
    bool hasHost() const { return !m_host.isNull(); }

    // The host on screen; a new host replaces the old one.
    Q_INVOKABLE void attachHost(QObject* host);
    Q_INVOKABLE void detachHost(QObject* host);
    // Called back by the host.
    Q_INVOKABLE void scriptFinished(int id, const QVariant& result);
    Q_INVOKABLE void reportLoadFinished(bool ok) { emit loadFinished(ok); }
    Q_INVOKABLE void reportNavigation(const QUrl& url) { emit navigationRequested(url); }

signals:
    void contentChanged();
    void stopRequested();
    void scriptRequested(int id, const QString& script);

private:
    void answerPendingScripts();

    QString m_html;
    QUrl m_baseUrl;
    QUrl m_url;
    QPointer<QObject> m_host;
    QHash<int, ScriptCallback> m_pending;
    int m_nextScriptId = 1;
};

} // namespace qor
