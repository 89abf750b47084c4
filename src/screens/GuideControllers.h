#pragma once
// The guide list, one guide page and an information page.
#include "MaterialRef.h"

#include <QAbstractListModel>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include "model/PackManifest.h"

#include <QtQml/qqmlregistration.h>

namespace qor {

// Light or dark: the user's choice ("appearance": "light" or "dark") when
// made, otherwise the application palette (window colour lightness).
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
public:
    static constexpr const char* kChoiceKey = "appearance";

    explicit Appearance(QObject* parent = nullptr);
    static bool isDark();
    static bool systemDark();
    // "system", "light" or "dark"; every Appearance follows a change.
    static QString choice();
    static void setChoice(const QString& choice);
    bool dark() const { return m_dark; }

signals:
    void darkChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_dark;
};

class GuideListViewController : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
public:
    enum Roles { GuideIdRole = Qt::UserRole + 1, NameRole, BadgeRole };
    static constexpr const char* kBadge = "guidecircle.pdf";

    explicit GuideListViewController(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Hands the guides of the visible rows to the page builder.
    Q_INVOKABLE void loadGuidesForCurrentView(int firstRow, int lastRow);
    // Only when the list is at rest: loads the visible rows on the next turn of the event loop.
    Q_INVOKABLE void startLoadGuidesTimer(bool tracking, bool dragging, bool decelerating, int firstRow, int lastRow);
    // Loads the row's guide at once; gives its id for the shell to show.
    Q_INVOKABLE QString selectGuide(int row);
    // Rebuilds the guide pages with the style sheet of the new appearance.
    void appearanceChanged(bool dark);
    bool isLoadGuidesTimerActive() const { return m_loadGuidesTimer.isActive(); }

private:
    // The model's guides as the rows show them; replaced in a model reset
    // when the model loads its guide list again.
    QList<GuidePtr> m_guides;
    QTimer m_loadGuidesTimer;
    int m_first = 0;
    int m_last = -1;
};

class GuideViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString guideId READ guideId WRITE setGuide NOTIFY guideChanged)
    Q_PROPERTY(qor::MaterialRef material READ material WRITE setMaterial NOTIFY guideChanged)
    Q_PROPERTY(QString title READ title NOTIFY guideChanged)
    Q_PROPERTY(QString sourceLine READ sourceLine NOTIFY guideChanged)
    Q_PROPERTY(QObject* pageView READ pageView CONSTANT)
    Q_PROPERTY(double textFontSize READ textFontSize NOTIFY textFontSizeChanged)
    Q_PROPERTY(bool rotatePromptVisible READ rotatePromptVisible NOTIFY rotatePromptVisibleChanged)
    Q_PROPERTY(bool isolationVisible READ isolationVisible NOTIFY layoutChanged)
    Q_PROPERTY(double webWidth READ webWidth NOTIFY layoutChanged)
    Q_PROPERTY(double panelX READ panelX NOTIFY layoutChanged)
    Q_PROPERTY(double panelWidth READ panelWidth NOTIFY layoutChanged)
public:
    static constexpr const char* kTextFontSizeKey = "textFontSize";
    static constexpr const char* kRotatePromptKey = "kUserHasSeenGuideViewRotatePrompt";
    static constexpr double kMinTextSize = 65;
    static constexpr double kMaxTextSize = 130;
    static constexpr int kPromptDelayMs = 1000;

    explicit GuideViewController(QObject* parent = nullptr);

    QString guideId() const;
    void setGuide(const QString& guideId);
    MaterialRef material() const { return m_material; }
    void setMaterial(const MaterialRef& material);
    QString title() const;
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("guides") }); }
    QObject* pageView() const;

    // The stored "textFontSize", 100 when absent.
    static double storedTextFontSize();
    double textFontSize() const { return storedTextFontSize(); }
    bool rotatePromptVisible() const { return m_rotatePromptVisible; }
    bool isolationVisible() const { return m_isolationVisible; }
    double webWidth() const { return m_webWidth; }
    double panelX() const { return m_panelX; }
    double panelWidth() const { return m_panelWidth; }

    // The screen is about to show: page, rotate prompt, text size, layout.
    Q_INVOKABLE void viewWillAppear(double width, double height);
    Q_INVOKABLE void prepareViewsForSize(double width, double height);
    // Clamped to 65..130, applied at once and stored.
    Q_INVOKABLE void sliderChanged(double value);
    Q_INVOKABLE void hideRotatePrompt();
    Q_INVOKABLE bool emailWebPage();
    // Asks the host for a PDF of the page (printRequested); printFinished opens it.
    Q_INVOKABLE void printWebPage();
    Q_INVOKABLE void printFinished(const QString& pdfPath, bool ok);

signals:
    void guideChanged();
    void textFontSizeChanged();
    void rotatePromptVisibleChanged();
    void layoutChanged();
    void printRequested(const QString& pdfPath);

private:
    void setRotatePromptVisible(bool on);

    GuidePtr m_guide;
    MaterialRef m_material;
    QTimer m_promptTimer;
    bool m_rotatePromptVisible = false;
    bool m_isolationVisible = false;
    double m_webWidth = 0;
    double m_panelX = 0;
    double m_panelWidth = 0;
};

class InfoViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(QObject* pageView READ pageView NOTIFY pageChanged)
    Q_PROPERTY(QString sourceLine READ sourceLine NOTIFY pageChanged)
public:
    static constexpr const char* kGuideScheme = "showguide://";

    explicit InfoViewController(QObject* parent = nullptr);
    QString page() const { return m_page; }
    void setPage(const QString& page);
    QObject* pageView() const { return m_pageView; }
    QString sourceLine() const { return PackManifest::sourceLine({ QStringLiteral("pages") }); }

    // A link followed in the page: guides open in the app, web links outside.
    Q_INVOKABLE void decidePolicyForNavigation(const QString& link);

signals:
    void pageChanged();
    void guideRequested(const QString& guideId, const QString& title);
    void externalUrlRequested(const QUrl& url);

private:
    QString m_page;
    QObject* m_pageView = nullptr;
};

} // namespace qor
