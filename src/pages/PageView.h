#pragma once
// The small page-view interface the page factories load HTML into. The app
// installs a creator backed by the web engine; tests install fakes; without
// either, pages are prepared but shown nowhere.
#include <QByteArray>
#include <QColor>
#include <QObject>
#include <QRect>
#include <QSize>
#include <QString>
#include <QUrl>
#include <QVariant>
#include <functional>
#include <memory>

namespace qor {

class PageView : public QObject {
    Q_OBJECT
public:
    using ScriptCallback = std::function<void(const QVariant& result, const QString& error)>;

    explicit PageView(QObject* parent = nullptr) : QObject(parent) {}
    ~PageView() override = default;

    virtual void loadData(const QByteArray& data, const QString& mimeType, const QString& encoding, const QUrl& baseUrl) = 0;
    virtual void loadUrl(const QUrl& url) = 0;
    virtual void stopLoading() = 0;
    // Asynchronous; the callback runs on the main thread when the result arrives.
    virtual void evaluateJavaScript(const QString& script, ScriptCallback done) = 0;

    // Loads an empty page so the engine behind the view is up before use.
    void warmUp() { loadData(QByteArray(), QStringLiteral("text/html"), QStringLiteral("UTF8"), QUrl()); }

    QSize size() const { return m_frame.size(); }
    void setSize(const QSize& size) { m_frame.setSize(size); }
    // Placement hints for whoever shows the view; the page itself ignores them.
    QRect frame() const { return m_frame; }
    void setFrame(const QRect& frame) { m_frame = frame; }
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor& color) { m_backgroundColor = color; }
    bool resizesWithContainer() const { return m_resizesWithContainer; }
    void setResizesWithContainer(bool on) { m_resizesWithContainer = on; }

signals:
    void loadFinished(bool ok);
    // A link the user followed; the screen decides what to do with it.
    void navigationRequested(const QUrl& url);

private:
    QRect m_frame;
    QColor m_backgroundColor;
    bool m_resizesWithContainer = false;
};

// Records what it was asked to do and never finishes loading by itself.
class NullPageView : public PageView {
    Q_OBJECT
public:
    using PageView::PageView;
    void loadData(const QByteArray& data, const QString&, const QString&, const QUrl& baseUrl) override
    {
        lastData = data;
        lastBaseUrl = baseUrl;
        ++loadCount;
    }
    void loadUrl(const QUrl& url) override
    {
        lastUrl = url;
        ++loadCount;
    }
    void stopLoading() override { ++stopCount; }
    void evaluateJavaScript(const QString& script, ScriptCallback done) override
    {
        scripts.append(script);
        if (done)
            done(QVariant(), QString());
    }

    QByteArray lastData;
    QUrl lastBaseUrl;
    QUrl lastUrl;
    QStringList scripts;
    int loadCount = 0;
    int stopCount = 0;
};

class PageViewFactory {
public:
    using Creator = std::function<PageView*()>;
    // The web-engine backed creator (app) or a fake (tests).
    static void setCreator(Creator creator);
    // Whether a real (or fake) page view has been installed.
    static bool isAvailable();
    // A new page view, owned by the caller.
    static PageView* create();
};

// Views made and warmed up ahead, so showing a page never waits for one.
class PageViewPool {
public:
    static constexpr int kSize = 5;
    // A warmed-up view, owned by the caller; the pool is filled up again.
    static PageView* take();
    static int count();
    // Deletes the pooled views (the creator changed, or at exit).
    static void clear();
};

} // namespace qor
