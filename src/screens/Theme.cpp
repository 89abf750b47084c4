#include "Theme.h"

#include "GuideControllers.h"

#include <QCoreApplication>
#include <cmath>
#include <cstring>

namespace qor {

namespace {

// The bars keep their navy and the guide pages their orange in both
// appearances; content areas are light with dark text, or the other way round.
constexpr ThemeRole kRoles[] = {
    // Bars: navigation, tab and tool bars.
    { "barBackground", 0x2c3e50, 0x2c3e50 },    // RGB 44, 62, 80
    { "barText", 0xffffff, 0xffffff },
    // The chosen tab and tools on the bar: the tint (RGB 22, 160, 133) is too
    // dark on the navy for small text, so the bar takes a lighter shade of it.
    { "barSelectedText", 0x6fdcc6, 0x6fdcc6 },
    { "barPressed", 0x3d566e, 0x3d566e },      // a pressed or chosen button on the bar
    { "tint", 0x16a085, 0x16a085 },             // RGB 22, 160, 133
    // Content areas.
    { "pageBackground", 0xf4f6f8, 0x243040 },   // dark: 0.14, 0.18, 0.25
    { "pageText", 0x17202b, 0xffffff },
    { "secondaryText", 0x45515d, 0xcccccc },
    { "disabledText", 0x5e6b77, 0x8fa0b0 },
    { "accentText", 0x8f4700, 0xffb045 },       // UN numbers and other figures to find at a glance
    { "tintText", 0x0b6b58, 0x5fd3bc },         // check marks and the side index
    { "errorText", 0xb3261e, 0xffa8a8 },
    { "valueText", 0x7a3d00, 0xffd27f },        // isolation distances
    { "fieldBackground", 0xffffff, 0x1c2630 },  // text fields
    { "sectionBackground", 0xdfe6ee, 0x34495e },
    { "sectionText", 0x17202b, 0xffffff },
    { "noticeBackground", 0xfff1d6, 0x1c2630 },
    { "noticeText", 0x7a3d00, 0xffb045 },
    { "rowHighlight", 0xc6d6e8, 0x34495e },     // pressed or selected row
    { "rowFocus", 0xe3eaf2, 0x2e3e52 },
    // The keyboard focus ring: a ring with a thin inner edge of its own, so
    // that one of the two stands out on any row, white cards included.
    { "focusRing", 0x1f5fae, 0xffe9b0 },
    { "focusRingInner", 0xffffff, 0x000000 },
    { "separator", 0xc5cdd6, 0x1c2630 },
    { "divider", 0x000000, 0x000000 },
    // Isolation rows: RGB 156, 188, 156 in light mode, 105, 137, 105 in dark.
    { "isolationGreen", 0x9cbc9c, 0x698969 },
    { "isolationText", 0x000000, 0x000000 },
    // Guide pages and badges keep their orange page colour.
    { "guideBackground", 0xffb045, 0xffb045 },
    { "guideText", 0x000000, 0x000000 },
    // Full-screen hint over the guide.
    { "overlayBackground", 0x141414, 0x141414 },
    { "overlayText", 0xffffff, 0xffffff },
    // White cards: the GHS pictogram statements, regulation pages.
    { "cardBackground", 0xffffff, 0xffffff },
    { "cardText", 0x000000, 0x000000 },
    { "linkText", 0x1f5fae, 0x1f5fae },
    // The hazard diamond keeps its own colours.
    { "nfpaFire", 0xd7261e, 0xd7261e },
    { "nfpaReactivity", 0xf7e11b, 0xf7e11b },
    { "nfpaHealth", 0x1f5fae, 0x1f5fae },
    { "nfpaSpecial", 0xffffff, 0xffffff },
    { "nfpaText", 0x000000, 0x000000 },
    { "nfpaHealthText", 0xffffff, 0xffffff },
};

constexpr ThemePair kPairs[] = {
    { "barText", "barBackground" },
    { "barSelectedText", "barBackground" },
    { "barText", "barPressed" },
    { "barSelectedText", "barPressed" },
    { "pageText", "pageBackground" },
    { "secondaryText", "pageBackground" },
    { "disabledText", "pageBackground" },
    { "accentText", "pageBackground" },
    { "tintText", "pageBackground" },
    { "errorText", "pageBackground" },
    { "valueText", "pageBackground", true },
    { "pageText", "rowHighlight" },
    { "secondaryText", "rowHighlight" },
    { "accentText", "rowHighlight" },
    { "pageText", "rowFocus" },
    { "secondaryText", "rowFocus" },
    { "accentText", "rowFocus" },
    { "pageText", "fieldBackground" },
    { "secondaryText", "fieldBackground" },
    { "sectionText", "sectionBackground" },
    { "secondaryText", "sectionBackground" },
    { "tintText", "sectionBackground" },
    { "errorText", "sectionBackground" },
    { "noticeText", "noticeBackground" },
    { "pageText", "noticeBackground" },
    { "secondaryText", "noticeBackground" },
    { "accentText", "noticeBackground" },
    { "isolationText", "isolationGreen" },
    { "guideText", "guideBackground" },
    { "overlayText", "overlayBackground" },
    { "cardText", "cardBackground" },
    { "linkText", "cardBackground" },
    { "accentText", "sectionBackground" },
    // The focus ring is not text: 3:1 against what it is drawn on.
    { "focusRing", "pageBackground", true },
    { "focusRing", "sectionBackground", true },
    { "focusRing", "isolationGreen", true },
    { "focusRing", "focusRingInner", true },
    // Selected text and menu items: the controls' highlight is the ring's colour.
    { "focusRingInner", "focusRing" },
    // The diamond's figures are large and bold.
    { "nfpaText", "nfpaFire", true },
    { "nfpaText", "nfpaReactivity", true },
    { "nfpaText", "nfpaSpecial", true },
    { "nfpaHealthText", "nfpaHealth", true },
};

double channel(double c)
{
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& c)
{
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

} // namespace

std::span<const ThemeRole> themeRoles()
{
    return kRoles;
}

std::span<const ThemePair> themePairs()
{
    return kPairs;
}

QColor themeColor(const char* name, bool dark)
{
    for (const ThemeRole& role : kRoles) {
        if (std::strcmp(role.name, name) == 0)
            return QColor::fromRgb(dark ? role.dark : role.light);
    }
    return {};
}

double contrastRatio(const QColor& a, const QColor& b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QorTheme::QorTheme(QObject* parent) : QQmlPropertyMap(this, parent), m_appearance(new Appearance(this))
{
    connect(m_appearance, &Appearance::darkChanged, this, [this] {
        refresh();
        emit darkChanged();
    });
    refresh();
}

bool QorTheme::dark() const
{
    return m_appearance->dark();
}

QString QorTheme::choice() const
{
    return Appearance::choice();
}

void QorTheme::setChoice(const QString& chosen)
{
    const QString before = Appearance::choice();
    const bool wasDark = dark();
    Appearance::setChoice(chosen);
    if (Appearance::choice() != before && dark() == wasDark)
        emit darkChanged(); // the choice changed but the colours did not
}

void QorTheme::toggle()
{
    setChoice(dark() ? QStringLiteral("light") : QStringLiteral("dark"));
}

QString QorTheme::pdf(const QString& name, double w, double h)
{
    if (name.isEmpty())
        return {};
    return QStringLiteral("image://pdf/%1?w=%2&h=%3").arg(name).arg(std::lround(w)).arg(std::lround(h));
}

QVariant QorTheme::updateValue(const QString& key, const QVariant&)
{
    return value(key); // the screens read the theme, never write it
}

void QorTheme::refresh()
{
    const bool isDark = m_appearance->dark();
    QVariantHash colours;
    for (const ThemeRole& role : kRoles)
        colours.insert(QLatin1String(role.name), QColor::fromRgb(isDark ? role.dark : role.light));
    insert(colours);
}

} // namespace qor
