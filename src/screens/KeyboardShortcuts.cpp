#include "KeyboardShortcuts.h"

#include "model/Resources.h"

namespace qor {

namespace {

void add(QList<KeyboardShortcut>& out, const QString& keys, const QString& action)
{
    for (const KeyboardShortcut& s : out) {
        if (s.keys == keys)
            return; // the first screen that names a key says what it does
    }
    out.append({ keys, action });
}

// Rows of a detail table: taking focus one by one and opening the focused one.
void addRows(QList<KeyboardShortcut>& out)
{
    add(out, L::tr("Tab, Up, Down"), L::tr("Move through the rows"));
    add(out, L::tr("Enter or Space"), L::tr("Open the focused row"));
    add(out, L::tr("Ctrl+C"), L::tr("Copy the focused name and number"));
    add(out, L::tr("Ctrl+I"), L::tr("About the focused section"));
}

void addTextSize(QList<KeyboardShortcut>& out)
{
    add(out, L::tr("Ctrl+Plus"), L::tr("Larger text"));
    add(out, L::tr("Ctrl+Minus"), L::tr("Smaller text"));
}

void addUnits(QList<KeyboardShortcut>& out)
{
    add(out, QStringLiteral("U"), L::tr("Switch between ft/miles and m/kms"));
}

} // namespace

QList<KeyboardShortcut> KeyboardShortcuts::forScreens(const QStringList& screens, bool wide)
{
    QList<KeyboardShortcut> out;
    for (const QString& screen : screens) {
        if (screen == QLatin1String("materialList")) {
            add(out, L::tr("Type, Ctrl+F or /"), L::tr("Search the materials"));
            add(out, L::tr("Enter"), L::tr("Open the first result"));
            add(out, L::tr("Up, Down"), L::tr("Move through the results"));
        } else if (screen == QLatin1String("materialDetail")) {
            addRows(out);
            if (wide) {
                add(out, L::tr("Ctrl+1, Ctrl+2, Ctrl+3"), L::tr("Go to the summary, shipping or protection column"));
                addUnits(out);
            } else {
                add(out, L::tr("Ctrl+1, Ctrl+2, Ctrl+3"), L::tr("Show the Summary, Shipping or Protection tab"));
            }
        } else if (screen == QLatin1String("guidePage")) {
            addTextSize(out);
            add(out, L::tr("Ctrl+P"), L::tr("Print the guide"));
            add(out, QStringLiteral("F11"), L::tr("Full screen"));
            add(out, L::tr("Esc"), L::tr("Leave full screen, then go back"));
        } else if (screen == QLatin1String("isolationPage")) {
            addUnits(out);
        } else if (screen == QLatin1String("infoPage")) {
            addTextSize(out);
        } else if (screen == QLatin1String("shippingEntry") || screen == QLatin1String("provisionsPage")) {
            addRows(out);
        }
    }
    add(out, L::tr("Esc or Alt+Left"), L::tr("Back"));
    add(out, L::tr("Tab, Shift+Tab"), L::tr("Move to the next or previous control"));
    add(out, L::tr("Ctrl+Shift+D"), L::tr("Switch between the light and dark appearance"));
    add(out, L::tr("F1 or ?"), L::tr("Show these keyboard shortcuts"));
    return out;
}

QVariantList KeyboardShortcuts::shortcutsFor(const QStringList& screens, bool wide)
{
    QVariantList out;
    for (const KeyboardShortcut& s : forScreens(screens, wide))
        out.append(QVariantMap{ { QStringLiteral("keys"), s.keys }, { QStringLiteral("action"), s.action } });
    return out;
}

QString KeyboardShortcuts::title()
{
    return L::tr("Keyboard shortcuts");
}

} // namespace qor
