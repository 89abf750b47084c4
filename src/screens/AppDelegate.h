#pragma once
// The hub of navigation: tabs, the phone/tablet layout, links into the app,
// shortcuts other screens use to open a guide or a filtered list, full-screen
// reading, and saving the user's data when the app is hidden or quits.
#include "AppLinks.h"
#include "MaterialRef.h"

#include <QObject>
#include <QWindow>
#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

class QGuiApplication;

namespace qor {

class QORAppDelegate : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(AppDelegate)
    QML_SINGLETON
    Q_PROPERTY(bool tablet READ tablet NOTIFY tabletChanged)
    Q_PROPERTY(int currentTab READ currentTab WRITE setCurrentTab NOTIFY currentTabChanged)
    Q_PROPERTY(bool fullscreen READ fullscreen NOTIFY fullscreenChanged)
    Q_PROPERTY(qor::MaterialRef detailMaterial READ detailMaterial NOTIFY detailMaterialChanged)
public:
    // Tab indices; the tablet has no About tab, and the UN-number search comes last.
    enum Tab { MaterialsTab = 0, GuidesTab = 1, HistoryTab = 2, ReferenceTab = 3, AboutTab = 4 };
    Q_ENUM(Tab)
    static constexpr int kTabletMinWidth = 900;
    static constexpr int kSearchLinkDelayMs = 3000;
    static constexpr int kScrollLinkDelayMs = 333;

    static QORAppDelegate* sharedInstance();
    static QORAppDelegate* create(QQmlEngine*, QJSEngine*);

    bool tablet() const { return m_tablet; }
    int currentTab() const { return m_currentTab; }
    void setCurrentTab(int tab);
    bool fullscreen() const { return m_fullscreen; }
    MaterialRef detailMaterial() const { return m_detailMaterial; }
    int searchTab() const { return m_tablet ? 4 : 5; }

    // "phone" or "tablet" fixes the layout; empty lets the window size decide.
    Q_INVOKABLE void setFormFactorOverride(const QString& formFactor);
    Q_INVOKABLE void updateForWindowSize(int width, int height);

    Q_INVOKABLE void showGuide(const QString& guideId);
    Q_INVOKABLE void showGuideForMaterial(const QString& guideId, const qor::MaterialRef& material);
    Q_INVOKABLE void showAllMaterialsWithSort(int sort);
    Q_INVOKABLE void showFilteredListForCategory(const QString& abbrev);
    Q_INVOKABLE void showDetailForMaterial(const qor::MaterialRef& material);
    // Where an opened material goes, decided here only: on a tablet into
    // the detail area (true); on a phone nowhere yet (false), and the
    // caller pushes the detail screen on its own stack.
    Q_INVOKABLE bool showInDetailArea(const qor::MaterialRef& material);
    // Empties the detail area. QML cannot pass null for a MaterialRef: Qt
    // 6.4 copies such an argument from an invalid address.
    Q_INVOKABLE void clearDetail();
    Q_INVOKABLE void toggleFullscreen();
    Q_INVOKABLE void setFullscreen(bool fullscreen);
    // A qor:// link from the command line or a second launch; always handled.
    Q_INVOKABLE bool openUrl(const QString& url);
    Q_INVOKABLE void saveData();
    // Saves whenever the application is hidden or inactive, the window is
    // hidden or minimised, and when the application quits.
    void saveWhenHiddenOrQuitting(QGuiApplication* app, QWindow* window);
    Q_INVOKABLE void applicationDidReceiveMemoryWarning();
    // Creates the guide and info page builders; scheduled 0.1 s after launch.
    void loadGuideList();

signals:
    void tabletChanged();
    void currentTabChanged();
    void fullscreenChanged();
    void detailMaterialChanged();
    // Navigation the QML shell carries out.
    void guideRequested(const QString& guideId, const qor::MaterialRef& material);
    void materialRequested(const qor::MaterialRef& material);
    void searchRequested(const QString& text);
    void scrollToMaterialRequested(const qor::MaterialRef& material);
    void endSearchRequested();
    void sortImageRequested(const QString& image);
    // A modal message for the user (file errors); the shell shows it.
    void dialogRequested(const QString& title, const QString& message, const QString& button);

private:
    explicit QORAppDelegate(QObject* parent = nullptr);
    void setTablet(bool tablet);

    bool m_tablet = false;
    QString m_formFactorOverride;
    int m_currentTab = ReferenceTab;
    bool m_fullscreen = false;
    MaterialRef m_detailMaterial;
};

} // namespace qor
