#pragma once
// The keys each screen answers to, for the "Keyboard shortcuts" sheet. The
// shell's key handlers and this list describe the same keys; the list is
// kept in C++ so a test can check what each screen offers.
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace qor {

struct KeyboardShortcut {
    QString keys;   // as shown: "Ctrl+F", "Enter or Space"
    QString action; // what it does, translated
};

class KeyboardShortcuts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    explicit KeyboardShortcuts(QObject* parent = nullptr) : QObject(parent) {}

    // The keys live on the given screens (the objectNames of the pages on
    // screen: the list and the detail side by side in the wide layout),
    // each key once, the keys that work everywhere last. `wide` is the
    // layout that shows the detail sections together instead of tabs.
    static QList<KeyboardShortcut> forScreens(const QStringList& screens, bool wide);
    // The same as maps with "keys" and "action", for the sheet.
    Q_INVOKABLE static QVariantList shortcutsFor(const QStringList& screens, bool wide);
    // The sheet's title.
    Q_INVOKABLE static QString title();
};

} // namespace qor
