#pragma once
// Every colour the screens draw with, in a light and a dark variant, and the
// text-on-background pairs they combine them into. QML reads the colours of the
// current appearance as QorTheme.<role>; the pairs let a test check legibility.
#include <QColor>
#include <QQmlPropertyMap>
#include <QtQml/qqmlregistration.h>
#include <span>

namespace qor {

class Appearance;

struct ThemeRole {
    const char* name;
    QRgb light;
    QRgb dark;
};

// Text or an icon (`text`) drawn on a background. Large text (18 px, or 14 px
// bold) may go lower.
struct ThemePair {
    const char* text;
    const char* background;
    bool large = false;
};

std::span<const ThemeRole> themeRoles();
std::span<const ThemePair> themePairs();
// The role's colour in one appearance; invalid for an unknown name.
QColor themeColor(const char* name, bool dark);

// Contrast between two opaque colours as WCAG 2.1 defines it: 1 to 21.
double contrastRatio(const QColor& a, const QColor& b);
constexpr double kMinContrast = 4.5;
constexpr double kMinLargeContrast = 3.0;

class QorTheme : public QQmlPropertyMap {
    Q_OBJECT
    QML_NAMED_ELEMENT(QorTheme)
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)
    // "system" (follow the desktop), "light" or "dark"; stored as "appearance".
    Q_PROPERTY(QString choice READ choice WRITE setChoice NOTIFY darkChanged)
    Q_PROPERTY(int touchTarget READ touchTarget CONSTANT)
public:
    explicit QorTheme(QObject* parent = nullptr);

    bool dark() const;
    QString choice() const;
    void setChoice(const QString& choice);
    // Switches to the other appearance, remembering it as the user's choice.
    Q_INVOKABLE void toggle();
    static int touchTarget() { return 44; }
    // An image of the pack's PDF artwork at the given size in points.
    Q_INVOKABLE static QString pdf(const QString& name, double w, double h);

signals:
    void darkChanged();

protected:
    QVariant updateValue(const QString& key, const QVariant& input) override;

private:
    void refresh();
    Appearance* m_appearance;
};

} // namespace qor
