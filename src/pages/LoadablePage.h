#pragma once
// What the guide and info page factories share: a prepared page with its
// load state and lock, the repeating background-loading timer, and
// synchronous script evaluation over the asynchronous page view.
#include "PageView.h"

#include <QByteArray>
#include <QObject>
#include <QRecursiveMutex>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <optional>

namespace qor {

class LoadablePage {
public:
    virtual ~LoadablePage() = default;
    LoadablePage(const LoadablePage&) = delete;
    LoadablePage& operator=(const LoadablePage&) = delete;

    // The prepared page as UTF-8 bytes.
    QByteArray data;
    // Set when a load starts; only stopLoading() clears it.
    bool loading = false;
    // Kept and counted but never set, so every page counts as unloaded.
    bool loaded = false;

    virtual PageView* webView() const = 0;

    // Loads data as UTF-8 HTML with the pack folder as base, so relative
    // style sheets and images resolve inside the pack.
    void load();
    // Only the flag: the view may already show another page by now.
    void stopLoading() { loading = false; }
    void loadData(const QByteArray& bytes, const QString& mimeType, const QString& encoding, const QUrl& baseUrl);
    // Loads a URL text into the view.
    void loadRequestFromString(const QString& url);
    // Runs a script and waits for its value (main thread only); none on error.
    std::optional<QString> stringByEvaluatingJavaScriptFromString(const QString& script);

    // Held around every load decision: the timer and the screens ask in turn.
    QRecursiveMutex mutex;

protected:
    LoadablePage() = default;
};

// Spins the event loop until the view answers. Errors are logged and give none.
std::optional<QString> evaluateScriptSync(PageView* view, const QString& script);

// The folder URL pages are loaded against.
QUrl pageBaseUrl();

// Runs fn on the thread of context: at once when already there, else queued.
void runOnThreadOf(QObject* context, std::function<void()> fn);

// The repeating 1.5 s timer that drives background loading.
class LoadingTimer {
public:
    LoadingTimer(QObject* owner, std::function<void()> tick);
    // Restarts the timer; on the owner's thread.
    void start();
    void invalidate();
    bool isActive() const { return m_timer.isActive(); }

    static constexpr int kIntervalMs = 1500;

private:
    QObject* m_owner;
    QTimer m_timer;
};

template <typename Views>
int loadingCount(const Views& views)
{
    return int(std::count_if(views.begin(), views.end(), [](const auto& v) { return v->loading; }));
}

template <typename Views>
int unloadedCount(const Views& views)
{
    return int(std::count_if(views.begin(), views.end(), [](const auto& v) { return !v->loaded; }));
}

// Starts pages that are neither loaded nor loading while fewer than limit
// loads are counted. Every idle page counts, started or not, and loading is
// only cleared by stopLoading(): after the first pages the timer idles.
template <typename Views, typename Load>
void loadIdlePagesBelow(const Views& views, int limit, Load load)
{
    int n = loadingCount(views);
    for (const auto& v : views) {
        if (v->loaded || v->loading)
            continue;
        if (n < limit)
            load(v);
        ++n;
    }
}

} // namespace qor
